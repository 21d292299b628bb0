#pragma once
// "Quadro recuperi": the bounds of the twenty recovery panels edited at
// once. Only the panels that some condition of the grid uses can be edited
// (their count is shown on yellow); the others keep their bounds.

#include <QDialog>
#include <QStringList>

#include <array>
#include <string>
#include <vector>

#include "TestiGriglia.h"

class GrigliaCondizioni;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

class F_QuadroRecuperi : public QDialog {
    Q_OBJECT
public:
    static constexpr int kQuadri = 20;

    explicit F_QuadroRecuperi(QWidget* genitore = nullptr);

    // Counts the conditions of each panel from the grid columns' "Quadro
    // Rec." row and shows the bounds of the panels in use from the list
    // lines "min,max,attivo". Panel texts outside 1..20 count for no panel.
    void LeggiRecuperiInseriti(const combi::TestiGriglia& testi);
    void LeggiRecuperiInseriti(const GrigliaCondizioni& griglia, const QListWidget& quadri);

    // The 20 list lines from the boxes: "min,max,-1" when both boxes hold
    // text, else "-1,-1,-0".
    std::vector<std::string> RigheQuadri() const;
    // The boxes' texts for panel p at [p] (minimum, maximum), [0] unused.
    std::array<std::array<QString, 2>, kQuadri + 1> MinMax() const;
    // The same, written into the control's list.
    void ScriviQuadri(QListWidget& quadri) const;

    void Mostra();
    QString Tag() const { return tag_; }  // "ddd" after CONFERMA

    QLabel* LabRecInseriti(int p) const { return labRecInseriti_[p]; }
    QLineEdit* TxtMin(int p) const { return txtMin_[p]; }
    QLineEdit* TxtMax(int p) const { return txtMax_[p]; }
    QPushButton* Pulsante(int indice) const { return pulsanti_[indice]; }

private:
    void CreaQuadro(int p, class QGridLayout* griglia, int riga);
    void ImpostaInseriti(int p, int quanti);

    std::array<QLabel*, kQuadri + 1> labRecInseriti_{};
    std::array<QLineEdit*, kQuadri + 1> txtMin_{};
    std::array<QLineEdit*, kQuadri + 1> txtMax_{};
    QPushButton* pulsanti_[2] = {};
    QString tag_;
};
