// The layout of "Verifica su archivio": the choices on top, the result pages
// in the middle, progress and buttons at the bottom.

#include <QChartView>
#include <QComboBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ClsOrdinaLv.h"
#include "F_VerificaArchivio.h"

namespace {

QTreeWidget* CreaListaAdattata(QWidget* padre, const char* nome, const QStringList& intestazioni) {
    QTreeWidget* lista = CreaLista(padre, nome, intestazioni);
    lista->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return lista;
}

QDateEdit* CreaData(QWidget* padre, const char* nome) {
    auto* data = new QDateEdit(padre);
    data->setObjectName(nome);
    data->setDisplayFormat("dd/MM/yyyy");
    data->setCalendarPopup(true);
    data->setDateRange(QDate(1, 1, 1), QDate(9999, 12, 31));
    return data;
}


}  // namespace

void F_VerificaArchivio::CostruisciFinestra() {
    auto* colonna = new QVBoxLayout(this);
    CreaScelte(colonna);
    CreaPagine(colonna);
    CreaPulsanti(colonna);
    resize(760, 560);
}

void F_VerificaArchivio::CreaScelte(QVBoxLayout* colonna) {
    auto* modulo = new QFormLayout;
    labArchivio_ = new QLabel(this);
    labArchivio_->setObjectName("LabArchivio");
    labArchivio_->setFrameShape(QFrame::StyledPanel);
    labArchivio_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    cmdArchivio_ = new QPushButton("...", this);
    cmdArchivio_->setObjectName("CmdArchivio");
    cmdArchivio_->setAutoDefault(false);
    auto* rigaArchivio = new QHBoxLayout;
    rigaArchivio->addWidget(labArchivio_, 1);
    rigaArchivio->addWidget(cmdArchivio_);
    modulo->addRow("Archivio estrazioni", rigaArchivio);

    cmbGioco_ = new QComboBox(this);
    cmbGioco_->setObjectName("CmbGioco");
    for (const char* gioco : combi::kNomiGiochi) cmbGioco_->addItem(gioco);
    cmbRuota_ = new QComboBox(this);
    cmbRuota_->setObjectName("CmbRuota");
    cmbRuota_->addItem("Tutte");
    for (int r = 0; r < combi::kRuoteLotto; ++r) cmbRuota_->addItem(combi::kNomiRuote[r]);
    cmbPuntiMin_ = new QComboBox(this);
    cmbPuntiMin_->setObjectName("CmbPuntiMin");
    for (int p = 1; p <= 10; ++p) cmbPuntiMin_->addItem(QString::number(p));
    auto* rigaGioco = new QHBoxLayout;
    rigaGioco->addWidget(cmbGioco_);
    rigaGioco->addWidget(new QLabel("Ruota", this));
    rigaGioco->addWidget(cmbRuota_);
    rigaGioco->addWidget(new QLabel("Punti minimi", this));
    rigaGioco->addWidget(cmbPuntiMin_);
    rigaGioco->addStretch(1);
    modulo->addRow("Gioco", rigaGioco);

    txtDal_ = CreaData(this, "TxtDal");
    txtAl_ = CreaData(this, "TxtAl");
    txtPosta_ = new QDoubleSpinBox(this);
    txtPosta_->setObjectName("TxtPosta");
    txtPosta_->setRange(0, 1e6);
    txtPosta_->setDecimals(2);
    txtPosta_->setSuffix(" €");
    auto* rigaDate = new QHBoxLayout;
    rigaDate->addWidget(txtDal_);
    rigaDate->addWidget(new QLabel("al", this));
    rigaDate->addWidget(txtAl_);
    rigaDate->addWidget(new QLabel("Posta per colonna", this));
    rigaDate->addWidget(txtPosta_);
    rigaDate->addStretch(1);
    modulo->addRow("Dal", rigaDate);
    colonna->addLayout(modulo);
}

void F_VerificaArchivio::CreaPagine(QVBoxLayout* colonna) {
    tabRisultati_ = new QTabWidget(this);
    tabRisultati_->setObjectName("TabRisultati");
    lvRiepilogo_ = CreaListaAdattata(tabRisultati_, "LvRiepilogo", {"Vincita", "Colonne"});
    lvEstrazioni_ = CreaListaAdattata(tabRisultati_, "LvEstrazioni", {"Data", "Ruota", "Numeri", "Punti", "Colonne", "Vincita"});
    lvEstrazioni_->header()->setSectionsClickable(true);
    ImpostaFrecceIntestazioni(*lvEstrazioni_);
    grafico_ = new QChartView(tabRisultati_);
    grafico_->setObjectName("Grafico");
    grafico_->setRenderHint(QPainter::Antialiasing);

    auto* denaro = new QWidget(tabRisultati_);
    auto* rigaDenaro = new QHBoxLayout(denaro);
    grdPremi_ = new QTableWidget(0, 2, denaro);
    grdPremi_->setObjectName("GrdPremi");
    grdPremi_->setHorizontalHeaderLabels({"Punti", "Premio per colonna (posta 1 €)"});
    grdPremi_->verticalHeader()->hide();
    grdPremi_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    lvBilancio_ = CreaListaAdattata(denaro, "LvBilancio", {"Anno", "Giocato", "Vinto", "Saldo"});
    rigaDenaro->addWidget(grdPremi_);
    rigaDenaro->addWidget(lvBilancio_, 1);

    tabRisultati_->addTab(lvRiepilogo_, "Riepilogo");
    tabRisultati_->addTab(lvEstrazioni_, "Estrazioni");
    tabRisultati_->addTab(grafico_, "Grafico");
    tabRisultati_->addTab(denaro, "Premi e bilancio");
    colonna->addWidget(tabRisultati_, 1);
}

void F_VerificaArchivio::CreaPulsanti(QVBoxLayout* colonna) {
    labInfo_ = new QLabel(this);
    labInfo_->setObjectName("LabInfo");
    colonna->addWidget(labInfo_);
    panPerc_ = new QProgressBar(this);
    panPerc_->setObjectName("PanPerc");
    panPerc_->setRange(0, 100);
    panPerc_->setValue(0);
    auto* riga = new QHBoxLayout;
    riga->addWidget(panPerc_, 1);
    const char* testi[2] = {"VERIFICA", "CHIUDI"};
    for (int i = 0; i < 2; ++i) {
        pulsanti_[i] = new QPushButton(testi[i], this);
        pulsanti_[i]->setObjectName(QString("XPButton1_%1").arg(i));
        pulsanti_[i]->setAutoDefault(false);  // Enter never starts or closes
        riga->addWidget(pulsanti_[i]);
    }
    colonna->addLayout(riga);
}
