#include "VerificaColonna.h"

#include <array>

#include "Misure.h"

namespace combi {

namespace {

bool Contiene(const std::array<int16_t, 11>& valori, int32_t v) {
    // A value outside 0..10 is in no point list: the condition fails and is
    // not recoverable.
    return v >= 0 && v <= 10 && valori[v] != 0;
}

void GiudicaElenco(Condizione& cond, int32_t v) {
    cond.Valore = v;
    const bool superata = Contiene(cond.Punti, v);
    cond.Superata = superata ? kVero : kFalso;
    Incrementa(superata ? cond.ContaSuperate : cond.ContaFallite);
    const bool recuperabile = Contiene(cond.Recupero, v);
    cond.Recuperabile = recuperabile ? kVero : kFalso;
    if (recuperabile) Incrementa(cond.ContaRecuperabili);
}

void GiudicaIntervallo(Condizione& cond, int32_t v) {
    cond.Valore = v;
    const bool superata = cond.MinPunti <= v && v <= cond.MaxPunti;
    cond.Superata = superata ? kVero : kFalso;
    Incrementa(superata ? cond.ContaSuperate : cond.ContaFallite);
    const bool recuperabile = cond.MinRecupero <= v && v <= cond.MaxRecupero;
    cond.Recuperabile = recuperabile ? kVero : kFalso;
    if (recuperabile) Incrementa(cond.ContaRecuperabili);
}

}  // namespace

int16_t VerificaColonna(int k, const Colonna& c, TabellaCondizioni& tabella,
                        const TabellaQuadri& quadri) {
    const ProfiloColonna pc = ProfilaColonna(k, c);
    for (Condizione& cond : tabella) {
        if (GiudicataSuElenco(cond.Tipo)) GiudicaElenco(cond, MisuraCondizione(cond, pc));
        else if (GiudicataSuIntervallo(cond.Tipo)) GiudicaIntervallo(cond, MisuraCondizione(cond, pc));
        else if (cond.Tipo != kLinkOpen && cond.Tipo != kLinkClose) cond.Superata = kVero;
    }
    ApplicaQuadriRecupero(tabella, quadri);
    return ValutaGruppi(tabella);
}

void ApplicaQuadriRecupero(TabellaCondizioni& tabella, const TabellaQuadri& quadri) {
    std::array<int, kNumeroQuadri + 1> recuperabili{};
    for (const Condizione& cond : tabella)
        if (cond.QuadroRec >= 0 && cond.QuadroRec <= kNumeroQuadri && cond.Recuperabile != 0)
            ++recuperabili[cond.QuadroRec];
    for (int p = 1; p <= kNumeroQuadri; ++p) {
        const QuadroRecupero& q = quadri[p];
        if (q.Attivo == 0 || recuperabili[p] < q.Minimo || recuperabili[p] > q.Massimo) continue;
        for (Condizione& cond : tabella)
            if (cond.QuadroRec == p && cond.Recuperabile != 0) cond.Superata = kVero;
    }
}

int16_t ValutaGruppi(const TabellaCondizioni& tabella) {
    TabellaCondizioni copia = tabella;
    for (;;) {
        size_t chiusura = 0;
        while (chiusura < copia.size() && copia[chiusura].Tipo != kLinkClose) ++chiusura;
        if (chiusura == copia.size()) break;
        size_t apertura = chiusura;
        while (apertura > 0 && copia[apertura].Tipo != kLinkOpen) --apertura;
        int superate = 0;
        for (size_t i = apertura; i <= chiusura; ++i)
            if (copia[i].Superata != 0) ++superate;
        const auto& accettati = copia[chiusura].Numeri;
        const bool esito = superate < static_cast<int>(accettati.size()) && accettati[superate] != 0;
        Condizione gruppo;
        gruppo.Superata = gruppo.EsitoGruppo = esito ? kVero : kFalso;
        copia[apertura] = gruppo;
        copia.erase(copia.begin() + static_cast<long>(apertura) + 1,
                    copia.begin() + static_cast<long>(chiusura) + 1);
    }
    for (const Condizione& cond : copia)
        if (cond.Tipo != kLinkOpen && cond.Superata == 0) return kFalso;
    return kVero;
}

int ContaComuni(int k, const Colonna& a, const Colonna& b) {
    std::array<bool, 256> segnati{};
    for (int i = 1; i <= k && i <= kMaxClasse; ++i) segnati[b[i]] = true;
    int comuni = 0;
    for (int i = 1; i <= k && i <= kMaxClasse; ++i)
        if (segnati[a[i]]) ++comuni;
    return comuni;
}

void AzzeraEsiti(TabellaCondizioni& tabella) {
    for (Condizione& c : tabella) {
        c.Valore = c.ContaFallite = c.ContaSuperate = c.ContaRecuperabili = 0;
        c.Superata = c.Recuperabile = c.EsitoGruppo = kFalso;
    }
}

}  // namespace combi
