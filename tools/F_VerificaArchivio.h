#pragma once
// "Verifica su archivio": the control's kept columns against every draw of
// the user's archive in a game, a wheel (or all) and a range of dates. The
// window shows the totals by points as the winnings check does, the draws
// with hits (sortable, double click opens the winnings check on that draw),
// a chart of the hits over time and, with the stake and the prize table the
// user types, the money staked and won per year. The archive's path, the
// stake and the prize tables are kept in the host's settings.

#include <QDateTime>
#include "DialogoConLavoro.h"

#include <cstdint>

#include "ArchivioEstrazioni.h"
#include "BilancioStorico.h"
#include "ImpostazioniStorico.h"
#include "VerificaStorico.h"

class CombiFiltroA;
class QChartView;
class QComboBox;
class QDateEdit;
class QDoubleSpinBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QSettings;
class QTabWidget;
class QTableWidget;
class QTreeWidget;
class QTreeWidgetItem;
class ServizioDialoghi;

class F_VerificaArchivio : public DialogoConLavoro {
    Q_OBJECT
public:
    // The columns, the class and the game come from `controllo`; every box
    // goes through `dialoghi`; `impostazioni` keeps what the window remembers.
    // All three must outlive the window. A remembered archive is read at once.
    F_VerificaArchivio(CombiFiltroA& controllo, ServizioDialoghi& dialoghi, QSettings& impostazioni,
                       QWidget* genitore = nullptr);

    // The commands, as the buttons and the lists run them.
    void ScegliArchivio();                 // CmdArchivio
    void Verifica();                       // XPButton1(0)
    void ChiudiOFerma();                   // XPButton1(1): closes, or asks to stop a running check
    void OrdinaEstrazioni(int colonna);    // header click, 1-based: the same column flips the order
    void ApriSpoglio(QTreeWidgetItem* riga);  // double click on a draw
    // How the check shares its work: threads (0: one per core) and draws per
    // group (0: automatic). Tests use one thread and small groups, so that a
    // Stop falls between two groups.
    void ImpostaDivisione(int thread, size_t estrazioniPerGruppo);

    const combi::EsitoStorico& Esito() const { return esito_; }

    QLabel* LabArchivio() const { return labArchivio_; }
    QLabel* LabInfo() const { return labInfo_; }
    QComboBox* CmbGioco() const { return cmbGioco_; }
    QComboBox* CmbRuota() const { return cmbRuota_; }
    QDateEdit* TxtDal() const { return txtDal_; }
    QDateEdit* TxtAl() const { return txtAl_; }
    QComboBox* CmbPuntiMin() const { return cmbPuntiMin_; }
    QDoubleSpinBox* TxtPosta() const { return txtPosta_; }
    QTableWidget* GrdPremi() const { return grdPremi_; }
    QTabWidget* TabRisultati() const { return tabRisultati_; }
    QTreeWidget* LvRiepilogo() const { return lvRiepilogo_; }
    QTreeWidget* LvEstrazioni() const { return lvEstrazioni_; }
    QTreeWidget* LvBilancio() const { return lvBilancio_; }
    QChartView* Grafico() const { return grafico_; }
    QProgressBar* PanPerc() const { return panPerc_; }
    QPushButton* XPButton1(int indice) const { return pulsanti_[indice]; }

private:
    void CostruisciFinestra();
    void CreaScelte(class QVBoxLayout* colonna);
    void CreaPagine(class QVBoxLayout* colonna);
    void CreaPulsanti(class QVBoxLayout* colonna);
    void CaricaArchivio(const QString& percorso);
    void SegnalaScartate();
    void AggiornaArchivioSeCambiato();
    void GiocoCambiato();
    void DateDelGioco();
    void RiempiPremi();
    void PremioCambiato(int riga);
    bool Controlla();
    void Esegui();
    void MostraRiepilogo();
    void MostraEstrazioni();
    void MostraBilancio();
    void RiordinaEstrazioni();
    void Occupa(bool occupato);
    combi::GiocoArchivio Gioco() const;
    combi::ParametriStorico Parametri() const;

    CombiFiltroA& controllo_;
    ServizioDialoghi& dialoghi_;
    ImpostazioniStorico impostazioni_;
    QString percorsoArchivio_;
    QDateTime modificaArchivio_;     // the file's time when it was read
    combi::Archivio archivio_;
    combi::EsitoStorico esito_;
    int64_t colonneVerificate_ = 0;
    combi::TabellaPremi premi_{};    // the table on screen, for giocoPremi_ and the control's class
    combi::GiocoArchivio giocoPremi_ = combi::GiocoArchivio::kLotto;
    bool riempiendoPremi_ = false;
    bool stopRichiesto_ = false;
    int thread_ = 0;
    size_t estrazioniPerGruppo_ = 0;
    int16_t colonnaOrdinamento_ = 0;
    int32_t ordineOrdinamento_ = 0;

    QLabel* labArchivio_ = nullptr;
    QPushButton* cmdArchivio_ = nullptr;
    QLabel* labInfo_ = nullptr;
    QComboBox* cmbGioco_ = nullptr;
    QComboBox* cmbRuota_ = nullptr;
    QDateEdit* txtDal_ = nullptr;
    QDateEdit* txtAl_ = nullptr;
    QComboBox* cmbPuntiMin_ = nullptr;
    QDoubleSpinBox* txtPosta_ = nullptr;
    QTableWidget* grdPremi_ = nullptr;
    QTabWidget* tabRisultati_ = nullptr;
    QTreeWidget* lvRiepilogo_ = nullptr;
    QTreeWidget* lvEstrazioni_ = nullptr;
    QTreeWidget* lvBilancio_ = nullptr;
    QChartView* grafico_ = nullptr;
    QProgressBar* panPerc_ = nullptr;
    QPushButton* pulsanti_[2] = {};
};
