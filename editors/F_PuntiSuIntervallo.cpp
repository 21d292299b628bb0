#include "F_PuntiSuIntervallo.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "FiltroTastiNumerici.h"
#include "LetturaNumero.h"
#include "ParametriInserimento.h"
#include "Testo.h"

namespace {

// "Minimo" / "Massimo" over two boxes named `nome`_0 and `nome`_1.
void CreaCoppia(QWidget* padre, QVBoxLayout* zona, const char* nome, QLineEdit* (&caselle)[2]) {
    auto* griglia = new QGridLayout;
    const char* didascalie[2] = {"Minimo", "Massimo"};
    for (int i = 0; i < 2; ++i) {
        griglia->addWidget(new QLabel(didascalie[i], padre), 0, i);
        caselle[i] = new QLineEdit(padre);
        caselle[i]->setObjectName(QString("%1_%2").arg(nome).arg(i));
        caselle[i]->setMaximumWidth(80);
        griglia->addWidget(caselle[i], 1, i);
    }
    zona->addLayout(griglia);
}

int Valore(const QLineEdit* casella) { return combi::LeggiInt32(casella->text().toStdString()); }

}  // namespace

F_PuntiSuIntervallo::F_PuntiSuIntervallo(const VoceCatalogo& voce, const ContestoEditore& contesto,
                                         QWidget* genitore)
    : F_PuntiSuBase(voce, contesto, genitore) {
    CreaCoppia(this, ZonaPunti(), "TxtPunti", txtPunti_);
    CreaCoppia(this, ZonaRecupero(), "TxtPuntiRec", txtPuntiRec_);
    if (voce.filtroTasti) {
        // Enter moves on, in the order the boxes are filled.
        QWidget* ordine[4] = {txtPunti_[0], txtPunti_[1], txtPuntiRec_[0], txtPuntiRec_[1]};
        for (QWidget* casella : ordine) casella->installEventFilter(new FiltroTastiNumerici(true, casella));
    }
}

void F_PuntiSuIntervallo::AbilitaChkRecupero() {
    const bool pannello = PannelloScelto();
    for (QLineEdit* casella : txtPuntiRec_) {
        casella->setEnabled(pannello);
        if (!pannello) casella->clear();
    }
}

QString F_PuntiSuIntervallo::MessaggioCoerenza() const {
    QString messaggio;
    const int minimo = Valore(txtPunti_[0]);
    const int massimo = Valore(txtPunti_[1]);
    if (massimo < minimo) messaggio = "Range punti non valido";
    if (minimo == 0 && massimo == 0) messaggio = "Impostare i punti da realizzare";
    if (PannelloScelto()) {
        const int minimoRec = Valore(txtPuntiRec_[0]);
        const int massimoRec = Valore(txtPuntiRec_[1]);
        if (massimoRec < minimoRec) messaggio = "Range punti recupero non valido";
        if (minimoRec == 0 && massimoRec == 0) messaggio = "Impostare i punti di recupero";
    }
    return messaggio;
}

void F_PuntiSuIntervallo::TestiValori(QString& punti, QString& recupero) const {
    punti = txtPunti_[0]->text() + "-" + txtPunti_[1]->text();
    recupero = txtPuntiRec_[0]->text() + "-" + txtPuntiRec_[1]->text();
}

void F_PuntiSuIntervallo::LeggiValori(const std::string& punti, const std::string& recupero,
                                      const std::string& quadro) {
    auto riempi = [](QLineEdit* (&caselle)[2], const std::string& testo) {
        const auto pezzi = combi::Dividi(testo, "-");
        for (size_t i = 0; i < pezzi.size() && i < 2; ++i) caselle[i]->setText(QString::fromUtf8(pezzi[i]));
    };
    riempi(txtPunti_, punti);
    // The panel first: without one, selecting it empties the recovery boxes.
    SelezionaQuadro(quadro);
    riempi(txtPuntiRec_, recupero);
}

void F_PuntiSuIntervallo::RiempiAccettati(const std::string& valori) {
    const auto [minimo, massimo] = editori::ValoriIntervallo(valori);
    txtPunti_[0]->setText(QString::fromStdString(minimo));
    txtPunti_[1]->setText(QString::fromStdString(massimo));
}

void F_PuntiSuIntervallo::RiempiRecupero(const std::string& valori) {
    const auto [minimo, massimo] = editori::ValoriIntervallo(valori);
    txtPuntiRec_[0]->setText(QString::fromStdString(minimo));
    txtPuntiRec_[1]->setText(QString::fromStdString(massimo));
}
