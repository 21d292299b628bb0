#pragma once
// "Riduzione colonne": the user picks a columns file and a guarantee
// ("6 - 1" keeps every dropped column within 5 shared numbers of a kept one,
// "6 - 2" within 4, "6 - 3" within 3) and starts the control's reduction,
// which reports its phases into LabInfo and its progress into PanPerc. The
// columns left become the control's columns. While the reduction runs the
// window cannot be closed: the second button asks to stop it, and the window
// closes as soon as the stopped run has produced its columns.

#include <QDialog>

#include <memory>

class CombiFiltroA;
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class ServizioDialoghi;

namespace combi {
class OsservatoreRiduzione;
}

class F_Riduzione : public QDialog {
    Q_OBJECT
public:
    // The window registers itself with `controllo` as the view of every
    // reduction while it lives. Both arguments must outlive the window.
    F_Riduzione(CombiFiltroA& controllo, ServizioDialoghi& dialoghi, QWidget* genitore = nullptr);

    // The view of one reduction on this window's labels; it outlives the
    // window harmlessly (it then shows nothing).
    std::unique_ptr<combi::OsservatoreRiduzione> Osservatore();

    // The commands of the window, as its buttons run them.
    void ScegliFile();    // Command1
    void Avvia();         // XPButton1(0)
    void ChiudiOFerma();  // XPButton1(1)

    bool Occupato() const { return occupato_; }

    QComboBox* cmbRiduzione() const { return cmbRiduzione_; }
    QPushButton* Command1() const { return command1_; }
    QLabel* labFile() const { return labFile_; }
    QLabel* LabColonne() const { return labColonne_; }
    QLabel* LabColonneRid() const { return labColonneRid_; }
    QLabel* LabInfo() const { return labInfo_; }
    QProgressBar* PanPerc() const { return panPerc_; }
    QPushButton* XPButton1(int indice) const;  // 0 start, 1 close or stop

public slots:
    // Refused while a reduction runs.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void CostruisciFinestra();
    QLabel* CreaEtichetta(const char* nome);
    void GaranziaCambiata();
    void AbilitaScelte(bool abilita);

    CombiFiltroA& controllo_;
    ServizioDialoghi& dialoghi_;
    QComboBox* cmbRiduzione_ = nullptr;
    QPushButton* command1_ = nullptr;
    QLabel* labFile_ = nullptr;
    QLabel* labColonne_ = nullptr;
    QLabel* labColonneRid_ = nullptr;
    QLabel* labInfo_ = nullptr;
    QProgressBar* panPerc_ = nullptr;
    QPushButton* xpButton1_[2] = {};
    bool occupato_ = false;
    bool chiusuraRichiesta_ = false;  // a stop was confirmed: close when the run ends
};
