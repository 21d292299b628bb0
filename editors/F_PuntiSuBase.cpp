#include "F_PuntiSuBase.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

#include "DecodificaCondizioni.h"
#include "Errore.h"
#include "F_Statistica.h"
#include "GrigliaCondizioni.h"
#include "ParametriInserimento.h"
#include "PulsantiXP.h"
#include "ServizioDialoghi.h"
#include "Testo.h"
#include "UtilitaSchermo.h"
#include "Formato.h"

namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }

}  // namespace

F_PuntiSuBase::F_PuntiSuBase(const VoceCatalogo& voce, const ContestoEditore& contesto,
                             QWidget* genitore)
    : QDialog(genitore), voce_(voce), contesto_(contesto) {
    setObjectName(voce.nomeDialogo);
    setWindowTitle(voce.titolo);
    auto* colonna = new QVBoxLayout(this);
    zonaPropria_ = new QVBoxLayout;
    colonna->addLayout(zonaPropria_);
    if (voce.varianti[0] != nullptr) {
        combo1_ = new QComboBox(this);
        combo1_->setObjectName("Combo1");
        for (const char* variante : voce.varianti) {
            if (variante != nullptr) combo1_->addItem(variante);
        }
        zonaPropria_->addWidget(combo1_);
    }

    auto* framePunti = new QGroupBox(voce.didascaliaPunti, this);
    framePunti->setObjectName("Frame1_0");
    zonaPunti_ = new QVBoxLayout(framePunti);
    colonna->addWidget(framePunti);

    auto* frameRecupero = new QGroupBox("Recupero", this);
    frameRecupero->setObjectName("Frame1_1");
    zonaRecupero_ = new QVBoxLayout(frameRecupero);
    auto* rigaQuadro = new QHBoxLayout;
    auto* label1 = new QLabel(voce.didascaliaQuadro, frameRecupero);
    label1->setObjectName("Label1");
    cmbRecupero_ = new QComboBox(frameRecupero);
    cmbRecupero_->setObjectName("CmbRecupero");
    rigaQuadro->addWidget(label1);
    rigaQuadro->addWidget(cmbRecupero_);
    rigaQuadro->addStretch();
    zonaRecupero_->addLayout(rigaQuadro);
    colonna->addWidget(frameRecupero);

    labNota_ = new QLabel(this);
    labNota_->setObjectName("LabNota");
    labNota_->setWordWrap(true);
    labNota_->setStyleSheet("color: #a00000;");
    labNota_->hide();
    colonna->addWidget(labNota_);

    auto* pulsanti = new QHBoxLayout;
    const auto creati = CreaPulsantiXP(this, pulsanti, {"CONFERMA", "CHIUDI", "STATISTICA"});
    std::copy(creati.begin(), creati.end(), pulsanti_);
    colonna->addLayout(pulsanti);
    connect(pulsanti_[0], &QPushButton::clicked, this, &F_PuntiSuBase::Conferma);
    connect(pulsanti_[1], &QPushButton::clicked, this, [this] {
        tag_.clear();
        reject();
    });
    connect(pulsanti_[2], &QPushButton::clicked, this, &F_PuntiSuBase::Statistica);
    connect(cmbRecupero_, &QComboBox::currentIndexChanged, this, [this] { AbilitaChkRecupero(); });
}

void F_PuntiSuBase::Prepara() {
    CaricaValori();
    CaricaCampiPropri();
    LoadComboquadroRec();
    if (combo1_ != nullptr) combo1_->setCurrentIndex(0);
}

void F_PuntiSuBase::LoadComboquadroRec() {
    cmbRecupero_->clear();
    cmbRecupero_->addItem(" ");
    for (int p = 1; p <= combi::kNumeroQuadri; ++p) cmbRecupero_->addItem(QString::number(p));
    cmbRecupero_->setCurrentIndex(0);
    AbilitaChkRecupero();  // also when the index was already 0
}

bool F_PuntiSuBase::PannelloScelto() const { return !cmbRecupero_->currentText().trimmed().isEmpty(); }

QPushButton* F_PuntiSuBase::Pulsante(int indice) const {
    return indice >= 0 && indice < 3 ? pulsanti_[indice] : nullptr;
}

void F_PuntiSuBase::SelezionaQuadro(const std::string& testo) {
    // A system file stores "no panel" as an empty text, which as a prefix
    // would pick panel 1: it means the blank item.
    const std::string quadro = combi::Trim(testo).empty() ? " " : testo;
    SelezionaVoceCombo(Q(quadro), cmbRecupero_);
    AbilitaChkRecupero();
}

