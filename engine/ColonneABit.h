#pragma once
// The columns turned on their side for the back-test: for every number 1..90
// one row of bits, bit j set when column j holds the number. The points of
// 64 columns against a draw are then the sum of the drawn numbers' rows,
// added word by word with bitwise full adders into a few bit planes (plane b
// holds bit b of each column's points); the count of columns at p points is
// the population count of the planes matching p.
//
// A draw of D numbers against 64 columns costs about D times the planes
// (3 for Lotto) in word operations, plus a few per point value: a million
// columns take a fraction of a millisecond per draw on one core.

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "ArchivioEstrazioni.h"
#include "Colonna.h"

namespace combi {

class ColonneABit {
public:
    // `colonne` must hold only numbers 0..90 (0 meaning no number), each
    // number at most once per column: a repeated number would count once.
    explicit ColonneABit(const std::vector<Colonna>& colonne);

    // conte[i][p] = the columns scoring p points against estrazioni[i], for
    // i < quante; every counter of conte[i] is overwritten.
    void Conta(const Estrazione* estrazioni, size_t quante, std::array<int64_t, kMaxClasse + 1>* conte) const;

private:
    size_t colonne_{};
    size_t parole_{};          // 64-bit words per row
    int classeMassima_{};      // no column scores more
    std::vector<uint64_t> righe_;            // row n at n * parole_, n 1..90
    std::array<bool, kMaxNumero + 1> presente_{};  // some column holds n: an empty row is skipped
};

}  // namespace combi
