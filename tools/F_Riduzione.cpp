#include "F_Riduzione.h"

#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineSeries>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

#include "ColonneInFile.h"
#include "CampoTesto.h"
#include "CombiFiltroA.h"
#include "Errore.h"
#include "Formato.h"
#include "Riduzione.h"
#include "RiduzioneOttimizzata.h"
#include "ServizioDialoghi.h"
#include "UtilitaSchermo.h"

namespace {

// Entry k ("N - k") asks for N - k shared numbers, N being the file's class.
constexpr int kVociRiduzione = 3;
constexpr int kSecondiMinimi = 1, kSecondiMassimi = 3600;
constexpr int kTaccheAsse = 5;

// What a reduction reports, on the window. Guarded pointer: the window may
// go while the control still holds the view.
class VistaRiduzione : public combi::OsservatoreOttimizzazione {
public:
    explicit VistaRiduzione(F_Riduzione* finestra) : finestra_(finestra) {}
    void Fase(const std::string& testo) override {
        if (finestra_) finestra_->MostraFase(QString::fromStdString(testo));
    }
    void Percentuale(int percento) override {
        if (finestra_) finestra_->MostraPercentuale(percento);
    }
    void MigliorTrovato(std::size_t colonne, double secondi) override {
        if (finestra_) finestra_->MostraMigliore(colonne, secondi);
    }

private:
    QPointer<F_Riduzione> finestra_;
};

// Seconds as the user reads them: one decimal under ten seconds.
QString TestoSecondi(double secondi) {
    return QString::fromStdString(secondi < 10 ? combi::FormatDecimale(secondi, 1) : combi::FormatNumero(secondi));
}

// A step between labels of 1, 2 or 5 times a power of ten, so that about
// kTaccheAsse labels cover 0..massimo.
double PassoTondo(double massimo) {
    const double grezzo = std::max(massimo, 1.0) / kTaccheAsse;
    const double potenza = std::pow(10.0, std::floor(std::log10(grezzo)));
    for (const double fattore : {1.0, 2.0, 5.0})
        if (grezzo <= fattore * potenza) return std::max(1.0, fattore * potenza);
    return std::max(1.0, 10 * potenza);
}

// The axis from `minimo` to `massimo` widened to round values, with a label
// on each, the numbers grouped as everywhere else. A category ends on its
// label, so the first one starts a step before the axis.
void ImpostaAsse(QCategoryAxis* asse, double minimo, double massimo) {
    for (const QString& etichetta : asse->categoriesLabels()) asse->remove(etichetta);
    const double passo = PassoTondo(massimo - minimo);
    minimo = std::floor(minimo / passo) * passo;
    massimo = std::max(minimo + passo, std::ceil(massimo / passo) * passo);
    asse->setStartValue(minimo - passo);
    const int tacche = int(std::llround((massimo - minimo) / passo));
    for (int i = 0; i <= tacche; ++i) asse->append(TestoContatore(minimo + i * passo), minimo + i * passo);
    asse->setRange(minimo, massimo);
}

}  // namespace

F_Riduzione::F_Riduzione(CombiFiltroA& controllo, ServizioDialoghi& dialoghi, QWidget* genitore)
    : DialogoConLavoro(genitore), controllo_(controllo), dialoghi_(dialoghi) {
    setObjectName("F_Riduzione");
    setWindowTitle("Riduzione colonne");
    CostruisciFinestra();
    for (int k = 1; k <= kVociRiduzione; ++k) cmbRiduzione_->addItem(QString("N - %1").arg(k), k);
    cmbRiduzione_->setCurrentIndex(0);
    OttimizzaCambiato();
    connect(cmbRiduzione_, &QComboBox::currentIndexChanged, this, [this] { GaranziaCambiata(); });
    connect(chkOttimizza_, &QCheckBox::toggled, this, [this] { OttimizzaCambiato(); });
    connect(txtSecondi_, &QSpinBox::valueChanged, this, [this] { GaranziaCambiata(); });
    connect(command1_, &QPushButton::clicked, this, [this] { ScegliFile(); });
    connect(xpButton1_[0], &QPushButton::clicked, this, [this] { Avvia(); });
    connect(xpButton1_[1], &QPushButton::clicked, this, [this] { ChiudiOFerma(); });
    controllo_.RegistraVistaRiduzione([finestra = QPointer<F_Riduzione>(this)]() {
        return finestra ? finestra->Osservatore() : nullptr;
    });
}

