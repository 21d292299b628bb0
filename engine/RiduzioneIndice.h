#pragma once
// The index behind the fast reduction. Two columns share at least t of their
// k numbers exactly when they have a t-number subset in common, so the
// columns covering column i are the union of the lists "columns holding S"
// over the C(k,t) t-subsets S of i (at most 20 lists in class 6, 252 in class 10).
//
// Counting that union without walking it: a column j sharing s numbers with i
// is found in C(s,k) of i's k-subsets, so A_k(i) = sum over i's k-subsets of
// |columns holding S| = sum_j C(s_j, k). The indicator [s >= t] equals
// sum_{k=t..s} (-1)^(k-t) C(k-1,t-1) C(s,k), hence
//     #{j : s_j >= t} = sum_{m=t..k} (-1)^(m-t) C(m-1,t-1) A_m(i),
// and i itself (s = k) is subtracted. Every A_m needs one count per m-subset:
// a plain array for m <= 4 (C(90,4) = 2,555,190 entries), a sorted list of
// (subset, column) pairs above, whose key spaces are too large for an array.
// The work is about 42 look-ups per column in class 6 instead of count.
//
// Subsets are numbered as in Sottoinsiemi.h. A pair packs the rank above the
// column: at bit 32 up to 6-subsets (C(90,6) - 1 fits in 32 bits), higher
// ranks leave fewer bits to the column (2^21 columns in class 10), beyond
// which the index refuses the set with Errore 7.

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "Colonna.h"

namespace combi::riduzione {

class IndiceCoperture {
public:
    // Columns already checked (k different numbers 1..90 first, k = classe); t in 1..k.
    IndiceCoperture(const std::vector<Colonna>& colonne, int classe, int punti);

    // conte[i]: how many other columns share at least t numbers with column i (0-based).
    const std::vector<int32_t>& Conte() const { return conte_; }

    // Calls f(j) for every column j (0-based) sharing at least t numbers with
    // column i, i itself included; a column sharing s numbers is visited C(s,t) times.
    template <typename F>
    void PerVicini(uint32_t i, F&& f) const;

private:
    using Numeri = std::array<uint8_t, 10>;  // the k numbers - 1, ascending
    static constexpr int kMassimiSottoinsiemi = 252;  // C(10,5)

    // Ranks of the k-subsets of column i, in a fixed order.
    int Sottoinsiemi(uint32_t i, int k, uint64_t* ranghi) const;
    void ContaDenso(int k, int64_t coefficiente);
    void ContaSparso(int k, int64_t coefficiente);

    std::vector<Numeri> numeri_;
    int classe_;
    int punti_;
    std::vector<int32_t> conte_;
    std::vector<int64_t> somme_;  // the alternating sum, per column

    // Lists of the t-subsets: dense (offset per subset) or sorted pairs.
    bool denso_ = true;
    std::vector<uint32_t> inizio_;   // dense: list of subset r = membri_[inizio_[r] .. inizio_[r+1])
    std::vector<uint32_t> membri_;
    std::vector<uint64_t> coppie_;   // sparse: (rank << spostamento_ | column), sorted
    int spostamento_ = 32;
};

// Where the rank starts in a pair of m-subsets: bit 32 up to m = 6, higher
// above, leaving the rank's bits to its top.
int SpostamentoCoppie(int m);

template <typename F>
void IndiceCoperture::PerVicini(uint32_t i, F&& f) const {
    uint64_t ranghi[kMassimiSottoinsiemi];
    const int quanti = Sottoinsiemi(i, punti_, ranghi);
    const uint64_t maschera = (uint64_t(1) << spostamento_) - 1;
    for (int s = 0; s < quanti; ++s) {
        const uint64_t r = ranghi[s];
        if (denso_) {
            for (uint32_t m = inizio_[r]; m < inizio_[r + 1]; ++m) f(membri_[m]);
        } else {
            auto it = std::lower_bound(coppie_.begin(), coppie_.end(), r << spostamento_);
            for (; it != coppie_.end() && (*it >> spostamento_) == r; ++it) f(uint32_t(*it & maschera));
        }
    }
}

}  // namespace combi::riduzione
