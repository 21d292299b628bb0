#pragma once
// A read-only field of a dialog: a framed label whose text the user can
// select and copy, as tall as a line edit.

#include <QFrame>
#include <QLabel>

inline QLabel* CreaCampoTesto(QWidget* padre, const char* nome) {
    auto* campo = new QLabel(padre);
    campo->setObjectName(nome);
    campo->setFrameShape(QFrame::StyledPanel);
    campo->setMinimumHeight(campo->fontMetrics().height() + 6);
    campo->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return campo;
}
