#pragma once
// "Naviga sistema": the conditions of the grid as a tree in which every link
// group is a branch, so that a long system reads by its structure. Clicking
// a node brings that condition into view in the grid. The window is
// modeless and kept above the others while the user works on the panel.

#include <QDialog>

class CombiFiltroA;
class QTreeWidget;
class QTreeWidgetItem;

class F_NavigaSistema : public QDialog {
    Q_OBJECT
public:
    // Where a node keeps its key ("sistema", "Cond7") and its tag (the grid
    // column, absent for the root): data of column 0 under these roles.
    static constexpr int kRuoloChiave = Qt::UserRole;
    static constexpr int kRuoloTag = Qt::UserRole + 1;

    // Builds the tree from the grid of `controllo`, which must outlive the
    // window. The tree does not follow later changes of the grid by itself.
    explicit F_NavigaSistema(CombiFiltroA& controllo, QWidget* genitore = nullptr);

    // Removes every node and builds the tree again from the grid.
    void CostruisciAlbero();

    QTreeWidget* TreeView1() const { return treeView1_; }
    // The node of a key, or nullptr.
    QTreeWidgetItem* Nodo(const QString& chiave) const;

protected:
    void changeEvent(QEvent* evento) override;

private:
    void NodoCliccato(QTreeWidgetItem* nodo);

    CombiFiltroA& controllo_;
    QTreeWidget* treeView1_ = nullptr;
};
