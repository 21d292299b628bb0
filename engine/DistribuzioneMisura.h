#pragma once
// How the integral columns of the picked numbers spread over the values of
// one condition's measure, counted exactly without visiting the columns.
//
// Every measure reads a column from its smallest number to its largest and
// needs only a little of what it has read so far: how many numbers of a set
// (Punti Col.), a running sum (Peso, Resto, Baricentro), the last number and
// one gap or count (Ampiezza, distances, Consecutivi, Ponte), or the parity
// pattern (Interruzioni, Simmetrie, Paralleli, Vortice, Sequenze). The count
// runs over the picked numbers in ascending order keeping, for every length
// of column prefix, how many prefixes share each such summary; taking or
// leaving each number extends them. The work grows with numbers x class x
// summaries, not with the columns: C(90,10) = 5.7 x 10^12 columns take
// milliseconds, the worst case (parity patterns of class 20) under a second.

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "Condizione.h"

namespace combi {

// Columns per measured value, in increasing value order.
using Distribuzione = std::map<int32_t, uint64_t>;

// Told how many of the picked numbers have been taken into the count, after
// each; answering false stops the count.
using AvanzamentoDistribuzione = std::function<bool(int fatti, int totale)>;

// Throws Errore with "Impostare il pronostico" when there are fewer numbers
// than the class or the class is outside 1..20, and with a description for
// numbers that are not ascending within 1..90.
void ControllaNumeriDistribuzione(const std::vector<int>& numeri, int classe);

// The distribution of MisuraCondizione(condizione, ·) over the C(n, classe)
// integral columns of `numeri` (ascending, 1..90). Link marks and unknown
// types measure 0 on every column. nullopt when `avanzamento` stopped it.
// Throws as ControllaNumeriDistribuzione.
std::optional<Distribuzione> ContaDistribuzione(const Condizione& condizione, const std::vector<int>& numeri,
                                                int classe, const AvanzamentoDistribuzione& avanzamento = {});

// Whether the development accepts `valore` for this condition (its accepted
// point list, or its accepted range), as VerificaColonna judges it.
bool ValoreAccettato(const Condizione& condizione, int32_t valore);

// The columns of the distribution whose value the condition accepts: the
// condition's own "Superate" counter for a development of these numbers.
uint64_t ColonneAccettate(const Distribuzione& distribuzione, const Condizione& condizione);

}  // namespace combi
