#include "ContatoriLavoratori.h"

#include <exception>

#include "Errore.h"
#include "Utilita.h"

namespace combi {

namespace {

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
    // The 32-bit counters of one worker cannot exceed its share; their sum
    // over workers wraps like the file field it mirrors.
    somma.ContaFallite = static_cast<int32_t>(static_cast<uint32_t>(somma.ContaFallite) +
                                              static_cast<uint32_t>(letta.ContaFallite));
    somma.ContaSuperate = static_cast<int32_t>(static_cast<uint32_t>(somma.ContaSuperate) +
                                               static_cast<uint32_t>(letta.ContaSuperate));
    somma.ContaRecuperabili = static_cast<int32_t>(static_cast<uint32_t>(somma.ContaRecuperabili) +
                                                   static_cast<uint32_t>(letta.ContaRecuperabili));
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
