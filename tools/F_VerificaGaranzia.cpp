#include "F_VerificaGaranzia.h"

#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

#include "CampoTesto.h"
#include "CombiFiltroA.h"
#include "Errore.h"
#include "F_VisualizzaColonne.h"
#include "Garanzia.h"
#include "PompaEventi.h"
#include "Riduzione.h"
#include "SegnalazioneErrori.h"
#include "ServizioDialoghi.h"
#include "UtilitaSchermo.h"

namespace {

using combi::Colonna;

constexpr const char* kTitolo = "Verifica garanzia";
constexpr int kMassimiEstratti = 20;      // 10ELotto draws twenty numbers
constexpr int kMassimaClasse = 10;
constexpr int kPuntiPredefiniti = 3;
// Numbers drawn in each of the control's games: Lotto, 10ELotto, 10ELotto5M, SuperEnalotto.
constexpr std::array<int, 4> kEstrattiDelGioco = {5, 20, 20, 6};

// The run's phase and percentage on the window, the events pumped every few
// milliseconds (a pump costs more than a step of the search), and the stop
// that "Annulla" sets.
class OsservatoreFinestra : public combi::OsservatoreRiduzione {
public:
    OsservatoreFinestra(QLabel* info, QProgressBar* barra, const bool& stop)
        : info_(info), barra_(barra), stop_(stop) {}
    void Fase(const std::string& testo) override {
        if (info_) info_->setText(QString::fromStdString(testo));
    }
    void Percentuale(int percento) override {
        if (barra_) barra_->setValue(percento);
    }
    void ElaboraMessaggi() override { pompa_.Pompa(); }
    bool RichiestaStop() override { return stop_; }

private:
    QPointer<QLabel> info_;
    QPointer<QProgressBar> barra_;
    const bool& stop_;
    PompaEventi pompa_;
};

QTableWidgetItem* Cella(const QString& testo) {
    auto* cella = new QTableWidgetItem(testo);
    cella->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    cella->setTextAlignment(Qt::AlignCenter);
    return cella;
}

}  // namespace

F_VerificaGaranzia::F_VerificaGaranzia(CombiFiltroA& controllo, ServizioDialoghi& dialoghi, QWidget* genitore)
    : DialogoConLavoro(genitore), controllo_(controllo), dialoghi_(dialoghi) {
    setObjectName("F_VerificaGaranzia");
    setWindowTitle(kTitolo);
    CostruisciFinestra();
    LeggiControllo();
    connect(cmdTabella_, &QPushButton::clicked, this, [this] { CalcolaTabella(); });
    connect(cmdBuchi_, &QPushButton::clicked, this, [this] { CercaBuchi(); });
    connect(cmdFile_, &QPushButton::clicked, this, [this] { ScegliFile(); });
    connect(cmdVisualizza_, &QPushButton::clicked, this, [this] { VisualizzaBuchi(); });
    connect(cmdAnnulla_, &QPushButton::clicked, this, [this] { Annulla(); });
    connect(cmdChiudi_, &QPushButton::clicked, this, [this] { reject(); });
    connect(optIntegrale_, &QRadioButton::toggled, this, [this] { AggiornaAbilitazioni(); });
    AggiornaAbilitazioni();
}

void F_VerificaGaranzia::CostruisciFinestra() {
    auto* colonna = new QVBoxLayout(this);
    auto* modulo = new QFormLayout;
    labColonne_ = CreaCampoTesto(this, "LabColonne");
    modulo->addRow("Colonne tenute", labColonne_);
    labNumeri_ = CreaCampoTesto(this, "LabNumeri");
    labNumeri_->setWordWrap(true);
    modulo->addRow("Numeri scelti", labNumeri_);
    colonna->addLayout(modulo);
    CreaTabella(colonna);
    CreaBuchi(colonna);
    labInfo_ = CreaCampoTesto(this, "LabInfo");
    colonna->addWidget(labInfo_);
    panPerc_ = new QProgressBar(this);
    panPerc_->setObjectName("PanPerc");
    panPerc_->setRange(0, 100);
    panPerc_->setValue(0);
    colonna->addWidget(panPerc_);
    CreaPulsanti(colonna);
    setMinimumWidth(520);
}

