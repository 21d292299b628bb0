#pragma once
// "Riduzione colonne": the user picks a columns file of one class N (2..10)
// and a guarantee ("N - 1" keeps every dropped column within N - 1 shared
// numbers of a kept one, "N - 2" within N - 2, "N - 3" within N - 3) and
// starts the control's reduction, which reports its phases into LabInfo and
// its progress into PanPerc. A file of another class, or of mixed classes,
// is refused when it is chosen. The columns left become the control's
// columns, and LabInfo tells how many went in and how many were kept.
//
// With "Ottimizza" ticked the reduction goes on searching for a smaller set
// with the same guarantee for the seconds of TxtSecondi: LabInfo and a small
// chart show the best size found so far against the time, and PanPerc the
// time spent. Stop keeps the best set found and the window stays open to show
// it. A stop of the plain reduction closes the window as soon as the stopped
// run has produced its columns. While a reduction runs the window cannot be
// closed: the second button asks to stop it.

#include "DialogoConLavoro.h"

#include <cstddef>
#include <memory>

class CombiFiltroA;
class QChartView;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineSeries;
class QProgressBar;
class QPushButton;
class QSpinBox;
class ServizioDialoghi;

namespace combi {
class OsservatoreOttimizzazione;
}

class F_Riduzione : public DialogoConLavoro {
    Q_OBJECT
public:
    // The window registers itself with `controllo` as the view of every
    // reduction while it lives. Both arguments must outlive the window.
    F_Riduzione(CombiFiltroA& controllo, ServizioDialoghi& dialoghi, QWidget* genitore = nullptr);

    // The view of one reduction on this window; it outlives the window
    // harmlessly (it then shows nothing).
    std::unique_ptr<combi::OsservatoreOttimizzazione> Osservatore();

    // The commands of the window, as its buttons run them.
    void ScegliFile();    // Command1
    void Avvia();         // XPButton1(0)
    void ChiudiOFerma();  // XPButton1(1)

    // What the view shows, as the reduction reports it.
    void MostraFase(const QString& testo);
    void MostraPercentuale(int percento);
    void MostraMigliore(std::size_t colonne, double secondi);

    // The class of the chosen file's columns; 0 before a file is chosen or
    // for a file with no column.
    int Classe() const { return classe_; }

    QComboBox* cmbRiduzione() const { return cmbRiduzione_; }
    QPushButton* Command1() const { return command1_; }
    QLabel* labFile() const { return labFile_; }
    QLabel* LabClasse() const { return labClasse_; }
    QLabel* LabColonne() const { return labColonne_; }
    QLabel* LabColonneRid() const { return labColonneRid_; }
    QLabel* LabInfo() const { return labInfo_; }
    QProgressBar* PanPerc() const { return panPerc_; }
    QCheckBox* ChkOttimizza() const { return chkOttimizza_; }
    QSpinBox* TxtSecondi() const { return txtSecondi_; }
    QChartView* GraficoMigliori() const { return grafico_; }
    QLineSeries* SerieMigliori() const { return serie_; }
    QPushButton* XPButton1(int indice) const;  // 0 start, 1 close or stop

private:
    void CostruisciFinestra();
    void CreaOttimizzazione(class QVBoxLayout* colonna);
    void GaranziaCambiata();
    void OttimizzaCambiato();
    void AbilitaScelte(bool abilita);
    bool LeggiClasse(const QString& file);
    void AbilitaVoci();
    void AzzeraGrafico();
    void MostraEsito(bool ottimizzata);

    CombiFiltroA& controllo_;
    ServizioDialoghi& dialoghi_;
    QComboBox* cmbRiduzione_ = nullptr;
    QPushButton* command1_ = nullptr;
    QLabel* labFile_ = nullptr;
    QLabel* labClasse_ = nullptr;
    QLabel* labColonne_ = nullptr;
    QLabel* labColonneRid_ = nullptr;
    QLabel* labInfo_ = nullptr;
    QProgressBar* panPerc_ = nullptr;
    QCheckBox* chkOttimizza_ = nullptr;
    QSpinBox* txtSecondi_ = nullptr;
    QChartView* grafico_ = nullptr;
    QLineSeries* serie_ = nullptr;
    QPushButton* xpButton1_[2] = {};
    int classe_ = 0;
    bool chiusuraRichiesta_ = false;  // a stop was confirmed: close when the run ends
    double secondiMassimi_ = 0;  // of the running search, the chart's time axis
};
