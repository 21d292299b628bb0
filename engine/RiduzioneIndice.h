#pragma once
// The index behind the fast reduction. Two columns share at least t of their
// first six numbers exactly when they have a t-number subset in common, so
// the columns covering column i are the union of the lists "columns holding
// S" over the C(6,t) t-subsets S of i (at most 20 lists).
//
// Counting that union without walking it: a column j sharing s numbers with i
// is found in C(s,k) of i's k-subsets, so A_k(i) = sum over i's k-subsets of
// |columns holding S| = sum_j C(s_j, k). The indicator [s >= t] equals
// sum_{k=t..s} (-1)^(k-t) C(k-1,t-1) C(s,k), hence
//     #{j : s_j >= t} = sum_{k=t..6} (-1)^(k-t) C(k-1,t-1) A_k(i),
// and i itself (s = 6) is subtracted. Every A_k needs one count per k-subset:
// a plain array for k <= 4 (C(90,4) = 2,555,190 entries), a sorted list of
// (subset, column) pairs for k = 5 and 6, whose key spaces are too large for
// an array. The work is about 42 look-ups per column instead of count.
//
// Subsets are numbered by the combinatorial number system: the subset
// a1 < ... < ak of 0..89 is sum C(a_m, m); C(90,6) - 1 fits in 32 bits.

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "Colonna.h"

namespace combi::riduzione {

class IndiceCoperture {
public:
    // Columns already checked (six different numbers 1..90 each); t in 1..6.
    IndiceCoperture(const std::vector<Colonna>& colonne, int punti);

    // conte[i]: how many other columns share at least t numbers with column i (0-based).
    const std::vector<int32_t>& Conte() const { return conte_; }

    // Calls f(j) for every column j (0-based) sharing at least t numbers with
    // column i, i itself included; a column sharing s numbers is visited C(s,t) times.
    template <typename F>
    void PerVicini(uint32_t i, F&& f) const;

private:
    using Sestina = std::array<uint8_t, 6>;  // the six numbers - 1, ascending

    // Ranks of the k-subsets of column i, in a fixed order.
    int Sottoinsiemi(uint32_t i, int k, uint32_t* ranghi) const;
    void ContaDenso(int k, int64_t coefficiente);
    void ContaSparso(int k, int64_t coefficiente);

    std::vector<Sestina> sestine_;
    int punti_;
    std::vector<int32_t> conte_;
    std::vector<int64_t> somme_;  // the alternating sum, per column

    // Lists of the t-subsets: dense (offset per subset) or sorted pairs.
    bool denso_ = true;
    std::vector<uint32_t> inizio_;   // dense: list of subset r = membri_[inizio_[r] .. inizio_[r+1])
    std::vector<uint32_t> membri_;
    std::vector<uint64_t> coppie_;   // sparse: (rank << 32 | column), sorted
};

template <typename F>
void IndiceCoperture::PerVicini(uint32_t i, F&& f) const {
    uint32_t ranghi[20];
    const int quanti = Sottoinsiemi(i, punti_, ranghi);
    for (int s = 0; s < quanti; ++s) {
        const uint32_t r = ranghi[s];
        if (denso_) {
            for (uint32_t m = inizio_[r]; m < inizio_[r + 1]; ++m) f(membri_[m]);
        } else {
            auto it = std::lower_bound(coppie_.begin(), coppie_.end(), uint64_t(r) << 32);
            for (; it != coppie_.end() && (*it >> 32) == r; ++it) f(uint32_t(*it));
        }
    }
}

}  // namespace combi::riduzione