void F_VerificaGaranzia::CreaTabella(QVBoxLayout* colonna) {
    auto* gruppo = new QGroupBox("Tabella di garanzia", this);
    auto* interno = new QVBoxLayout(gruppo);
    auto* riga = new QHBoxLayout;
    riga->addWidget(new QLabel("Estratti", gruppo));
    txtEstratti_ = new QSpinBox(gruppo);
    txtEstratti_->setObjectName("TxtEstratti");
    txtEstratti_->setRange(1, kMassimiEstratti);
    txtEstratti_->setToolTip("Quanti numeri escono a ogni estrazione: 5 per il Lotto, 6 per il SuperEnalotto");
    riga->addWidget(txtEstratti_);
    riga->addStretch(1);
    cmdTabella_ = new QPushButton("CALCOLA TABELLA", gruppo);
    cmdTabella_->setObjectName("CmdTabella");
    cmdTabella_->setAutoDefault(false);
    riga->addWidget(cmdTabella_);
    interno->addLayout(riga);
    grdGaranzia_ = new QTableWidget(0, 2, gruppo);
    grdGaranzia_->setObjectName("GrdGaranzia");
    grdGaranzia_->setHorizontalHeaderLabels({"Indovinati", "Punti garantiti"});
    grdGaranzia_->verticalHeader()->hide();
    grdGaranzia_->verticalHeader()->setDefaultSectionSize(grdGaranzia_->fontMetrics().height() + 6);
    grdGaranzia_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grdGaranzia_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grdGaranzia_->setSelectionMode(QAbstractItemView::NoSelection);
    grdGaranzia_->setFocusPolicy(Qt::NoFocus);
    grdGaranzia_->setMinimumHeight(7 * (grdGaranzia_->fontMetrics().height() + 6) + 8);
    grdGaranzia_->setToolTip("Se escono m dei tuoi numeri, almeno una colonna fa questi punti");
    interno->addWidget(grdGaranzia_);
    colonna->addWidget(gruppo, 1);
}

void F_VerificaGaranzia::CreaBuchi(QVBoxLayout* colonna) {
    auto* gruppo = new QGroupBox("Buchi", this);
    auto* interno = new QVBoxLayout(gruppo);
    auto* rigaPunti = new QHBoxLayout;
    rigaPunti->addWidget(new QLabel("Punti richiesti", gruppo));
    txtPunti_ = new QSpinBox(gruppo);
    txtPunti_->setObjectName("TxtPunti");
    txtPunti_->setRange(1, kMassimaClasse);
    rigaPunti->addWidget(txtPunti_);
    rigaPunti->addStretch(1);
    interno->addLayout(rigaPunti);

    auto* rigaIntegrale = new QHBoxLayout;
    optIntegrale_ = new QRadioButton("Sistema integrale dei numeri scelti, classe", gruppo);
    optIntegrale_->setObjectName("OptIntegrale");
    optIntegrale_->setChecked(true);
    rigaIntegrale->addWidget(optIntegrale_);
    txtClasse_ = new QSpinBox(gruppo);
    txtClasse_->setObjectName("TxtClasse");
    txtClasse_->setRange(1, kMassimaClasse);
    rigaIntegrale->addWidget(txtClasse_);
    rigaIntegrale->addStretch(1);
    interno->addLayout(rigaIntegrale);

    auto* rigaFile = new QHBoxLayout;
    optFile_ = new QRadioButton("File colonne", gruppo);
    optFile_->setObjectName("OptFile");
    rigaFile->addWidget(optFile_);
    labFile_ = CreaCampoTesto(this, "LabFile");
    rigaFile->addWidget(labFile_, 1);
    cmdFile_ = new QPushButton("...", gruppo);
    cmdFile_->setObjectName("CmdFile");
    cmdFile_->setAutoDefault(false);
    rigaFile->addWidget(cmdFile_);
    interno->addLayout(rigaFile);

    auto* rigaEsito = new QHBoxLayout;
    labBuchi_ = CreaCampoTesto(this, "LabBuchi");
    labBuchi_->setMinimumWidth(140);
    rigaEsito->addWidget(labBuchi_);
    rigaEsito->addStretch(1);
    cmdBuchi_ = new QPushButton("CERCA BUCHI", gruppo);
    cmdBuchi_->setObjectName("CmdBuchi");
    cmdBuchi_->setAutoDefault(false);
    rigaEsito->addWidget(cmdBuchi_);
    cmdVisualizza_ = new QPushButton("VISUALIZZA BUCHI", gruppo);
    cmdVisualizza_->setObjectName("CmdVisualizza");
    cmdVisualizza_->setAutoDefault(false);
    rigaEsito->addWidget(cmdVisualizza_);
    interno->addLayout(rigaEsito);
    colonna->addWidget(gruppo);
}

