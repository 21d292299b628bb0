#include "F_PuntiSuCaselle.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include "Condizione.h"
#include "LetturaNumero.h"
#include "Testo.h"
#include "TestiGriglia.h"

F_PuntiSuCaselle::F_PuntiSuCaselle(const VoceCatalogo& voce, const ContestoEditore& contesto,
                                   QWidget* genitore)
    : F_PuntiSuIntervallo(voce, contesto, genitore) {
    auto* frame = new QGroupBox("Caselle", this);
    frame->setObjectName("FrameCaselle");
    colonnaCaselle_ = new QVBoxLayout(frame);
    colonnaCaselle_->setSpacing(1);
    ZonaPropria()->addWidget(frame);
    caselle_.push_back(nullptr);
}

bool F_PuntiSuCaselle::Esclusive() const { return Voce().tipo == combi::kPosizioni; }

void F_PuntiSuCaselle::LoadChk() {
    auto* gruppo = Esclusive() ? new QButtonGroup(this) : nullptr;
    for (int p = static_cast<int>(caselle_.size()); p <= Classe(); ++p) {
        QAbstractButton* casella = nullptr;
        if (gruppo != nullptr) {
            casella = new QRadioButton(QString::number(p), this);
            casella->setObjectName(QString("ObCaselle_%1").arg(p));
            gruppo->addButton(casella);
        } else {
            casella = new QCheckBox(QString::number(p), this);
            casella->setObjectName(QString("ChkCaselle_%1").arg(p));
        }
        colonnaCaselle_->addWidget(casella);
        caselle_.push_back(casella);
    }
}

QAbstractButton* F_PuntiSuCaselle::Casella(int posizione) const {
    return posizione >= 1 && posizione < static_cast<int>(caselle_.size()) ? caselle_[posizione] : nullptr;
}

QString F_PuntiSuCaselle::TestoParametri() const {
    QStringList scelte;
    for (int p = 1; p < static_cast<int>(caselle_.size()); ++p) {
        if (caselle_[p]->isChecked()) scelte << QString::number(p);
    }
    const QString etichetta = Esclusive() ? "Casella :" : "Caselle :";
    return etichetta + QString::fromStdString(combi::kACapo) + scelte.join('-');
}

void F_PuntiSuCaselle::LeggiParametri(const std::string& testo) {
    const auto a = testo.find(combi::kACapo);
    if (a == std::string::npos) return;
    QStringList ignorate;
    for (std::string_view pezzo : combi::Dividi(std::string_view(testo).substr(a + 2), "-")) {
        const int p = combi::LeggiInt32(pezzo);
        if (QAbstractButton* casella = Casella(p)) {
            casella->setChecked(true);
        } else {
            ignorate << QString::number(p);
        }
    }
    if (!ignorate.isEmpty()) SegnalaValoriIgnorati("caselle " + ignorate.join(", "));
}
