#pragma once
// Who covers whom, for the local search of the optimising reduction
// (RicercaLocale.h): built once and shared, read-only, by its searches.
// Not part of the public interface.
//
// A column covers another when they share at least t numbers. A search step
// walks the columns covered by the leaving and by the entering column, so
// those walks must be cheap: when the lists fit (kMassimiVicini entries) each
// column's list is stored flat, once, without repeats; otherwise the walk goes
// through the subset index, which meets a column once per common t-subset, and
// the caller's marks skip the repeats.
// The columns are also found by their numbers (a hash of the bit masks), so a
// search can change one number of a kept column and know whether the result
// is an input column.

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <optional>
#include <vector>

#include "Colonna.h"
#include "Maschera.h"
#include "RiduzioneIndice.h"

namespace combi::riduzione {

using Maschera = std::array<uint64_t, 2>;  // numbers 1..90 as bits

inline void Metti(Maschera& m, int n) { m[size_t(n >> 6)] |= uint64_t(1) << (n & 63); }
inline void Leva(Maschera& m, int n) { m[size_t(n >> 6)] &= ~(uint64_t(1) << (n & 63)); }
inline int QuantiNumeri(const Maschera& m) { return Maschera128{m[0], m[1]}.Conta(); }
// The number in place i of m, counting from 0 in ascending order; i below
// QuantiNumeri(m).
inline int NumeroDiPosto(const Maschera& m, uint64_t i) {
    const uint64_t basse = uint64_t(std::popcount(m[0]));
    const size_t parola = i < basse ? 0 : 1;
    uint64_t x = m[parola];
    for (uint64_t salta = parola == 0 ? i : i - basse; salta > 0; --salta) x &= x - 1;
    return int(parola * 64) + std::countr_zero(x);
}
// f(n) for every number of m, ascending.
template <typename F>
void PerOgniNumero(const Maschera& m, F&& f) {
    Maschera128{m[0], m[1]}.PerOgni(f);
}

// The visit marks of one walker: a column is met once per round.
struct Timbri {
    std::vector<uint32_t> segno;
    uint32_t giro{};
};

class Vicinato {
public:
    // `colonne` checked, of class `classe`; t = `punti`. The lists are stored
    // flat when they hold at most `massimiVicini` entries in all.
    Vicinato(const std::vector<Colonna>& colonne, int classe, int punti, uint64_t massimiVicini = kMassimiVicini);

    uint32_t Quante() const { return uint32_t(maschere_.size()); }
    int Classe() const { return classe_; }
    const Maschera& Numeri(uint32_t i) const { return maschere_[i]; }
    Maschera NumeriUsati() const;  // every number some column holds
    int Comuni(uint32_t a, uint32_t b) const;
    bool Copre(uint32_t a, uint32_t b) const { return Comuni(a, b) >= punti_; }
    // The input column holding exactly these numbers, if there is one.
    std::optional<uint32_t> Cerca(const Maschera& m) const;

    // f(j) once for every column j covering column i, i itself included.
    template <typename F>
    void PerVicini(uint32_t i, Timbri& timbri, F&& f) const;

    static constexpr uint64_t kMassimiVicini = 400'000'000;  // 1.6 GB: every column of 1..20 at 3 points fits

private:
    static uint64_t Hash(const Maschera& m);
    void CostruisciElenchi(uint64_t massimiVicini);
    void CostruisciTabella();

    IndiceCoperture indice_;
    int classe_;
    int punti_;
    std::vector<Maschera> maschere_;
    bool piatto_ = false;
    std::vector<uint64_t> inizio_;   // flat: the list of i is membri_[inizio_[i] .. inizio_[i+1])
    std::vector<uint32_t> membri_;
    std::vector<uint32_t> tabella_;  // open addressing: column + 1, 0 = empty
};

template <typename F>
void Vicinato::PerVicini(uint32_t i, Timbri& timbri, F&& f) const {
    if (piatto_) {
        for (uint64_t m = inizio_[i]; m < inizio_[size_t(i) + 1]; ++m) f(membri_[m]);
        return;
    }
    if (timbri.segno.size() != maschere_.size()) timbri.segno.assign(maschere_.size(), 0), timbri.giro = 0;
    if (++timbri.giro == 0) {
        std::fill(timbri.segno.begin(), timbri.segno.end(), 0);
        timbri.giro = 1;
    }
    indice_.PerVicini(i, [&](uint32_t j) {
        if (timbri.segno[j] == timbri.giro) return;
        timbri.segno[j] = timbri.giro;
        f(j);
    });
}

}  // namespace combi::riduzione
