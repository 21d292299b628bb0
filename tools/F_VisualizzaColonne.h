#pragma once
// "Colonne condizionate": the control's kept columns, 21 at a time. The
// slider holds the number of the first column shown; the list shows that
// column and the next 20 that exist.

#include <QDialog>

class CombiFiltroA;
class QPushButton;
class QSlider;
class QTreeWidget;

class F_VisualizzaColonne : public QDialog {
    Q_OBJECT
public:
    static constexpr int kRighe = 21;

    // Reads the columns of `controllo`, which must outlive the window, and
    // shows them from column 1.
    explicit F_VisualizzaColonne(const CombiFiltroA& controllo, QWidget* genitore = nullptr);

    // The list from the slider's position on.
    void Riempi();

    QSlider* Slider1() const { return slider1_; }
    QTreeWidget* ListView1() const { return listView1_; }
    QPushButton* XPButton1() const { return xpButton1_; }

private:
    void CostruisciFinestra();
    void ImpostaCursore();

    const CombiFiltroA& controllo_;
    QSlider* slider1_ = nullptr;
    QTreeWidget* listView1_ = nullptr;
    QPushButton* xpButton1_ = nullptr;
};
