#include "F_EffettoCond.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "CombiFiltroA.h"
#include "EffettoCondizioni.h"
#include "LetturaNumero.h"

F_EffettoCond::F_EffettoCond(CombiFiltroA& controllo, QWidget* genitore)
    : QDialog(genitore), controllo_(controllo) {
    setObjectName("F_EffettoCond");
    setWindowTitle("Effetto condizioni");
    CostruisciFinestra();
    connect(listView1_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* riga) { RigaCliccata(riga); });
    connect(chiudi_, &QPushButton::clicked, this, &QDialog::accept);
    Carica();
}

// The list keeps the same margin on every side, so it follows the dialog
// when the user resizes it.
void F_EffettoCond::CostruisciFinestra() {
    auto* colonna = new QVBoxLayout(this);
    listView1_ = new QTreeWidget(this);
    listView1_->setObjectName("ListView1");
    listView1_->setColumnCount(combi::kColonneEffetto);
    listView1_->setHeaderLabels({"Id", "Condizione", "Superate", "%", "Scartate", "%", "Recuperate", "%"});
    listView1_->setRootIsDecorated(false);
    listView1_->setUniformRowHeights(true);
    listView1_->setAllColumnsShowFocus(true);
    // The name takes the spare width, so the last share stays beside its count.
    listView1_->header()->setStretchLastSection(false);
    listView1_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    listView1_->header()->setSectionResizeMode(combi::kEffettoCondizione, QHeaderView::Stretch);
    listView1_->setMinimumSize(560, 300);
    colonna->addWidget(listView1_, 1);

    auto* riga = new QHBoxLayout;
    riga->addStretch(1);
    chiudi_ = new QPushButton("CHIUDI", this);
    chiudi_->setObjectName("XPButton1_0");
    chiudi_->setAutoDefault(false);
    riga->addWidget(chiudi_);
    colonna->addLayout(riga);
}

void F_EffettoCond::Carica() {
    listView1_->clear();
    const double integrali = controllo_.ColonneIntegrali();
    combi::TabellaCondizioni tabella;
    controllo_.RaccogliCondizioni(tabella);
    for (const combi::RigaEffetto& r : combi::RigheEffetto(tabella, integrali)) {
        auto* voce = new QTreeWidgetItem(listView1_);
        for (int c = 0; c < combi::kColonneEffetto; ++c) {
            voce->setText(c, QString::fromStdString(r.testi[c]));
            if (c != combi::kEffettoCondizione) voce->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
        }
    }
}

void F_EffettoCond::RigaCliccata(QTreeWidgetItem* riga) {
    if (riga == nullptr) return;
    controllo_.SetColonnaGrid(combi::LeggiInt32(riga->text(combi::kEffettoId).toStdString()));
}
