#pragma once
// A development split into contiguous shares run apart (other processes,
// other machines) and joined back into the result of the whole run.
//
// "Riduzione N-K" compares each passing column with the last *kept* one, so a
// share cannot decide it alone: its first columns depend on what the shares
// before it kept. The shares are therefore developed without it, and the
// join re-applies it over the passing columns in enumeration order.

#include <span>
#include <vector>

#include "Colonna.h"
#include "Sviluppo.h"

namespace combi {

// Keeps, in order, each column that shares fewer than R = k - K numbers with
// the previously kept one (the first is compared with the empty column).
// Nothing is dropped when `riduzione` (K) is 0.
void ApplicaRiduzione(std::vector<Colonna>& colonne, int classe, int riduzione);

// The same, from `colonne` to `destinazione`, for sets too large to copy.
void ApplicaRiduzione(std::span<const Colonna> colonne, int classe, int riduzione, DestinazioneColonne& destinazione);

// Joins shares 1..W (in share order), each developed with "Riduzione N-K" 0,
// into what one development of the whole stretch with `riduzione` gives:
// the passing columns concatenated and then reduced; the tested count and
// the three counters of every condition summed (they count every tested
// column, before the reduction); Valore and the per-column flags from the
// last share that tested any column, the last column of the run.
// A share ended by a stop ends the joined run there: the shares after it are
// left out, so the result stays a prefix of the enumeration, as a stopped
// single run would be. Throws Errore when there is no share or the shares'
// condition tables differ in size.
RisultatoSviluppo UnisciQuote(std::vector<RisultatoSviluppo> quote, int classe, int riduzione);

}  // namespace combi
