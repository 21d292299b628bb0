#pragma once
// The live count of the panel: how many columns the system on screen would
// keep, computed in the background with the engine's count while the user
// edits. Every change restarts it (after a short pause, so that typing does
// not start a count per key); a development cancels it, since it needs the
// cores. The window never waits for it: the result arrives as a signal.

#include <QObject>
#include <QTimer>

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <thread>

#include "Sviluppo.h"

class ConteggioDalVivo : public QObject {
    Q_OBJECT
public:
    explicit ConteggioDalVivo(QObject* genitore = nullptr);
    ~ConteggioDalVivo() override;

    // Counts `p` after `attesaMs` without a further request; nothing (no
    // system that can be counted) cancels and reports Indeterminato.
    void Richiedi(std::optional<combi::ParametriSviluppo> p, int attesaMs = 250);
    // Stops the count in progress; nothing is reported until the next request.
    void Annulla();
    // The same, and returns only when the counting thread is gone (within one
    // progress step of the engine): the cores are free then.
    void Ferma();
    bool InCorso() const { return thread_.joinable() && !finito_; }

signals:
    void Avviato();
    void Avanzamento(int percentuale);
    void Risultato(quint64 tenute);
    void Indeterminato();

private:
    class Osservatore;
    void Avvia();

    QTimer attesa_;
    std::optional<combi::ParametriSviluppo> prossimo_;
    std::thread thread_;
    std::shared_ptr<std::atomic<bool>> stop_;
    std::atomic<bool> finito_{true};
    uint64_t generazione_ = 0;  // results of an older request are dropped
};
