#pragma once
// What a set of kept columns guarantees: the holes against the columns it
// should cover, and the table of the points surely reached when some of the
// chosen numbers are drawn.

#include <vector>

#include "Colonna.h"
#include "Riduzione.h"

namespace combi {

inline constexpr const char* kFaseBuchi = "Ricerca buchi in corso ...";
inline constexpr const char* kFaseTabellaGaranzia = "Calcolo garanzia in corso ...";

// Columns to cover from a list of numbers in a class: every combination, in
// lexicographic order of the positions of `numeri` (ascending numbers give
// ascending columns). Throws Errore for numbers outside 1..90, repeated
// numbers, a class outside 1..20 or above the count of numbers, or more
// combinations than a set held in memory.
std::vector<Colonna> ColonneIntegrali(const std::vector<int>& numeri, int classe);
// Throws Errore 5 on a number outside 1..90 or repeated.
void ControllaNumeri(const std::vector<int>& numeri);

// The holes: the columns of daCoprire sharing fewer than `punti` numbers with
// every kept column, in daCoprire's order. Columns are compared on their
// numbers (every non-zero position). Found through the index of the
// `punti`-subsets of the kept columns: seconds for a million columns.
// Pumps, progress and stop through oss; a stopped search returns the holes
// found so far.
std::vector<Colonna> CercaBuchi(const std::vector<Colonna>& tenute, const std::vector<Colonna>& daCoprire, int punti,
                                OsservatoreRiduzione& oss);

// m drawn numbers among the picked ones -> the best column surely reaches puntiMinimi.
struct RigaGaranzia {
    int indovinati;
    int puntiMinimi;
    bool operator==(const RigaGaranzia&) const = default;
};

struct TabellaGaranzia {
    std::vector<RigaGaranzia> righe;
    bool interrotto = false;
};

// For m = 1..min(estratti, numeri.size()): the minimum over every m-subset M
// of `numeri` of the maximum over kept columns of |column ∩ M|. Exact; a
// stopped run returns the rows finished so far with `interrotto` set.
// Throws Errore for numbers outside 1..90, repeated numbers, or estratti < 1.
TabellaGaranzia CalcolaTabellaGaranzia(const std::vector<Colonna>& tenute, const std::vector<int>& numeri,
                                       int estratti, OsservatoreRiduzione& oss);

}  // namespace combi
