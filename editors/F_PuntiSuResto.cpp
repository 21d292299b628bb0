#include "F_PuntiSuResto.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

F_PuntiSuResto::F_PuntiSuResto(const VoceCatalogo& voce, const ContestoEditore& contesto,
                               QWidget* genitore)
    : F_PuntiSuElenco(voce, contesto, genitore) {
    auto* riga = new QHBoxLayout;
    auto* label2 = new QLabel("Resto a :", this);
    label2->setObjectName("Label2");
    riga->addWidget(label2);
    riga->addWidget(Combo1());
    riga->addStretch();
    ZonaPropria()->addLayout(riga);
    connect(Combo1(), &QComboBox::currentIndexChanged, this, [this] { LoadChk(); });
}

int F_PuntiSuResto::UltimoValore() const {
    // Before the first divisor is chosen the dialog opens on "2".
    const int divisore = Combo1()->currentIndex() < 0 ? 2 : Combo1()->currentText().toInt();
    return divisore - 1;
}
