#include "DialogoConLavoro.h"

#include <QCloseEvent>

void DialogoConLavoro::reject() {
    if (!occupato_) QDialog::reject();
}

void DialogoConLavoro::closeEvent(QCloseEvent* evento) {
    if (occupato_) {
        evento->ignore();
        return;
    }
    QDialog::closeEvent(evento);
}
