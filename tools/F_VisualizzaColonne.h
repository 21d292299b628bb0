#pragma once
// "Colonne condizionate": the control's kept columns (or a list of columns
// handed over, such as the holes of a guarantee), a page at a time. The
// slider holds the number of the first column shown; the list shows that
// column and the following ones that exist: 21, or as many as the window
// has room for when it is made taller. The mouse wheel and the keys page
// through the columns as the slider does, and a line tells where the page is.

#include <QDialog>

#include <functional>
#include <vector>

#include "Colonna.h"

class CombiFiltroA;
class QLabel;
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

    // Shows `colonne` (column 1 is colonne[0]) under the caption `titolo`.
    F_VisualizzaColonne(std::vector<combi::Colonna> colonne, const QString& titolo, QWidget* genitore = nullptr);

    // The list from the slider's position on.
    void Riempi();
    // Rows of one page: kRighe, or more when the list has room for them.
    int RighePerPagina() const;

    QSlider* Slider1() const { return slider1_; }
    QTreeWidget* ListView1() const { return listView1_; }
    QPushButton* XPButton1() const { return xpButton1_; }
    // "colonna i di N": the first column shown and how many there are.
    QLabel* LabPosizione() const { return labPosizione_; }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    // Where the columns come from: how many there are, and the text of column
    // id (1-based; empty past the last). Both are always set.
    struct Origine {
        std::function<int()> quante;
        std::function<QString(int)> testo;
    };
    F_VisualizzaColonne(Origine origine, const QString& titolo, QWidget* genitore);
    static Origine OrigineElenco(std::vector<combi::Colonna> colonne);

    void CostruisciFinestra();
    void ImpostaCursore();
    bool Rotella(class QWheelEvent* evento);
    bool Tasto(class QKeyEvent* evento);

    Origine origine_;
    QSlider* slider1_ = nullptr;
    QTreeWidget* listView1_ = nullptr;
    QLabel* labPosizione_ = nullptr;
    QPushButton* xpButton1_ = nullptr;
    int rotellaResidua_ = 0;  // wheel angle not yet turned into whole steps
};
