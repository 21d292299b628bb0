#pragma once
// "Spoglio vincite": after a draw the user types the drawn numbers and sees
// which kept columns of the control win ("Vincite"), how the drawn numbers
// fare against the conditions of the grid ("Confronto condizioni") and how
// many columns score each number of points ("Riepilogo").

#include <QDialog>

#include <cstdint>

#include "Spoglio.h"

class CombiFiltroA;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QTreeWidget;
class ServizioDialoghi;

class F_Spoglio : public QDialog {
    Q_OBJECT
public:
    // Works on the kept columns, the class and the conditions of `controllo`;
    // every box goes through `dialoghi`. Both must outlive the dialog.
    F_Spoglio(CombiFiltroA& controllo, ServizioDialoghi& dialoghi, QWidget* genitore = nullptr);

    // XPButton1(0): refuses a wrong draw with its message, otherwise fills
    // the three pages.
    void Verifica();
    // Column click on ListView1 (1-based): the same column flips the order,
    // another one sorts it descending.
    void OrdinaVincite(int colonna);

    // The sort of ListView1 kept for the dialog's lifetime: column 0 means
    // never sorted; order 1 descending, 0 ascending.
    int16_t ColonnaOrdinamento() const { return colonnaOrdinamento_; }
    int32_t OrdineOrdinamento() const { return ordineOrdinamento_; }

    QLineEdit* Text1() const { return text1_; }
    // Under the draw box: the numbers as they were read ("Numeri letti: 3 12 24").
    QLabel* LabNumeriLetti() const { return labNumeriLetti_; }
    QComboBox* CmbPuntiMin() const { return cmbPuntiMin_; }
    QPushButton* XPButton1(int indice) const { return pulsanti_[indice]; }
    QTabWidget* TabStrip1() const { return tabStrip1_; }
    QTreeWidget* ListView1() const { return listView1_; }  // "Vincite"
    QTreeWidget* ListView2() const { return listView2_; }  // "Confronto condizioni"
    QTreeWidget* ListView3() const { return listView3_; }  // "Riepilogo"

private:
    void CreaIntestazione(class QVBoxLayout* colonna);
    void CreaPagine(class QVBoxLayout* colonna);
    void CreaPulsanti(class QVBoxLayout* colonna);
    void RiempiPuntiMinimi();
    void MostraNumeriLetti();
    void VerificaVincite();
    void ConfrontaCondizioni();
    void MostraVincite(const combi::EsitoSpoglio& esito);
    void MostraRiepilogo(const combi::EsitoSpoglio& esito);
    void RiordinaVincite();

    CombiFiltroA& controllo_;
    ServizioDialoghi& dialoghi_;
    QLineEdit* text1_ = nullptr;
    QLabel* labNumeriLetti_ = nullptr;
    QComboBox* cmbPuntiMin_ = nullptr;
    QPushButton* pulsanti_[2] = {};
    QTabWidget* tabStrip1_ = nullptr;
    QTreeWidget* listView1_ = nullptr;
    QTreeWidget* listView2_ = nullptr;
    QTreeWidget* listView3_ = nullptr;
    int16_t colonnaOrdinamento_ = 0;
    int32_t ordineOrdinamento_ = 0;
};