void F_VerificaGaranzia::CreaPulsanti(QVBoxLayout* colonna) {
    auto* riga = new QHBoxLayout;
    riga->addStretch(1);
    cmdAnnulla_ = new QPushButton("ANNULLA", this);
    cmdAnnulla_->setObjectName("CmdAnnulla");
    cmdAnnulla_->setAutoDefault(false);
    riga->addWidget(cmdAnnulla_);
    cmdChiudi_ = new QPushButton("CHIUDI", this);
    cmdChiudi_->setObjectName("CmdChiudi");
    cmdChiudi_->setAutoDefault(false);
    riga->addWidget(cmdChiudi_);
    colonna->addLayout(riga);
}

// The kept columns and the picked numbers as they are now; the draw's size
// from the game, the class from the kept columns (the control's class when
// they have none in common).
void F_VerificaGaranzia::LeggiControllo() {
    controllo_.GetColonneSviluppo(tenute_);
    if (!tenute_.empty()) tenute_.erase(tenute_.begin());  // element 0 is always empty
    std::array<int16_t, 91> scelti{};
    controllo_.GetNumeriSel(scelti);
    numeri_.clear();
    for (int i = 1; i <= controllo_.ContaNumeriSel(); ++i) numeri_.push_back(scelti[size_t(i)]);

    labColonne_->setText(TestoContatore(double(tenute_.size())));
    QStringList testi;
    for (int n : numeri_) testi << QString("%1").arg(n, 2, 10, QChar('0'));
    labNumeri_->setText(numeri_.empty() ? QString("Nessun numero scelto")
                                        : QString("%1: %2").arg(numeri_.size()).arg(testi.join(' ')));
    const int gioco = controllo_.GetIdCmbTipoGioco();
    txtEstratti_->setValue(gioco >= 0 && gioco < int(kEstrattiDelGioco.size()) ? kEstrattiDelGioco[size_t(gioco)] : 5);
    int classe = 0;
    try {
        classe = combi::ClasseColonne(tenute_);
    } catch (const combi::Errore&) {
        classe = 0;  // mixed columns: the control's class
    }
    if (classe < 1) classe = controllo_.classe();
    txtClasse_->setValue(classe);
    txtPunti_->setValue(std::min(kPuntiPredefiniti, classe));
}

void F_VerificaGaranzia::AggiornaAbilitazioni() {
    for (QWidget* w : std::initializer_list<QWidget*>{txtEstratti_, cmdTabella_, txtPunti_, optIntegrale_, optFile_,
                                                      cmdBuchi_, cmdChiudi_})
        w->setEnabled(!Occupato());
    txtClasse_->setEnabled(!Occupato() && optIntegrale_->isChecked());
    cmdFile_->setEnabled(!Occupato() && optFile_->isChecked());
    cmdVisualizza_->setEnabled(!Occupato() && !buchi_.empty());
    cmdAnnulla_->setEnabled(Occupato());
}

void F_VerificaGaranzia::Occupa(bool occupato) {
    ImpostaOccupato(occupato);
    if (occupato) {
        stop_ = false;
        panPerc_->setValue(0);
        labInfo_->clear();
    }
    AggiornaAbilitazioni();
}

bool F_VerificaGaranzia::ControllaColonne() {
    if (!tenute_.empty()) return true;
    dialoghi_.Esclamazione(kTitolo, "Nessuna colonna da verificare: sviluppare prima il sistema");
    return false;
}

bool F_VerificaGaranzia::ControllaNumeri() {
    if (!numeri_.empty()) return true;
    dialoghi_.Esclamazione(kTitolo, "Scegliere i numeri del sistema");
    return false;
}

