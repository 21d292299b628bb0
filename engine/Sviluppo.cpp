// What both development paths share: the checks of the parameters, the
// shares of the enumeration and the wrappers that hold the columns in memory.

#include "Sviluppo.h"
#include "Messaggi.h"

#include "ColonneInMemoria.h"
#include "Errore.h"

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
        throw Errore(kErroreArgomento, std::string(kImpostarePronostico));
    if (p.condizioni.empty())
        throw Errore(kErroreArgomento, "Tabella delle condizioni vuota");
    if (quota.di < 1 || quota.indice < 1 || quota.indice > quota.di)
        throw Errore(kErroreArgomento, "Quota non valida: serve I/W con 1 <= I <= W");
}

namespace {

RisultatoSviluppo InMemoria(EsitoSviluppo e, ColonneInMemoria& m) {
    RisultatoSviluppo r;
    r.colonne = std::move(m.colonne);
    r.testate = e.testate;
    r.condizioni = std::move(e.condizioni);
    r.interrotto = e.interrotto;
    return r;
}

}  // namespace

RisultatoSviluppo SviluppaSistemaRiferimento(const ParametriSviluppo& p, OsservatoreSviluppo& oss,
                                             const Quota& quota) {
    ColonneInMemoria m;
    return InMemoria(SviluppaSistemaRiferimento(p, oss, m, quota), m);
}

RisultatoSviluppo SviluppaSistema(const ParametriSviluppo& p, OsservatoreSviluppo& oss,
                                  const OpzioniSviluppo& opzioni) {
    ColonneInMemoria m;
    return InMemoria(SviluppaSistema(p, oss, &m, opzioni), m);
}

EsitoSviluppo ContaSistema(const ParametriSviluppo& p, OsservatoreSviluppo& oss, const OpzioniSviluppo& opzioni) {
    return SviluppaSistema(p, oss, nullptr, opzioni);
}

}  // namespace combi
