#include "FinestraPrincipale.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QInputDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QFileInfo>
#include <QSettings>
#include <QStatusBar>

#include "ArchivioQSettings.h"
#include "CollegaEditori.h"
#include "CollegaStrumenti.h"
#include "EditoreCondizione.h"
#include "FileRecenti.h"
#include "ChiaviComandi.h"
#include "CombiFiltroA.h"
#include "F_VerificaArchivio.h"
#include "F_VerificaGaranzia.h"
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

    CostruisciMenu();
    connect(controllo_, &CombiFiltroA::ModificatoCambiato, this, [this] { AggiornaTitolo(); });
    connect(controllo_, &CombiFiltroA::FileSistemaCambiato, this, [this](const QString& percorso) {
        FileRecenti(impostazioni_).Aggiungi(percorso);
        AggiornaTitolo();
    });
    connect(controllo_, &CombiFiltroA::Salvato, this,
            [this](const QString& messaggio) { statusBar()->showMessage(messaggio, 8000); });
    connect(controllo_, &CombiFiltroA::OccupatoCambiato, this, &FinestraPrincipale::AggiornaComandi);
    AggiornaTitolo();
    AggiornaComandi();
    resize(1280, 800);
}

FinestraPrincipale::~FinestraPrincipale() {
    // The registry must not outlive the control.
    controllo_->Deinit();
}

void FinestraPrincipale::closeEvent(QCloseEvent* evento) {
    // A running development returns to its own loop only when it ends: the
    // user stops it first. Unsaved changes are saved or dropped as the user says.
    if (controllo_->Occupato() || !controllo_->ConsentiChiusura()) {
        evento->ignore();
        return;
    }
    QMainWindow::closeEvent(evento);
}

void FinestraPrincipale::CostruisciMenu() {
    using namespace chiavi;
    const auto comando = [this](QMenu* menu, const QString& testo, const char* chiave, const QKeySequence& tasti) {
        QAction* azione = menu->addAction(testo, this, [this, chiave] { controllo_->EseguiComando(chiave); });
        azione->setShortcut(tasti);
        return azione;
    };
    QMenu* file = menuBar()->addMenu("&File");
    comandiFile_ = {comando(file, "&Nuovo", kNuovo, QKeySequence::New), comando(file, "&Apri...", kApri, QKeySequence::Open),
                    comando(file, "&Salva", kSalva, QKeySequence::Save),
                    comando(file, "Salva &con nome...", kSalvaConNome, QKeySequence::SaveAs),
                    comando(file, "Salva c&olonne...", kSalvaColonne, QKeySequence())};
    recenti_ = file->addMenu("File &recenti");
    connect(recenti_, &QMenu::aboutToShow, this, &FinestraPrincipale::RiempiRecenti);
    file->addSeparator();
    comandiFile_ << comando(file, "Stampa sc&hedine...", kStampaSk, QKeySequence::Print);
    file->addSeparator();
    file->addAction("&Esci", QKeySequence::Quit, this, &QWidget::close);

    QMenu* sviluppo = menuBar()->addMenu("&Sviluppo");
    comandiSviluppo_ = {comando(sviluppo, "&Sviluppa sistema", kSviluppa, QKeySequence(Qt::Key_F5))};
    interrompi_ = comando(sviluppo, "&Interrompi", kStop, QKeySequence(Qt::Key_Escape));
    sviluppo->addSeparator();
    comandiSviluppo_ << sviluppo->addAction("Sviluppo &parallelo", parallelo_, &SviluppoParallelo::Avvia)
                     << sviluppo->addAction("&Processi di sviluppo...", this, &FinestraPrincipale::ChiediProcessi);
    QMenu* strumenti = menuBar()->addMenu("S&trumenti");
    comandiSviluppo_ << strumenti->addAction("Verifica su &archivio...", this, [this] {
        QSettings impostazioni;
        F_VerificaArchivio verifica(*controllo_, *dialoghi_, impostazioni, this);
        verifica.exec();
    });
    comandiSviluppo_ << strumenti->addAction("Verifica &garanzia...", this, [this] {
        F_VerificaGaranzia garanzia(*controllo_, *dialoghi_, this);
        garanzia.exec();
    });
    QMenu* aiuto = menuBar()->addMenu("&?");
    comandiSviluppo_ << aiuto->addAction("&Informazioni", this, [this] {
        QMessageBox::about(this, "CombiFiltro", "CombiFiltro\nCostruzione e sviluppo di sistemi condizionati.");
    });
}

// During a run (a development of any kind or a reduction) nothing that
// would change what runs can be chosen: only "Interrompi", while developing.
void FinestraPrincipale::AggiornaComandi() {
    const bool occupato = controllo_->Occupato();
    for (QAction* azione : std::as_const(comandiFile_)) azione->setEnabled(!occupato);
    for (QAction* azione : std::as_const(comandiSviluppo_)) azione->setEnabled(!occupato);
    recenti_->setEnabled(!occupato);
    interrompi_->setEnabled(controllo_->InSviluppo());
}

void FinestraPrincipale::AggiornaTitolo() {
    const QString file = controllo_->FileSistema();
    setWindowTitle("CombiFiltro - " + (file.isEmpty() ? QString("Nuovo sistema") : QFileInfo(file).fileName()) +
                   "[*]");
    setWindowModified(controllo_->SistemaModificato());
}

void FinestraPrincipale::RiempiRecenti() {
    recenti_->clear();
    const QStringList elenco = FileRecenti(impostazioni_).Elenco();
    if (elenco.isEmpty()) recenti_->addAction("(nessuno)")->setEnabled(false);
    for (int i = 0; i < elenco.size(); ++i) {
        const QString percorso = elenco[i];
        recenti_->addAction(QString("&%1 %2").arg(i + 1).arg(QFileInfo(percorso).fileName()), this,
                            [this, percorso] { ApriRecente(percorso); })
            ->setToolTip(percorso);
    }
}

void FinestraPrincipale::ApriRecente(const QString& percorso) {
    if (controllo_->Occupato() || !controllo_->ConsentiSenzaSalvare()) return;
    if (!QFileInfo::exists(percorso)) {
        FileRecenti(impostazioni_).Togli(percorso);
        dialoghi_->Esclamazione(QString(), "Il file non esiste più: " + percorso);
        return;
    }
    controllo_->CaricaSistema(percorso);
}

void FinestraPrincipale::ChiediProcessi() {
    // A modal question would hold a running development behind it, and the
    // workers' fields must not be rebuilt under a parallel one.
    if (controllo_->Occupato()) return;
    bool ok = false;
    const int quanti = QInputDialog::getInt(this, "Sviluppo parallelo", "Numero dei processi di sviluppo:",
                                            controllo_->NumeroThreadsSviluppo(), 1, 64, 1, &ok);
    if (ok) controllo_->setNumeroThreadsSviluppo(static_cast<int16_t>(quanti));
}
