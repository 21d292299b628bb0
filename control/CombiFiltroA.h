#pragma once
// CombiFiltroA: the control a host embeds to build and develop conditioned
// systems. It owns the conditions grid, the recovery list, the panel and the
// developed columns. Everything runs on the host's user-interface thread; a
// development keeps the window alive by pumping events every 10000 columns.
//
// The implementation is split by concern:
//   CombiFiltroA.cpp          the host's interface, persisted properties, life cycle
//   CombiFiltroAPannello.cpp  panel, toolbar, combos, commands and their states
//   CombiFiltroAGriglia.cpp   creating, editing and moving conditions in the grid
//   CombiFiltroASviluppo.cpp  development, stop and worker progress
//   CombiFiltroAFile.cpp      system file and columns file

#include <QHash>
#include <QString>
#include <QWidget>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "CampiLavoratori.h"
#include "Colonna.h"
#include "ColonneSviluppate.h"
#include "Condizione.h"
#include "FileSistema.h"
#include "RiduzioneOttimizzata.h"
#include "Sviluppo.h"

class ArchivioProprieta;
class FabbricaEditori;
class EditoreCondizione;
class GrigliaCondizioni;
class GrigliaNumeri;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QToolBar;
class QToolButton;
class ServizioDialoghi;

enum eMotoreSviluppo : int16_t {
    interno = 1,  // development inside this process
    esterno = 2,  // development by external workers
};

class CombiFiltroA : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString DirSistemi READ dirSistemi WRITE setDirSistemi)
    Q_PROPERTY(double ColonneIntegrali READ ColonneIntegrali)
    Q_PROPERTY(int MotoreSviluppo READ MotoreSviluppo)
    Q_PROPERTY(int classe READ classe WRITE setClasse)
    Q_PROPERTY(int NumeroThreadsSviluppo READ NumeroThreadsSviluppo WRITE setNumeroThreadsSviluppo)
    Q_PROPERTY(int QuantitaColonne READ QuantitaColonne)