void F_PuntiSuBase::SegnalaValoriIgnorati(const QString& elenco) {
    labNota_->setVisible(!elenco.isEmpty());
    labNota_->setText(elenco.isEmpty() ? QString()
                                       : "Valori memorizzati non più disponibili, ignorati: " + elenco);
}

QString F_PuntiSuBase::TestoParametri() const {
    if (voce_.parolaChiave != nullptr) return Q(combi::TestoVerticale(voce_.parolaChiave, 1));
    if (combo1_ != nullptr) return voce_.prefissoParametri + combo1_->currentText();
    return {};
}

void F_PuntiSuBase::LeggiParametri(const std::string& testo) {
    if (combo1_ == nullptr) return;
    // "Resto a : 3": the divisor is what follows the colon.
    std::string variante = testo;
    if (*voce_.prefissoParametri != '\0') {
        const auto duepunti = testo.find(':');
        variante = combi::Trim(duepunti == std::string::npos ? "" : testo.substr(duepunti + 1));
    }
    SelezionaVoceCombo(Q(variante), combo1_);
}

std::string F_PuntiSuBase::RiempiParametri(const std::string& campo) {
    if (combo1_ == nullptr) return campo;
    auto [variante, valori] = editori::DividiIntestazione(campo);
    if (variante.empty() || !SelezionaVoceCombo(Q(variante), combo1_)) {
        editori::ErroreTestoNonValido("variante \"" + variante + "\" sconosciuta");
    }
    return valori;
}

void F_PuntiSuBase::LeggiPunti(const GrigliaCondizioni& griglia) {
    const int c = griglia.ColonnaCorrente();
    combi::TestiCondizione testi;
    for (int r = combi::kRigaCondizione; r < combi::kRigheGriglia; ++r) {
        testi[r] = griglia.Testo(r, c).toStdString();
    }
    LeggiPunti(testi);
}

void F_PuntiSuBase::LeggiPunti(const combi::TestiCondizione& testi) {
    LeggiParametri(testi[combi::kRigaParametri]);
    LeggiValori(testi[combi::kRigaPunti], testi[combi::kRigaRecupero], testi[combi::kRigaQuadroRec]);
}

void F_PuntiSuBase::RiempiDaParametri(const QString& testo) {
    if (testo.isEmpty()) return;
    const auto campi = editori::DividiCampi(testo.toStdString());
    RiempiAccettati(RiempiParametri(campi.accettati));
    if (!campi.recupero.empty()) {
        RiempiRecupero(campi.recupero);
        cmbRecupero_->setCurrentIndex(1);
        AbilitaChkRecupero();
    }
    tag_ = "ttt";  // only a complete fill counts as confirmed
}

void F_PuntiSuBase::Mostra() {
    tag_.clear();
    exec();
}

TestiEditore F_PuntiSuBase::GetParametri() const {
    TestiEditore testi;
    testi.parametri = TestoParametri();
    TestiValori(testi.punti, testi.recupero);
    testi.quadro = cmbRecupero_->currentText();
    return testi;
}

bool F_PuntiSuBase::VerificaCoerenza() {
    const QString messaggio = MessaggioCoerenza();
    if (messaggio.isEmpty()) return true;
    if (contesto_.dialoghi != nullptr) contesto_.dialoghi->Esclamazione(QString(), messaggio);
    return false;
}

void F_PuntiSuBase::Conferma() {
    if (!VerificaCoerenza()) return;
    tag_ = "ooo";
    accept();
}

combi::Condizione F_PuntiSuBase::CondizioneCorrente() const {
    const TestiEditore testi = GetParametri();
    combi::TestiCondizione colonna;
    colonna[combi::kRigaCondizione] = combi::NomeTipoCondizione(voce_.tipo);
    colonna[combi::kRigaParametri] = testi.parametri.toStdString();
    colonna[combi::kRigaPunti] = testi.punti.toStdString();
    colonna[combi::kRigaRecupero] = testi.recupero.toStdString();
    colonna[combi::kRigaQuadroRec] = testi.quadro.toStdString();
    combi::TestiGriglia griglia;
    griglia.colonne.push_back(colonna);
    return combi::LeggiCondizioni(griglia).condizioni.front();
}

void F_PuntiSuBase::Statistica() {
    // The preview never touches the entry: no validation, tag unchanged.
    auto* finestra = new F_Statistica(this);
    finestra->setAttribute(Qt::WA_DeleteOnClose);
    if (!finestra->Avvia(voce_, contesto_, CondizioneCorrente())) {
        delete finestra;
        return;
    }
    finestra->show();
}
