#include "GrigliaNumeri.h"

#include <QKeyEvent>

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

GrigliaNumeri::GrigliaNumeri(QWidget* genitore) : QWidget(genitore, Qt::Tool) {
    setObjectName("GrigliaNumeri");
    setWindowTitle("Selezione numeri");
    auto* colonna = new QVBoxLayout(this);
    auto* griglia = new QGridLayout;
    griglia->setSpacing(2);
    for (int n = 1; n <= 90; ++n) {
        auto* pulsante = new QToolButton(this);
        pulsante->setObjectName(QString("Numero%1").arg(n));
        pulsante->setText(QString("%1").arg(n, 2, 10, QChar('0')));
        pulsante->setCheckable(true);
        pulsante->setMinimumSize(30, 26);
        connect(pulsante, &QToolButton::toggled, this, [this] {
            AggiornaConteggio();
            if (!silenzioso_) emit SelezioneCambiata();
        });
        griglia->addWidget(pulsante, (n - 1) / 10, (n - 1) % 10);
        pulsanti_[n] = pulsante;
    }
    colonna->addLayout(griglia);
    conteggio_ = new QLabel(this);
    colonna->addWidget(conteggio_);
    AggiornaConteggio();
}

int GrigliaNumeri::Conta() const {
    int quanti = 0;
    for (int n = 1; n <= 90; ++n) quanti += pulsanti_[n]->isChecked() ? 1 : 0;
    return quanti;
}

bool GrigliaNumeri::Selezionato(int n) const {
    return n >= 1 && n <= 90 && pulsanti_[n]->isChecked();
}

void GrigliaNumeri::ImpostaNumero(int n, bool selezionato) {
    if (n < 1 || n > 90) return;
    pulsanti_[n]->setChecked(selezionato);
}

void GrigliaNumeri::Pulisci() {
    if (Conta() == 0) return;
    silenzioso_ = true;  // one notification for the whole clearing
    for (int n = 1; n <= 90; ++n) pulsanti_[n]->setChecked(false);
    silenzioso_ = false;
    emit SelezioneCambiata();
}

void GrigliaNumeri::ImpostaDisponibile(int n, bool disponibile) {
    if (n >= 1 && n <= 90) pulsanti_[n]->setEnabled(disponibile);
}

bool GrigliaNumeri::Disponibile(int n) const {
    return n >= 1 && n <= 90 && pulsanti_[n]->isEnabled();
}

void GrigliaNumeri::closeEvent(QCloseEvent* evento) {
    QWidget::closeEvent(evento);
    // The panel hides the window with hide(), which sends no close event:
    // only the user closes it.
    if (evento->isAccepted()) emit Chiusa();
}

void GrigliaNumeri::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() != Qt::Key_Return && evento->key() != Qt::Key_Enter) {
        QWidget::keyPressEvent(evento);
        return;
    }
    if (isWindow()) {
        close();  // reports Chiusa
    } else {
        emit Chiusa();
    }
}

void GrigliaNumeri::AggiornaConteggio() {
    conteggio_->setText(QString("Numeri : %1").arg(Conta()));
}
