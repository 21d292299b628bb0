#pragma once
// The XPButton1 row of every dialog: push buttons named XPButton1_0.., none
// of them default, so that Enter in a box never confirms a dialog.

#include <QHBoxLayout>
#include <QPushButton>

#include <initializer_list>
#include <vector>

inline std::vector<QPushButton*> CreaPulsantiXP(QWidget* padre, QHBoxLayout* riga,
                                                std::initializer_list<const char*> testi) {
    std::vector<QPushButton*> pulsanti;
    for (const char* testo : testi) {
        auto* pulsante = new QPushButton(testo, padre);
        pulsante->setObjectName(QString("XPButton1_%1").arg(pulsanti.size()));
        pulsante->setAutoDefault(false);
        riga->addWidget(pulsante);
        pulsanti.push_back(pulsante);
    }
    return pulsanti;
}
