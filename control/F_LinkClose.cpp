#include "F_LinkClose.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "GrigliaCondizioni.h"
#include "LetturaNumero.h"
#include "Testo.h"
#include "Formato.h"

F_LinkClose::F_LinkClose(QWidget* genitore) : QDialog(genitore) {
    setObjectName("F_LinkClose");
    setWindowTitle("LinkClose");
    auto* colonna = new QVBoxLayout(this);
    auto* cornice = new QGroupBox("Punti", this);
    cornice->setObjectName("Frame1");
    disposizione_ = new QGridLayout(cornice);
    colonna->addWidget(cornice);
    AggiungiCasella(0);

    auto* riga = new QHBoxLayout;
    const char* testi[2] = {"CONFERMA", "CHIUDI"};
    for (int i = 0; i < 2; ++i) {
        pulsanti_[i] = new QPushButton(testi[i], this);
        pulsanti_[i]->setObjectName(QString("XPButton1_%1").arg(i));
        pulsanti_[i]->setAutoDefault(false);
        riga->addWidget(pulsanti_[i]);
    }
    colonna->addLayout(riga);
    connect(pulsanti_[0], &QPushButton::clicked, this, [this] {
        tag_ = "ooo";
        accept();
    });
    connect(pulsanti_[1], &QPushButton::clicked, this, [this] {
        tag_.clear();
        reject();
    });
}

void F_LinkClose::AggiungiCasella(int i) {
    auto* casella = new QCheckBox(QString::number(i), this);
    casella->setObjectName(QString("ChkPunti_%1").arg(i));
    // Box 0 opens the first row, which holds 0..10; then ten to a row.
    const int riga = i <= 10 ? 0 : (i - 1) / 10;
    const int posto = i <= 10 ? i : (i - 1) % 10;
    disposizione_->addWidget(casella, riga, posto);
    caselle_.push_back(casella);
}

void F_LinkClose::LoadchkPunti(int quante) {
    for (int i = 1; i <= quante; ++i) {
        if (i < NumeroCaselle()) return;  // already laid out
        AggiungiCasella(i);
    }
}

QCheckBox* F_LinkClose::Casella(int i) const {
    return i >= 0 && i < NumeroCaselle() ? caselle_[i] : nullptr;
}

QPushButton* F_LinkClose::Pulsante(int indice) const {
    return indice >= 0 && indice < 2 ? pulsanti_[indice] : nullptr;
}

QString F_LinkClose::GetPunti() const {
    QStringList spuntate;
    for (int i = 0; i < NumeroCaselle(); ++i) {
        if (caselle_[i]->isChecked()) spuntate << QString::number(i);
    }
    return spuntate.join('-');
}

void F_LinkClose::LeggiPunti(const GrigliaCondizioni& griglia) {
    const std::string punti = griglia.Testo(3, griglia.ColonnaCorrente()).toStdString();
    for (std::string_view pezzo : combi::Dividi(punti, "-")) {
        const int v = combi::LeggiInt16(pezzo);
        if (QCheckBox* casella = Casella(v)) casella->setChecked(true);
    }
}

void F_LinkClose::RiempiDaParametri(const QString&) {
    // The group's counts are always chosen by the user: the dialog is shown
    // whatever text the host passes.
}

void F_LinkClose::Mostra() {
    tag_.clear();
    exec();
}

TestiEditore F_LinkClose::GetParametri() const {
    TestiEditore testi;
    testi.parametri = QString::fromStdString(combi::TestoVerticale("LinkClose", 1));
    testi.punti = GetPunti();
    return testi;
}
