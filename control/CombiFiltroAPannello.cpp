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
#include "ComandiPannello.h"
#include "Conteggi.h"
#include "GrigliaCondizioni.h"
#include "GrigliaNumeri.h"
#include "IconeComandi.h"
#include "LetturaNumero.h"
#include "ServizioDialoghi.h"
#include "UtilitaSchermo.h"

namespace {

// Workers beyond this many get no progress fields: a mistyped thread count
// must not build thousands of hidden widgets.
constexpr int kMassimoLavoratori = 256;

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
        Pulsante("SelNumeri")->setChecked(false);
        modificato_ = true;
    });

    contenitoreLavoratori_ = new QWidget(this);
    contenitoreLavoratori_->hide();
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
    Pulsante("Stop")->setEnabled(false);
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

    connect(cmbTipoGioco_, &QComboBox::currentIndexChanged, this, [this] { RiempiClasseERiduzione(); });
    connect(cmbClasse_, &QComboBox::currentIndexChanged, this, [this] { ClasseCambiata(); });
    connect(cmbRid_, &QComboBox::currentIndexChanged, this, [this] {
        SegnaModificatoDalPannello();  // the user picks only real entries: the value changed
        AggiornaGaranzia();
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
}

void CombiFiltroA::NumeriCambiati() {
    SegnaModificatoDalPannello();
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
    for (QToolButton* pulsante : std::as_const(pulsanti_)) pulsante->setEnabled(!inCorso);
    Pulsante("Stop")->setEnabled(inCorso);
    cmbClasse_->setEnabled(!inCorso);
    cmbRid_->setEnabled(!inCorso);
    AggiornaComandiColonne();
}

void CombiFiltroA::AggiornaComandiColonne() {
    const bool colonne = QuantitaColonne() > 0;
    Pulsante("VisualizzaColonne")->setEnabled(colonne && !inSviluppo_);
    VoceMenu("SalvaColonne")->setEnabled(colonne);
}

// The picks, the class and "Riduzione N-K" are saved with the system, so
// changing them is a change of the system; restoring the persisted
// properties at start-up is not.
void CombiFiltroA::SegnaModificatoDalPannello() {
    if (!caricamento_) modificato_ = true;
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

void CombiFiltroA::EseguiPulsante(const QString& chiave) {
    const auto e = [&](const char* nome) { return StessaChiave(chiave, nome); };
    int16_t colonna = 0;
    if (e("Open")) {
        if (ConsentiSenzaSalvare()) Apri();
    } else if (e("Save")) {
        Salva(fileSistema_);
    } else if (e("New")) {
        Nuovo();
    } else if (e("Condizioni")) {
        emit CondizioniPressed();
    } else if (e("SelNumeri")) {
        numeri_->setVisible(Pulsante("SelNumeri")->isChecked());
    } else if (e("LinkOpen")) {
        GestisciCondizione(combi::kLinkOpen, colonna, QString());
    } else if (e("LinkClose")) {
        GestisciCondizione(combi::kLinkClose, colonna, QString());
    } else if (e("Edit")) {
        ModificaCondizione();
    } else if (e("Delete")) {
        EliminaCondizione();
    } else if (e("SviluppaCond")) {
        GestSviluppo();
    } else if (e("Stop")) {
        ChiediStop();
    } else if (e("Inserisci")) {
        InserisciColonna();
    } else if (e("IncrGrid")) {
        CambiaLarghezzaColonne(+1);
    } else if (e("DecrGrid")) {
        CambiaLarghezzaColonne(-1);
    } else if (e("StampaSk")) {
        if (QuantitaColonne() > 0) {
            QString tipoGioco = cmbTipoGioco_->currentText();
            emit StampaSk(tipoGioco);
        } else {
            // Nothing to print yet: say why rather than do nothing.
            dialoghi_->Esclamazione("Stampa schedine",
                                    "Nessuna colonna da stampare: sviluppare prima il sistema.");
        }
    } else {
        // "QuadroRecuperi", "VisualizzaColonne", "Naviga", "EffettoCondizioni",
        // "ConfrontoCondSuCol", "Riduzione": windows that live elsewhere.
        EseguiEsterno(chiave);
        if (e("Riduzione")) AggiornaComandiColonne();
    }
}

void CombiFiltroA::EseguiVoceMenu(const QString& chiave) {
    // During a development only "Stop" reacts; the menus of the disabled
    // buttons can still be reached by their keys.
    if (inSviluppo_) return;
    if (StessaChiave(chiave, "Salva")) {
        Salva(fileSistema_);
    } else if (StessaChiave(chiave, "SalvaConNome")) {
        QString nessuno;
        Salva(nessuno);
    } else if (StessaChiave(chiave, "SalvaColonne")) {
        SalvaFileColonne();
    } else if (const VoceMenuComando* voce = ::VoceMenu(chiave); voce && voce->tipoCondizione > 0) {
        int16_t colonna = 0;
        GestisciCondizione(voce->tipoCondizione, colonna, QString());
    }
}

void CombiFiltroA::EseguiEsterno(const QString& chiave) {
    const auto gestore = comandiEsterni_.value(chiave.toLower());
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
    fileSistema_.clear();
    colonne_.Svuota();
    AggiornaComandiColonne();
    VoceMenu("Salva")->setEnabled(false);  // no file to save to
    modificato_ = eraModificato;
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
    modificato_ = true;
}

// ---- Hidden fields of the external workers ----

QLineEdit* CombiFiltroA::TxtPMin(int i) const {
    return i >= 1 && i < int(txtPMin_.size()) ? txtPMin_[i] : nullptr;
}

QLineEdit* CombiFiltroA::TxtPMax(int i) const {
    return i >= 1 && i < int(txtPMax_.size()) ? txtPMax_[i] : nullptr;
}

QLineEdit* CombiFiltroA::txtMsgFromDll(int i) const {
    return i >= 1 && i < int(txtMsgFromDll_.size()) ? txtMsgFromDll_[i] : nullptr;
}

void CombiFiltroA::RicreaCampiLavoratori() {
    for (auto* campi : {&txtPMin_, &txtPMax_, &txtMsgFromDll_}) {
        for (QLineEdit* campo : *campi) delete campo;
        campi->assign(1, nullptr);
    }
    const int quanti = std::clamp<int>(numeroThreads_, 0, kMassimoLavoratori);
    testateLavoratori_.assign(quanti + 1, 0);
    tenuteLavoratori_.assign(quanti + 1, 0);
    for (int i = 1; i <= quanti; ++i) {
        auto* minimo = new QLineEdit(contenitoreLavoratori_);
        auto* massimo = new QLineEdit(contenitoreLavoratori_);
        auto* messaggio = new QLineEdit(contenitoreLavoratori_);
        minimo->setObjectName(QString("TxtPMin_%1").arg(i));
        massimo->setObjectName(QString("TxtPMax_%1").arg(i));
        messaggio->setObjectName(QString("txtMsgFromDll_%1").arg(i));
        connect(minimo, &QLineEdit::textChanged, this, [this, i](const QString& testo) {
            testateLavoratori_[i] = combi::LeggiInt32(testo.toStdString());
            AggiornaContatoriLavoratori();
        });
        connect(massimo, &QLineEdit::textChanged, this, [this, i](const QString& testo) {
            tenuteLavoratori_[i] = combi::LeggiInt32(testo.toStdString());
            AggiornaContatoriLavoratori();
        });
        connect(messaggio, &QLineEdit::textChanged, this, [this] { ControllaCompletamento(); });
        txtPMin_.push_back(minimo);
        txtPMax_.push_back(massimo);
        txtMsgFromDll_.push_back(messaggio);
    }
}

void CombiFiltroA::AggiornaContatoriLavoratori() {
    double testate = 0;
    double tenute = 0;
    for (size_t i = 1; i < testateLavoratori_.size(); ++i) {
        testate += testateLavoratori_[i];
        tenute += tenuteLavoratori_[i];
    }
    labSviluppate_->setText(TestoContatore(testate));
    labCondizionate_->setText(TestoContatore(tenute));
}
