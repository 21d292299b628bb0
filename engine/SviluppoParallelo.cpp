// The multi-core development. The stretch to develop is cut into pieces of
// whole progress steps (10000 columns), so that step boundaries are exactly
// the points at which the plain loop shows progress and reads the stop flag.
// Worker threads judge pieces in any order, block by block (see Valutatore);
// the calling thread commits them strictly in enumeration order, and only
// the commit applies "Riduzione N-K" (which compares with the previously
// kept column), hands the kept columns on, adds the counters, reports
// progress and honours a stop. A stop inside a piece judges the piece again
// up to the stop, so that the counters count exactly the columns tested. The
// result is the plain loop's whatever the number of threads, and the memory
// in use is a few pieces, whatever the run keeps.

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <optional>

#include "Conteggi.h"
#include "EnumerazioneBlocchi.h"
#include "GruppoThread.h"
#include "Sviluppo.h"
#include "Valutatore.h"
#include "VerificaColonna.h"

namespace combi {

namespace {

// A run of whole progress steps judged by one thread.
struct Pezzo {
    uint64_t indice = 0;
    std::vector<uint64_t> testatePasso;   // columns tested in each step
    std::vector<uint64_t> finePasso;      // passing columns up to the end of each step
    std::vector<int64_t> contatori;       // the judge's counters over the piece
    std::vector<Colonna> superate;        // the passing columns, when they are needed

    void Svuota() {
        testatePasso.clear();
        finePasso.clear();
        contatori.clear();
        superate.clear();
    }
};

// What one thread needs to judge: its own walk and scratch space.
struct Banco {
    EnumerazioneBlocchi enumerazione;
    Valutatore::Contatori contatori;
    Valutatore::Lavagna lavagna;
};

class Coordinatore {
public:
    Coordinatore(const ParametriSviluppo& p, const Valutatore& valutatore, Tratto tratto, int thread,
                 bool servonoColonne)
        : p_(p), valutatore_(valutatore), tratto_(tratto), thread_(thread), servonoColonne_(servonoColonne),
          distanza_(DistanzaRiduzione(p.classe, p.riduzione)), passiPerPezzo_(PassiPerPezzo(tratto, thread)),
          pezzi_((Passi(tratto) + passiPerPezzo_ - 1) / passiPerPezzo_),
          finestra_(std::max<uint64_t>(4, uint64_t(thread) * 3)), totali_(valutatore.NuoviContatori()) {
        pronti_.resize(finestra_);
    }

    EsitoSviluppo Esegui(OsservatoreSviluppo& oss, DestinazioneColonne* destinazione, const AvviaThread& avvia);

private:
    static uint64_t Passi(Tratto t) { return (t.fine - t.inizio + kPassoProgresso - 1) / kPassoProgresso; }
    // Pieces large enough to make the hand-over rare, small enough for every
    // thread to get many: the last pieces of a run end together.
    static uint64_t PassiPerPezzo(Tratto t, int thread) {
        return std::clamp<uint64_t>(Passi(t) / (uint64_t(thread) * 32), 1, 16);
    }

    void Lavora();
    bool Prendi(uint64_t& indice);
    Pezzo NuovoPezzo();
    // Judges piece `indice`, its first `passi` steps at most.
    void Calcola(uint64_t indice, Pezzo& pz, Banco& banco, uint64_t passi = UINT64_MAX) const;
    Banco NuovoBanco() const;
    bool Consegna(Pezzo& pz, EsitoSviluppo& r, OsservatoreSviluppo& oss, DestinazioneColonne* dest,
                  std::optional<Banco>& banco);
    void SommaContatori(const std::vector<int64_t>& contatori);
    void Commita(EsitoSviluppo& r, OsservatoreSviluppo& oss, DestinazioneColonne* dest);
    void Fallisci();  // with the mutex held
    void Termina();

