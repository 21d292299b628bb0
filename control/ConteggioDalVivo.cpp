#include "ConteggioDalVivo.h"

#include <QMetaObject>

#include "Conteggi.h"

// Runs on the counting thread: reads the stop flag and hands the progress
// to the window's thread (a queued call, dropped if the object is gone; the
// object joins this thread before it goes, so the pointer stays valid here).
class ConteggioDalVivo::Osservatore : public combi::OsservatoreSviluppo {
public:
    Osservatore(ConteggioDalVivo* conteggio, std::shared_ptr<std::atomic<bool>> stop, uint64_t totale,
                uint64_t generazione)
        : conteggio_(conteggio), stop_(std::move(stop)), totale_(totale), generazione_(generazione) {}

    void Progresso(uint64_t testate, uint64_t) override {
        const int percentuale = totale_ == 0 ? 100 : int(testate * 100 / totale_);
        if (percentuale == ultima_) return;
        ultima_ = percentuale;
        QMetaObject::invokeMethod(conteggio_, [c = conteggio_, g = generazione_, percentuale] {
            if (c->generazione_ == g) emit c->Avanzamento(percentuale);
        });
    }
    bool RichiestaStop() override { return *stop_; }

private:
    ConteggioDalVivo* conteggio_;
    std::shared_ptr<std::atomic<bool>> stop_;
    uint64_t totale_;
    uint64_t generazione_;
    int ultima_ = -1;
};

ConteggioDalVivo::ConteggioDalVivo(QObject* genitore) : QObject(genitore) {
    attesa_.setSingleShot(true);
    connect(&attesa_, &QTimer::timeout, this, &ConteggioDalVivo::Avvia);
}

ConteggioDalVivo::~ConteggioDalVivo() { Ferma(); }

void ConteggioDalVivo::Richiedi(std::optional<combi::ParametriSviluppo> p, int attesaMs) {
    Annulla();
    if (!p) {
        emit Indeterminato();
        return;
    }
    prossimo_ = std::move(p);
    emit Avviato();
    attesa_.start(attesaMs);
}

void ConteggioDalVivo::Annulla() {
    attesa_.stop();
    prossimo_.reset();
    ++generazione_;
    if (stop_) *stop_ = true;
}

// The thread stops at the engine's next progress step: joining it costs at
// most one step.
void ConteggioDalVivo::Ferma() {
    Annulla();
    if (thread_.joinable()) thread_.join();
}

void ConteggioDalVivo::Avvia() {
    if (!prossimo_) return;
    combi::ParametriSviluppo p = std::move(*prossimo_);
    Ferma();
    stop_ = std::make_shared<std::atomic<bool>>(false);
    finito_ = false;
    const uint64_t generazione = generazione_;
    const uint64_t totale = combi::Combinazioni(int(p.numeri.size()), p.classe);
    thread_ = std::thread([this, p = std::move(p), stop = stop_, generazione, totale] {
        Osservatore osservatore(this, stop, totale, generazione);
        std::optional<uint64_t> tenute;
        try {
            const combi::EsitoSviluppo e = combi::ContaSistema(p, osservatore);
            if (!e.interrotto) tenute = e.tenute;
        } catch (const std::exception&) {
            // A system the engine refuses has no count: nothing to show.
        }
        finito_ = true;
        QMetaObject::invokeMethod(this, [this, generazione, tenute] {
            if (generazione_ != generazione) return;
            if (tenute) emit Risultato(*tenute);
            else emit Indeterminato();
        });
    });
}
