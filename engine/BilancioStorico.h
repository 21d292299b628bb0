#pragma once
// The money side of a back-test, an estimate: every column is played on
// every draw checked (with every wheel, on each wheel) at the stake the user
// gives, and a column scoring p points wins the prize of the table for p
// points, scaled by the stake. Prizes are what the user types from the
// official tables of the game: they depend on the game, on how many numbers
// a column plays and, for SuperEnalotto, on each draw's pool, so the system
// ships none of its own.

#include <array>
#include <cstdint>
#include <vector>

#include "VerificaStorico.h"

namespace combi {

// premi[p]: what one column scoring p points wins for a stake of 1; 0 where
// nothing is paid.
using TabellaPremi = std::array<double, kMaxClasse + 1>;

struct Bilancio {
    double giocato{};
    double vinto{};
    double Saldo() const { return vinto - giocato; }
};

struct BilancioAnno {
    int anno{};
    Bilancio bilancio;
};

struct StimaDenaro {
    std::vector<BilancioAnno> perAnno;  // years with a draw checked, ascending
    Bilancio totale;
};

// What one draw wins with `posta` per column.
double VintoEstrazione(const EsitoEstrazione& e, double posta, const TabellaPremi& premi);

// `colonne`: how many columns are played on each draw. Throws Errore 5 for a
// stake or a prize that is negative or not a number.
StimaDenaro StimaBilancio(const EsitoStorico& esito, int64_t colonne, double posta, const TabellaPremi& premi);

}  // namespace combi
