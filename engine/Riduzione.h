#pragma once
// The reduction of a set of columns: keep a subset such that every dropped
// column shares at least `puntiRichiesti` of its first six numbers with some
// kept column. Three phases:
//   1. representativeness: for every column, how many others it covers;
//   2. the table sorted by that count, largest first (the list quicksort);
//   3. greedy selection in sorted order: a column not yet eliminated is kept
//      and eliminates every column it covers that is neither kept nor
//      eliminated.
// The result is every column not eliminated, in file order.
//
// Two paths give the same result, the same progress and the same response to
// a stop: RiduciColonneRiferimento compares every column with every other
// (count^2 steps); RiduciColonne finds the covered columns through an index
// of the subsets of the first six numbers, in time linear in the count.
//
// Decisions about inputs the columns file allows:
//  - no column: the result is empty;
//  - a file whose length is not a multiple of 20: only whole records count;
//  - the first six bytes of every column must be six different numbers
//    1..90, otherwise the reduction refuses the set (Errore 321 naming the
//    column): a class-5 column has no sixth number to compare.
//
// Stop. The observer's stop request is read right after every message pump
// and, once seen, holds until the end of the run. The pumps come after every
// column analysed, once before the sort and after every sorted position
// selected. Once the stop is seen:
//  - the analysis ends; the columns not yet analysed keep their own index
//    with count 0 (so they sort last and can still be kept);
//  - the sort leaves the table after its first exchange step;
//  - the selection processes one more position and ends;
//  - the output still runs: every column not eliminated so far, in file
//    order. Every dropped column is still covered by a kept one.

#include <cstdint>
#include <string>
#include <vector>

#include "Colonna.h"

namespace combi {

inline constexpr int kNumeriRiduzione = 6;  // the reduction looks at the first six numbers

inline constexpr const char* kFaseAnalisi = "Analisi rappresentatività colonne in corso ...";
inline constexpr const char* kFaseOrdinamento = "Ordinamento in corso ...";
inline constexpr const char* kFaseRiduzione = "Riduzione colonne ...";

// What the reduction needs from whoever runs it. Every call comes from the
// thread that called the reduction. ElaboraMessaggi comes after every outer
// step (a million times for a million columns): a host whose pump is costly
// should throttle it itself.
class OsservatoreRiduzione {
public:
    virtual ~OsservatoreRiduzione() = default;
    virtual void Fase(const std::string& testo) { (void)testo; }   // "" at the end
    virtual void Percentuale(int percento) { (void)percento; }     // 0..100, on change
    virtual void ElaboraMessaggi() {}
    virtual bool RichiestaStop() { return false; }
};

struct RisultatoRiduzione {
    std::vector<Colonna> colonne;  // the columns left, in file order
    bool interrotto = false;       // a stop request was seen
};

// `colonne` are the columns in file order; `puntiRichiesti` is 1..6 (the
// dialog offers 5, 4 and 3). Throws Errore for points outside 1..6 or a
// column without six different numbers 1..90 in its first six positions.
RisultatoRiduzione RiduciColonne(const std::vector<Colonna>& colonne, int puntiRichiesti,
                                 OsservatoreRiduzione& oss);

RisultatoRiduzione RiduciColonneRiferimento(const std::vector<Colonna>& colonne, int puntiRichiesti,
                                            OsservatoreRiduzione& oss);

// The columns of a file to reduce (whole records only). Throws Errore 53
// "Il file delle colonne non esiste" when there is no such file.
std::vector<Colonna> LeggiColonneDaRidurre(const std::string& percorso);

// Reads a columns file whole and reduces it.
RisultatoRiduzione RiduciFileColonne(const std::string& percorso, int puntiRichiesti,
                                     OsservatoreRiduzione& oss, bool riferimento = false);

}  // namespace combi
