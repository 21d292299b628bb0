#pragma once
// The count behind a statistics preview, on a thread of its own so that the
// window and the editor stay responsive. Progress and the outcome come back
// as signals on the thread that owns the object; Annulla, or destroying the
// object, stops the count after the number it is on (milliseconds).

#include <QObject>
#include <QString>

#include <atomic>
#include <thread>
#include <vector>

#include "Condizione.h"
#include "DistribuzioneMisura.h"

class ConteggioAnteprima : public QObject {
    Q_OBJECT
public:
    enum class Stato { Pronto, InCorso, Finito, Annullato, Fallito };

    // `numeri` ascending; the class 1..20 (checked by the caller, see
    // combi::ControllaNumeriDistribuzione).
    ConteggioAnteprima(const combi::Condizione& condizione, std::vector<int> numeri, int classe,
                       QObject* genitore = nullptr);
    ~ConteggioAnteprima() override;

    void Avvia();
    void Annulla();

    Stato stato() const { return stato_; }
    // The columns per value once Finito.
    const combi::Distribuzione& Risultato() const { return risultato_; }

signals:
    void Avanzamento(int fatti, int totale);
    void Finito();
    void Annullato();
    void Fallito(const QString& descrizione);

private:
    void Esegui();
    void Concludi(Stato stato, combi::Distribuzione risultato, const QString& descrizione);

    combi::Condizione condizione_;
    std::vector<int> numeri_;
    int classe_;
    std::thread thread_;
    std::atomic<bool> ferma_{false};
    Stato stato_ = Stato::Pronto;
    combi::Distribuzione risultato_;
};
