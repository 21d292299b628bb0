#include "F_Statistica.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>

#include "ConteggioAnteprima.h"
#include "Errore.h"
#include "Formato.h"
#include "GraficoBarre.h"
#include "SegnalazioneErrori.h"
#include "ServizioDialoghi.h"

namespace {

QString Numero(double valore) { return QString::fromStdString(combi::FormatNumero(valore)); }

QString Quota(uint64_t parte, uint64_t totale) {
    return QString::fromStdString(combi::FormatDecimale(totale == 0 ? 0.0 : 100.0 * double(parte) / double(totale), 2));
}

QTableWidgetItem* Cella(const QString& testo) {
    auto* cella = new QTableWidgetItem(testo);
    cella->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return cella;
}

}  // namespace

QString NomeGioco(int codiceGioco) {
    static const char* giochi[] = {"Lotto", "10ELotto", "10ELotto5M", "SuperEnalotto"};
    return codiceGioco >= 1 && codiceGioco <= 4 ? giochi[codiceGioco - 1] : QString();
}

QString NomeMisura(const combi::Condizione& c) {
    const bool diretta = c.Parametro == 1;
    switch (c.Tipo) {
    case combi::kPuntiColonna: return "Punti su colonna";
    case combi::kPariDispari: return c.Numeri[2] != 0 ? "Numeri pari" : "Numeri dispari";
    case combi::kPeso: return "Peso";
    case combi::kResto: return QString("Resto a %1").arg(c.Parametro);
    case combi::kAmpiezza: return "Ampiezza";
    case combi::kVortice: return diretta ? "Vortice diretto" : "Vortice inverso";
    case combi::kSimmetrie: return diretta ? "Simmetrie dirette" : "Simmetrie inverse";
    case combi::kConsecutivi: return "Consecutivi";
    case combi::kInterruzioni: return "Interruzioni";
    case combi::kBaricentro: return "Baricentro";
    case combi::kDistanzaMinima: return "Distanza minima";
    case combi::kDistanzaMassima: return "Distanza massima";
    case combi::kPosizioni: return QString("Numero in posizione %1").arg(c.Parametro);
    case combi::kPonte: return "Ponte";
    case combi::kSequenze: return "Sequenze";
    case combi::kParalleli: return diretta ? "Paralleli diretti" : "Paralleli inversi";
    default: return QString::fromStdString(combi::NomeTipoCondizione(c.Tipo));
    }
}

F_Statistica::F_Statistica(QWidget* genitore) : QDialog(genitore) {
    setObjectName("F_Statistica");
    setWindowTitle("Statistica");
    CostruisciFinestra();
    resize(900, 520);
}

F_Statistica::~F_Statistica() = default;

void F_Statistica::CostruisciFinestra() {
    auto* colonna = new QVBoxLayout(this);
    labIntestazione_ = new QLabel(this);
    labIntestazione_->setObjectName("LabIntestazione");
    QFont grassetto = labIntestazione_->font();
    grassetto.setBold(true);
    grassetto.setPointSizeF(grassetto.pointSizeF() * 1.2);
    labIntestazione_->setFont(grassetto);
    labAvanzamento_ = new QLabel(this);
    labAvanzamento_->setObjectName("LabAvanzamento");
    colonna->addWidget(labIntestazione_);
    colonna->addWidget(labAvanzamento_);

    auto* rigaAvanzamento = new QHBoxLayout;
    barra_ = new QProgressBar(this);
    barra_->setObjectName("BarraAvanzamento");
    annulla_ = new QPushButton("Annulla", this);
    annulla_->setObjectName("Annulla");
    annulla_->setAutoDefault(false);
    connect(annulla_, &QPushButton::clicked, this, &F_Statistica::Annulla);
    rigaAvanzamento->addWidget(barra_, 1);
    rigaAvanzamento->addWidget(annulla_);
    colonna->addLayout(rigaAvanzamento);

    auto* divisore = new QSplitter(this);
    tabella_ = new QTableWidget(0, 3, divisore);
    tabella_->setObjectName("TabDistribuzione");
    tabella_->setHorizontalHeaderLabels({"Valore", "Colonne", "%"});
    tabella_->verticalHeader()->hide();
    tabella_->verticalHeader()->setDefaultSectionSize(tabella_->fontMetrics().height() + 6);
    tabella_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    tabella_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabella_->setMinimumWidth(260);
    grafico_ = new GraficoBarre(divisore);
    divisore->addWidget(tabella_);
    divisore->addWidget(grafico_);
    divisore->setStretchFactor(1, 1);
    colonna->addWidget(divisore, 1);

    labValore_ = new QLabel("Passare il mouse su una barra per leggerne il valore.", this);
    labValore_->setObjectName("LabValore");
    connect(grafico_, &GraficoBarre::ValoreIndicato, this, [this](const QString& testo) {
        if (!testo.isEmpty()) labValore_->setText(testo);
    });
    colonna->addWidget(labValore_);

    auto* rigaFondo = new QHBoxLayout;
    labAccettate_ = new QLabel(this);
    labAccettate_->setObjectName("LabAccettate");
    rigaFondo->addWidget(labAccettate_, 1);
    auto* chiudi = new QPushButton("CHIUDI", this);
    chiudi->setObjectName("XPButton1_1");
    chiudi->setAutoDefault(false);
    connect(chiudi, &QPushButton::clicked, this, &QDialog::close);
    rigaFondo->addWidget(chiudi);
    colonna->addLayout(rigaFondo);
}

