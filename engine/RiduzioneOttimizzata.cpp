// The optimising reduction: the greedy reduction, then the local search of
// RicercaLocale.h for the time budget, then the check of the best set found.

#include "RiduzioneOttimizzata.h"

#include <algorithm>
#include <chrono>

#include "Buchi.h"
#include "RicercaLocale.h"
#include "RiduzioneFasi.h"

namespace combi {

namespace {

using Orologio = std::chrono::steady_clock;

// The kept columns of the greedy result as indices into `colonne`: the result
// is the columns not eliminated, in file order, so a subsequence of it.
std::vector<uint32_t> Indici(const std::vector<Colonna>& colonne, const std::vector<Colonna>& tenute) {
    std::vector<uint32_t> indici;
    size_t j = 0;
    for (const Colonna& t : tenute) {
        while (j < colonne.size() && !(colonne[j] == t)) ++j;
        if (j == colonne.size()) break;
        indici.push_back(uint32_t(j++));
    }
    return indici;
}

// The pumps come every few milliseconds, not after every step: a step on a
// small set takes microseconds.
constexpr double kIntervalloPompa = 0.02;

}  // namespace

RisultatoRiduzione RiduciColonneOttimizzate(const std::vector<Colonna>& colonne, int puntiRichiesti,
                                            const OpzioniOttimizzazione& opzioni, OsservatoreOttimizzazione& oss) {
    const auto inizio = Orologio::now();
    const auto trascorsi = [&] { return std::chrono::duration<double>(Orologio::now() - inizio).count(); };
    RisultatoRiduzione avido = RiduciColonne(colonne, puntiRichiesti, oss);
    if (avido.interrotto || avido.colonne.size() <= 1) return avido;
    const int classe = ClasseColonne(colonne);

    riduzione::Controllo controllo(oss);
    controllo.Fase(kFaseOttimizzazione);
    riduzione::RicercaLocale ricerca(colonne, classe, puntiRichiesti, Indici(colonne, avido.colonne), opzioni.seme);
    size_t migliore = ricerca.Migliore().size();
    oss.MigliorTrovato(migliore, trascorsi());

    const double fine = trascorsi() + opzioni.secondi;
    double pompa = 0;
    for (uint64_t passo = 0; opzioni.passiMassimi == 0 || passo < opzioni.passiMassimi; ++passo) {
        const double t = trascorsi();
        if (t >= fine || migliore <= 1) break;
        if (ricerca.Passo()) {
            migliore = ricerca.Migliore().size();
            oss.MigliorTrovato(migliore, t);
        }
        if (t - pompa >= kIntervalloPompa) {
            pompa = t;
            const double parteTempo = 1 - (fine - t) / std::max(opzioni.secondi, 1e-9);
            const double partePassi = opzioni.passiMassimi ? double(passo) / double(opzioni.passiMassimi) : 0;
            controllo.Percento(int(std::clamp(std::max(parteTempo, partePassi), 0.0, 1.0) * 100));
            controllo.Pausa();
            if (controllo.Fermo()) break;
        }
    }

    RisultatoRiduzione r;
    for (uint32_t i : ricerca.Migliore()) r.colonne.push_back(colonne[i]);
    // The promise checked on the whole input before the set is handed out;
    // the greedy result stands should the search ever break it.
    if (r.colonne.size() > avido.colonne.size() || riduzione::ContaBuchi(r.colonne, colonne, classe, puntiRichiesti) != 0)
        r.colonne = std::move(avido.colonne);
    r.interrotto = controllo.Fermo();
    controllo.Fase("");
    controllo.Percento(0);
    return r;
}

}  // namespace combi
