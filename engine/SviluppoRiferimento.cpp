// The plain development loop, kept as the reference the fast path is tested
// against: one column at a time, judged by VerificaColonna on the table.

#include <algorithm>

#include "Conteggi.h"
#include "Errore.h"
#include "Sviluppo.h"
#include "VerificaColonna.h"

namespace combi {

int DistanzaRiduzione(int classe, int riduzione) {
    return riduzione == 0 ? 0 : classe - riduzione;
}

Tratto TrattoDellaQuota(uint64_t totale, const Quota& quota) {
    __extension__ typedef unsigned __int128 Uint128;
    const auto punto = [&](int i) {
        return static_cast<uint64_t>(static_cast<Uint128>(totale) * static_cast<unsigned>(i) /
                                     static_cast<unsigned>(quota.di));
    };
    return {punto(quota.indice - 1), punto(quota.indice)};
}

void ControllaParametri(const ParametriSviluppo& p, const Quota& quota) {
    if (p.classe < 1 || p.classe > kMaxClasse)
        throw Errore(kErroreArgomento, "La classe deve essere compresa tra 1 e 20");
    for (size_t i = 0; i < p.numeri.size(); ++i) {
        const int n = p.numeri[i];
        if (n < 1 || n > kMaxNumero || (i > 0 && n <= p.numeri[i - 1]))
            throw Errore(kErroreArgomento, "I numeri del pronostico devono essere crescenti tra 1 e 90");
    }
    if (p.classe > static_cast<int>(p.numeri.size()))
        throw Errore(kErroreArgomento, "Impostare il pronostico");
    if (p.condizioni.empty())
        throw Errore(kErroreArgomento, "Tabella delle condizioni vuota");
    if (quota.di < 1 || quota.indice < 1 || quota.indice > quota.di)
        throw Errore(kErroreArgomento, "Quota non valida: serve I/W con 1 <= I <= W");
}

void ErroreTroppeColonne(const ParametriSviluppo& p) {
    throw Errore(kErroreMemoria,
                 "Troppe colonne condizionate: oltre " + std::to_string(p.massimoTenute) + " su " +
                     std::to_string(Combinazioni(int(p.numeri.size()), p.classe)) +
                     " colonne integrali. Aggiungere condizioni o ridurre il pronostico");
}

RisultatoSviluppo SviluppaSistemaRiferimento(const ParametriSviluppo& p, OsservatoreSviluppo& oss,
                                             const Quota& quota) {
    ControllaParametri(p, quota);
    RisultatoSviluppo r;
    r.condizioni = p.condizioni;
    AzzeraEsiti(r.condizioni);
    const int k = p.classe;
    const int distanza = DistanzaRiduzione(k, p.riduzione);

    Enumerazione en(p.numeri, k);
    const Tratto tratto = TrattoDellaQuota(en.Totale(), quota);
    en.Posiziona(tratto.inizio);
    Colonna ultimaTenuta{};  // the empty element 0 shares no number
    for (uint64_t rango = tratto.inizio; rango < tratto.fine; ++rango) {
        const Colonna& colonna = en.Corrente();
        if (VerificaColonna(k, colonna, r.condizioni, p.quadri) != 0 &&
            (distanza < 1 || ContaComuni(k, colonna, ultimaTenuta) < distanza)) {
            if (r.colonne.size() >= p.massimoTenute) ErroreTroppeColonne(p);
            r.colonne.push_back(colonna);
            ultimaTenuta = colonna;
        }
        ++r.testate;
        if (r.testate % kPassoProgresso == 0) {
            oss.Progresso(r.testate, r.colonne.size());
            if (oss.RichiestaStop()) {
                r.interrotto = true;
                break;
            }
            oss.ElaboraMessaggi();
        }
        en.Avanza();
    }
    oss.Progresso(r.testate, r.colonne.size());
    return r;
}

}  // namespace combi
