#include "F_VisualizzaColonne.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <memory>

#include "CombiFiltroA.h"
#include "Formato.h"
#include "UtilitaSchermo.h"

namespace {

// One notch of an ordinary mouse wheel.
constexpr int kAngoloScatto = 120;

}  // namespace

F_VisualizzaColonne::F_VisualizzaColonne(const CombiFiltroA& controllo, QWidget* genitore)
    : F_VisualizzaColonne(Origine{[&controllo] { return int(controllo.QuantitaColonne()); },
                                  [&controllo](int id) { return controllo.GetColonnaSviluppo(id); }},
                          "Colonne condizionate", genitore) {}

F_VisualizzaColonne::F_VisualizzaColonne(std::vector<combi::Colonna> colonne, const QString& titolo,
                                         QWidget* genitore)
    : F_VisualizzaColonne(OrigineElenco(std::move(colonne)), titolo, genitore) {}

F_VisualizzaColonne::Origine F_VisualizzaColonne::OrigineElenco(std::vector<combi::Colonna> colonne) {
    auto elenco = std::make_shared<const std::vector<combi::Colonna>>(std::move(colonne));
    return Origine{[elenco] { return int(elenco->size()); },
                   [elenco](int id) {
                       if (id < 1 || size_t(id) > elenco->size()) return QString();
                       return QString::fromStdString(combi::TestoColonna((*elenco)[size_t(id) - 1], false));
                   }};
}

F_VisualizzaColonne::F_VisualizzaColonne(Origine origine, const QString& titolo, QWidget* genitore)
    : QDialog(genitore), origine_(std::move(origine)) {
    setObjectName("F_VisualizzaColonne");
    setWindowTitle(titolo);
    CostruisciFinestra();
    ImpostaCursore();
    // valueChanged follows the slider while it is dragged and when it settles.
    connect(slider1_, &QSlider::valueChanged, this, [this] { Riempi(); });
    connect(xpButton1_, &QPushButton::clicked, this, &QDialog::accept);
    Riempi();
}

void F_VisualizzaColonne::CostruisciFinestra() {
    auto* colonna = new QVBoxLayout(this);
    slider1_ = new QSlider(Qt::Horizontal, this);
    slider1_->setObjectName("Slider1");
    slider1_->setPageStep(kRighe);
    colonna->addWidget(slider1_);

    listView1_ = new QTreeWidget(this);
    listView1_->setObjectName("ListView1");
    listView1_->setColumnCount(2);
    listView1_->setHeaderLabels({"Colonna", "Numeri"});
    listView1_->setRootIsDecorated(false);
    listView1_->setUniformRowHeights(true);
    listView1_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    // A page is what fits: the slider, not the list, scrolls.
    listView1_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    listView1_->setMinimumSize(420, 440);
    listView1_->installEventFilter(this);
    listView1_->viewport()->installEventFilter(this);
    colonna->addWidget(listView1_, 1);

    auto* riga = new QHBoxLayout;
    labPosizione_ = new QLabel(this);
    labPosizione_->setObjectName("LabPosizione");
    riga->addWidget(labPosizione_, 1);
    xpButton1_ = new QPushButton("CHIUDI", this);
    xpButton1_->setObjectName("XPButton1_0");
    xpButton1_->setAutoDefault(false);
    riga->addWidget(xpButton1_);
    colonna->addLayout(riga);
}

// With fewer than two columns there is nothing to page through.
void F_VisualizzaColonne::ImpostaCursore() {
    const int ultima = origine_.quante();
    slider1_->setMinimum(1);
    slider1_->setMaximum(ultima < 2 ? 1 : ultima);
    slider1_->setEnabled(ultima >= 2);
    slider1_->setValue(1);
}

int F_VisualizzaColonne::RighePerPagina() const {
    const QTreeWidgetItem* prima = listView1_->topLevelItem(0);
    if (prima == nullptr || !listView1_->isVisible()) return kRighe;
    const int altezza = listView1_->visualItemRect(prima).height();
    return altezza > 0 ? std::max(kRighe, listView1_->viewport()->height() / altezza) : kRighe;
}

void F_VisualizzaColonne::Riempi() {
    const int righe = RighePerPagina();
    slider1_->setPageStep(righe);
    listView1_->clear();
    const int primo = slider1_->value();
    for (int id = primo; id < primo + righe; ++id) {
        const QString numeri = origine_.testo(id);
        if (numeri.isEmpty()) continue;
        auto* voce = new QTreeWidgetItem(listView1_, {QString::number(id), numeri});
        voce->setTextAlignment(0, Qt::AlignRight | Qt::AlignVCenter);
    }
    const int quante = origine_.quante();
    labPosizione_->setText(quante == 0 ? QString("Nessuna colonna")
                                       : QString("colonna %1 di %2").arg(TestoContatore(primo), TestoContatore(quante)));
}

void F_VisualizzaColonne::resizeEvent(QResizeEvent* evento) {
    QDialog::resizeEvent(evento);
    Riempi();
}

void F_VisualizzaColonne::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    Riempi();
}

bool F_VisualizzaColonne::eventFilter(QObject* oggetto, QEvent* evento) {
    if (oggetto == listView1_->viewport() && evento->type() == QEvent::Wheel)
        return Rotella(static_cast<QWheelEvent*>(evento));
    if (oggetto == listView1_ && evento->type() == QEvent::KeyPress) return Tasto(static_cast<QKeyEvent*>(evento));
    return QDialog::eventFilter(oggetto, evento);
}

// Each notch moves by the desktop's wheel lines (3 by default); a touchpad's
// small angles add up until they make a whole notch.
bool F_VisualizzaColonne::Rotella(QWheelEvent* evento) {
    rotellaResidua_ += evento->angleDelta().y();
    const int scatti = rotellaResidua_ / kAngoloScatto;
    rotellaResidua_ -= scatti * kAngoloScatto;
    if (scatti != 0) slider1_->setValue(slider1_->value() - scatti * QApplication::wheelScrollLines());
    evento->accept();
    return true;
}

bool F_VisualizzaColonne::Tasto(QKeyEvent* evento) {
    const int pagina = RighePerPagina();
    int destinazione = slider1_->value();
    switch (evento->key()) {
        case Qt::Key_Down: destinazione += 1; break;
        case Qt::Key_Up: destinazione -= 1; break;
        case Qt::Key_PageDown: destinazione += pagina; break;
        case Qt::Key_PageUp: destinazione -= pagina; break;
        case Qt::Key_Home: destinazione = slider1_->minimum(); break;
        case Qt::Key_End: destinazione = std::max(slider1_->minimum(), slider1_->maximum() - pagina + 1); break;
        default: return false;
    }
    slider1_->setValue(destinazione);
    return true;
}
