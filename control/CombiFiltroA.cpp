// The host's side of the control: construction, persisted properties, the
// public members read and called by the host and by the dialogs.

#include "CombiFiltroA.h"

#include "ChiaviComandi.h"

#include <QComboBox>
#include <QDateTime>
#include <QFileInfo>
#include <QListWidget>

#include <cmath>
#include <stdexcept>
#include <thread>

#include "ArchivioProprieta.h"
#include "Conteggi.h"
#include "Errore.h"
#include "GrigliaCondizioni.h"
#include "GrigliaNumeri.h"
#include "LetturaNumero.h"
#include "Misure.h"
#include "PompaEventi.h"
#include "RegistroControllo.h"
#include "Riduzione.h"
#include "SegnalazioneErrori.h"
#include "ServizioDialoghiQt.h"
#include "UtilitaSchermo.h"
#include "Formato.h"

namespace {

const QString kChiaveClasse = "Classe";
const QString kChiaveThreads = "NumeroThreadsSviluppo";
constexpr int16_t kPredefinito = 5;

}  // namespace

CombiFiltroA::CombiFiltroA(ArchivioProprieta* archivio, ServizioDialoghi* dialoghi, QWidget* genitore)
    : QWidget(genitore), archivio_(archivio), dialoghi_(dialoghi) {
    setObjectName("CombiFiltroA");
    if (archivio_ == nullptr) {
        archivioProprio_ = std::make_unique<ArchivioMemoria>();
        archivio_ = archivioProprio_.get();
    }
    if (dialoghi_ == nullptr) {
        dialoghiPropri_ = std::make_unique<ServizioDialoghiQt>(this);
        dialoghi_ = dialoghiPropri_.get();
    }
    orologio_ = [] { return QDateTime::currentMSecsSinceEpoch() / 1000.0; };
    threadMotore_ = std::max(1u, std::thread::hardware_concurrency());

    CostruisciPannello();
    LayOutGrid();
    RegistraControllo(this);

    // Restoring the persisted properties.
    const int16_t classeSalvata = archivio_->LeggiIntero(kChiaveClasse, kPredefinito);
    // With nothing persisted, one development worker per core.
    numeroThreads_ = archivio_->LeggiIntero(kChiaveThreads, int16_t(std::clamp(std::thread::hardware_concurrency(), 1u, 64u)));
    lavoratori_->Ricrea(numeroThreads_);
    RiempiClasseERiduzione();
    AggiornaComandiColonne();
    classe_ = classeSalvata;
    SelezionaVoceCombo(QString::number(classeSalvata), cmbClasse_);
    cmbRid_->setCurrentIndex(0);
    caricamento_ = false;
    RichiediConteggio();
}

CombiFiltroA::~CombiFiltroA() {
    CancellaControllo(this);
    // The children go one by one: none may call back into a half-gone panel.
    lbQuadroRec_->model()->disconnect(this);
    griglia_->disconnect(this);
}

double CombiFiltroA::ColonneIntegrali() const {
    return combi::CalcolaIntegrali(ContaNumeriSel(), combi::LeggiInt16(cmbClasse_->currentText().toStdString()));
}

int16_t CombiFiltroA::classe() {
    classe_ = combi::LeggiInt16(cmbClasse_->currentText().toStdString());
    return classe_;
}

void CombiFiltroA::setClasse(int16_t valore) {
    if (!SelezionaVoceCombo(QString::number(valore), cmbClasse_)) return;
    classe_ = valore;
    if (!caricamento_) archivio_->ScriviIntero(kChiaveClasse, valore);
}

void CombiFiltroA::setNumeroThreadsSviluppo(int16_t valore) {
    numeroThreads_ = valore;
    archivio_->ScriviIntero(kChiaveThreads, valore);
    lavoratori_->Ricrea(numeroThreads_);
}

int32_t CombiFiltroA::QuantitaColonne() const {
    return static_cast<int32_t>(std::min<uint64_t>(colonne_.Quante(), INT32_MAX));
}

void CombiFiltroA::SetColonnaGrid(int32_t id) { griglia_->PortaInVista(id); }

void CombiFiltroA::GetColonneSviluppo(std::vector<combi::Colonna>& aRetCol) const {
    if (QuantitaColonne() == 0) return;
    const std::span<const combi::Colonna> colonne = colonne_.Colonne();
    aRetCol.assign(1, combi::Colonna{});  // element 0 stays empty
    aRetCol.insert(aRetCol.end(), colonne.begin(), colonne.end());
}

