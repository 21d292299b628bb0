// The multi-core development. The stretch to develop is cut into blocks of
// 10000 columns, the progress step, so that block boundaries are exactly the
// points at which the plain loop shows progress and reads the stop flag.
// Worker threads judge blocks in any order; the calling thread commits them
// strictly in enumeration order, and only the commit applies "Riduzione N-K"
// (which compares with the previously kept column), adds the counters,
// reports progress and honours a stop. So the result is identical to the
// plain loop's whatever the number of threads.

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>

#include "Conteggi.h"
#include "Sviluppo.h"
#include "Valutatore.h"
#include "VerificaColonna.h"

namespace combi {

namespace {

struct Blocco {
    std::vector<Colonna> superate;  // passing columns, before the reduction rule
    Valutatore::Contatori contatori;
    uint64_t testate = 0;
};

class Coordinatore {
public:
    Coordinatore(const ParametriSviluppo& p, const Valutatore& valutatore, Tratto tratto,
                 int thread)
        : p_(p), valutatore_(valutatore), tratto_(tratto),
          blocchi_((tratto.fine - tratto.inizio + kPassoProgresso - 1) / kPassoProgresso),
          finestra_(std::max<uint64_t>(4, uint64_t(thread) * 4)), thread_(thread) {
        pronti_.resize(finestra_);
    }

    RisultatoSviluppo Esegui(OsservatoreSviluppo& oss);

private:
    void Lavora();
    bool Prendi(uint64_t& indice);
    Blocco Calcola(uint64_t indice) const;
    bool Consegna(const Blocco& b, RisultatoSviluppo& r, OsservatoreSviluppo& oss);
    void Commita(RisultatoSviluppo& r, OsservatoreSviluppo& oss);
    void Fallisci();  // with the mutex held

    const ParametriSviluppo& p_;
    const Valutatore& valutatore_;
    const Tratto tratto_;
    const uint64_t blocchi_;
    const uint64_t finestra_;   // blocks judged ahead of the commit at most
    const int thread_;

    std::mutex mutex_;
    std::condition_variable cambiato_;
    uint64_t prossimo_ = 0;     // next block to hand out
    uint64_t consegnati_ = 0;   // blocks committed so far
    bool fine_ = false;
    bool troppe_ = false;  // the kept columns passed p_.massimoTenute
    // The first failure of any thread (out of memory, an observer's error):
    // everyone stops, the threads are joined, and it is raised again.
    std::exception_ptr errore_;
    std::deque<std::optional<Blocco>> pronti_;  // slot i holds block consegnati_ + i

