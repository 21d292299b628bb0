#include "ContatoriLavoratori.h"

#include <algorithm>
#include <cstdint>
#include <exception>

#include "Errore.h"
#include "Percorsi.h"

namespace combi {

namespace {

// The record counters are 32-bit: like the development's own counters the
// sums stop at the largest value instead of wrapping.
int32_t SommaSaturata(int32_t a, int32_t b) {
    const int64_t somma = int64_t{a} + int64_t{b};
    return static_cast<int32_t>(std::clamp<int64_t>(somma, INT32_MIN, INT32_MAX));
}

void AggiungiContatori(const Condizione& letta, Condizione& somma) {
    somma.Tipo = letta.Tipo;
    somma.Parametro = letta.Parametro;
    somma.MinPunti = letta.MinPunti;
    somma.MaxPunti = letta.MaxPunti;
    somma.MinRecupero = letta.MinRecupero;
    somma.MaxRecupero = letta.MaxRecupero;
    somma.QuadroRec = letta.QuadroRec;
    somma.Valore = letta.Valore;
    somma.Superata = letta.Superata;
    somma.Recuperabile = letta.Recuperabile;
    somma.EsitoGruppo = letta.EsitoGruppo;
    somma.ContaFallite = SommaSaturata(somma.ContaFallite, letta.ContaFallite);
    somma.ContaSuperate = SommaSaturata(somma.ContaSuperate, letta.ContaSuperate);
    somma.ContaRecuperabili = SommaSaturata(somma.ContaRecuperabili, letta.ContaRecuperabili);
}

}  // namespace

void LeggiFileCondizioniThread(const std::string& percorso, IntestazioneSistema& intestazione,
                               TabellaCondizioni& tabella, TabellaQuadri& quadri) {
    if (percorso.empty()) return;
    const FileSistema letto = LeggiFileSistema(percorso);
    intestazione = letto.intestazione;
    quadri = letto.quadri;
    if (tabella.size() < letto.condizioni.size()) tabella.resize(letto.condizioni.size());
    for (size_t j = 0; j < letto.condizioni.size(); ++j) AggiungiContatori(letto.condizioni[j], tabella[j]);
}

TabellaCondizioni SommaContatoriLavoratori(const std::string& fileSistema, int lavoratori) {
    TabellaCondizioni tabella(1);
    IntestazioneSistema intestazione;
    TabellaQuadri quadri{};
    for (int i = 1; i <= lavoratori; ++i) {
        try {
            LeggiFileCondizioniThread(NomeFileNumerato(fileSistema, i), intestazione, tabella, quadri);
        } catch (const std::exception&) {
            // A worker that left no readable file contributes nothing.
        }
    }
    return tabella;
}

}  // namespace combi
