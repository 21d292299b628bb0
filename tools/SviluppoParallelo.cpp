#include "SviluppoParallelo.h"
#include "Messaggi.h"

#include "CombiFiltroA.h"

#include <QDir>
#include <QLineEdit>

#include "Errore.h"
#include "FileSistema.h"
#include "LetturaNumero.h"
#include "ProtocolloLavoratori.h"
#include "SegnalazioneErrori.h"
#include "ServizioDialoghi.h"
#include "CancellaFile.h"
#include "Percorsi.h"

namespace {

// The fields exist for as many workers as the control created.
int LavoratoriDisponibili(const CombiFiltroA& controllo) {
    int w = 0;
    while (w < controllo.NumeroThreadsSviluppo() && controllo.txtMsgFromDll(w + 1)) ++w;
    return w;
}

}  // namespace

SviluppoParallelo::SviluppoParallelo(CombiFiltroA& controllo, ServizioDialoghi& dialoghi, QString programma,
                                     QObject* genitore)
    : QObject(genitore), controllo_(controllo), dialoghi_(dialoghi), programma_(std::move(programma)) {}

SviluppoParallelo::~SviluppoParallelo() {
    for (auto& p : processi_) {
        if (!p) continue;
        p->disconnect(this);
        p->kill();
        p->waitForFinished(1000);
    }
}

QString SviluppoParallelo::CartellaCorsa() const { return cartella_ ? cartella_->path() + "/" : QString(); }

QString SviluppoParallelo::FileColonneLavoratore(int i) const {
    return QString::fromStdString(combi::FileColonneLavoratore(CartellaCorsa().toStdString(), i));
}

QString SviluppoParallelo::FileContatoriLavoratore(int i) const {
    return QString::fromStdString(combi::FileContatoriLavoratore(CartellaCorsa().toStdString(), i));
}

QProcess* SviluppoParallelo::Lavoratore(int i) const {
    return i >= 1 && i < int(processi_.size()) ? processi_[i].get() : nullptr;
}

void SviluppoParallelo::Avvia() {
    if (inCorso_ || controllo_.InSviluppo()) return;
    if (controllo_.classe() > controllo_.ContaNumeriSel()) {
        dialoghi_.Esclamazione(QString(), QString::fromUtf8(combi::kImpostarePronostico));
        return;
    }
    if (!controllo_.ConfermaColonnaVuota()) return;
    const int lavoratori = LavoratoriDisponibili(controllo_);
    if (lavoratori < 1) {
        dialoghi_.Esclamazione(QString(), "Impostare il numero dei processi di sviluppo");
        return;
    }
    if (!PreparaFileSistema(lavoratori)) return;

    controllo_.IniziaSviluppoEsterno(CartellaCorsa(), true);
    inCorso_ = true;
    processi_.clear();
    processi_.resize(lavoratori + 1);
    fileColonne_.assign(lavoratori + 1, QString());
    for (int i = 1; i <= lavoratori && inCorso_; ++i) AvviaLavoratore(i, lavoratori);
}

// The run's folder, new for every run (the last one's goes), and its system
// file without "Riduzione N-K".
bool SviluppoParallelo::PreparaFileSistema(int) {
    return EseguiProtetta(dialoghi_, "CombiFiltro.SviluppoParallelo", [&] {
        cartella_ = std::make_unique<QTemporaryDir>(QDir::tempPath() + "/CombiFiltroCorsa-XXXXXX");
        if (!cartella_->isValid())
            throw combi::Errore(combi::kErroreAccessoFile,
                                "Impossibile creare la cartella dello sviluppo: " + cartella_->errorString().toStdString());
        combi::FileSistema sistema = controllo_.SistemaCorrente();
        sistema.intestazione.riduzione = 0;
        combi::ScriviFileSistema(combi::FileSistemaDellaCorsa(CartellaCorsa().toStdString()), sistema);
    });
}

void SviluppoParallelo::AvviaLavoratore(int i, int lavoratori) {
    auto processo = std::make_unique<QProcess>();
    QProcess* p = processo.get();
    processi_[i] = std::move(processo);
    connect(p, &QProcess::readyReadStandardOutput, this, [this, i] { LeggiRapporto(i); });
    connect(p, &QProcess::finished, this,
            [this, i](int codice, QProcess::ExitStatus stato) { LavoratoreUscito(i, codice, stato); });
    connect(p, &QProcess::errorOccurred, this, [this, i](QProcess::ProcessError errore) {
        if (errore == QProcess::FailedToStart) Fallito(i, "non è partito");
    });
    const QString quota = QString("%1/%2").arg(i).arg(lavoratori);
    // One engine thread per worker: the workers themselves share the cores.
    p->start(programma_, {"sviluppa", QString::fromStdString(combi::FileSistemaDellaCorsa(CartellaCorsa().toStdString())), "--colonne",
                          FileColonneLavoratore(i), "--contatori", FileContatoriLavoratore(i), "--quota", quota,
                          "--thread", "1", "--rapporto"});
}

void SviluppoParallelo::LeggiRapporto(int i) {
    QProcess* p = Lavoratore(i);
    while (p && p->canReadLine()) {
        const std::optional<combi::RigaRapporto> riga = combi::LeggiRigaRapporto(p->readLine().toStdString());
        if (!riga) continue;
        const QString numero = QString::number(riga->numero);
        switch (riga->tipo) {
        case combi::RigaRapporto::Tipo::Testate: controllo_.TxtPMin(i)->setText(numero); break;
        case combi::RigaRapporto::Tipo::Tenute: controllo_.TxtPMax(i)->setText(numero); break;
        case combi::RigaRapporto::Tipo::Fine: fileColonne_[i] = QString::fromStdString(riga->file); break;
        }
    }
}

void SviluppoParallelo::LavoratoreUscito(int i, int codice, QProcess::ExitStatus stato) {
    if (!inCorso_) return;
    LeggiRapporto(i);
    if (stato != QProcess::NormalExit) {
        Fallito(i, "si è interrotto in modo anomalo");
    } else if (codice != 0 || fileColonne_[i].isEmpty()) {
        QString motivo = QString("è terminato con il codice %1").arg(codice);
        const QString errore = QString::fromLocal8Bit(Lavoratore(i)->readAllStandardError()).trimmed();
        if (!errore.isEmpty()) motivo += ":\r\n" + errore.section('\n', -1);
        Fallito(i, motivo);
    } else {
        // The last worker to report completes the run inside the control,
        // which then leaves its busy state.
        controllo_.txtMsgFromDll(i)->setText(fileColonne_[i]);
        if (!controllo_.InSviluppo()) inCorso_ = false;
    }
}

void SviluppoParallelo::Fallito(int i, const QString& motivo) {
    if (!inCorso_) return;
    Interrompi();
    dialoghi_.Critico("CombiFiltro.SviluppoParallelo",
                      QString("Il processo di sviluppo %1 %2.\r\nNessuna colonna è stata tenuta.").arg(i).arg(motivo));
}

void SviluppoParallelo::Ferma() {
    if (!inCorso_) return;
    Interrompi();
    dialoghi_.Informazione(QString(), "Sviluppo interrotto: nessuna colonna è stata tenuta.");
}

void SviluppoParallelo::Interrompi() {
    inCorso_ = false;
    for (auto& p : processi_) {
        if (p && p->state() != QProcess::NotRunning) {
            p->kill();
            p->waitForFinished(2000);
        }
    }
    controllo_.AnnullaSviluppoEsterno();
}