QString CombiFiltroA::GetColonnaSviluppo(int32_t id) const {
    if (id < 1 || id > QuantitaColonne()) return {};
    return QString::fromStdString(combi::TestoColonna(colonne_.Colonne()[size_t(id) - 1], false));
}

void CombiFiltroA::GetNumeriSel(std::array<int16_t, 91>& aNum) const {
    aNum.fill(0);
    int posto = 1;
    for (int n = 1; n <= combi::kMaxNumero; ++n) {
        if (numeri_->Selezionato(n)) aNum[posto++] = static_cast<int16_t>(n);
    }
}

int32_t CombiFiltroA::ContaNumeriSel() const {
    int32_t quanti = 0;
    for (int n = 1; n <= combi::kMaxNumero; ++n) quanti += numeri_->Selezionato(n) ? 1 : 0;
    return quanti;
}

void CombiFiltroA::SelezionaNumero(int16_t N, bool b) { numeri_->ImpostaNumero(N, b); }

void CombiFiltroA::SetNum(int16_t num, bool v) {
    if (num < 1 || num > combi::kMaxNumero) {
        throw combi::Errore(combi::kErroreIndice, "Indice non compreso nell'intervallo");
    }
    flagNumeri_[num] = v;
}

// The statistics preview belongs to the editor that opened it, so there is
// no component of the control's own to release here. The navigator is the
// one window that may still be open: its owner unloads it.
void CombiFiltroA::Deinit() {
    CancellaControllo(this);
    if (const auto chiudi = Gestore(chiavi::kChiudiNavigatore)) chiudi();
}

void CombiFiltroA::ImpostaColonneSviluppo(std::vector<combi::Colonna> colonne) {
    if (!colonne.empty()) colonne.erase(colonne.begin());  // element 0 is empty
    colonne_.Sostituisci(std::move(colonne));
    AggiornaComandiColonne();
}

// ---- Measures: straight to the engine ----

int32_t CombiFiltroA::CalcolaBaricentro(int16_t k, const combi::Colonna& c) const { return combi::CalcolaBaricentro(k, c); }
int32_t CombiFiltroA::CalcolaPonte(int16_t k, const combi::Colonna& c) const { return combi::CalcolaPonte(k, c); }
int32_t CombiFiltroA::CalcolaAmpiezza(int16_t k, const combi::Colonna& c) const { return combi::CalcolaAmpiezza(k, c); }
int32_t CombiFiltroA::CalcolaDistanzaMinima(int16_t k, const combi::Colonna& c) const { return combi::CalcolaDistanzaMinima(k, c); }
int32_t CombiFiltroA::CalcolaDistanzaMassima(int16_t k, const combi::Colonna& c) const { return combi::CalcolaDistanzaMassima(k, c); }
int32_t CombiFiltroA::CalcolaConsecutivi(int16_t k, const combi::Colonna& c) const { return combi::CalcolaConsecutivi(k, c); }
int32_t CombiFiltroA::CalcolaInterruzioni(int16_t k, const combi::Colonna& c) const { return combi::CalcolaInterruzioni(k, c); }
int32_t CombiFiltroA::CalcolaVorticeDiretto(int16_t k, const combi::Colonna& c) const { return combi::CalcolaVorticeDiretto(k, c); }
int32_t CombiFiltroA::CalcolaVorticeInverso(int16_t k, const combi::Colonna& c) const { return combi::CalcolaVorticeInverso(k, c); }
int32_t CombiFiltroA::CalcolaSimmetrieDirette(int16_t k, const combi::Colonna& c) const { return combi::CalcolaSimmetrieDirette(k, c); }
int32_t CombiFiltroA::CalcolaSimmetrieInverse(int16_t k, const combi::Colonna& c) const { return combi::CalcolaSimmetrieInverse(k, c); }
int32_t CombiFiltroA::CalcolaParalleliDiretti(int16_t k, const combi::Colonna& c) const { return combi::CalcolaParalleliDiretti(k, c); }
int32_t CombiFiltroA::CalcolaParalleliInversi(int16_t k, const combi::Colonna& c) const { return combi::CalcolaParalleliInversi(k, c); }

int32_t CombiFiltroA::CalcolaSequenze(int16_t k, const combi::Colonna& c, const QString& sSeq) const {
    return combi::CalcolaSequenze(k, c, sSeq.toStdString());
}

// ---- Column reduction ----