void F_Riduzione::CostruisciFinestra() {
    auto* colonna = new QVBoxLayout(this);
    auto* modulo = new QFormLayout;
    labFile_ = CreaCampoTesto(this, "labFile");
    command1_ = new QPushButton("...", this);
    command1_->setObjectName("Command1");
    command1_->setAutoDefault(false);
    auto* rigaFile = new QHBoxLayout;
    rigaFile->addWidget(labFile_, 1);
    rigaFile->addWidget(command1_);
    modulo->addRow("File colonne", rigaFile);
    labClasse_ = CreaCampoTesto(this, "LabClasse");
    modulo->addRow("Classe", labClasse_);
    labColonne_ = CreaCampoTesto(this, "LabColonne");
    modulo->addRow("Colonne", labColonne_);
    labColonneRid_ = CreaCampoTesto(this, "LabColonneRid");
    modulo->addRow("Colonne ridotte", labColonneRid_);
    labInfo_ = CreaCampoTesto(this, "LabInfo");
    labInfo_->setWordWrap(true);
    modulo->addRow("Riduzione", labInfo_);
    colonna->addLayout(modulo);

    panPerc_ = new QProgressBar(this);
    panPerc_->setObjectName("PanPerc");
    panPerc_->setRange(0, 100);
    panPerc_->setValue(0);
    colonna->addWidget(panPerc_);
    CreaOttimizzazione(colonna);

    auto* riga = new QHBoxLayout;
    cmbRiduzione_ = new QComboBox(this);
    cmbRiduzione_->setObjectName("cmbRiduzione");
    riga->addWidget(cmbRiduzione_);
    riga->addStretch(1);
    const char* testi[2] = {"RIDUCI", "CHIUDI"};
    for (int i = 0; i < 2; ++i) {
        xpButton1_[i] = new QPushButton(testi[i], this);
        xpButton1_[i]->setObjectName(QString("XPButton1_%1").arg(i));
        xpButton1_[i]->setAutoDefault(false);  // Enter never starts or closes
        riga->addWidget(xpButton1_[i]);
    }
    colonna->addLayout(riga);
    setMinimumWidth(520);
}

// "Ottimizza", the seconds it may take, and the chart of the best size found.
void F_Riduzione::CreaOttimizzazione(QVBoxLayout* colonna) {
    auto* riga = new QHBoxLayout;
    chkOttimizza_ = new QCheckBox("Ottimizza", this);
    chkOttimizza_->setObjectName("ChkOttimizza");
    chkOttimizza_->setToolTip("Cerca un insieme più piccolo con la stessa garanzia, per il tempo indicato");
    riga->addWidget(chkOttimizza_);
    riga->addSpacing(12);
    riga->addWidget(new QLabel("Tempo massimo", this));
    txtSecondi_ = new QSpinBox(this);
    txtSecondi_->setObjectName("TxtSecondi");
    txtSecondi_->setRange(kSecondiMinimi, kSecondiMassimi);
    txtSecondi_->setValue(int(combi::OpzioniOttimizzazione{}.secondi));  // the engine's default budget
    txtSecondi_->setSuffix(" s");
    riga->addWidget(txtSecondi_);
    riga->addStretch(1);
    colonna->addLayout(riga);

    auto* grafico = new QChart;
    grafico->legend()->hide();
    grafico->setMargins(QMargins(4, 4, 4, 4));
    serie_ = new QLineSeries(grafico);
    grafico->addSeries(serie_);
    auto* asseTempo = new QCategoryAxis(grafico);
    asseTempo->setTitleText("secondi");
    asseTempo->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    auto* asseColonne = new QCategoryAxis(grafico);
    asseColonne->setTitleText("colonne");
    asseColonne->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    grafico->addAxis(asseTempo, Qt::AlignBottom);
    grafico->addAxis(asseColonne, Qt::AlignLeft);
    serie_->attachAxis(asseTempo);
    serie_->attachAxis(asseColonne);
    grafico_ = new QChartView(grafico, this);
    grafico_->setObjectName("GraficoMigliori");
    grafico_->setRenderHint(QPainter::Antialiasing);
    grafico_->setMinimumHeight(170);
    colonna->addWidget(grafico_);
    AzzeraGrafico();
}