bool F_Statistica::Avvia(const VoceCatalogo& voce, const ContestoEditore& contesto,
                         const combi::Condizione& condizione) {
    try {
        combi::ControllaNumeriDistribuzione(contesto.numeriSelezionati, contesto.classe);
    } catch (const combi::Errore& errore) {
        // Too few picked numbers is missing input, not a fault.
        if (contesto.dialoghi != nullptr)
            contesto.dialoghi->Esclamazione(QString(), QString::fromStdString(errore.descrizione()));
        return false;
    }
    condizione_ = condizione;
    misura_ = NomeMisura(condizione);
    totale_ = 0;
    codiceStatistica_ = voce.codiceStatistica;
    codiceGioco_ = contesto.idTipoGioco + 1;
    labIntestazione_->setText(QString("Distribuzione di %1 \u2013 %2, classe %3")
                                  .arg(misura_, NomeGioco(codiceGioco_))
                                  .arg(contesto.classe));
    labAvanzamento_->setText(QString("Conteggio delle colonne integrali di %1 numeri\u2026")
                                 .arg(contesto.numeriSelezionati.size()));
    barra_->setRange(0, int(contesto.numeriSelezionati.size()));
    barra_->setValue(0);
    conteggio_ = new ConteggioAnteprima(condizione, contesto.numeriSelezionati, contesto.classe, this);
    connect(conteggio_, &ConteggioAnteprima::Avanzamento, this, &F_Statistica::Avanzamento);
    connect(conteggio_, &ConteggioAnteprima::Finito, this, &F_Statistica::Mostra);
    connect(conteggio_, &ConteggioAnteprima::Annullato, this, [this] {
        Fine("Conteggio annullato.");
        emit Annullata();
    });
    connect(conteggio_, &ConteggioAnteprima::Fallito, this,
            [this](const QString& descrizione) { Fine("Conteggio non riuscito: " + descrizione); });
    conteggio_->Avvia();
    return true;
}

bool F_Statistica::Finita() const {
    return conteggio_ != nullptr && conteggio_->stato() == ConteggioAnteprima::Stato::Finito;
}

void F_Statistica::Annulla() {
    if (conteggio_ != nullptr) conteggio_->Annulla();
}

void F_Statistica::Avanzamento(int fatti, int totale) {
    barra_->setMaximum(totale);
    barra_->setValue(fatti);
}

void F_Statistica::Fine(const QString& testo) {
    labAvanzamento_->setText(testo);
    barra_->hide();
    annulla_->hide();
}

void F_Statistica::Mostra() {
    distribuzione_ = conteggio_->Risultato();
    totale_ = 0;
    for (const auto& [valore, quante] : distribuzione_) totale_ += quante;
    Fine(QString("Colonne integrali: %1, in %2 valori di %3.")
             .arg(Numero(double(totale_)), Numero(double(distribuzione_.size())), misura_));
    MostraTabella();
    grafico_->ImpostaDati(distribuzione_, misura_,
                          [this](int32_t valore) { return combi::ValoreAccettato(condizione_, valore); });
    MostraAccettate();
    emit Completata();
}

void F_Statistica::MostraTabella() {
    tabella_->setRowCount(int(distribuzione_.size()));
    int riga = 0;
    for (const auto& [valore, quante] : distribuzione_) {
        tabella_->setItem(riga, 0, Cella(QString::number(valore)));  // as the editor's boxes take it
        tabella_->setItem(riga, 1, Cella(Numero(double(quante))));
        tabella_->setItem(riga, 2, Cella(Quota(quante, totale_)));
        if (combi::ValoreAccettato(condizione_, valore))
            for (int c = 0; c < 3; ++c) tabella_->item(riga, c)->setBackground(QColor(200, 230, 201));
        ++riga;
    }
}

// What the condition as edited would keep of the system, before the other
// conditions and the recovery panels have their say.
void F_Statistica::MostraAccettate() {
    const uint64_t accettate = combi::ColonneAccettate(distribuzione_, condizione_);
    labAccettate_->setText(accettate == 0
                               ? QString("Nessuna colonna ha un valore accettato dalla condizione.")
                               : QString("Valori accettati (in verde): %1 colonne, %2 % delle integrali.")
                                     .arg(Numero(double(accettate)), Quota(accettate, totale_)));
}
