// Development from the panel. The engine runs on the user-interface thread
// (its worker threads compute meanwhile) and calls back every 10000 tested
// columns: the counters are refreshed, the stop request is read and pending
// events run, so the window stays alive and "Stop" can be pressed.

#include "CombiFiltroA.h"

#include "ChiaviComandi.h"
#include "Messaggi.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>

#include <cmath>

#include "DecodificaCondizioni.h"
#include "GrigliaCondizioni.h"
#include "GrigliaNumeri.h"
#include "LetturaNumero.h"
#include "PompaEventi.h"
#include "SegnalazioneErrori.h"
#include "ServizioDialoghi.h"
#include "Sviluppo.h"
#include "TestiGrigliaQt.h"
#include "UtilitaSchermo.h"
#include "Formato.h"

namespace {

// The engine calls back every 10000 columns, which can be tens of thousands
// of times a second: after the first time, the counters are redrawn and
// pending events run only as often as a user can see, and the final counts
// are shown by the caller.
class OsservatorePannello : public combi::OsservatoreSviluppo {
public:
    OsservatorePannello(QLineEdit& sviluppate, QLineEdit& condizionate, const bool& stop)
        : sviluppate_(sviluppate), condizionate_(condizionate), stop_(stop) {}

    void Progresso(uint64_t testate, uint64_t tenute) override {
        if (disegno_.isValid() && disegno_.elapsed() < kMillisecondiTraDisegni) return;
        disegno_.start();
        Mostra(testate, tenute);
    }
    bool RichiestaStop() override { return stop_; }
    void ElaboraMessaggi() override { pompa_.Pompa(); }
    void Mostra(uint64_t testate, uint64_t tenute) {
        sviluppate_.setText(TestoContatore(static_cast<double>(testate)));
        condizionate_.setText(TestoContatore(static_cast<double>(tenute)));
    }

private:
    static constexpr qint64 kMillisecondiTraDisegni = 50;
    QLineEdit& sviluppate_;
    QLineEdit& condizionate_;
    const bool& stop_;
    QElapsedTimer disegno_;
    PompaEventi pompa_;
};

}  // namespace

namespace {

// Leaves the developing state however the development ends.
class StatoSviluppo {
public:
    explicit StatoSviluppo(std::function<void(bool)> imposta) : imposta_(std::move(imposta)) { imposta_(true); }
    ~StatoSviluppo() { imposta_(false); }
    StatoSviluppo(const StatoSviluppo&) = delete;
    StatoSviluppo& operator=(const StatoSviluppo&) = delete;

private:
    std::function<void(bool)> imposta_;
};

}  // namespace

void CombiFiltroA::GestSviluppo() {
    if (inSviluppo_) return;  // the event pump of a running development
    EseguiProtetta(*dialoghi_, "CombiFiltro.GestSviluppo", [&] {
        const int classe = combi::LeggiInt16(cmbClasse_->currentText().toStdString());
        if (classe > ContaNumeriSel()) {
            dialoghi_->Esclamazione(QString(), QString::fromUtf8(combi::kImpostarePronostico));
            return;
        }
        if (!ConfermaColonnaVuota()) return;
        motore_ = interno;
        // A monotonic-enough wall clock in seconds: unlike the seconds since
        // midnight it does not go negative across midnight.
        const double inizio = orologio_();
        const combi::EsitoSviluppo esito = SviluppoInterno();
        const auto secondi = static_cast<int32_t>(std::lround(orologio_() - inizio));
        QString testo = "Fine sviluppo \r\n" + QString::fromStdString(combi::TempoTrascorso(secondi));
        if (esito.interrotto)
            testo += "\r\nSviluppo interrotto dopo " + TestoContatore(double(esito.testate)) + " colonne";
        dialoghi_->Informazione(QString(), testo);
    });
}

combi::EsitoSviluppo CombiFiltroA::SviluppoInterno() {
    colonne_.Svuota();
    condizioniSviluppo_.clear();
    labSviluppate_->setText("0");
    labCondizionate_->setText("0");
    StatoSviluppo stato([this](bool inCorso) { ImpostaStatoSviluppo(inCorso); });
    const combi::ParametriSviluppo parametri = combi::ParametriDalFile(SistemaCorrente());
    richiestaStop_ = false;
    OsservatorePannello osservatore(*labSviluppate_, *labCondizionate_, richiestaStop_);
    try {
        combi::EsitoSviluppo esito =
            combi::SviluppaSistema(parametri, osservatore, &colonne_, {.thread = threadMotore_, .quota = {}});
        osservatore.Mostra(esito.testate, esito.tenute);
        condizioniSviluppo_ = esito.condizioni;
        return esito;
    } catch (...) {
        colonne_.Svuota();  // a failed run keeps no column
        throw;
    }
}

bool CombiFiltroA::ConfermaColonnaVuota() {
    if (griglia_->ColonnaVuotaInterna() == 0) return true;
    return dialoghi_->Domanda(QString(), "Le condizioni dopo una colonna vuota non vengono considerate. Continuare ?");
}

void CombiFiltroA::ChiediStop() {
    if (!dialoghi_->Domanda(QString(), "Interrompere ?")) return;
    richiestaStop_ = true;
    // External workers are not polled by this control: whoever started them stops them.
    if (motore_ == esterno) {
        if (const auto stop = Gestore(chiavi::kStopLavoratori)) stop();
    }
}
