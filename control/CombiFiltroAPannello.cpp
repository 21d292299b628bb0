// The panel: toolbar, combos, counters and the number grid; what each
// command does and which commands are available in which state.

#include "CombiFiltroA.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>

#include "ArchivioProprieta.h"
#include "CampiLavoratori.h"
#include "ConteggioDalVivo.h"
#include "ChiaviComandi.h"
#include "ComandiPannello.h"
#include "Conteggi.h"
#include "GrigliaCondizioni.h"
#include "GrigliaNumeri.h"
#include "IconeComandi.h"
#include "LetturaNumero.h"
#include "ServizioDialoghi.h"
#include "UtilitaSchermo.h"

namespace {

QLineEdit* CampoLettura(QWidget* genitore, const char* nome) {
    auto* campo = new QLineEdit(genitore);
    campo->setObjectName(nome);
    campo->setReadOnly(true);
    campo->setFocusPolicy(Qt::NoFocus);
    return campo;
}

int ValoreCombo(const QComboBox* combo) { return combi::LeggiInt16(combo->currentText().toStdString()); }

}  // namespace

void CombiFiltroA::CostruisciPannello() {
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(2, 2, 2, 2);
    colonna->setSpacing(2);
    colonna->addWidget(CostruisciBarra());

    griglia_ = new GrigliaCondizioni(this);
    colonna->addWidget(griglia_, 1);
    // The selection colour of the grid is this hidden label's background.
    labColoreColSel_ = new QLabel(this);
    labColoreColSel_->setObjectName("LabColoreColSel");
    labColoreColSel_->setAutoFillBackground(true);
    QPalette tavolozza = labColoreColSel_->palette();
    tavolozza.setColor(labColoreColSel_->backgroundRole(), QColor(204, 228, 255));
    labColoreColSel_->setPalette(tavolozza);
    labColoreColSel_->hide();
    griglia_->ImpostaFonteColoreSelezione(labColoreColSel_);
    connect(griglia_, &QTableWidget::cellDoubleClicked, this, [this] { ModificaCondizione(); });

    colonna->addWidget(CostruisciFondo());

    lbQuadroRec_ = new QListWidget(this);
    lbQuadroRec_->setObjectName("LbQuadroRec");
    lbQuadroRec_->hide();

    numeri_ = new GrigliaNumeri(this);
    numeri_->hide();
    connect(numeri_, &GrigliaNumeri::SelezioneCambiata, this, [this] { NumeriCambiati(); });
    connect(numeri_, &GrigliaNumeri::Chiusa, this, [this] {
        Pulsante(chiavi::kSelNumeri)->setChecked(false);
        ImpostaModificato(true);
    });

    auto* contenitoreLavoratori = new QWidget(this);
    contenitoreLavoratori->hide();
    lavoratori_ = new CampiLavoratori(contenitoreLavoratori);
    connect(lavoratori_, &CampiLavoratori::ContatoriCambiati, this, [this](double testate, double tenute) {
        labSviluppate_->setText(TestoContatore(testate));
        labCondizionate_->setText(TestoContatore(tenute));
    });
    connect(lavoratori_, &CampiLavoratori::CompletamentoCambiato, this, [this] { ControllaCompletamento(); });

    conteggio_ = new ConteggioDalVivo(this);
    connect(conteggio_, &ConteggioDalVivo::Avviato, this, [this] { labPreviste_->setText("Colonne previste: …"); });
    connect(conteggio_, &ConteggioDalVivo::Avanzamento, this, [this](int percentuale) {
        labPreviste_->setText(QString("Colonne previste: … %1 %").arg(percentuale));
    });
    connect(conteggio_, &ConteggioDalVivo::Risultato, this, [this](quint64 tenute) {
        labPreviste_->setText("Colonne previste: " + TestoContatore(double(tenute)));
    });
    connect(conteggio_, &ConteggioDalVivo::Indeterminato, this, [this] { labPreviste_->setText("Colonne previste: –"); });
    // Whatever changes the system restarts the count.
    connect(griglia_, &QTableWidget::itemChanged, this, [this] { RichiediConteggio(); });
    for (auto segnale : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(lbQuadroRec_->model(), segnale, this, [this] { RichiediConteggio(); });
    connect(lbQuadroRec_->model(), &QAbstractItemModel::dataChanged, this, [this] { RichiediConteggio(); });
    connect(lbQuadroRec_->model(), &QAbstractItemModel::modelReset, this, [this] { RichiediConteggio(); });
}

QWidget* CombiFiltroA::CostruisciBarra() {
    auto* pannello = new QWidget(this);
    auto* riga = new QHBoxLayout(pannello);
    riga->setContentsMargins(0, 0, 0, 0);
    barra_ = new QToolBar(pannello);
    barra_->setObjectName("Toolbar2");
    barra_->setIconSize(QSize(24, 24));
    for (const ComandoPannello& comando : ComandiPannello()) {
        auto* pulsante = new QToolButton(barra_);
        const QString chiave = comando.chiave;
        pulsante->setObjectName(chiave);
        pulsante->setToolTip(comando.suggerimento);
        pulsante->setIcon(IconaComando(comando.immagine));
        pulsante->setCheckable(comando.interruttore);
        if (!comando.menu.empty()) {
            auto* menu = new QMenu(pulsante);
            for (const VoceMenuComando& voce : comando.menu) {
                QAction* azione = menu->addAction(voce.didascalia);
                const QString chiaveVoce = voce.chiave;
                azione->setObjectName(chiaveVoce);
                vociMenu_[chiaveVoce.toLower()] = azione;
                connect(azione, &QAction::triggered, this, [this, chiaveVoce] { EseguiVoceMenu(chiaveVoce); });
            }
            pulsante->setMenu(menu);
            pulsante->setPopupMode(QToolButton::MenuButtonPopup);
        }
        connect(pulsante, &QToolButton::clicked, this, [this, chiave] { EseguiPulsante(chiave); });
        pulsanti_[chiave.toLower()] = pulsante;
        barra_->addWidget(pulsante);
    }
    // "Stop" has nothing to stop before a development starts.
    Pulsante(chiavi::kStop)->setEnabled(false);
    riga->addWidget(barra_, 1);

    cmbTipoGioco_ = new QComboBox(pannello);
    cmbTipoGioco_->setObjectName("CmbTipoGioco");
    cmbTipoGioco_->addItems({"Lotto", "10ELotto", "10ELotto5M", "SuperEnalotto"});
    cmbClasse_ = new QComboBox(pannello);
    cmbClasse_->setObjectName("CmbClasse");
    cmbRid_ = new QComboBox(pannello);
    cmbRid_->setObjectName("CmbRid");
    riga->addWidget(new QLabel("Tipo", pannello));
    riga->addWidget(cmbTipoGioco_);
    riga->addWidget(new QLabel("Classe", pannello));
    riga->addWidget(cmbClasse_);
    riga->addWidget(new QLabel("Riduzione N-K", pannello));
    riga->addWidget(cmbRid_);

    connect(cmbTipoGioco_, &QComboBox::currentIndexChanged, this, [this] { GiocoScelto(); });
    connect(cmbClasse_, &QComboBox::currentIndexChanged, this, [this] { ClasseCambiata(); });
    connect(cmbRid_, &QComboBox::currentIndexChanged, this, [this] {
        SegnaModificatoDalPannello();  // the user picks only real entries: the value changed
        AggiornaGaranzia();
        RichiediConteggio();
    });
    return pannello;
}

QWidget* CombiFiltroA::CostruisciFondo() {
    auto* pannello = new QWidget(this);
    auto* riga = new QHBoxLayout(pannello);
    riga->setContentsMargins(0, 0, 0, 0);
    labNumSel_ = CampoLettura(pannello, "LabNumSel");
    labIntegrale_ = CampoLettura(pannello, "LabIntegrale");
    labSviluppate_ = CampoLettura(pannello, "LabSviluppate");
    labCondizionate_ = CampoLettura(pannello, "LabCondizionate");
    labGaranzia_ = CampoLettura(pannello, "LabGaranzia");
    const std::pair<const char*, QLineEdit*> contatori[] = {{"Numeri :", labNumSel_},
                                                            {"Integrali :", labIntegrale_},
                                                            {"Sviluppate :", labSviluppate_},
                                                            {"Condizionate :", labCondizionate_}};
    for (const auto& [etichetta, campo] : contatori) {
        riga->addWidget(new QLabel(etichetta, pannello));
        campo->setMaximumWidth(120);
        riga->addWidget(campo);
    }
    labPreviste_ = new QLabel(pannello);
    labPreviste_->setObjectName("LabPreviste");
    riga->addWidget(labPreviste_);
    riga->addWidget(labGaranzia_, 1);  // reaches the right edge
    labNumSel_->setText("0");
    // Picking numbers one after the other changes the integral count each
    // time: pending events run, so the panel keeps up.
    connect(labIntegrale_, &QLineEdit::textChanged, this, [] { QCoreApplication::processEvents(); });
    return pannello;
}

// ---- Combos and counters ----

void CombiFiltroA::RiempiClasseERiduzione() {
    if (ValoreCombo(cmbRid_) != 0) SegnaModificatoDalPannello();  // the reduction goes back to none
    const QString gioco = cmbTipoGioco_->currentText();
    int predefinita = 5;
    if (gioco == "SuperEnalotto") predefinita = 6;
    else if (gioco == "10ELotto" || gioco == "10ELotto5M") predefinita = 10;
    {
        const QSignalBlocker bloccoClasse(cmbClasse_);
        const QSignalBlocker bloccoRid(cmbRid_);
        cmbClasse_->clear();
        cmbRid_->clear();
        for (int k = 2; k <= 10; ++k) cmbClasse_->addItem(QString::number(k));
        cmbRid_->addItem(" ");
        for (int r = 1; r <= 5; ++r) cmbRid_->addItem(QString::number(r));
        cmbRid_->setCurrentIndex(-1);  // no reduction chosen yet: counts as 0
    }
    cmbClasse_->setCurrentIndex(predefinita - 2);
    ClasseCambiata();
}

void CombiFiltroA::ClasseCambiata() {
    // A cleared selection leaves the stored class as it was.
    if (cmbClasse_->currentIndex() >= 0) {
        const auto nuova = static_cast<int16_t>(ValoreCombo(cmbClasse_));
        if (nuova != classe_) SegnaModificatoDalPannello();
        classe_ = nuova;
        if (!caricamento_) archivio_->ScriviIntero("Classe", classe_);
    }
    AggiornaIntegrale();
    AggiornaGaranzia();
    RichiediConteggio();
}

void CombiFiltroA::NumeriCambiati() {
    SegnaModificatoDalPannello();
    RichiediConteggio();
    AggiornaIntegrale();
    AggiornaGaranzia();
    labNumSel_->setText(QString::number(ContaNumeriSel()));
}

void CombiFiltroA::AggiornaIntegrale() {
    // Class 0 (no selection) makes C(n, 0) divide by zero: nothing to show.
    const double integrale = ColonneIntegrali();
    labIntegrale_->setText(std::isfinite(integrale) ? TestoContatore(integrale) : QString("0"));
}

void CombiFiltroA::AggiornaGaranzia() {
    labGaranzia_->setText("A condizioni superate garanzia " +
                          QString::number(ValoreCombo(cmbClasse_) - ValoreCombo(cmbRid_)));
}

// ---- Command states ----

QToolButton* CombiFiltroA::Pulsante(const QString& chiave) const { return pulsanti_.value(chiave.toLower()); }

QAction* CombiFiltroA::VoceMenu(const QString& chiave) const { return vociMenu_.value(chiave.toLower()); }

void CombiFiltroA::ImpostaStatoSviluppo(bool inCorso) {
    inSviluppo_ = inCorso;
    AggiornaStatoOccupato();
}

// While a run of any kind goes on (a development, inside or by workers, or a
// reduction) nothing that would change what is running reacts: only "Stop"
// of a development. The host greys its own commands on OccupatoCambiato.
void CombiFiltroA::AggiornaStatoOccupato() {
    const bool occupato = Occupato();
    for (QToolButton* pulsante : std::as_const(pulsanti_)) pulsante->setEnabled(!occupato);
    Pulsante(chiavi::kStop)->setEnabled(inSviluppo_);
    cmbClasse_->setEnabled(!occupato);
    cmbRid_->setEnabled(!occupato);
    AggiornaComandiColonne();
    emit OccupatoCambiato(occupato);
    if (!occupato) ApplicaGiocoInAttesa();
    // A run needs the cores: the live count waits for its end.
    if (occupato) conteggio_->Ferma();
    else RichiediConteggio();
}

// The system on screen as the engine would develop it; nothing when it
// cannot be developed (class above the picked numbers, no class).
std::optional<combi::ParametriSviluppo> CombiFiltroA::ParametriDelPannello() const {
    try {
        combi::ParametriSviluppo p = combi::ParametriDalFile(SistemaCorrente());
        combi::ControllaParametri(p, {});
        return p;
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

void CombiFiltroA::RichiediConteggio() {
    if (caricamento_ || conteggio_ == nullptr) return;
    if (Occupato()) return;
    conteggio_->Richiedi(ParametriDelPannello());
}

// The game combo stays enabled during a run, but another game would refill
// the class list under the running system: the panel keeps showing the game
// that runs, and the choice is applied when the run ends.
void CombiFiltroA::GiocoScelto() {
    if (!Occupato()) {
        giocoAttivo_ = cmbTipoGioco_->currentIndex();
        RiempiClasseERiduzione();
        return;
    }
    giocoInAttesa_ = cmbTipoGioco_->currentIndex();
    const QSignalBlocker blocco(cmbTipoGioco_);
    cmbTipoGioco_->setCurrentIndex(giocoAttivo_);
}

void CombiFiltroA::ApplicaGiocoInAttesa() {
    if (giocoInAttesa_ < 0) return;
    const int gioco = giocoInAttesa_;
    giocoInAttesa_ = -1;
    cmbTipoGioco_->setCurrentIndex(gioco);
}

void CombiFiltroA::AggiornaComandiColonne() {
    const bool colonne = QuantitaColonne() > 0;
    Pulsante(chiavi::kVisualizzaColonne)->setEnabled(colonne && !inSviluppo_);
    VoceMenu(chiavi::kSalvaColonne)->setEnabled(colonne);
}

// The picks, the class and "Riduzione N-K" are saved with the system, so
// changing them is a change of the system; restoring the persisted
// properties at start-up is not.
void CombiFiltroA::SegnaModificatoDalPannello() {
    if (!caricamento_) ImpostaModificato(true);
}

void CombiFiltroA::ImpostaModificato(bool modificato) {
    const bool cambia = modificato != modificato_;
    modificato_ = modificato;
    if (cambia) emit ModificatoCambiato(modificato);
}

void CombiFiltroA::ImpostaFileSistema(const QString& percorso) {
    if (percorso == fileSistema_) return;
    fileSistema_ = percorso;
    emit FileSistemaCambiato(percorso);
}

bool CombiFiltroA::ConsentiChiusura() {
    if (!modificato_) return true;
    switch (dialoghi_->ChiediSalvataggio(QString(), "Salvare le modifiche?")) {
    case ServizioDialoghi::Salvataggio::Salva:
        Salva(fileSistema_);
        return !modificato_;  // a cancelled or failed save keeps the window open
    case ServizioDialoghi::Salvataggio::NonSalvare: return true;
    case ServizioDialoghi::Salvataggio::Annulla: return false;
    }
    return false;
}

bool CombiFiltroA::ConsentiSenzaSalvare() {
    if (!modificato_) return true;
    return dialoghi_->Domanda(QString(), "Il sistema è stato modificato ma non ancora salvato.Continuare ?");
}

// ---- Commands ----

void CombiFiltroA::EseguiComando(const QString& chiave) {
    if (QToolButton* pulsante = Pulsante(chiave)) {
        if (!pulsante->isEnabled()) return;
        if (pulsante->isCheckable()) pulsante->toggle();
        EseguiPulsante(pulsante->objectName());
    } else if (QAction* voce = VoceMenu(chiave)) {
        if (voce->isEnabled()) EseguiVoceMenu(voce->objectName());
    }
}

// The panel's own commands, by key; every other button opens a window that
// lives elsewhere, through the handler registered under its key.
const QHash<QString, void (*)(CombiFiltroA&)>& CombiFiltroA::GestoriPulsanti() {
    using namespace chiavi;
    static const QHash<QString, void (*)(CombiFiltroA&)> gestori = [] {
        QHash<QString, void (*)(CombiFiltroA&)> g;
        const auto aggiungi = [&g](const char* chiave, void (*f)(CombiFiltroA&)) { g[QString(chiave).toLower()] = f; };
        aggiungi(kApri, [](CombiFiltroA& c) {
            if (c.ConsentiSenzaSalvare()) c.Apri();
        });
        aggiungi(kSalvaPulsante, [](CombiFiltroA& c) { c.Salva(c.fileSistema_); });
        aggiungi(kNuovo, [](CombiFiltroA& c) { c.Nuovo(); });
        aggiungi(kCondizioni, [](CombiFiltroA& c) { emit c.CondizioniPressed(); });
        aggiungi(kSelNumeri, [](CombiFiltroA& c) { c.numeri_->setVisible(c.Pulsante(kSelNumeri)->isChecked()); });
        aggiungi(kLinkOpen, [](CombiFiltroA& c) { c.NuovaCondizione(combi::kLinkOpen); });
        aggiungi(kLinkClose, [](CombiFiltroA& c) { c.NuovaCondizione(combi::kLinkClose); });
        aggiungi(kEdit, [](CombiFiltroA& c) { c.ModificaCondizione(); });
        aggiungi(kDelete, [](CombiFiltroA& c) { c.EliminaCondizione(); });
        aggiungi(kSviluppa, [](CombiFiltroA& c) { c.GestSviluppo(); });
        aggiungi(kStop, [](CombiFiltroA& c) { c.ChiediStop(); });
        aggiungi(kInserisci, [](CombiFiltroA& c) { c.InserisciColonna(); });
        aggiungi(kIncrGrid, [](CombiFiltroA& c) { c.CambiaLarghezzaColonne(+1); });
        aggiungi(kDecrGrid, [](CombiFiltroA& c) { c.CambiaLarghezzaColonne(-1); });
        aggiungi(kStampaSk, [](CombiFiltroA& c) { c.StampaSchedine(); });
        aggiungi(kRiduzione, [](CombiFiltroA& c) {
            c.EseguiEsterno(kRiduzione);
            c.AggiornaComandiColonne();
        });
        return g;
    }();
    return gestori;
}

// The keys a host may register a handler for.
bool CombiFiltroA::ChiaveEsterna(const QString& chiave) {
    using namespace chiavi;
    for (const char* k : {kQuadroRecuperi, kVisualizzaColonne, kNaviga, kEffettoCondizioni, kConfrontoCondSuCol,
                          kRiduzione, kAggiornaNavigatore, kChiudiNavigatore, kStopLavoratori,
                          kApriFinestraRiduzione})
        if (StessaChiave(chiave, k)) return true;
    return false;
}

void CombiFiltroA::EseguiPulsante(const QString& chiave) {
    if (const auto gestore = GestoriPulsanti().value(chiave.toLower())) gestore(*this);
    else EseguiEsterno(chiave);
}

void CombiFiltroA::NuovaCondizione(int tipo) {
    int16_t colonna = 0;
    GestisciCondizione(tipo, colonna, QString());
}

void CombiFiltroA::StampaSchedine() {
    if (QuantitaColonne() == 0) {
        // Nothing to print yet: say why rather than do nothing.
        dialoghi_->Esclamazione("Stampa schedine", "Nessuna colonna da stampare: sviluppare prima il sistema.");
        return;
    }
    QString tipoGioco = cmbTipoGioco_->currentText();
    emit StampaSk(tipoGioco);
}

void CombiFiltroA::EseguiVoceMenu(const QString& chiave) {
    // During a development only "Stop" reacts; the menus of the disabled
    // buttons can still be reached by their keys.
    if (inSviluppo_) return;
    if (StessaChiave(chiave, chiavi::kSalva)) {
        Salva(fileSistema_);
    } else if (StessaChiave(chiave, chiavi::kSalvaConNome)) {
        QString nessuno;
        Salva(nessuno);
    } else if (StessaChiave(chiave, chiavi::kSalvaColonne)) {
        SalvaFileColonne();
    } else if (const VoceMenuComando* voce = ::VoceMenu(chiave); voce && voce->tipoCondizione > 0) {
        NuovaCondizione(voce->tipoCondizione);
    }
}

void CombiFiltroA::EseguiEsterno(const QString& chiave) {
    const auto gestore = Gestore(chiave);
    if (gestore) gestore();
    else dialoghi_->Informazione(QString(), "Funzione non ancora disponibile");
}

void CombiFiltroA::Nuovo() {
    if (!ConsentiSenzaSalvare()) return;
    // A new system leaves the modified flag as it was, though it clears the
    // picks and the reduction.
    const bool eraModificato = modificato_;
    LayOutGrid();
    numeri_->Pulisci();
    lbQuadroRec_->clear();
    labSviluppate_->clear();
    labCondizionate_->clear();
    cmbRid_->setCurrentIndex(0);
    ImpostaFileSistema(QString());
    colonne_.Svuota();
    AggiornaComandiColonne();
    VoceMenu(chiavi::kSalva)->setEnabled(false);  // no file to save to
    ImpostaModificato(eraModificato);
}

void CombiFiltroA::RicostruisciQuadri(const std::array<std::array<QString, 2>, 21>& minMax) {
    lbQuadroRec_->clear();
    for (int i = 1; i <= 20; ++i) {
        const QString& minimo = minMax[i][0];
        const QString& massimo = minMax[i][1];
        if (!minimo.trimmed().isEmpty() && !massimo.trimmed().isEmpty()) {
            lbQuadroRec_->addItem(QString("%1,%2,-1")
                                      .arg(combi::LeggiInt16(minimo.toStdString()))
                                      .arg(combi::LeggiInt16(massimo.toStdString())));
        } else {
            lbQuadroRec_->addItem("-1,-1,-0");
        }
    }
    ImpostaModificato(true);
}
