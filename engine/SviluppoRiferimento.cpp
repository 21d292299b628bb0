// The plain development loop, kept as the reference the fast path is tested
// against: one column at a time, judged by VerificaColonna on the table.

#include <algorithm>

#include "Conteggi.h"
#include "Sviluppo.h"
#include "VerificaColonna.h"

namespace combi {

EsitoSviluppo SviluppaSistemaRiferimento(const ParametriSviluppo& p, OsservatoreSviluppo& oss,
                                         DestinazioneColonne& destinazione, const Quota& quota) {
    ControllaParametri(p, quota);
    EsitoSviluppo r;
    r.condizioni = p.condizioni;
    AzzeraEsiti(r.condizioni);
    const int k = p.classe;
    const int distanza = DistanzaRiduzione(k, p.riduzione);

    Enumerazione en(p.numeri, k);
    const Tratto tratto = TrattoDellaQuota(en.Totale(), quota);
    en.Posiziona(tratto.inizio);
    Colonna ultimaTenuta{};  // the empty element 0 shares no number
    std::vector<Colonna> passo;  // kept since the last progress report
    for (uint64_t rango = tratto.inizio; rango < tratto.fine; ++rango) {
        const Colonna& colonna = en.Corrente();
        if (VerificaColonna(k, colonna, r.condizioni, p.quadri) != 0 &&
            (distanza < 1 || ContaComuni(k, colonna, ultimaTenuta) < distanza)) {
            passo.push_back(colonna);
            ultimaTenuta = colonna;
            ++r.tenute;
        }
        ++r.testate;
        if (r.testate % kPassoProgresso == 0) {
            destinazione.Accoda(passo);
            passo.clear();
            oss.Progresso(r.testate, r.tenute);
            if (oss.RichiestaStop()) {
                r.interrotto = true;
                break;
            }
            oss.ElaboraMessaggi();
        }
        en.Avanza();
    }
    destinazione.Accoda(passo);
    oss.Progresso(r.testate, r.tenute);
    return r;
}

}  // namespace combi
