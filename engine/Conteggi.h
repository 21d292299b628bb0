#pragma once
// Counts of the integral system and the lexicographic enumeration of its columns.

#include <cstdint>
#include <vector>

#include "Colonna.h"

namespace combi {

// n! in double precision, built as n x (1 x 2 x ... x (n-1)): 0 for 0.
double Fattoriale(int n);

// C(n, k) through the factorials, not rounded; 0 when n < k.
double CalcolaIntegrali(int n, int k);

// Exact C(n, k) for the enumeration (n <= 90, so it fits in 64 bits for k <= 20).
uint64_t Combinazioni(int n, int k);

// The integral columns of the ascending picked numbers `sel` in class k, in
// lexicographic order: position r of a column reads sel[r + idx[r] - 1] with
// non-decreasing indices idx (the candidate table of the development).
class Enumerazione {
public:
    Enumerazione(const std::vector<int>& sel, int k);

    // Moves to the column of the given 0-based rank in the enumeration.
    void Posiziona(uint64_t rango);
    // The current column.
    const Colonna& Corrente() const { return colonna_; }
    // Advances to the next column; false when none is left.
    bool Avanza();
    uint64_t Totale() const { return totale_; }

private:
    std::vector<int> sel_;
    int k_;
    int n_;
    uint64_t totale_;
    std::vector<int> pos_;  // 0-based index into sel_ of each position, strictly increasing
    Colonna colonna_;
};

}  // namespace combi