public:
    // `archivio` keeps "Classe" and "NumeroThreadsSviluppo"; `dialoghi` shows
    // every box and file dialog. Both stay owned by the host and must outlive
    // the control; nullptr gives an in-memory store and the real dialogs.
    explicit CombiFiltroA(ArchivioProprieta* archivio = nullptr, ServizioDialoghi* dialoghi = nullptr,
                          QWidget* genitore = nullptr);
    ~CombiFiltroA() override;

    // ---- Properties ----
    void setDirSistemi(const QString& cartella) { dirSistemi_ = cartella; }
    QString dirSistemi() const { return dirSistemi_; }
    // C(n, k): n picked numbers, k the class combo's value.
    double ColonneIntegrali() const;
    // 0 until a development started here, then interno.
    int16_t MotoreSviluppo() const { return motore_; }
    // Read: the class combo's value (stored as Classe). Write: selects the
    // entry through SelezionaVoceCombo; a value without entry clears the
    // selection and changes nothing else.
    int16_t classe();
    void setClasse(int16_t valore);
    // External development workers (not the engine's threads, below).
    int16_t NumeroThreadsSviluppo() const { return numeroThreads_; }
    void setNumeroThreadsSviluppo(int16_t valore);
    // Columns kept by the last development; 0 when none.
    int32_t QuantitaColonne() const;
    // Threads of the engine in a development inside this process; by default
    // one per hardware thread.
    int ThreadMotore() const { return threadMotore_; }
    void setThreadMotore(int quanti) { threadMotore_ = quanti; }

    // ---- Methods of the host and of the dialogs ----
    GrigliaCondizioni* GetGridCond() const { return griglia_; }
    QListWidget* GetLbQuadroRec() const { return lbQuadroRec_; }
    void SetColonnaGrid(int32_t id);
    // When columns are kept, `aRetCol` becomes 0..N with element 0 empty and
    // the kept columns at 1..N; otherwise it is left untouched.
    void GetColonneSviluppo(std::vector<combi::Colonna>& aRetCol) const;
    // The kept columns 1..M as positions 0..M-1, without a copy: a large
    // development keeps them in a mapped file. Valid until the next change.
    std::span<const combi::Colonna> ColonneSviluppo() const { return colonne_.Colonne(); }
    // Column id as "03 17 45 88"; empty when id is not a kept column.
    QString GetColonnaSviluppo(int32_t id) const;
    // aNum[1..] the picked numbers ascending, the rest 0 (aNum[0] unused).
    void GetNumeriSel(std::array<int16_t, 91>& aNum) const;
    int32_t ContaNumeriSel() const;
    void SelezionaNumero(int16_t N, bool b);
    // Enters a condition of type T.Tipo in the next free column; a non-empty
    // sParam fills the type's editor without showing it (types 4..18).
    void InsCondizione(const combi::Condizione& T, const QString& sParam);
    // A whole development from the panel's settings; returns when it ended.
    void GestSviluppo();
    // Before a development: with a condition column left empty before others
    // (which the development does not read) the user is asked whether to go
    // on; true to go on.
    bool ConfermaColonnaVuota();
    // Flags of the host, kept and never read; num outside 1..90 throws
    // combi::Errore 9.
    void SetNum(int16_t num, bool v);
    // Before the host drops the control: clears the registry and unloads the
    // system navigator (the handler registered as "ChiudiNavigatore").
    void Deinit();

    int32_t CalcolaBaricentro(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaPonte(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaAmpiezza(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaDistanzaMinima(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaDistanzaMassima(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaConsecutivi(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaInterruzioni(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaVorticeDiretto(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaVorticeInverso(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaSimmetrieDirette(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaSimmetrieInverse(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaParalleliDiretti(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaParalleliInversi(int16_t nClasse, const combi::Colonna& col) const;
    int32_t CalcolaSequenze(int16_t nClasse, const combi::Colonna& col, const QString& sSeq) const;

    void SalvaFileColonne();
    // Column reduction: reduces the columns file `sFileCol` (columns of one
    // class k, 2..10) so that every dropped column shares at least
    // `nPuntiRichiesti` (1..k) of its numbers with a kept one; the columns
    // left replace the developed ones.
    // The reduction window shows the phases and the percentage (one is
    // opened when none is). Events are pumped after every step, so the
    // window stays alive and StopRiduciColonne can end the run early (the
    // columns not yet eliminated are kept). A missing or empty file is only
    // reported; a failure is reported as "CombiFiltro.RiduciColonne" and
    // changes nothing. During a development the call does nothing.
    void RiduciColonne(const QString& sFileCol, int32_t nPuntiRichiesti);
    // The same, then a search for a smaller set with the same guarantee for
    // as long as `opzioni` allow; StopRiduciColonne ends it with the best set
    // found so far, never larger than RiduciColonne's.
    void RiduciColonneOttimizzate(const QString& sFileCol, int32_t nPuntiRichiesti,
                                  const combi::OpzioniOttimizzazione& opzioni);
    void StopRiduciColonne();
    bool RichiestaStopRiduzione() const { return stopRiduzione_; }
    // What the last reduction did, for the window's summary.
    struct EsitoRiduzione {
        bool eseguita = false;     // columns were read and reduced
        bool interrotta = false;   // a stop ended it
        int64_t ingresso = 0;      // columns in the file
        int64_t tenute = 0;        // columns kept
    };
    const EsitoRiduzione& UltimaRiduzione() const { return esitoRiduzione_; }
    // The reduction window hands over the view of its phase label,
    // percentage and best size so far, asked for at the start of every
    // reduction; a view that answers nullptr (its window is gone) or none at
    // all: the run is unseen.
    using VistaRiduzione = std::function<std::unique_ptr<combi::OsservatoreOttimizzazione>()>;
    void RegistraVistaRiduzione(VistaRiduzione vista) { vistaRiduzione_ = std::move(vista); }

    int16_t GetIdCmbTipoGioco() const;
    QString GetIdCmbTipoGiocoString() const;

    // ---- The conditions grid ----
    void LayOutGrid();
    // Creates or replaces the condition of `colonna` (0: the next free one,
    // updated to the column used) through the type's editor.
    void GestisciCondizione(int tipo, int16_t& colonna, const QString& sParam);
    int16_t PrimaColonnaLibera() const;
    int16_t ContaCondizioniInLink(int colonna) const;
    int16_t UltimaColonnaUsata() const;
    void ModificaCondizione();
    void InserisciColonna();
    void EliminaCondizione();
    void CambiaLarghezzaColonne(int passo);

    // ---- Panel ----
    // A toolbar button or menu entry by key (any letter case), as if the user
    // pressed it; nothing happens while it is disabled.
    void EseguiComando(const QString& chiave);
    QToolButton* Pulsante(const QString& chiave) const;
    QAction* VoceMenu(const QString& chiave) const;
    QComboBox* CmbTipoGioco() const { return cmbTipoGioco_; }
    QComboBox* CmbClasse() const { return cmbClasse_; }
    QComboBox* CmbRid() const { return cmbRid_; }
    GrigliaNumeri* Numeri() const { return numeri_; }
    QLineEdit* LabNumSel() const { return labNumSel_; }
    QLineEdit* LabIntegrale() const { return labIntegrale_; }
    QLineEdit* LabSviluppate() const { return labSviluppate_; }
    QLineEdit* LabCondizionate() const { return labCondizionate_; }
    QLineEdit* LabGaranzia() const { return labGaranzia_; }
    // "Colonne previste: N", the live count of the system on screen.
    QLabel* LabPreviste() const { return labPreviste_; }
    // Hidden fields of the external workers, i = 1..NumeroThreadsSviluppo.
    QLineEdit* TxtPMin(int i) const { return lavoratori_->TxtPMin(i); }
    QLineEdit* TxtPMax(int i) const { return lavoratori_->TxtPMax(i); }
    QLineEdit* txtMsgFromDll(int i) const { return lavoratori_->txtMsgFromDll(i); }

    bool SistemaModificato() const { return modificato_; }
    void SegnaModificato() { ImpostaModificato(true); }
    // The modified check of "New" and "Open": true when the system is
    // unmodified or the user agrees to drop it.
    bool ConsentiSenzaSalvare();
    // The check before the host's window closes: "Salvare le modifiche?"
    // with "Salva" (true once saved), "Non salvare" (true) and "Annulla"
    // (false); true at once when nothing is unsaved.
    bool ConsentiChiusura();
    QString FileSistema() const { return fileSistema_; }
    bool InSviluppo() const { return inSviluppo_; }
    // A development or a reduction is running.
    bool Occupato() const { return inSviluppo_ || inRiduzione_; }
    // The per-condition counters of the last development.
    const combi::TabellaCondizioni& CondizioniUltimoSviluppo() const { return condizioniSviluppo_; }
    // The counters for the condition effect report: after a development in
    // this process a copy of its table, otherwise the sums over the files that
    // the external workers left (a missing or broken file adds nothing).
    void RaccogliCondizioni(combi::TabellaCondizioni& tabella) const;
    // Appends the columns of a worker's columns file to the developed columns,
    // as many as its length / 20 rounded (a last record cut short past its
    // half counts, zero-filled). Throws combi::Errore when the file is
    // missing or cannot be read.
    void AccodaFileColonne(const QString& file);
    // A development by external workers: whoever starts them calls
    // IniziaSviluppoEsterno (start time, busy panel, no columns); the workers'
    // completion fields then end the run. AnnullaSviluppoEsterno ends it
    // without a result (a worker failed or the user stopped it).
    // `cartellaCorsa`: the run's own folder, where the workers leave their
    // counters (empty: the temporary folder). `riduciAllaFine`: the workers
    // developed without "Riduzione N-K", which a share cannot apply alone;
    // the merge applies the panel's over the merged columns.
    void IniziaSviluppoEsterno(const QString& cartellaCorsa = QString(), bool riduciAllaFine = false);
    void AnnullaSviluppoEsterno();
    // Replaces the developed columns (element 0 empty), e.g. after a reduction.
    void ImpostaColonneSviluppo(std::vector<combi::Colonna> colonne);

    // "New": after the modified check, an empty system.
    void Nuovo();
    // Saves to `fileName`, asking for a name when it is empty. Guarded.
    void Salva(QString& fileName);
    // Asks for a system file and loads it. Guarded.
    void Apri();
    // The system on screen as it would be saved (throws combi::Errore for a
    // grid the decoder refuses); saving it elsewhere leaves the modified flag.
    combi::FileSistema SistemaCorrente() const;
    // Loads a system file without asking. Guarded; false when it failed.
    bool CaricaSistema(const QString& percorso);

    // The recovery panels confirmed in their editor: for panel i (1..20) the
    // texts of its minimum and maximum boxes. Rebuilds LbQuadroRec.
    void RicostruisciQuadri(const std::array<std::array<QString, 2>, 21>& minMax);

    // ---- Extension points ----
    // Editors of the condition types; the control keeps only "LinkClose".
    void ImpostaFabbricaEditori(FabbricaEditori* fabbrica) { fabbrica_ = fabbrica; }
    // Handlers of the commands whose windows live elsewhere ("QuadroRecuperi",
    // "VisualizzaColonne", "Naviga", "EffettoCondizioni", "ConfrontoCondSuCol",
    // "Riduzione"); without one the command says it is not available yet.
    // "AggiornaNavigatore" is called after a condition is deleted;
    // "StopLavoratori" when "Stop" is confirmed during an external development;
    // "ApriFinestraRiduzione" when a reduction starts with no window to show it.
    // The keys are those of ChiaviComandi.h; any other key throws
    // std::invalid_argument, so a misspelt one shows as soon as it is registered.
    void RegistraComando(const QString& chiave, std::function<void()> gestore);
    // The clock of the development time, in seconds (tests fake it).
    void ImpostaOrologio(std::function<double()> orologio) { orologio_ = std::move(orologio); }

signals:
    // The system on screen became modified or saved; its file changed.
    void ModificatoCambiato(bool modificato);
    void FileSistemaCambiato(const QString& percorso);
    // A run (development or reduction) started or ended.
    void OccupatoCambiato(bool occupato);
    // A save went well: what was saved where, for the host's status bar.
    void Salvato(const QString& messaggio);
    // The "Condizioni" button itself was pressed.
    void CondizioniPressed();
    // "StampaSk" with columns kept: print them for the game sTipogioco.
    void StampaSk(QString& sTipogioco);

private:
    // Panel (CombiFiltroAPannello.cpp)
    void CostruisciPannello();
    QWidget* CostruisciBarra();
    QWidget* CostruisciFondo();
    void RiempiClasseERiduzione();
    void ClasseCambiata();
    void NumeriCambiati();
    void AggiornaIntegrale();
    void AggiornaGaranzia();
    void ImpostaStatoSviluppo(bool inCorso);
    void AggiornaStatoOccupato();
    void ApplicaGiocoInAttesa();
    void GiocoScelto();
    std::optional<combi::ParametriSviluppo> ParametriDelPannello() const;
    void RichiediConteggio();
    void AggiornaComandiColonne();
    void SegnaModificatoDalPannello();
    void ImpostaModificato(bool modificato);
    void ImpostaFileSistema(const QString& percorso);
    void EseguiPulsante(const QString& chiave);
    static const QHash<QString, void (*)(CombiFiltroA&)>& GestoriPulsanti();
    static bool ChiaveEsterna(const QString& chiave);
    std::function<void()> Gestore(const QString& chiave) const { return comandiEsterni_.value(chiave.toLower()); }
    void NuovaCondizione(int tipo);
    void StampaSchedine();
    void EseguiVoceMenu(const QString& chiave);
    void EseguiEsterno(const QString& chiave);
    void ControllaCompletamento();
    void RiduciColonneUnite();
    void ChiediStop();

    // Grid (CombiFiltroAGriglia.cpp)
    void Gestisci(int tipo, int16_t& colonna, const QString& sParam,
                  std::unique_ptr<EditoreCondizione> editore);
    std::unique_ptr<EditoreCondizione> CreaEditore(int tipo);

    // Development (CombiFiltroASviluppo.cpp)
    combi::EsitoSviluppo SviluppoInterno();
    // The view of a reduction about to start (CombiFiltroA.cpp).
    std::unique_ptr<combi::OsservatoreOttimizzazione> VistaDellaRiduzione();
    // Reads the file and runs `riduci` on its columns with the control's
    // view, pump and stop; the columns left replace the developed ones.
    using Riduttore = std::function<combi::RisultatoRiduzione(const std::vector<combi::Colonna>&,
                                                              combi::OsservatoreOttimizzazione&)>;
    void EseguiRiduzione(const QString& sFileCol, const Riduttore& riduci);

    // File (CombiFiltroAFile.cpp)
    void CaricaSistemaNonProtetta(const QString& percorso);

    ArchivioProprieta* archivio_ = nullptr;
    ServizioDialoghi* dialoghi_ = nullptr;
    std::unique_ptr<ArchivioProprieta> archivioProprio_;
    std::unique_ptr<ServizioDialoghi> dialoghiPropri_;
    FabbricaEditori* fabbrica_ = nullptr;
    QHash<QString, std::function<void()>> comandiEsterni_;  // lower-case keys
    std::function<double()> orologio_;

    // Widgets
    GrigliaCondizioni* griglia_ = nullptr;
    QListWidget* lbQuadroRec_ = nullptr;
    GrigliaNumeri* numeri_ = nullptr;
    QToolBar* barra_ = nullptr;
    QHash<QString, QToolButton*> pulsanti_;  // lower-case keys
    QHash<QString, QAction*> vociMenu_;      // lower-case keys
    QComboBox* cmbTipoGioco_ = nullptr;
    QComboBox* cmbClasse_ = nullptr;
    QComboBox* cmbRid_ = nullptr;
    QLineEdit* labNumSel_ = nullptr;
    QLineEdit* labIntegrale_ = nullptr;
    QLineEdit* labSviluppate_ = nullptr;
    QLineEdit* labCondizionate_ = nullptr;
    QLineEdit* labGaranzia_ = nullptr;
    QLabel* labColoreColSel_ = nullptr;
    CampiLavoratori* lavoratori_ = nullptr;
    class ConteggioDalVivo* conteggio_ = nullptr;
    QLabel* labPreviste_ = nullptr;
    double inizioEsterno_ = 0;  // clock reading when the workers were started
    QString cartellaCorsa_;     // where the last external run's workers left their files
    bool riduciAllaFine_ = false;

    // State
    QString dirSistemi_;
    QString fileSistema_;
    bool modificato_ = false;
    combi::ColonneSviluppate colonne_;  // the kept columns 1..M, held from position 0
    combi::TabellaCondizioni condizioniSviluppo_;
    int16_t motore_ = 0;
    int16_t numeroThreads_ = 5;
    int16_t classe_ = 5;
    int threadMotore_ = 0;
    std::array<bool, 91> flagNumeri_{};
    bool caricamento_ = true;  // properties being restored: nothing is persisted
    bool inSviluppo_ = false;
    bool inRiduzione_ = false;
    int giocoAttivo_ = 0;     // the game the class list belongs to
    int giocoInAttesa_ = -1;  // a game chosen during a run, applied when it ends
    bool richiestaStop_ = false;
    bool stopRiduzione_ = false;
    VistaRiduzione vistaRiduzione_;
    EsitoRiduzione esitoRiduzione_;
};
