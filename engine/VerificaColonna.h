#pragma once
// The judgement of one column against the condition table: every condition is
// measured, then the recovery panels and the link groups are applied.
// This is the plain reference; the development's fast path must agree with it.

#include <cstdint>

#include "Colonna.h"
#include "Condizione.h"

namespace combi {

// Judges column `c` of class k. Updates Valore, Superata, Recuperabile and the
// three counters of every condition of `tabella`. Returns -1 (pass) or 0.
int16_t VerificaColonna(int k, const Colonna& c, TabellaCondizioni& tabella,
                        const TabellaQuadri& quadri);

// Recovers the recoverable conditions of every active panel whose count of
// recoverable conditions lies within its bounds. Conditions of no panel, or of
// a panel number outside 1..20, are never recovered.
void ApplicaQuadriRecupero(TabellaCondizioni& tabella, const TabellaQuadri& quadri);

// Settles the link groups on a copy of the table, innermost first, and
// returns the column's verdict (-1 pass, 0 fail). A closing count beyond 90
// cannot be accepted and fails its group.
int16_t ValutaGruppi(const TabellaCondizioni& tabella);

// How many numbers of column a (positions 1..k) also stand in column b.
int ContaComuni(int k, const Colonna& a, const Colonna& b);

// Per-column fields and counters cleared, as a table read afresh for a run.
void AzzeraEsiti(TabellaCondizioni& tabella);

// Adds one to a 32-bit counter, stopping at its largest value instead of
// wrapping round on systems of more than two thousand million columns.
inline void Incrementa(int32_t& contatore) {
    if (contatore < INT32_MAX) ++contatore;
}

}  // namespace combi
