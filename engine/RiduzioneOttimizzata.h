#pragma once
// The optimising reduction: RiduciColonne's result improved by local search.
//
// The same promise as the reduction (every input column shares at least
// `puntiRichiesti` numbers with a kept column) with fewer kept columns. The
// search starts from the greedy result and drops its redundant columns; then,
// at a fixed size, it picks an uncovered column, lets the kept column nearest
// to it give way to the input column covering it that leaves the least
// uncovered weight, and takes the change when it does not add weight, or now
// and then when it does (columns that stay uncovered gain weight, so stubborn
// holes are attacked first). Each time every column is covered again the set
// is recorded as the best and the column whose removal uncovers least is
// dropped: the search tries one column fewer. See RicercaLocale.h.
//
// Deterministic for a given seed and step limit: the time budget only ends
// the search earlier. The result is checked against the whole input before it
// is returned; the kept columns are in file order.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Colonna.h"
#include "Riduzione.h"

namespace combi {

inline constexpr const char* kFaseOttimizzazione = "Ottimizzazione in corso ...";

struct OpzioniOttimizzazione {
    double secondi = 60;         // time budget of the search, after the greedy reduction
    uint64_t seme = 1;           // seed of the tie-breaking choices
    uint64_t passiMassimi{};     // 0 = no limit; a limit makes the result independent of the clock
};

class OsservatoreOttimizzazione : public OsservatoreRiduzione {
public:
    // The best valid size found so far, and the seconds since the start;
    // called on every improvement (from the reduction's thread).
    virtual void MigliorTrovato(std::size_t colonne, double secondi) {
        (void)colonne;
        (void)secondi;
    }
};

// Starts from RiduciColonne's result, improves it by local search until the
// time budget, passiMassimi, or a stop request; returns the best VALID set
// found, never larger than RiduciColonne's, kept columns in file order.
// `interrotto` is set when a stop request ended the run (the result is still
// valid). Throws Errore as RiduciColonne does.
RisultatoRiduzione RiduciColonneOttimizzate(const std::vector<Colonna>& colonne, int puntiRichiesti,
                                            const OpzioniOttimizzazione& opzioni, OsservatoreOttimizzazione& oss);

}  // namespace combi
