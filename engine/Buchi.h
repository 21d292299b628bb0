#pragma once
// The holes of a set of kept columns: the columns sharing fewer than t
// numbers with every kept one. Two columns share t numbers exactly when they
// have a t-subset in common, so the kept columns' t-subsets are ranked
// (Sottoinsiemi.h) and sorted once, and every column to cover looks its own
// up. Not part of the public interface (see Garanzia.h).

#include <cstdint>
#include <vector>

#include "Colonna.h"

namespace combi::riduzione {

class SottoinsiemiTenuti {
public:
    // Compares the first `posizioni` positions of every column (their non-zero numbers).
    SottoinsiemiTenuti(const std::vector<Colonna>& tenute, int posizioni, int punti);
    bool Coperta(const Colonna& c) const;

private:
    int posizioni_;
    int punti_;
    std::vector<uint64_t> ranghi_;  // sorted, without repeats
};

// Throws Errore 321 naming the first column with a number above 90 or a
// repeated number in its first `posizioni` positions; `cosa` names the list.
void ControllaNumeri(const std::vector<Colonna>& colonne, int posizioni, const char* cosa);

// How many of `daCoprire` no kept column covers, comparing the first `posizioni` positions.
uint64_t ContaBuchi(const std::vector<Colonna>& tenute, const std::vector<Colonna>& daCoprire, int posizioni,
                    int punti);

}  // namespace combi::riduzione
