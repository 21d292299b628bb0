// Creating, editing, inserting and deleting conditions in the grid.

#include "CombiFiltroA.h"

#include "ChiaviComandi.h"

#include "EditoreCondizione.h"
#include "F_LinkClose.h"
#include "GrigliaCondizioni.h"
#include "GrigliaNumeri.h"
#include "SegnalazioneErrori.h"
#include "ServizioDialoghi.h"
#include "Formato.h"

void CombiFiltroA::LayOutGrid() {
    try {
        griglia_->LayOut();
    } catch (...) {
        SegnalaEccezioneCorrente(*dialoghi_, "CombiFiltro.LayOutGrid", 30017);
    }
}

int16_t CombiFiltroA::PrimaColonnaLibera() const { return static_cast<int16_t>(griglia_->PrimaColonnaLibera()); }

int16_t CombiFiltroA::ContaCondizioniInLink(int colonna) const {
    return static_cast<int16_t>(griglia_->ContaCondizioniInLink(colonna));
}

int16_t CombiFiltroA::UltimaColonnaUsata() const { return static_cast<int16_t>(griglia_->UltimaColonnaUsata()); }

void CombiFiltroA::InsCondizione(const combi::Condizione& T, const QString& sParam) {
    EseguiProtetta(*dialoghi_, "CombiFiltro.InsCondizione", [&] {
        int16_t colonna = 0;
        GestisciCondizione(T.Tipo, colonna, sParam);
    });
}

void CombiFiltroA::GestisciCondizione(int tipo, int16_t& colonna, const QString& sParam) {
    Gestisci(tipo, colonna, sParam, nullptr);
}

std::unique_ptr<EditoreCondizione> CombiFiltroA::CreaEditore(int tipo) {
    if (fabbrica_ != nullptr) {
        if (auto editore = fabbrica_->CreaEditore(tipo, this)) return editore;
    }
    if (tipo == combi::kLinkClose) return std::make_unique<F_LinkClose>(this);
    return nullptr;
}

void CombiFiltroA::Gestisci(int tipo, int16_t& colonna, const QString& sParam,
                            std::unique_ptr<EditoreCondizione> editore) {
    // A modal editor during a development would hold the development behind it.
    if (inSviluppo_) return;
    const QString nome = QString::fromStdString(combi::NomeTipoCondizione(tipo));
    if (nome.isEmpty()) return;  // not a condition type: nothing is written
    if (colonna == 0) colonna = PrimaColonnaLibera();
    if (colonna == 0) {
        dialoghi_->Esclamazione(QString(), "Tutte le 200 colonne delle condizioni sono occupate");
        return;
    }
    if (!griglia_->ColonnaInteramenteVisibile(colonna)) griglia_->ImpostaColonnaSinistra(colonna);

    TestiEditore testi;
    if (tipo == combi::kLinkOpen) {
        testi.parametri = QString::fromStdString(combi::TestoVerticale("LinkOpen", 1));
    } else {
        if (!editore) editore = CreaEditore(tipo);
        if (!editore) {
            dialoghi_->Esclamazione(QString(), "L'editor della condizione \"" + nome +
                                                   "\" non è ancora disponibile");
            return;
        }
        if (tipo == combi::kLinkClose) {
            editore->LoadchkPunti(ContaCondizioniInLink(colonna - 1));
            editore->Mostra();
        } else if (tipo == combi::kPuntiColonna) {
            editore->AbilitaNum(*numeri_);
            editore->Mostra();
        } else if (sParam.isEmpty()) {
            editore->Mostra();
        } else {
            try {
                editore->RiempiDaParametri(sParam);
            } catch (...) {
                SegnalaEccezioneCorrente(*dialoghi_, "CombiFiltro.setPuntiSuFrm");
                return;
            }
        }
        if (editore->Tag().isEmpty()) return;  // cancelled: the grid stays as it was
        testi = editore->GetParametri();
    }
    griglia_->ImpostaTesto(1, colonna, nome);
    griglia_->ImpostaTesto(2, colonna, testi.parametri);
    griglia_->ImpostaTesto(3, colonna, testi.punti);
    griglia_->ImpostaTesto(4, colonna, testi.recupero);
    griglia_->ImpostaTesto(5, colonna, testi.quadro);
    SetColonnaGrid(colonna);
    ImpostaModificato(true);
}

void CombiFiltroA::ModificaCondizione() {
    if (inSviluppo_) return;  // the grid's double click while developing
    int16_t colonna = static_cast<int16_t>(griglia_->ColonnaCorrente());
    if (colonna < 1) return;
    const int tipo = combi::CodiceTipoCondizione(griglia_->Testo(1, colonna).toStdString());
    if (tipo == combi::kNessuna) return;
    std::unique_ptr<EditoreCondizione> editore;
    if (tipo != combi::kLinkOpen) {
        editore = CreaEditore(tipo);
        if (editore) {
            if (tipo == combi::kLinkClose) editore->LoadchkPunti(ContaCondizioniInLink(colonna - 1));
            editore->LeggiPunti(*griglia_);
        }
    }
    Gestisci(tipo, colonna, QString(), std::move(editore));
}

void CombiFiltroA::InserisciColonna() { griglia_->InserisciColonna(griglia_->ColonnaCorrente()); }

void CombiFiltroA::EliminaCondizione() {
    const int colonna = griglia_->ColonnaCorrente();
    if (colonna < 1) return;
    griglia_->EliminaColonna(colonna);
    // The system navigator, when it exists, rebuilds its tree from the grid.
    if (const auto aggiorna = Gestore(chiavi::kAggiornaNavigatore)) aggiorna();
    ImpostaModificato(true);
}

void CombiFiltroA::CambiaLarghezzaColonne(int passo) { griglia_->CambiaLarghezzaColonne(passo); }