std::unique_ptr<combi::OsservatoreOttimizzazione> F_Riduzione::Osservatore() {
    return std::make_unique<VistaRiduzione>(this);
}

QPushButton* F_Riduzione::XPButton1(int indice) const {
    return indice >= 0 && indice < 2 ? xpButton1_[indice] : nullptr;
}

void F_Riduzione::GaranziaCambiata() {
    labColonneRid_->clear();
    xpButton1_[0]->setEnabled(!Occupato());
}

void F_Riduzione::OttimizzaCambiato() {
    txtSecondi_->setEnabled(chkOttimizza_->isChecked() && !Occupato());
    grafico_->setVisible(chkOttimizza_->isChecked());
    GaranziaCambiata();
}

void F_Riduzione::ScegliFile() {
    if (controllo_.InSviluppo()) return;  // a file dialog would hold the development
    QString cartella = controllo_.dirSistemi();
    const QString file = DialogoApri(dialoghi_, cartella, "Apri file", "File colonne (*.col)|*.col", "*.col", ".col");
    if (file.isEmpty() || !QFileInfo::exists(file)) return;
    const std::optional<double> quante = GetNumeroColonneInFile(file, dialoghi_);
    if (!quante) {
        labColonne_->clear();
        return;
    }
    if (!LeggiClasse(file)) return;
    labFile_->setText(file);
    labColonne_->setText(std::floor(*quante) == *quante ? TestoContatore(*quante) : QString::number(*quante, 'g', 15));
    labClasse_->setText(classe_ > 0 ? QString::number(classe_) : QString());
    labColonneRid_->clear();
    labInfo_->clear();
    panPerc_->setValue(0);
    AbilitaVoci();
}

// The class of the file's columns, or a box saying why they cannot be
// reduced (and the previous file stays chosen).
bool F_Riduzione::LeggiClasse(const QString& file) {
    try {
        classe_ = combi::ClasseColonne(combi::LeggiColonneDaRidurre(file.toStdString()));
        return true;
    } catch (const combi::Errore& e) {
        QString motivo = QString::fromStdString(e.descrizione());
        if (!motivo.isEmpty()) motivo[0] = motivo[0].toLower();
        dialoghi_.Esclamazione("Riduzione colonne",
                               QString("Le colonne di questo file non si possono ridurre: %1.\n"
                                       "Si riducono file con colonne tutte della stessa classe, da %2 a %3.")
                                   .arg(motivo)
                                   .arg(combi::kMinimaClasseRiduzione)
                                   .arg(combi::kMassimaClasseRiduzione));
        return false;
    }
}

// Entries asking for fewer than one shared number are off: a class-3 file
// offers "N - 1" and "N - 2" only.
void F_Riduzione::AbilitaVoci() {
    auto* modello = qobject_cast<QStandardItemModel*>(cmbRiduzione_->model());
    int primaValida = -1;
    for (int i = 0; i < cmbRiduzione_->count(); ++i) {
        const bool valida = classe_ == 0 || classe_ - cmbRiduzione_->itemData(i).toInt() >= 1;
        if (modello) modello->item(i)->setEnabled(valida);
        if (valida && primaValida < 0) primaValida = i;
    }
    const int corrente = cmbRiduzione_->currentIndex();
    if (classe_ > 0 && classe_ - cmbRiduzione_->itemData(corrente).toInt() < 1) cmbRiduzione_->setCurrentIndex(primaValida);
}

void F_Riduzione::AbilitaScelte(bool abilita) {
    cmbRiduzione_->setEnabled(abilita);
    command1_->setEnabled(abilita);
    chkOttimizza_->setEnabled(abilita);
    txtSecondi_->setEnabled(abilita && chkOttimizza_->isChecked());
}

