// The optimising reduction: the greedy reduction, then kRicerche local
// searches (RicercaLocale.h) on their own threads for the time budget, then
// the check of the best set found.

#include "RiduzioneOttimizzata.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

#include "Buchi.h"
#include "RicercaAlternata.h"
#include "RicercaLocale.h"
#include "RiduzioneFasi.h"

namespace combi {

namespace {

using Orologio = std::chrono::steady_clock;

// Two searches with different seeds, the plain one and the weighted one
// (RicercaLocale.h): the two cores of a common machine, and a number fixed
// here rather than read from the machine, so that a seed and a step limit
// give the same columns everywhere.
constexpr int kRicerche = 2;

// The main thread looks at the searches every few milliseconds: progress,
// message pump, stop request.
constexpr auto kIntervalloPompa = std::chrono::milliseconds(20);

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

// One search on its thread. What the main thread reads while it runs is
// atomic; the best set itself only after the thread has ended.
struct Lavoro {
    std::unique_ptr<riduzione::Ricerca> ricerca;
    std::atomic<size_t> migliore{0};
    std::atomic<double> secondi{0};
    std::atomic<uint64_t> passi{0};
    std::atomic<bool> finito{false};
};

void Esegui(Lavoro& lavoro, uint64_t passiMassimi, Orologio::time_point inizio, Orologio::time_point fine,
            const std::atomic<bool>& fermo) {
    riduzione::Ricerca& ricerca = *lavoro.ricerca;
    for (uint64_t passo = 0; passiMassimi == 0 || passo < passiMassimi; ++passo) {
        // The clock and the stop are read every 64 steps: a step may take
        // well under a microsecond.
        if (passo % 64 == 0) {
            lavoro.passi.store(passo, std::memory_order_relaxed);
            if (fermo.load(std::memory_order_relaxed) || Orologio::now() >= fine) break;
        }
        if (ricerca.Passo()) {
            lavoro.secondi.store(std::chrono::duration<double>(Orologio::now() - inizio).count());
            lavoro.migliore.store(ricerca.Migliore().size());
        }
    }
    lavoro.finito.store(true);
}

// The search whose best set is smallest, ties to the first: the same choice
// whatever thread ended first.
const riduzione::Ricerca& Vincitrice(const std::vector<std::unique_ptr<Lavoro>>& lavori) {
    const riduzione::Ricerca* scelta = lavori[0]->ricerca.get();
    for (const auto& l : lavori)
        if (l->ricerca->Migliore().size() < scelta->Migliore().size()) scelta = l->ricerca.get();
    return *scelta;
}

}  // namespace

RisultatoRiduzione RiduciColonneOttimizzate(const std::vector<Colonna>& colonne, int puntiRichiesti,
                                            const OpzioniOttimizzazione& opzioni, OsservatoreOttimizzazione& oss) {
    const auto inizio = Orologio::now();
    const auto trascorsi = [&] { return std::chrono::duration<double>(Orologio::now() - inizio).count(); };
    RisultatoRiduzione avido = RiduciColonne(colonne, puntiRichiesti, oss);
    // One column left is the least there can be: the greedy reduction finds
    // it whenever it exists, since a column covering all has the top count.
    if (avido.interrotto || avido.colonne.size() <= 1) return avido;
    const int classe = ClasseColonne(colonne);

    riduzione::Controllo controllo(oss);
    controllo.Fase(kFaseOttimizzazione);
    const auto vicinato = std::make_shared<const riduzione::Vicinato>(colonne, classe, puntiRichiesti);
    const std::vector<uint32_t> iniziali = Indici(colonne, avido.colonne);
    std::vector<std::unique_ptr<Lavoro>> lavori;
    for (int r = 0; r < kRicerche; ++r) {
        lavori.push_back(std::make_unique<Lavoro>());
        const uint64_t seme = opzioni.seme * kRicerche + uint64_t(r);
        if (r == 0)
            lavori.back()->ricerca = std::make_unique<riduzione::RicercaLocale>(vicinato, iniziali, seme);
        else
            lavori.back()->ricerca = std::make_unique<riduzione::RicercaAlternata>(vicinato, iniziali, seme);
        lavori.back()->migliore = lavori.back()->ricerca->Migliore().size();
        lavori.back()->secondi = trascorsi();  // a search may start below the greedy size
    }
    size_t migliore = lavori[0]->migliore;
    oss.MigliorTrovato(migliore, trascorsi());

    const auto fine = Orologio::now() + std::chrono::duration_cast<Orologio::duration>(
                                            std::chrono::duration<double>(std::min(opzioni.secondi, 1e9)));
    std::atomic<bool> fermo{false};
    std::vector<std::thread> fili;
    for (auto& l : lavori)
        fili.emplace_back(Esegui, std::ref(*l), opzioni.passiMassimi, inizio, fine, std::cref(fermo));
    for (bool tutti = false; !tutti;) {
        std::this_thread::sleep_for(kIntervalloPompa);
        tutti = true;
        uint64_t passi = UINT64_MAX;
        for (const auto& l : lavori) {
            tutti = tutti && l->finito.load();
            passi = std::min(passi, l->passi.load(std::memory_order_relaxed));
            if (l->migliore.load() < migliore) {
                migliore = l->migliore.load();
                oss.MigliorTrovato(migliore, l->secondi.load());
            }
        }
        const double parteTempo = 1 - std::chrono::duration<double>(fine - Orologio::now()).count() /
                                          std::max(opzioni.secondi, 1e-9);
        const double partePassi = opzioni.passiMassimi ? double(passi) / double(opzioni.passiMassimi) : 0;
        controllo.Percento(int(std::clamp(std::max(parteTempo, partePassi), 0.0, 1.0) * 100));
        controllo.Pausa();
        if (controllo.Fermo()) fermo.store(true);
    }
    for (auto& f : fili) f.join();

    RisultatoRiduzione r;
    for (uint32_t i : Vincitrice(lavori).Migliore()) r.colonne.push_back(colonne[i]);
    // The promise checked on the whole input before the set is handed out;
    // the greedy result stands should the search ever break it.
    if (r.colonne.size() > avido.colonne.size() || riduzione::ContaBuchi(r.colonne, colonne, classe, puntiRichiesti) != 0)
        r.colonne = std::move(avido.colonne);
    if (r.colonne.size() < migliore) oss.MigliorTrovato(r.colonne.size(), trascorsi());
    r.interrotto = controllo.Fermo();
    controllo.Fase("");
    controllo.Percento(0);
    return r;
}

}  // namespace combi
