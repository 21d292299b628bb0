#include "VerificaStorico.h"

#include <algorithm>
#include <atomic>
#include <iterator>
#include <thread>

#include "ColonneABit.h"
#include "Errore.h"
#include "FileColonne.h"

namespace combi {

namespace {

void Controlla(const std::vector<Colonna>& colonne, const ParametriStorico& p) {
    if (p.puntiMinimi < 1 || p.puntiMinimi > kMaxClasse)
        throw Errore(kErroreArgomento, "Punti minimi non validi: " + std::to_string(p.puntiMinimi));
    if (p.ruota && (p.gioco != GiocoArchivio::kLotto || *p.ruota < 0 || *p.ruota >= kRuoteLotto))
        throw Errore(kErroreArgomento, "La ruota si sceglie solo per il Lotto");
    if (const std::optional<size_t> i = PrimaColonnaNonValida(colonne))
        throw Errore(kErroreFormatoFile, "La colonna " + std::to_string(*i + 1) +
                                             " non ha numeri crescenti da 1 a 90 seguiti da zeri");
}

int ClasseMassima(const std::vector<Colonna>& colonne) {
    int classe = 0;
    for (const Colonna& c : colonne) classe = std::max(classe, ClasseDellaColonna(c));
    return classe;
}

// An empty result for the selected draws, before any is counted.
EsitoStorico Prepara(const std::vector<Colonna>& colonne, const std::vector<Estrazione>& scelte,
                     const ParametriStorico& p) {
    EsitoStorico esito;
    esito.classe = std::min(std::max(p.classe, ClasseMassima(colonne)), NumeriEstratti(p.gioco));
    esito.puntiMinimi = p.puntiMinimi;
    esito.daControllare = scelte.size();
    esito.estrazioni.resize(scelte.size());
    for (size_t i = 0; i < scelte.size(); ++i) esito.estrazioni[i].estrazione = scelte[i];
    return esito;
}

// Lexicographic from the top points down to the minimum: more columns at
// the highest points first.
bool Meglio(const ContePunti& a, const ContePunti& b, int minimo) {
    const auto finoAlMinimo = [minimo](const ContePunti& c) {  // the reverse end: just past position minimo
        return std::make_reverse_iterator(std::next(c.begin(), minimo));
    };
    return std::lexicographical_compare(b.rbegin(), finoAlMinimo(b), a.rbegin(), finoAlMinimo(a));
}

// Totals, best draw and longest dry run over the first `contate` draws; the
// rest (cut off by a Stop) is dropped.
void Riassumi(EsitoStorico& esito, size_t contate) {
    esito.estrazioni.resize(contate);
    esito.interrotto = contate < esito.daControllare;
    const int minimo = esito.puntiMinimi;
    Digiuno corrente;
    for (size_t i = 0; i < esito.estrazioni.size();) {
        // The draws of one date (one per wheel) are dry together or not at all.
        const DataEstrazione data = esito.estrazioni[i].estrazione.data;
        bool vinta = false;
        for (; i < esito.estrazioni.size() && esito.estrazioni[i].estrazione.data == data; ++i) {
            const EsitoEstrazione& e = esito.estrazioni[i];
            for (size_t s = 0; s < e.conte.size(); ++s) esito.totali[s] += e.conte[s];
            if (e.Vincenti(minimo) == 0) continue;
            vinta = true;
            ++esito.estrazioniConVincite;
            if (!esito.migliore || Meglio(e.conte, esito.estrazioni[*esito.migliore].conte, minimo)) esito.migliore = i;
        }
        if (vinta) {
            corrente = {};
            continue;
        }
        if (corrente.concorsi == 0) corrente.dal = data;
        ++corrente.concorsi;
        corrente.al = data;
        if (corrente.concorsi > esito.digiuno.concorsi) esito.digiuno = corrente;  // the earliest of equal runs
    }
}

// Draws per group handed to a thread: about 64 million column checks, a few
// tens of milliseconds, so that the calling thread reports and reads Stop often.
size_t EstrazioniPerGruppo(size_t colonne) {
    return std::clamp<size_t>((size_t(1) << 26) / std::max<size_t>(colonne, 1), 1, 256);
}

unsigned NumeroThread(int richiesti, size_t gruppi) {
    const unsigned nucleo = std::max(1u, std::thread::hardware_concurrency());
    const unsigned voluti = richiesti > 0 ? unsigned(std::min(richiesti, 256)) : nucleo;
    return unsigned(std::max<size_t>(1, std::min<size_t>(voluti, gruppi)));
}

// The helper threads, stopped and joined however the calling thread leaves.
struct Aiutanti {
    std::atomic<bool>& stop;
    std::vector<std::thread> thread;
    ~Aiutanti() {
        stop = true;
        for (std::thread& t : thread) t.join();
    }
};

}  // namespace

int EsitoEstrazione::PuntiMassimi() const {
    for (int s = kMaxClasse; s > 0; --s)
        if (conte[size_t(s)] > 0) return s;
    return 0;
}

int64_t EsitoEstrazione::Vincenti(int minimo) const {
    int64_t n = 0;
    for (int s = std::max(minimo, 0); s <= kMaxClasse; ++s) n += conte[size_t(s)];
    return n;
}

std::vector<RigaRiepilogo> EsitoStorico::Riepilogo() const {
    std::vector<RigaRiepilogo> righe;
    for (int p = classe; p >= puntiMinimi; --p)
        righe.push_back({"Vincite con " + std::to_string(p) + " punti ", totali[size_t(p)]});
    return righe;
}

std::vector<Estrazione> EstrazioniScelte(const std::vector<Estrazione>& archivio, const ParametriStorico& p) {
    std::vector<Estrazione> scelte;
    for (const Estrazione& e : archivio) {
        if (GiocoDellaRuota(e.ruota) != p.gioco || e.data < p.dal || e.data > p.al) continue;
        if (p.ruota && e.ruota != *p.ruota) continue;
        scelte.push_back(e);
    }
    std::stable_sort(scelte.begin(), scelte.end(), [](const Estrazione& a, const Estrazione& b) {
        return a.data != b.data ? a.data < b.data : a.ruota < b.ruota;
    });
    return scelte;
}

EsitoStorico VerificaStorico(const std::vector<Colonna>& colonne, const std::vector<Estrazione>& archivio,
                             const ParametriStorico& p, OsservatoreStorico& oss) {
    Controlla(colonne, p);
    const std::vector<Estrazione> scelte = EstrazioniScelte(archivio, p);
    EsitoStorico esito = Prepara(colonne, scelte, p);
    const ColonneABit bit(colonne);
    const size_t gruppo = p.estrazioniPerGruppo ? p.estrazioniPerGruppo : EstrazioniPerGruppo(colonne.size());
    const size_t gruppi = (scelte.size() + gruppo - 1) / gruppo;
    std::vector<ContePunti> conte(scelte.size());
    std::vector<uint8_t> fatto(gruppi, 0);  // each written by one thread, read after the join
    std::atomic<size_t> prossimo{0}, controllate{0};
    std::atomic<bool> stop{false};
    auto lavora = [&] {
        const size_t g = prossimo.fetch_add(1);
        if (g >= gruppi) return false;
        const size_t da = g * gruppo, quante = std::min(gruppo, scelte.size() - da);
        bit.Conta(&scelte[da], quante, &conte[da]);
        fatto[g] = true;
        controllate += quante;
        return true;
    };
    oss.Progresso(0, scelte.size());
    {
        Aiutanti aiutanti{stop, {}};
        for (unsigned t = 1; t < NumeroThread(p.thread, gruppi); ++t)
            aiutanti.thread.emplace_back([&] {
                while (!stop && lavora()) {
                }
            });
        // The calling thread counts too, and between its groups reports, pumps and reads Stop.
        while (!stop && lavora()) {
            oss.Progresso(controllate, scelte.size());
            oss.ElaboraMessaggi();
            if (oss.RichiestaStop()) stop = true;
        }
    }
    // Groups finish in any order: the result is the run of finished groups from the first.
    const size_t finiti = size_t(std::find(fatto.begin(), fatto.end(), 0) - fatto.begin());
    const size_t contate = std::min(scelte.size(), finiti * gruppo);
    for (size_t i = 0; i < contate; ++i) esito.estrazioni[i].conte = conte[i];
    Riassumi(esito, contate);
    oss.Progresso(contate, scelte.size());
    return esito;
}

EsitoStorico VerificaStoricoRiferimento(const std::vector<Colonna>& colonne,
                                        const std::vector<Estrazione>& archivio, const ParametriStorico& p,
                                        OsservatoreStorico& oss) {
    Controlla(colonne, p);
    const std::vector<Estrazione> scelte = EstrazioniScelte(archivio, p);
    EsitoStorico esito = Prepara(colonne, scelte, p);
    oss.Progresso(0, scelte.size());
    size_t contate = 0;
    while (contate < scelte.size()) {
        EsitoEstrazione& e = esito.estrazioni[contate];
        bool estratto[256] = {};  // estratto[0] stays false: the empty positions never score
        for (size_t k = 0; k < std::min<size_t>(e.estrazione.quanti, 20); ++k)
            if (e.estrazione.numeri[k] <= kMaxNumero) estratto[e.estrazione.numeri[k]] = e.estrazione.numeri[k] > 0;
        for (const Colonna& c : colonne) {
            int punti = 0;
            for (uint8_t n : c.Numeri) punti += estratto[n];
            ++e.conte[size_t(punti)];
        }
        oss.Progresso(++contate, scelte.size());
        oss.ElaboraMessaggi();
        if (oss.RichiestaStop()) break;
    }
    Riassumi(esito, contate);
    return esito;
}

}  // namespace combi