    const ParametriSviluppo& p_;
    const Valutatore& valutatore_;
    const Tratto tratto_;
    const int thread_;
    const bool servonoColonne_;  // someone reads the passing columns
    const int distanza_;
    const uint64_t passiPerPezzo_;
    const uint64_t pezzi_;
    const uint64_t finestra_;   // pieces judged ahead of the commit at most

    std::mutex mutex_;
    std::condition_variable cambiato_;
    uint64_t prossimo_{};       // next piece to hand out
    uint64_t consegnati_{};     // pieces committed so far
    bool fine_ = false;
    // The first failure of any thread (out of memory, an observer's error,
    // a full disk): everyone stops, the threads are joined, it is raised again.
    std::exception_ptr errore_;
    std::deque<std::optional<Pezzo>> pronti_;  // slot i holds piece consegnati_ + i
    std::vector<Pezzo> liberi_;                // committed pieces, their memory reused

    Maschera128 numeriUltimaTenuta_;  // the empty column before the first shares none
    Valutatore::Contatori totali_;
    std::vector<Colonna> tenute_;  // the kept columns of one step, under the reduction
};

Banco Coordinatore::NuovoBanco() const {
    return Banco{EnumerazioneBlocchi(p_.numeri, p_.classe), valutatore_.NuoviContatori(),
                 valutatore_.NuovaLavagna()};
}

bool Coordinatore::Prendi(uint64_t& indice) {
    // Called with the mutex held.
    if (fine_ || prossimo_ >= pezzi_ || prossimo_ >= consegnati_ + finestra_) return false;
    indice = prossimo_++;
    return true;
}

Pezzo Coordinatore::NuovoPezzo() {
    // Called with the mutex held.
    if (liberi_.empty()) return Pezzo{};
    Pezzo pz = std::move(liberi_.back());
    liberi_.pop_back();
    pz.Svuota();
    return pz;
}

void Coordinatore::Calcola(uint64_t indice, Pezzo& pz, Banco& banco, uint64_t passi) const {
    pz.indice = indice;
    const int k = p_.classe;
    uint64_t inizio = tratto_.inizio + indice * passiPerPezzo_ * kPassoProgresso;
    const uint64_t fine = std::min(tratto_.fine, inizio + std::min(passi, passiPerPezzo_) * kPassoProgresso);
    banco.enumerazione.Posiziona(inizio);
    banco.contatori.Azzera();
    uint64_t superate = 0;
    while (inizio < fine) {
        const uint64_t passo = std::min(fine - inizio, kPassoProgresso);
        const auto tieni = [&](Colonna& c, Maschera128 ok) {
            if (!servonoColonne_) {
                superate += uint64_t(ok.Conta());
                return;
            }
            // The row's column is copied whole and only then given its last
            // number in place: setting the byte in `c` and copying it after
            // makes every copy wait for that one-byte store to reach memory.
            ok.PerOgni([&](int x) {
                pz.superate.push_back(c);
                pz.superate.back().Numeri[size_t(k - 1)] = uint8_t(x);
            });
        };
        banco.enumerazione.Percorri(
            passo,
            [&](const Prefisso& q, int yPrimo, int yUltimo) {
                valutatore_.GiudicaRiga(q, yPrimo, yUltimo, banco.lavagna);
                Colonna c = q.colonna;
                for (const auto& [y, ok] : banco.lavagna.esitiRiga) {
                    c.Numeri[size_t(k - 2)] = uint8_t(y);
                    tieni(c, ok);
                }
            },
            [&](const Prefisso& pr, Maschera128 candidati, bool intero) {
                Colonna c = pr.colonna;
                tieni(c, valutatore_.Giudica(pr, candidati, intero, banco.contatori, banco.lavagna));
            });
        pz.testatePasso.push_back(passo);
        pz.finePasso.push_back(servonoColonne_ ? pz.superate.size() : superate);
        inizio += passo;
    }
    valutatore_.Riversa(banco.lavagna, banco.contatori);
    pz.contatori = banco.contatori.valori;
}

void Coordinatore::Lavora() {
    std::optional<Banco> banco;
    std::unique_lock lock(mutex_);
    for (;;) {
        uint64_t indice = UINT64_MAX;  // set only when a piece is handed out
        cambiato_.wait(lock, [&] { return fine_ || prossimo_ >= pezzi_ || Prendi(indice); });
        if (indice == UINT64_MAX) return;
        Pezzo pz = NuovoPezzo();
        lock.unlock();
        try {
            if (!banco) banco.emplace(NuovoBanco());
            Calcola(indice, pz, *banco);
        } catch (...) {
            lock.lock();
            Fallisci();
            return;
        }
        lock.lock();
        if (fine_) return;
        pronti_[indice - consegnati_] = std::move(pz);
        cambiato_.notify_all();
    }
}

namespace {

Maschera128 NumeriDi(const Colonna& c, int k) {
    Maschera128 m;
    for (int i = 0; i < k; ++i) m.Imposta(c.Numeri[size_t(i)]);
    return m;
}

}  // namespace

void Coordinatore::SommaContatori(const std::vector<int64_t>& contatori) {
    for (size_t i = 0; i < contatori.size(); ++i) totali_.valori[i] += contatori[i];
}

bool Coordinatore::Consegna(Pezzo& pz, EsitoSviluppo& r, OsservatoreSviluppo& oss, DestinazioneColonne* dest,
                            std::optional<Banco>& banco) {
    uint64_t da = 0;
    for (size_t s = 0; s < pz.testatePasso.size(); ++s) {
        const uint64_t a = pz.finePasso[s];
        if (distanza_ < 1) {
            r.tenute += a - da;
            if (dest != nullptr) dest->Accoda(std::span(pz.superate).subspan(da, a - da));
        } else {
            tenute_.clear();
            for (uint64_t i = da; i < a; ++i) {
                const Colonna& c = pz.superate[i];
                const Maschera128 numeri = NumeriDi(c, p_.classe);
                if ((numeri & numeriUltimaTenuta_).Conta() >= distanza_) continue;
                tenute_.push_back(c);
                numeriUltimaTenuta_ = numeri;
            }
            r.tenute += tenute_.size();
            if (dest != nullptr) dest->Accoda(tenute_);
        }
        da = a;
        r.testate += pz.testatePasso[s];
        if (r.testate % kPassoProgresso != 0) continue;
        oss.Progresso(r.testate, r.tenute);
        if (oss.RichiestaStop()) {
            r.interrotto = true;
            if (s + 1 < pz.testatePasso.size()) {
                // The piece went on past the stop: count only its steps up to here.
                if (!banco) banco.emplace(NuovoBanco());
                Pezzo parte;
                Calcola(pz.indice, parte, *banco, s + 1);
                pz.contatori = std::move(parte.contatori);
            }
            SommaContatori(pz.contatori);
            return false;
        }
        oss.ElaboraMessaggi();
    }
    SommaContatori(pz.contatori);
    return true;
}

void Coordinatore::Fallisci() {
    if (!errore_) errore_ = std::current_exception();
    fine_ = true;
    cambiato_.notify_all();
}

void Coordinatore::Termina() {
    std::lock_guard lock(mutex_);
    fine_ = true;
    cambiato_.notify_all();
}

// The calling thread commits the pieces in order, judging one itself when
// the next is not ready.
void Coordinatore::Commita(EsitoSviluppo& r, OsservatoreSviluppo& oss, DestinazioneColonne* dest) {
    std::optional<Banco> banco;
    std::unique_lock lock(mutex_);
    while (consegnati_ < pezzi_ && !errore_) {
        if (!pronti_.front()) {
            // The next piece is not ready: judge one ourselves rather than idle.
            uint64_t indice;
            if (Prendi(indice)) {
                Pezzo pz = NuovoPezzo();
                lock.unlock();
                if (!banco) banco.emplace(NuovoBanco());
                Calcola(indice, pz, *banco);
                lock.lock();
                pronti_[indice - consegnati_] = std::move(pz);
                continue;
            }
            cambiato_.wait(lock, [&] { return pronti_.front().has_value() || errore_; });
            if (errore_) return;
        }
        Pezzo pz = std::move(*pronti_.front());
        pronti_.pop_front();
        pronti_.emplace_back();
        ++consegnati_;
        cambiato_.notify_all();
        lock.unlock();
        const bool continua = Consegna(pz, r, oss, dest, banco);
        lock.lock();
        liberi_.push_back(std::move(pz));
        if (!continua) break;
    }
}

EsitoSviluppo Coordinatore::Esegui(OsservatoreSviluppo& oss, DestinazioneColonne* dest, const AvviaThread& avvia) {
    EsitoSviluppo r;
    {
        const int aiutanti = int(std::min<uint64_t>(uint64_t(thread_ - 1), pezzi_ > 0 ? pezzi_ - 1 : 0));
        GruppoThread lavoratori(aiutanti, [this] { Lavora(); }, avvia);
        try {
            Commita(r, oss, dest);
        } catch (...) {
            std::lock_guard lock(mutex_);
            Fallisci();
        }
        Termina();
    }
    if (errore_) std::rethrow_exception(errore_);
    r.condizioni = p_.condizioni;
    AzzeraEsiti(r.condizioni);
    valutatore_.ScriviContatori(totali_, r.testate, r.condizioni);
    return r;
}

// The table of the plain loop also keeps the values and flags of the last
// column it judged; judge that column once more on a copy to carry them over.
void RiportaUltimaColonna(const ParametriSviluppo& p, uint64_t rango, TabellaCondizioni& tabella) {
    Enumerazione en(p.numeri, p.classe);
    en.Posiziona(rango);
    TabellaCondizioni copia = tabella;
    VerificaColonna(p.classe, en.Corrente(), copia, p.quadri);
    for (size_t i = 0; i < tabella.size(); ++i) {
        tabella[i].Valore = copia[i].Valore;
        tabella[i].Superata = copia[i].Superata;
        tabella[i].Recuperabile = copia[i].Recuperabile;
    }
}

// Counting only, when the fast path cannot be used.
class SoloConteggio : public DestinazioneColonne {
public:
    void Accoda(std::span<const Colonna>) override {}
};

}  // namespace

EsitoSviluppo SviluppaSistema(const ParametriSviluppo& p, OsservatoreSviluppo& oss,
                              DestinazioneColonne* destinazione, const OpzioniSviluppo& opzioni,
                              const AvviaThread& avvia) {
    ControllaParametri(p, opzioni.quota);
    if (!Valutatore::Compilabile(p.condizioni)) {
        SoloConteggio nessuna;
        return SviluppaSistemaRiferimento(p, oss, destinazione ? *destinazione : nessuna, opzioni.quota);
    }
    const int thread = opzioni.thread > 0 ? opzioni.thread
                                          : int(std::max(1u, std::thread::hardware_concurrency()));
    const Tratto tratto = TrattoDellaQuota(Combinazioni(int(p.numeri.size()), p.classe), opzioni.quota);
    const Valutatore valutatore(p.condizioni, p.quadri, p.classe, p.numeri);
    const bool servonoColonne = destinazione != nullptr || DistanzaRiduzione(p.classe, p.riduzione) >= 1;
    Coordinatore coordinatore(p, valutatore, tratto, thread, servonoColonne);
    EsitoSviluppo r = coordinatore.Esegui(oss, destinazione, avvia);
    oss.Progresso(r.testate, r.tenute);
    if (r.testate > 0) RiportaUltimaColonna(p, tratto.inizio + r.testate - 1, r.condizioni);
    return r;
}

}  // namespace combi
