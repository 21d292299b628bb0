#pragma once
// The reduction of a set of columns: keep a subset such that every dropped
// column shares at least `puntiRichiesti` of its k numbers with some kept
// column, k being the class of the set (ClasseColonne). Three phases:
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
//  - the class k of the set is the class of its first column (its highest
//    position holding a number) and must be 2..10;
//  - the first k bytes of every column must be k different numbers 1..90,
//    otherwise the reduction refuses the set (Errore 321 naming the column):
//    in a class-6 set a class-5 column has no sixth number to compare;
//  - numbers after position k are not compared: a class-6 file whose records
//    carry a seventh byte reduces on the first six numbers, as it always has.
//    A set is "mixed" when a column has fewer numbers than the first one.
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

inline constexpr int kNumeriRiduzione = 6;      // the usual class: six numbers per column
inline constexpr int kMinimaClasseRiduzione = 2;
inline constexpr int kMassimaClasseRiduzione = 10;

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

// The common class of a set of columns: the class of the first column, which
// every column must reach with different numbers 1..90 in its first
// positions. 0 for no column. Throws Errore 321 for a class outside 2..10
// or naming the first column with fewer numbers (a mixed set).
int ClasseColonne(const std::vector<Colonna>& colonne);

// `colonne` are the columns in file order; `puntiRichiesti` is 1..k for a
// set of class k (the dialog offers k - 1, k - 2 and k - 3). Throws Errore
// for points outside 1..k or a set ClasseColonne refuses.
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