void F_Riduzione::Avvia() {
    // While the control develops it refuses the reduction: the window stays
    // as it was, old count included.
    if (Occupato() || controllo_.InSviluppo()) return;
    const int classe = classe_ > 0 ? classe_ : combi::kNumeriRiduzione;
    const int puntiRichiesti = classe - cmbRiduzione_->currentData().toInt();
    if (puntiRichiesti < 1) return;  // an entry the class does not offer
    xpButton1_[0]->setEnabled(false);
    AbilitaScelte(false);
    QCoreApplication::processEvents();
    chiusuraRichiesta_ = false;
    ImpostaOccupato(true);
    labColonneRid_->clear();
    labInfo_->clear();
    panPerc_->setValue(0);
    AzzeraGrafico();
    const bool ottimizza = chkOttimizza_->isChecked();
    const QPointer<F_Riduzione> finestra(this);
    QElapsedTimer durata;
    durata.start();
    if (ottimizza) {
        secondiMassimi_ = txtSecondi_->value();
        combi::OpzioniOttimizzazione opzioni;
        opzioni.secondi = secondiMassimi_;
        controllo_.RiduciColonneOttimizzate(labFile_->text(), puntiRichiesti, opzioni);
    } else {
        controllo_.RiduciColonne(labFile_->text(), puntiRichiesti);
    }
    if (!finestra) return;  // the host dropped the window during the run
    // The best size held until the end of the run.
    if (ottimizza && serie_->count() > 0) {
        const double fine = durata.elapsed() / 1000.0;
        serie_->append(fine, serie_->points().last().y());
        ImpostaAsse(static_cast<QCategoryAxis*>(grafico_->chart()->axes(Qt::Horizontal).first()), 0,
                    std::max(fine, secondiMassimi_));
    }
    labColonneRid_->setText(TestoContatore(controllo_.QuantitaColonne()));
    MostraEsito(ottimizza);
    ImpostaOccupato(false);
    // The start button stays off until the guarantee changes, so that a
    // second click does not run the finished reduction again.
    AbilitaScelte(true);
    if (chiusuraRichiesta_) reject();
}

// How many columns went in and how many were kept, and the bar at its end.
void F_Riduzione::MostraEsito(bool ottimizzata) {
    const CombiFiltroA::EsitoRiduzione& esito = controllo_.UltimaRiduzione();
    if (!esito.eseguita) return;
    const QString cosa = ottimizzata ? "Ottimizzazione" : "Riduzione";
    labInfo_->setText(QString("%1 %2: %3 colonne in ingresso, %4 tenute")
                          .arg(cosa, esito.interrotta ? "interrotta" : "terminata",
                               TestoContatore(double(esito.ingresso)), TestoContatore(double(esito.tenute))));
    panPerc_->setValue(panPerc_->maximum());
}

// During the search the bar tells the time spent out of the seconds given.
void F_Riduzione::MostraFase(const QString& testo) { labInfo_->setText(testo); }

void F_Riduzione::MostraPercentuale(int percento) { panPerc_->setValue(percento); }

// "Migliore finora: 12 colonne dopo 3 s", and one more step on the chart.
void F_Riduzione::MostraMigliore(std::size_t colonne, double secondi) {
    labInfo_->setText(QString("Migliore finora: %1 colonne dopo %2 s")
                          .arg(TestoContatore(double(colonne)), TestoSecondi(secondi)));
    const QList<QPointF> punti = serie_->points();
    if (!punti.isEmpty()) serie_->append(secondi, punti.last().y());  // the size held until now
    serie_->append(secondi, double(colonne));
    double massimo = 0, minimo = double(colonne);
    for (const QPointF& p : serie_->points()) massimo = std::max(massimo, p.y()), minimo = std::min(minimo, p.y());
    ImpostaAsse(static_cast<QCategoryAxis*>(grafico_->chart()->axes(Qt::Vertical).first()), minimo, massimo);
    ImpostaAsse(static_cast<QCategoryAxis*>(grafico_->chart()->axes(Qt::Horizontal).first()), 0,
                std::max({secondi, secondiMassimi_, 1.0}));
}

void F_Riduzione::AzzeraGrafico() {
    serie_->clear();
    ImpostaAsse(static_cast<QCategoryAxis*>(grafico_->chart()->axes(Qt::Vertical).first()), 0, 10);
    ImpostaAsse(static_cast<QCategoryAxis*>(grafico_->chart()->axes(Qt::Horizontal).first()), 0,
                txtSecondi_->value());
}

void F_Riduzione::ChiudiOFerma() {
    if (!Occupato()) {
        reject();
        return;
    }
    if (dialoghi_.Domanda(QString(), "Interrompere il processo di riduzione ? ")) {
        controllo_.StopRiduciColonne();
        // A stopped search keeps its best set: the window stays to show it.
        chiusuraRichiesta_ = !chkOttimizza_->isChecked();
    }
}