    Colonna ultimaTenuta_{};
    Valutatore::Contatori totali_{p_.condizioni.size()};
};

bool Coordinatore::Prendi(uint64_t& indice) {
    // Called with the mutex held.
    if (fine_ || prossimo_ >= blocchi_ || prossimo_ >= consegnati_ + finestra_) return false;
    indice = prossimo_++;
    return true;
}

Blocco Coordinatore::Calcola(uint64_t indice) const {
    Blocco b;
    b.contatori = Valutatore::Contatori(p_.condizioni.size());
    const uint64_t inizio = tratto_.inizio + indice * kPassoProgresso;
    const uint64_t fine = std::min(tratto_.fine, inizio + kPassoProgresso);
    Enumerazione en(p_.numeri, p_.classe);
    en.Posiziona(inizio);
    for (uint64_t rango = inizio; rango < fine; ++rango) {
        if (valutatore_.Giudica(en.Corrente(), b.contatori)) b.superate.push_back(en.Corrente());
        en.Avanza();
    }
    b.testate = fine - inizio;
    return b;
}

void Coordinatore::Lavora() {
    std::unique_lock lock(mutex_);
    for (;;) {
        uint64_t indice = UINT64_MAX;  // set only when a block is handed out
        cambiato_.wait(lock, [&] { return fine_ || prossimo_ >= blocchi_ || Prendi(indice); });
        if (indice == UINT64_MAX) return;
        lock.unlock();
        std::optional<Blocco> b;
        try {
            b = Calcola(indice);
        } catch (...) {
            lock.lock();
            Fallisci();
            return;
        }
        lock.lock();
        if (fine_) return;
        pronti_[indice - consegnati_] = std::move(b);
        cambiato_.notify_all();
    }
}

bool Coordinatore::Consegna(const Blocco& b, RisultatoSviluppo& r, OsservatoreSviluppo& oss) {
    const int distanza = DistanzaRiduzione(p_.classe, p_.riduzione);
    for (const Colonna& c : b.superate) {
        if (distanza >= 1 && ContaComuni(p_.classe, c, ultimaTenuta_) >= distanza) continue;
        if (r.colonne.size() >= p_.massimoTenute) {
            troppe_ = true;  // raised once the workers have been joined
            return false;
        }
        r.colonne.push_back(c);
        ultimaTenuta_ = c;
    }
    totali_.Somma(b.contatori);
    r.testate += b.testate;
    if (r.testate % kPassoProgresso != 0) return true;
    oss.Progresso(r.testate, r.colonne.size());
    if (oss.RichiestaStop()) {
        r.interrotto = true;
        return false;
    }
    oss.ElaboraMessaggi();
    return true;
}

void Coordinatore::Fallisci() {
    if (!errore_) errore_ = std::current_exception();
    fine_ = true;
    cambiato_.notify_all();
}

RisultatoSviluppo Coordinatore::Esegui(OsservatoreSviluppo& oss) {
    RisultatoSviluppo r;
    std::vector<std::thread> lavoratori;
    for (int i = 1; i < thread_; ++i) lavoratori.emplace_back([this] { Lavora(); });
    try {
        Commita(r, oss);
    } catch (...) {
        std::lock_guard lock(mutex_);
        Fallisci();
    }
    {
        std::lock_guard lock(mutex_);
        fine_ = true;
        cambiato_.notify_all();
    }
    for (auto& t : lavoratori) t.join();
    if (errore_) std::rethrow_exception(errore_);
    if (troppe_) ErroreTroppeColonne(p_);

    r.condizioni = p_.condizioni;
    AzzeraEsiti(r.condizioni);
    for (size_t i = 0; i < r.condizioni.size(); ++i) {
        auto satura = [](int64_t v) { return int32_t(std::min<int64_t>(v, INT32_MAX)); };
        r.condizioni[i].ContaFallite = satura(totali_.fallite[i]);
        r.condizioni[i].ContaSuperate = satura(totali_.superate[i]);
        r.condizioni[i].ContaRecuperabili = satura(totali_.recuperabili[i]);
    }
    return r;
}

// The calling thread commits the blocks in order, judging one itself when
// the next is not ready.
void Coordinatore::Commita(RisultatoSviluppo& r, OsservatoreSviluppo& oss) {
    std::unique_lock lock(mutex_);
    while (consegnati_ < blocchi_ && !errore_) {
        if (!pronti_.front()) {
            // The next block is not ready: judge one ourselves rather than idle.
            uint64_t indice;
            if (Prendi(indice)) {
                lock.unlock();
                Blocco b = Calcola(indice);
                lock.lock();
                pronti_[indice - consegnati_] = std::move(b);
                continue;
            }
            cambiato_.wait(lock, [&] { return pronti_.front().has_value() || errore_; });
            if (errore_) return;
        }
        Blocco b = std::move(*pronti_.front());
        pronti_.pop_front();
        pronti_.emplace_back();
        ++consegnati_;
        cambiato_.notify_all();
        lock.unlock();
        const bool continua = Consegna(b, r, oss);
        lock.lock();
        if (!continua) break;
    }
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

}  // namespace

RisultatoSviluppo SviluppaSistema(const ParametriSviluppo& p, OsservatoreSviluppo& oss,
                                  const OpzioniSviluppo& opzioni) {
    ControllaParametri(p, opzioni.quota);
    if (!Valutatore::Compilabile(p.condizioni)) return SviluppaSistemaRiferimento(p, oss, opzioni.quota);
    const int thread = opzioni.thread > 0 ? opzioni.thread
                                          : int(std::max(1u, std::thread::hardware_concurrency()));
    const Tratto tratto = TrattoDellaQuota(Combinazioni(int(p.numeri.size()), p.classe), opzioni.quota);
    const Valutatore valutatore(p.condizioni, p.quadri, p.classe);
    Coordinatore coordinatore(p, valutatore, tratto, thread);
    RisultatoSviluppo r = coordinatore.Esegui(oss);
    oss.Progresso(r.testate, r.colonne.size());
    if (r.testate > 0) RiportaUltimaColonna(p, tratto.inizio + r.testate - 1, r.condizioni);
    return r;
}

}  // namespace combi
