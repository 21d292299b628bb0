#include "FinestraPrincipale.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QInputDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>

#include "ArchivioQSettings.h"
#include "CollegaEditori.h"
#include "CollegaStrumenti.h"
#include "EditoreCondizione.h"
#include "ChiaviComandi.h"
#include "CombiFiltroA.h"
#include "F_VerificaArchivio.h"
#include "ServizioDialoghiQt.h"
#include "StampaSchedine.h"
#include "SviluppoParallelo.h"

QString CartellaSistemi() {
    const QString cartella = QDir::home().filePath("CombiFiltro/Sistemi");
    QDir().mkpath(cartella);
    return cartella;
}

FinestraPrincipale::FinestraPrincipale(std::unique_ptr<ServizioDialoghi> dialoghi)
    : archivio_(std::make_unique<ArchivioQSettings>()), dialoghi_(std::move(dialoghi)) {
    if (!dialoghi_) dialoghi_ = std::make_unique<ServizioDialoghiQt>(this);
    setWindowTitle("CombiFiltro - Sistemi condizionati");
    controllo_ = new CombiFiltroA(archivio_.get(), dialoghi_.get(), this);
    setCentralWidget(controllo_);
    controllo_->setDirSistemi(CartellaSistemi());
    editori_ = CollegaEditori(*controllo_, *dialoghi_);
    CollegaStrumenti(*controllo_, *dialoghi_);
    // The workers are the command-line program installed beside this one.
    parallelo_ = new SviluppoParallelo(*controllo_, *dialoghi_,
                                       QCoreApplication::applicationDirPath() + "/combifiltro-cli", this);
    controllo_->RegistraComando(chiavi::kStopLavoratori, [this] { parallelo_->Ferma(); });

    connect(controllo_, &CombiFiltroA::StampaSk, this,
            [this](QString& tipoGioco) { AnteprimaSchedine(this, *controllo_, tipoGioco); });
    connect(controllo_, &CombiFiltroA::CondizioniPressed, this, [this] {
        QMessageBox::information(this, "Condizioni",
                                 "Aprire il menu a tendina del pulsante \"Condizioni\" e scegliere il tipo "
                                 "di condizione: verrà inserita nella prima colonna libera della griglia.\n"
                                 "Doppio clic su una colonna per modificarla.");
    });

    QMenu* file = menuBar()->addMenu("&File");
    file->addAction("&Esci", this, &QWidget::close);
    QMenu* sviluppo = menuBar()->addMenu("&Sviluppo");
    sviluppo->addAction("Sviluppo &parallelo", parallelo_, &SviluppoParallelo::Avvia);
    sviluppo->addAction("&Processi di sviluppo...", this, &FinestraPrincipale::ChiediProcessi);
    QMenu* strumenti = menuBar()->addMenu("S&trumenti");
    strumenti->addAction("Verifica su &archivio...", this, [this] {
        QSettings impostazioni;
        F_VerificaArchivio verifica(*controllo_, *dialoghi_, impostazioni, this);
        verifica.exec();
    });
    QMenu* aiuto = menuBar()->addMenu("&?");
    aiuto->addAction("&Informazioni", this, [this] {
        if (controllo_->InSviluppo()) return;  // only "Stop" reacts while developing
        QMessageBox::about(this, "CombiFiltro",
                           "CombiFiltro\nCostruzione e sviluppo di sistemi condizionati.");
    });
    resize(1280, 800);
}

FinestraPrincipale::~FinestraPrincipale() {
    // The registry must not outlive the control.
    controllo_->Deinit();
}

void FinestraPrincipale::closeEvent(QCloseEvent* evento) {
    // A running development returns to its own loop only when it ends: the
    // user stops it first. A modified system is dropped only on the user's Yes.
    if (controllo_->InSviluppo() || !controllo_->ConsentiSenzaSalvare()) {
        evento->ignore();
        return;
    }
    QMainWindow::closeEvent(evento);
}

void FinestraPrincipale::ChiediProcessi() {
    // A modal question would hold a running development behind it, and the
    // workers' fields must not be rebuilt under a parallel one.
    if (controllo_->InSviluppo()) return;
    bool ok = false;
    const int quanti = QInputDialog::getInt(this, "Sviluppo parallelo", "Numero dei processi di sviluppo:",
                                            controllo_->NumeroThreadsSviluppo(), 1, 64, 1, &ok);
    if (ok) controllo_->setNumeroThreadsSviluppo(static_cast<int16_t>(quanti));
}
