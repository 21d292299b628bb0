#pragma once
// The integral columns walked block by block: a block is the run of columns
// that share their first k-1 numbers (the prefix) and differ in the last one.
// In lexicographic order a block's columns have consecutive ranks, so any
// stretch of ranks is a sequence of blocks, the first and last possibly cut.

#include <array>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "Colonna.h"
#include "Maschera.h"
#include "Prefisso.h"

namespace combi {

class EnumerazioneBlocchi {
public:
    // `sel`: the picked numbers, ascending; k: the class, 1..20.
    EnumerazioneBlocchi(const std::vector<int>& sel, int k);

    // Moves to the column of the given 0-based rank.
    void Posiziona(uint64_t rango);

    // Walks the next `quante` columns (fewer at the end of the enumeration).
    // A whole row (the blocks whose prefixes share their first k-2 numbers)
    // that lies in the stretch goes to riga(q, yPrimo, yUltimo) at once: the
    // row's prefix q and the range of its numbers at position k-1. Every
    // other block, or piece of a block, goes to blocco(prefisso, candidati,
    // intero): the candidates are the numbers of position k in those columns,
    // `intero` tells that they are the whole block.
    // Returns how many columns were walked.
    template <class R, class B>
    uint64_t Percorri(uint64_t quante, R&& riga, B&& blocco) {
        uint64_t fatte = 0;
        while (fatte < quante && !finita_) {
            if (InizioRiga() && DimensioneRiga() <= quante - fatte) {
                riga(stati_[size_t(k_ - 2)], sel_[size_t(PrimoY())], sel_[size_t(n_ - 2)]);
                fatte += DimensioneRiga();
                SaltaRiga();
                continue;
            }
            const uint64_t n = std::min<uint64_t>(quante - fatte, uint64_t(n_ - prossimo_));
            const int ultimo = prossimo_ + int(n) - 1;
            const bool intero = prossimo_ == PrimoCandidato() && ultimo == n_ - 1;
            blocco(stati_[size_t(k_ - 1)],
                   scelti_ & Maschera128::Intervallo(sel_[size_t(prossimo_)], sel_[size_t(ultimo)]), intero);
            fatte += n;
            prossimo_ = ultimo + 1;
            if (prossimo_ == n_) AvanzaPrefisso();
        }
        return fatte;
    }

private:
    void AvanzaPrefisso();
    // Moves past the current row: to the first column of the next one.
    void SaltaRiga() {
        pos_[size_t(k_ - 2)] = n_ - 2;
        AvanzaPrefisso();
    }
    // The index into sel_ of the block's first candidate.
    int PrimoCandidato() const { return k_ >= 2 ? pos_[size_t(k_ - 2)] + 1 : 0; }
    // The index into sel_ of the row's first number at position k-1.
    int PrimoY() const { return k_ >= 3 ? pos_[size_t(k_ - 3)] + 1 : 0; }
    // At the first column of a row (class 2 and up).
    bool InizioRiga() const {
        return k_ >= 2 && pos_[size_t(k_ - 2)] == PrimoY() && prossimo_ == PrimoCandidato();
    }
    // The columns of the row: two of the numbers after its prefix.
    uint64_t DimensioneRiga() const {
        const uint64_t m = uint64_t(n_ - PrimoY());
        return m * (m - 1) / 2;
    }
    void Ricostruisci(int da);  // the prefix states from position `da` (0-based) on

    std::vector<int> sel_;
    int k_;
    int n_;
    Maschera128 scelti_;
    std::array<int, kMaxClasse> pos_{};       // 0-based indices into sel_ of the prefix
    std::array<Prefisso, kMaxClasse> stati_{};  // stati_[d]: the first d numbers
    int prossimo_{};                           // index into sel_ of the next candidate
    bool finita_ = false;
};

}  // namespace combi
