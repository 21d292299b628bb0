#include "ConteggioAnteprima.h"

#include <QMetaObject>

#include <exception>
#include <optional>

#include "Errore.h"

ConteggioAnteprima::ConteggioAnteprima(const combi::Condizione& condizione, std::vector<int> numeri, int classe,
                                       QObject* genitore)
    : QObject(genitore), condizione_(condizione), numeri_(std::move(numeri)), classe_(classe) {}

ConteggioAnteprima::~ConteggioAnteprima() {
    // The count reads the stop flag after every number: the join is short.
    ferma_ = true;
    if (thread_.joinable()) thread_.join();
}

void ConteggioAnteprima::Avvia() {
    if (stato_ != Stato::Pronto) return;
    stato_ = Stato::InCorso;
    thread_ = std::thread([this] { Esegui(); });
}

void ConteggioAnteprima::Annulla() { ferma_ = true; }

// On the counting thread: every report is queued to the owner's thread, and
// dropped by Qt if the object is gone by then.
void ConteggioAnteprima::Esegui() {
    try {
        std::optional<combi::Distribuzione> esito = combi::ContaDistribuzione(
            condizione_, numeri_, classe_, [this](int fatti, int totale) {
                QMetaObject::invokeMethod(this, [this, fatti, totale] { emit Avanzamento(fatti, totale); },
                                          Qt::QueuedConnection);
                return !ferma_;
            });
        const Stato stato = esito ? Stato::Finito : Stato::Annullato;
        QMetaObject::invokeMethod(
            this, [this, stato, d = esito.value_or(combi::Distribuzione{})] { Concludi(stato, d, {}); },
            Qt::QueuedConnection);
    } catch (const combi::Errore& e) {
        const QString descrizione = QString::fromStdString(e.descrizione());
        QMetaObject::invokeMethod(this, [this, descrizione] { Concludi(Stato::Fallito, {}, descrizione); },
                                  Qt::QueuedConnection);
    } catch (const std::exception& e) {
        const QString descrizione = QString::fromUtf8(e.what());
        QMetaObject::invokeMethod(this, [this, descrizione] { Concludi(Stato::Fallito, {}, descrizione); },
                                  Qt::QueuedConnection);
    }
}

void ConteggioAnteprima::Concludi(Stato stato, combi::Distribuzione risultato, const QString& descrizione) {
    stato_ = stato;
    risultato_ = std::move(risultato);
    if (stato == Stato::Finito) emit Finito();
    if (stato == Stato::Annullato) emit Annullato();
    if (stato == Stato::Fallito) emit Fallito(descrizione);
}
