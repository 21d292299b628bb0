#include "F_NavigaSistema.h"

#include <QEvent>
#include <QHash>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include "AlberoSistema.h"
#include "CombiFiltroA.h"
#include "TestiGrigliaQt.h"
#include "UtilitaSchermo.h"

F_NavigaSistema::F_NavigaSistema(CombiFiltroA& controllo, QWidget* genitore)
    : QDialog(genitore), controllo_(controllo) {
    setObjectName("F_NavigaSistema");
    setWindowTitle("Naviga sistema");
    // The tree keeps the same margin on every side, so it follows the window
    // when the user resizes it, however small.
    auto* colonna = new QVBoxLayout(this);
    treeView1_ = new QTreeWidget(this);
    treeView1_->setObjectName("TreeView1");
    treeView1_->setHeaderHidden(true);
    treeView1_->setColumnCount(1);
    colonna->addWidget(treeView1_);
    resize(260, 420);
    connect(treeView1_, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* nodo) { NodoCliccato(nodo); });
    CostruisciAlbero();
}

void F_NavigaSistema::CostruisciAlbero() {
    treeView1_->clear();
    const combi::TestiGriglia testi = LeggiTestiGriglia(*controllo_.GetGridCond(), *controllo_.GetLbQuadroRec());
    QHash<QString, QTreeWidgetItem*> perChiave;
    for (const combi::NodoSistema& n : combi::CostruisciAlberoSistema(testi.colonne)) {
        // Parents always come first, so the lookup never misses.
        QTreeWidgetItem* genitore = perChiave.value(QString::fromStdString(n.genitore));
        auto* nodo = genitore ? new QTreeWidgetItem(genitore) : new QTreeWidgetItem(treeView1_);
        const QString chiave = QString::fromStdString(n.chiave);
        // Grid texts break lines with CR LF; a tree row shows one line.
        nodo->setText(0, QString::fromStdString(n.testo).replace("\r\n", " "));
        nodo->setData(0, kRuoloChiave, chiave);
        if (n.colonna > 0) nodo->setData(0, kRuoloTag, n.colonna);
        perChiave.insert(chiave, nodo);
    }
    if (QTreeWidgetItem* radice = Nodo(QString::fromStdString(combi::kChiaveRadice))) radice->setExpanded(true);
}

QTreeWidgetItem* F_NavigaSistema::Nodo(const QString& chiave) const {
    for (QTreeWidgetItemIterator it(treeView1_); *it; ++it) {
        if ((*it)->data(0, kRuoloChiave).toString() == chiave) return *it;
    }
    return nullptr;
}

// Whenever the window is activated it goes back above the other windows.
// Changing the flag re-creates the native window and activates it again, so
// it is set only when missing.
void F_NavigaSistema::changeEvent(QEvent* evento) {
    QDialog::changeEvent(evento);
    if (evento->type() == QEvent::ActivationChange && isActiveWindow() &&
        !windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
        InPrimoPiano(this, -1);
    }
}

// The root has no tag: it asks for column 0, which the grid ignores.
void F_NavigaSistema::NodoCliccato(QTreeWidgetItem* nodo) {
    if (nodo == nullptr) return;
    controllo_.SetColonnaGrid(nodo->data(0, kRuoloTag).toInt());
}