namespace {

// The control's side of a reduction: the window's view (if any) shows the
// phase, the percentage and the best size so far; the control pumps the
// events, so that the stop button and the percentage stay live, and answers
// the stop request that StopRiduciColonne sets meanwhile.
class OsservatoreRiduzioneControllo : public combi::OsservatoreOttimizzazione {
public:
    OsservatoreRiduzioneControllo(std::unique_ptr<combi::OsservatoreOttimizzazione> vista, const bool& stop)
        : vista_(std::move(vista)), stop_(stop) {}
    void Fase(const std::string& testo) override {
        if (vista_) vista_->Fase(testo);
    }
    void Percentuale(int percento) override {
        if (vista_) vista_->Percentuale(percento);
    }
    void MigliorTrovato(std::size_t colonne, double secondi) override {
        if (vista_) vista_->MigliorTrovato(colonne, secondi);
    }
    void ElaboraMessaggi() override { pompa_.Pompa(); }
    bool RichiestaStop() override { return stop_; }

private:
    std::unique_ptr<combi::OsservatoreOttimizzazione> vista_;
    const bool& stop_;
    PompaEventi pompa_;
};

}  // namespace

void CombiFiltroA::RiduciColonne(const QString& sFileCol, int32_t nPuntiRichiesti) {
    EseguiRiduzione(sFileCol, [nPuntiRichiesti](const std::vector<combi::Colonna>& colonne,
                                                combi::OsservatoreOttimizzazione& oss) {
        return combi::RiduciColonne(colonne, nPuntiRichiesti, oss);
    });
}

void CombiFiltroA::RiduciColonneOttimizzate(const QString& sFileCol, int32_t nPuntiRichiesti,
                                            const combi::OpzioniOttimizzazione& opzioni) {
    EseguiRiduzione(sFileCol, [nPuntiRichiesti, opzioni](const std::vector<combi::Colonna>& colonne,
                                                         combi::OsservatoreOttimizzazione& oss) {
        return combi::RiduciColonneOttimizzate(colonne, nPuntiRichiesti, opzioni, oss);
    });
}

void CombiFiltroA::EseguiRiduzione(const QString& sFileCol, const Riduttore& riduci) {
    // Inside a development's event pump only "Stop" reacts: a reduction there
    // would replace the columns under the development, and any box would
    // hold the development behind it. Nor does a reduction start inside one.
    if (Occupato()) return;
    esitoRiduzione_ = {};
    if (!QFileInfo::exists(sFileCol)) {
        dialoghi_->Critico(QString(), "Il file delle colonne non esiste");
        return;
    }
    stopRiduzione_ = false;
    inRiduzione_ = true;
    AggiornaStatoOccupato();
    EseguiProtetta(*dialoghi_, "CombiFiltro.RiduciColonne", [&] {
        const std::vector<combi::Colonna> colonne = combi::LeggiColonneDaRidurre(sFileCol.toStdString());
        // Nothing to reduce: keeping the developed columns is more useful
        // than replacing them with an empty set.
        if (colonne.empty()) {
            dialoghi_->Esclamazione(QString(), "Il file delle colonne non contiene colonne");
            return;
        }
        OsservatoreRiduzioneControllo osservatore(VistaDellaRiduzione(), stopRiduzione_);
        combi::RisultatoRiduzione r = riduci(colonne, osservatore);
        esitoRiduzione_ = {true, r.interrotto, int64_t(colonne.size()), int64_t(r.colonne.size())};
        r.colonne.insert(r.colonne.begin(), combi::Colonna{});  // element 0 stays empty
        ImpostaColonneSviluppo(std::move(r.colonne));
    });
    inRiduzione_ = false;
    AggiornaStatoOccupato();
}

// The open reduction window shows the run; without one (a host's call) the
// tools open a window first, so that the progress is seen.
std::unique_ptr<combi::OsservatoreOttimizzazione> CombiFiltroA::VistaDellaRiduzione() {
    auto vista = vistaRiduzione_ ? vistaRiduzione_() : nullptr;
    if (vista) return vista;
    if (const auto apri = Gestore(chiavi::kApriFinestraRiduzione)) apri();
    return vistaRiduzione_ ? vistaRiduzione_() : nullptr;
}

void CombiFiltroA::StopRiduciColonne() { stopRiduzione_ = true; }

int16_t CombiFiltroA::GetIdCmbTipoGioco() const { return static_cast<int16_t>(cmbTipoGioco_->currentIndex()); }

QString CombiFiltroA::GetIdCmbTipoGiocoString() const { return cmbTipoGioco_->currentText(); }

void CombiFiltroA::RegistraComando(const QString& chiave, std::function<void()> gestore) {
    if (!ChiaveEsterna(chiave))
        throw std::invalid_argument("chiave di comando sconosciuta: " + chiave.toStdString());
    comandiEsterni_[chiave.toLower()] = std::move(gestore);
}
