// The results of external development workers: each worker fills its three
// hidden fields (tested count, kept count, and at the end the path of its
// columns file); when every completion field holds a path the files are
// appended in field order and the panel leaves its busy state.

#include "CombiFiltroA.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

#include <cmath>

#include "ContatoriLavoratori.h"
#include "LetturaNumero.h"
#include "ProtocolloLavoratori.h"
#include "UnioneQuote.h"
#include "UtilitaSchermo.h"
#include "FileBinario.h"
#include "FileColonne.h"
#include "SegnalazioneErrori.h"
#include "ServizioDialoghi.h"
#include "Formato.h"
#include "Percorsi.h"

void CombiFiltroA::RaccogliCondizioni(combi::TabellaCondizioni& tabella) const {
    if (motore_ == interno) {
        tabella = condizioniSviluppo_;
        return;
    }
    const std::string cartella = cartellaCorsa_.isEmpty() ? combi::CartellaTemp() : combi::AggiungiBarra(cartellaCorsa_.toStdString());
    tabella = combi::SommaContatoriLavoratori(combi::FileSistemaDellaCorsa(cartella), numeroThreads_);
}

// The count is the length / 20 rounded, halves to the even neighbour, so a
// record cut after more than half of it still counts and its missing bytes
// read as 0. A missing file throws (error 53): the worker's columns are lost.
void CombiFiltroA::AccodaFileColonne(const QString& file) {
    std::vector<uint8_t> dati = combi::LeggiFileBinario(file.toStdString(), combi::kMassimoFileColonne);
    const auto quante = static_cast<size_t>(std::nearbyint(double(dati.size()) / double(combi::kLunghezzaColonna)));
    if (quante < 1) return;
    dati.resize(quante * combi::kLunghezzaColonna, 0);
    colonne_.Accoda(combi::DecodificaColonne(dati.data(), dati.size()));
}

// "Riduzione N-K" over the merged shares, in enumeration order, as one
// development applies it.
void CombiFiltroA::RiduciColonneUnite() {
    const int classe = combi::LeggiInt16(cmbClasse_->currentText().toStdString());
    const int riduzione = combi::LeggiInt16(cmbRid_->currentText().toStdString());
    if (combi::DistanzaRiduzione(classe, riduzione) < 1) return;
    combi::ColonneSviluppate ridotte;
    combi::ApplicaRiduzione(colonne_.Colonne(), classe, riduzione, ridotte);
    colonne_ = std::move(ridotte);
    labCondizionate_->setText(TestoContatore(double(colonne_.Quante())));
}

void CombiFiltroA::IniziaSviluppoEsterno(const QString& cartellaCorsa, bool riduciAllaFine) {
    motore_ = esterno;
    cartellaCorsa_ = cartellaCorsa;
    riduciAllaFine_ = riduciAllaFine;
    inizioEsterno_ = orologio_();
    colonne_.Svuota();
    condizioniSviluppo_.clear();
    richiestaStop_ = false;
    lavoratori_->Azzera();
    ImpostaStatoSviluppo(true);
}

void CombiFiltroA::AnnullaSviluppoEsterno() {
    // Some workers may already have reported: their partial results are dropped.
    lavoratori_->SvuotaCompletamento(true);
    colonne_.Svuota();
    if (inSviluppo_) ImpostaStatoSviluppo(false);
}

// Runs on every change of a completion field. Clearing the fields below
// raises further changes; they find fewer than W filled and stop at once.
void CombiFiltroA::ControllaCompletamento() {
    const QStringList file = lavoratori_->FileCompleti();
    if (file.isEmpty()) return;
    const bool accodati = EseguiProtetta(*dialoghi_, "CombiFiltro.txtMsgFromDll_Change", [&] {
        for (const QString& f : file) AccodaFileColonne(f);
        if (riduciAllaFine_) RiduciColonneUnite();
    });
    // One worker's columns missing would leave a hole in the enumeration:
    // after the report nothing is kept.
    if (!accodati) colonne_.Svuota();
    lavoratori_->SvuotaCompletamento(false);
    ImpostaStatoSviluppo(false);
    if (!accodati) return;
    const auto secondi = static_cast<int32_t>(std::lround(orologio_() - inizioEsterno_));
    dialoghi_->Informazione(QString(), QString::fromStdString(combi::TempoTrascorso(secondi)));
}
