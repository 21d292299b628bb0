#include "FiltroTastiNumerici.h"

#include <QKeyEvent>
#include <QWidget>

#include "UtilitaSchermo.h"

FiltroTastiNumerici::FiltroTastiNumerici(bool invioAvanza, QObject* genitore)
    : QObject(genitore), invioAvanza_(invioAvanza) {}

bool FiltroTastiNumerici::eventFilter(QObject* oggetto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress) return false;
    const auto* tasto = static_cast<QKeyEvent*>(evento);
    int codice = 0;
    if (tasto->key() == Qt::Key_Return || tasto->key() == Qt::Key_Enter) {
        codice = 13;
    } else if (tasto->key() == Qt::Key_Backspace) {
        codice = 8;
    } else if (tasto->text().size() == 1 && tasto->text()[0].isPrint()) {
        codice = tasto->text()[0].unicode();
    } else {
        return false;  // not a typed character
    }
    FiltraTastoNumerico(codice);
    if (codice == 0) return true;
    if (codice == 13) {
        if (invioAvanza_) InvioComeTab(codice, qobject_cast<QWidget*>(oggetto));
        return true;
    }
    return false;
}
