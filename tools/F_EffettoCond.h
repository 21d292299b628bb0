#pragma once
// "Effetto condizioni": after a development, how many columns of the integral
// system each condition let pass, discarded and recovered, as counts and as
// shares of the integral system. Clicking a row brings that condition's grid
// column into view; the dialog stays open.

#include <QDialog>

class CombiFiltroA;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

class F_EffettoCond : public QDialog {
    Q_OBJECT
public:
    // Reads the counters of `controllo` (which must outlive the dialog) and
    // fills the list at once.
    explicit F_EffettoCond(CombiFiltroA& controllo, QWidget* genitore = nullptr);

    // Empties the list and fills it again from the control's counters.
    void Carica();

    QTreeWidget* ListView1() const { return listView1_; }

private:
    void CostruisciFinestra();
    void RigaCliccata(QTreeWidgetItem* riga);

    CombiFiltroA& controllo_;
    QTreeWidget* listView1_ = nullptr;
    QPushButton* chiudi_ = nullptr;
};
