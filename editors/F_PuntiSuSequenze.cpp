#include "F_PuntiSuSequenze.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

#include "ParametriInserimento.h"
#include "Testo.h"
#include "Formato.h"

F_PuntiSuSequenze::F_PuntiSuSequenze(const VoceCatalogo& voce, const ContestoEditore& contesto,
                                     QWidget* genitore)
    : F_PuntiSuElenco(voce, contesto, genitore) {
    auto* riga = new QHBoxLayout;
    auto* label2 = new QLabel("Sequenza", this);
    label2->setObjectName("Label2");
    labSequenza_ = new QLabel(this);
    labSequenza_->setObjectName("LabSequenza");
    labSequenza_->setFrameShape(QFrame::Panel);
    labSequenza_->setFrameShadow(QFrame::Sunken);
    labSequenza_->setMinimumWidth(160);
    riga->addWidget(label2);
    riga->addWidget(labSequenza_, 1);
    const char* testi[3] = {"P", "D", "CLEAR"};
    for (int i = 0; i < 3; ++i) {
        auto* pulsante = new QPushButton(testi[i], this);
        pulsante->setObjectName(QString("Command1_%1").arg(i));
        pulsante->setAutoDefault(false);
        riga->addWidget(pulsante);
        connect(pulsante, &QPushButton::clicked, this, [this, i] {
            ImpostaSequenza(i == 2 ? QString() : Sequenza() + (i == 0 ? "P" : "D"));
        });
    }
    ZonaPropria()->addLayout(riga);
}

QString F_PuntiSuSequenze::Sequenza() const { return labSequenza_->text(); }

void F_PuntiSuSequenze::ImpostaSequenza(const QString& sequenza) {
    labSequenza_->setText(sequenza);
    LoadChk(true);
}

int F_PuntiSuSequenze::UltimoValore() const {
    const int lettere = std::max<int>(1, static_cast<int>(Sequenza().size()));
    return std::max(0, Classe() - lettere + 1);
}

QString F_PuntiSuSequenze::MessaggioCoerenza() const {
    QString messaggio = F_PuntiSuElenco::MessaggioCoerenza();
    if (Sequenza().isEmpty()) messaggio = "Impostare la sequenza";
    return messaggio;
}

QString F_PuntiSuSequenze::TestoParametri() const {
    if (Sequenza().isEmpty()) return {};
    return QString::fromStdString(combi::TestoVerticale(Sequenza().toStdString(), 1));
}

void F_PuntiSuSequenze::LeggiParametri(const std::string& testo) {
    ImpostaSequenza(QString::fromStdString(combi::RimuoviACapo(testo)));
}

std::string F_PuntiSuSequenze::RiempiParametri(const std::string& campo) {
    auto [sequenza, valori] = editori::DividiIntestazione(campo);
    if (!combi::SequenzaValida(sequenza)) editori::ErroreTestoNonValido("sequenza \"" + sequenza + "\" (solo lettere P e D)");
    ImpostaSequenza(QString::fromStdString(sequenza));
    return valori;
}
