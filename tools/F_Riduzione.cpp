#include "F_Riduzione.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "ColonneInFile.h"
#include "CombiFiltroA.h"
#include "Riduzione.h"
#include "ServizioDialoghi.h"
#include "UtilitaSchermo.h"

namespace {

// Entry k ("6 - k") asks for kNumeriRiduzione - k shared numbers: 5, 4, 3.
constexpr int kVociRiduzione = 3;

// Phases and percentage of one reduction on the window's labels. Guarded
// pointers: the window may go while the control still holds the view.
class VistaRiduzione : public combi::OsservatoreRiduzione {
public:
    VistaRiduzione(QLabel* info, QProgressBar* percentuale) : info_(info), percentuale_(percentuale) {}
    void Fase(const std::string& testo) override {
        if (info_) info_->setText(QString::fromStdString(testo));
    }
    void Percentuale(int percento) override {
        if (percentuale_) percentuale_->setValue(percento);
    }

private:
    QPointer<QLabel> info_;
    QPointer<QProgressBar> percentuale_;
};

}  // namespace

F_Riduzione::F_Riduzione(CombiFiltroA& controllo, ServizioDialoghi& dialoghi, QWidget* genitore)
    : QDialog(genitore), controllo_(controllo), dialoghi_(dialoghi) {
    setObjectName("F_Riduzione");
    setWindowTitle("Riduzione colonne");
    CostruisciFinestra();
    for (int k = 1; k <= kVociRiduzione; ++k)
        cmbRiduzione_->addItem(QString("%1 - %2").arg(combi::kNumeriRiduzione).arg(k), k);
    cmbRiduzione_->setCurrentIndex(0);
    connect(cmbRiduzione_, &QComboBox::currentIndexChanged, this, [this] { GaranziaCambiata(); });
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
    labFile_ = CreaEtichetta("labFile");
    command1_ = new QPushButton("...", this);
    command1_->setObjectName("Command1");
    command1_->setAutoDefault(false);
    auto* rigaFile = new QHBoxLayout;
    rigaFile->addWidget(labFile_, 1);
    rigaFile->addWidget(command1_);
    modulo->addRow("File colonne", rigaFile);
    labColonne_ = CreaEtichetta("LabColonne");
    modulo->addRow("Colonne", labColonne_);
    labColonneRid_ = CreaEtichetta("LabColonneRid");
    modulo->addRow("Colonne ridotte", labColonneRid_);
    labInfo_ = CreaEtichetta("LabInfo");
    modulo->addRow("Riduzione", labInfo_);
    colonna->addLayout(modulo);

    panPerc_ = new QProgressBar(this);
    panPerc_->setObjectName("PanPerc");
    panPerc_->setRange(0, 100);
    panPerc_->setValue(0);
    colonna->addWidget(panPerc_);

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
    setMinimumWidth(460);
}

QLabel* F_Riduzione::CreaEtichetta(const char* nome) {
    auto* etichetta = new QLabel(this);
    etichetta->setObjectName(nome);
    etichetta->setFrameShape(QFrame::StyledPanel);
    etichetta->setMinimumHeight(etichetta->fontMetrics().height() + 6);
    etichetta->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return etichetta;
}

std::unique_ptr<combi::OsservatoreRiduzione> F_Riduzione::Osservatore() {
    return std::make_unique<VistaRiduzione>(labInfo_, panPerc_);
}

QPushButton* F_Riduzione::XPButton1(int indice) const {
    return indice >= 0 && indice < 2 ? xpButton1_[indice] : nullptr;
}

void F_Riduzione::GaranziaCambiata() {
    labColonneRid_->clear();
    xpButton1_[0]->setEnabled(true);
}

void F_Riduzione::ScegliFile() {
    if (controllo_.InSviluppo()) return;  // a file dialog would hold the development
    QString cartella = CartellaProgramma();
    const QString file = DialogoApri(dialoghi_, cartella, "Apri file", "File colonne (*.col)|*.col", "*.col", ".col");
    if (file.isEmpty() || !QFileInfo::exists(file)) return;
    labFile_->setText(file);
    const std::optional<double> quante = GetNumeroColonneInFile(file, dialoghi_);
    labColonne_->setText(quante ? QString::number(*quante, 'g', 15) : QString());
}

void F_Riduzione::AbilitaScelte(bool abilita) {
    cmbRiduzione_->setEnabled(abilita);
    command1_->setEnabled(abilita);
}

void F_Riduzione::Avvia() {
    // While the control develops it refuses the reduction: the window stays
    // as it was, old count included.
    if (occupato_ || controllo_.InSviluppo()) return;
    xpButton1_[0]->setEnabled(false);
    AbilitaScelte(false);
    QCoreApplication::processEvents();
    chiusuraRichiesta_ = false;
    occupato_ = true;
    labColonneRid_->clear();
    const int puntiRichiesti = combi::kNumeriRiduzione - cmbRiduzione_->currentData().toInt();
    const QPointer<F_Riduzione> finestra(this);
    controllo_.RiduciColonne(labFile_->text(), puntiRichiesti);
    if (!finestra) return;  // the host dropped the window during the run
    labColonneRid_->setText(QString::number(controllo_.QuantitaColonne()));
    occupato_ = false;
    // The start button stays off until the guarantee changes, so that a
    // second click does not run the finished reduction again.
    AbilitaScelte(true);
    if (chiusuraRichiesta_) reject();
}

void F_Riduzione::ChiudiOFerma() {
    if (!occupato_) {
        reject();
        return;
    }
    if (dialoghi_.Domanda(QString(), "Interrompere il processo di riduzione ? ")) {
        controllo_.StopRiduciColonne();
        chiusuraRichiesta_ = true;
    }
}

void F_Riduzione::reject() {
    if (!occupato_) QDialog::reject();
}

void F_Riduzione::closeEvent(QCloseEvent* evento) {
    if (occupato_) {
        evento->ignore();
        return;
    }
    QDialog::closeEvent(evento);
}