void F_VerificaGaranzia::CalcolaTabella() {
    if (Occupato() || !ControllaColonne() || !ControllaNumeri()) return;
    const QPointer<F_VerificaGaranzia> finestra(this);
    Occupa(true);
    grdGaranzia_->setRowCount(0);
    const int estratti = txtEstratti_->value();
    EseguiProtetta(dialoghi_, "F_VerificaGaranzia.CalcolaTabella", [&] {
        OsservatoreFinestra osservatore(labInfo_, panPerc_, stop_);
        const combi::TabellaGaranzia tabella = combi::CalcolaTabellaGaranzia(tenute_, numeri_, estratti, osservatore);
        if (!finestra) return;
        grdGaranzia_->setRowCount(int(tabella.righe.size()));
        for (size_t i = 0; i < tabella.righe.size(); ++i) {
            grdGaranzia_->setItem(int(i), 0, Cella(QString::number(tabella.righe[i].indovinati)));
            grdGaranzia_->setItem(int(i), 1, Cella(QString::number(tabella.righe[i].puntiMinimi)));
        }
        const size_t attese = std::min(size_t(estratti), numeri_.size());
        labInfo_->setText(tabella.interrotto
                              ? QString("Calcolo interrotto: %1 righe su %2").arg(tabella.righe.size()).arg(attese)
                              : QString("Tabella calcolata su %1 colonne").arg(TestoContatore(double(tenute_.size()))));
        if (!tabella.interrotto) panPerc_->setValue(panPerc_->maximum());
    });
    if (!finestra) return;
    Occupa(false);
}

// The columns the holes are looked for in; throws Errore when they cannot be made or read.
std::vector<Colonna> F_VerificaGaranzia::ColonneDaCoprire() {
    if (optIntegrale_->isChecked()) return combi::ColonneIntegrali(numeri_, txtClasse_->value());
    return combi::LeggiColonneDaRidurre(labFile_->text().toStdString());
}

void F_VerificaGaranzia::CercaBuchi() {
    if (Occupato() || !ControllaColonne()) return;
    if (optIntegrale_->isChecked() && !ControllaNumeri()) return;
    if (optFile_->isChecked() && !QFileInfo::exists(labFile_->text())) {
        dialoghi_.Esclamazione(kTitolo, "Scegliere il file delle colonne da coprire");
        return;
    }
    if (optIntegrale_->isChecked() && txtClasse_->value() > int(numeri_.size())) {
        dialoghi_.Esclamazione(kTitolo, "La classe supera i numeri scelti");
        return;
    }
    const QPointer<F_VerificaGaranzia> finestra(this);
    Occupa(true);
    buchi_.clear();
    labBuchi_->clear();
    const int punti = txtPunti_->value();
    EseguiProtetta(dialoghi_, "F_VerificaGaranzia.CercaBuchi", [&] {
        const std::vector<Colonna> daCoprire = ColonneDaCoprire();
        OsservatoreFinestra osservatore(labInfo_, panPerc_, stop_);
        std::vector<Colonna> buchi = combi::CercaBuchi(tenute_, daCoprire, punti, osservatore);
        if (!finestra) return;
        buchi_ = std::move(buchi);
        labBuchi_->setText("Buchi : " + TestoContatore(double(buchi_.size())));
        const bool interrotta = stop_;
        labInfo_->setText(QString("%1: %2 colonne da coprire con %3 punti")
                              .arg(interrotta ? "Ricerca interrotta" : "Ricerca terminata",
                                   TestoContatore(double(daCoprire.size())))
                              .arg(punti));
        if (!interrotta) panPerc_->setValue(panPerc_->maximum());
    });
    if (!finestra) return;
    Occupa(false);
}

void F_VerificaGaranzia::ScegliFile() {
    if (Occupato()) return;
    QString cartella = labFile_->text().isEmpty() ? controllo_.dirSistemi() : QFileInfo(labFile_->text()).absolutePath();
    const QString file = DialogoApri(dialoghi_, cartella, "Colonne da coprire", "File colonne (*.col)|*.col", "*.col",
                                     ".col");
    if (file.isEmpty() || !QFileInfo::exists(file)) return;
    labFile_->setText(file);
}

void F_VerificaGaranzia::VisualizzaBuchi() {
    if (Occupato() || buchi_.empty()) return;
    F_VisualizzaColonne vista(buchi_, "Buchi", this);
    vista.exec();
}

void F_VerificaGaranzia::Annulla() {
    if (Occupato()) stop_ = true;
}

