#include "GrigliaNumeri.h"

#include <QKeyEvent>

#include <QCloseEvent>
#include <QGridLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

// A picked number is white on deep blue, a free one near-black on light grey:
// told apart at a glance whatever the desktop's style. Numbers an editor
// switched off fade, a picked one keeping its blue.
const char* const kStileNumeri = R"(
QToolButton { background: #f2f2f2; color: #1a1a1a; border: 1px solid #b4b4b4; border-radius: 3px; }
QToolButton:hover { border: 1px solid #0b3d91; }
QToolButton:checked { background: #0b3d91; color: #ffffff; font-weight: bold; border: 1px solid #062a66; }
QToolButton:disabled { background: #e6e6e6; color: #9a9a9a; border: 1px solid #d0d0d0; }
QToolButton:checked:disabled { background: #6f86ad; color: #f0f0f0; }
)";

}  // namespace

GrigliaNumeri::GrigliaNumeri(QWidget* genitore) : QWidget(genitore, Qt::Tool) {
    setObjectName("GrigliaNumeri");
    setWindowTitle("Selezione numeri");
    setStyleSheet(kStileNumeri);
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
