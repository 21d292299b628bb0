#pragma once
// "Verifica garanzia": what the control's kept columns guarantee.
//  - The table: for a draw of "Estratti" numbers (5 for Lotto, 20 for
//    10ELotto, 6 for SuperEnalotto, or what the user types), for each m, the
//    points the best kept column surely reaches when m of the drawn numbers
//    are among the picked ones.
//  - The holes: the columns to cover (the integral system of the picked
//    numbers in a class, or a columns file the user chooses) that share fewer
//    than "Punti richiesti" numbers with every kept column. "Buchi : H" tells
//    how many; the holes can be opened in the column viewer.
// Both run on the window's thread with the events pumped: the bar shows the
// progress, "Annulla" stops the run (what was found so far is shown), and the
// window cannot be closed meanwhile.

#include "DialogoConLavoro.h"

#include <vector>

#include "Colonna.h"

class CombiFiltroA;
class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QTableWidget;
class ServizioDialoghi;

class F_VerificaGaranzia : public DialogoConLavoro {
    Q_OBJECT
public:
    // The kept columns, the picked numbers, the class and the game are read
    // from `controllo` when the window opens. Both arguments must outlive it.
    F_VerificaGaranzia(CombiFiltroA& controllo, ServizioDialoghi& dialoghi, QWidget* genitore = nullptr);

    // The commands, as the buttons run them.
    void CalcolaTabella();     // CmdTabella
    void CercaBuchi();         // CmdBuchi
    void ScegliFile();         // CmdFile
    void VisualizzaBuchi();    // CmdVisualizza
    void Annulla();            // CmdAnnulla

    const std::vector<combi::Colonna>& Buchi() const { return buchi_; }

    QLabel* LabColonne() const { return labColonne_; }
    QLabel* LabNumeri() const { return labNumeri_; }
    QSpinBox* TxtEstratti() const { return txtEstratti_; }
    QTableWidget* GrdGaranzia() const { return grdGaranzia_; }
    QSpinBox* TxtPunti() const { return txtPunti_; }
    QRadioButton* OptIntegrale() const { return optIntegrale_; }
    QSpinBox* TxtClasse() const { return txtClasse_; }
    QRadioButton* OptFile() const { return optFile_; }
    QLabel* LabFile() const { return labFile_; }
    QLabel* LabBuchi() const { return labBuchi_; }
    QLabel* LabInfo() const { return labInfo_; }
    QProgressBar* PanPerc() const { return panPerc_; }
    QPushButton* CmdTabella() const { return cmdTabella_; }
    QPushButton* CmdBuchi() const { return cmdBuchi_; }
    QPushButton* CmdFile() const { return cmdFile_; }
    QPushButton* CmdVisualizza() const { return cmdVisualizza_; }
    QPushButton* CmdAnnulla() const { return cmdAnnulla_; }
    QPushButton* CmdChiudi() const { return cmdChiudi_; }

private:
    void CostruisciFinestra();
    void CreaTabella(class QVBoxLayout* colonna);
    void CreaBuchi(class QVBoxLayout* colonna);
    void CreaPulsanti(class QVBoxLayout* colonna);
    void LeggiControllo();
    bool ControllaColonne();
    bool ControllaNumeri();
    std::vector<combi::Colonna> ColonneDaCoprire();
    void Occupa(bool occupato);
    void AggiornaAbilitazioni();

    CombiFiltroA& controllo_;
    ServizioDialoghi& dialoghi_;
    std::vector<combi::Colonna> tenute_;
    std::vector<int> numeri_;
    std::vector<combi::Colonna> buchi_;
    bool stop_ = false;

    QLabel* labColonne_ = nullptr;
    QLabel* labNumeri_ = nullptr;
    QSpinBox* txtEstratti_ = nullptr;
    QTableWidget* grdGaranzia_ = nullptr;
    QSpinBox* txtPunti_ = nullptr;
    QRadioButton* optIntegrale_ = nullptr;
    QSpinBox* txtClasse_ = nullptr;
    QRadioButton* optFile_ = nullptr;
    QLabel* labFile_ = nullptr;
    QLabel* labBuchi_ = nullptr;
    QLabel* labInfo_ = nullptr;
    QProgressBar* panPerc_ = nullptr;
    QPushButton* cmdTabella_ = nullptr;
    QPushButton* cmdBuchi_ = nullptr;
    QPushButton* cmdFile_ = nullptr;
    QPushButton* cmdVisualizza_ = nullptr;
    QPushButton* cmdAnnulla_ = nullptr;
    QPushButton* cmdChiudi_ = nullptr;
};
