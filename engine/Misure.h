#pragma once
// The sixteen measures: each turns one column into one integer. They are pure
// functions of the class, the column and at most one parameter.

#include <array>
#include <cstdint>
#include <string_view>

#include "Colonna.h"
#include "Condizione.h"

namespace combi {

// A column prepared once for all the conditions that judge it: the numbers
// c[1..k], their parities p[1..k] (1 = odd) and their sum.
struct ProfiloColonna {
    int k{};
    std::array<int, kMaxClasse + 2> c{};
    std::array<int, kMaxClasse + 2> p{};
    int32_t somma{};
};

// k outside 0..20 is clamped to the record's 20 positions.
ProfiloColonna ProfilaColonna(int k, const Colonna& colonna);

using Insieme = std::array<int16_t, 91>;

int32_t MisuraPuntiColonna(const ProfiloColonna& pc, const Insieme& numeri);  // also Pari-Dispari
int32_t MisuraPeso(const ProfiloColonna& pc, const Insieme& caselle);
// The remainder of the sum; -1 (a value no point list holds) for divisor 0.
int32_t MisuraResto(const ProfiloColonna& pc, int divisore);
int32_t MisuraAmpiezza(const ProfiloColonna& pc);
int32_t MisuraDistanzaMinima(const ProfiloColonna& pc);
int32_t MisuraDistanzaMassima(const ProfiloColonna& pc);
int32_t MisuraConsecutivi(const ProfiloColonna& pc);
int32_t MisuraPonte(const ProfiloColonna& pc);
int32_t MisuraBaricentro(const ProfiloColonna& pc);  // truncated, as the development judges it
// The number at a position; 0 for a position outside 1..20.
int32_t MisuraPosizioni(const ProfiloColonna& pc, int posizione);
int32_t MisuraInterruzioni(const ProfiloColonna& pc);
int32_t MisuraSimmetrie(const ProfiloColonna& pc, int direzione);  // 1 direct, else inverse
int32_t MisuraParalleli(const ProfiloColonna& pc, int direzione);
int32_t MisuraVortice(const ProfiloColonna& pc, int direzione);
// Runs of the parity pattern q[0..L-1]; 0 when L > k or L < 0.
int32_t MisuraSequenze(const ProfiloColonna& pc, const Insieme& schema, int lunghezza);

// The value of a condition on a prepared column, dispatched by its type;
// 0 for the link and unknown types, which measure nothing.
int32_t MisuraCondizione(const Condizione& cond, const ProfiloColonna& pc);

// The public measures offered to the host.
int32_t CalcolaBaricentro(int nClasse, const Colonna& col);  // rounded, halves to even
int32_t CalcolaPonte(int nClasse, const Colonna& col);
int32_t CalcolaAmpiezza(int nClasse, const Colonna& col);
int32_t CalcolaDistanzaMinima(int nClasse, const Colonna& col);
int32_t CalcolaDistanzaMassima(int nClasse, const Colonna& col);
int32_t CalcolaConsecutivi(int nClasse, const Colonna& col);
int32_t CalcolaInterruzioni(int nClasse, const Colonna& col);
int32_t CalcolaVorticeDiretto(int nClasse, const Colonna& col);
int32_t CalcolaVorticeInverso(int nClasse, const Colonna& col);
int32_t CalcolaSimmetrieDirette(int nClasse, const Colonna& col);
int32_t CalcolaSimmetrieInverse(int nClasse, const Colonna& col);
int32_t CalcolaParalleliDiretti(int nClasse, const Colonna& col);
int32_t CalcolaParalleliInversi(int nClasse, const Colonna& col);
// sSeq holds one letter per element: "P" (either case) is even, any other odd.
int32_t CalcolaSequenze(int nClasse, const Colonna& col, std::string_view sSeq);

}  // namespace combi
