#include "F_VisualizzaColonne.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QSlider>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "CombiFiltroA.h"

F_VisualizzaColonne::F_VisualizzaColonne(const CombiFiltroA& controllo, QWidget* genitore)
    : QDialog(genitore), controllo_(controllo) {
    setObjectName("F_VisualizzaColonne");
    setWindowTitle("Colonne condizionate");
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
    listView1_->setMinimumSize(420, 440);
    colonna->addWidget(listView1_, 1);

    auto* riga = new QHBoxLayout;
    riga->addStretch(1);
    xpButton1_ = new QPushButton("CHIUDI", this);
    xpButton1_->setObjectName("XPButton1_0");
    xpButton1_->setAutoDefault(false);
    riga->addWidget(xpButton1_);
    colonna->addLayout(riga);
}

// With fewer than two columns there is nothing to page through.
void F_VisualizzaColonne::ImpostaCursore() {
    const int ultima = controllo_.QuantitaColonne();
    slider1_->setMinimum(1);
    slider1_->setMaximum(ultima < 2 ? 1 : ultima);
    slider1_->setEnabled(ultima >= 2);
    slider1_->setValue(1);
}

void F_VisualizzaColonne::Riempi() {
    listView1_->clear();
    const int primo = slider1_->value();
    for (int id = primo; id < primo + kRighe; ++id) {
        const QString numeri = controllo_.GetColonnaSviluppo(id);
        if (numeri.isEmpty()) continue;
        auto* voce = new QTreeWidgetItem(listView1_, {QString::number(id), numeri});
        voce->setTextAlignment(0, Qt::AlignRight | Qt::AlignVCenter);
    }
}
