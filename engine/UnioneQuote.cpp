#include "UnioneQuote.h"

#include <algorithm>
#include <cstdint>

#include "ColonneInMemoria.h"
#include "Errore.h"
#include "VerificaColonna.h"

namespace combi {

namespace {

struct Somme {
    std::vector<int64_t> fallite, superate, recuperabili;
    explicit Somme(size_t n) : fallite(n), superate(n), recuperabili(n) {}

    void Aggiungi(const TabellaCondizioni& t) {
        for (size_t i = 0; i < t.size(); ++i) {
            fallite[i] += t[i].ContaFallite;
            superate[i] += t[i].ContaSuperate;
            recuperabili[i] += t[i].ContaRecuperabili;
        }
    }

    // The record counters are 32-bit and stop at their largest value, as the
    // development's own do; each share stopped there too, so the sum of the
    // shares saturates exactly when the whole run's count would.
    void Scrivi(TabellaCondizioni& t) const {
        const auto satura = [](int64_t v) { return int32_t(std::min<int64_t>(v, INT32_MAX)); };
        for (size_t i = 0; i < t.size(); ++i) {
            t[i].ContaFallite = satura(fallite[i]);
            t[i].ContaSuperate = satura(superate[i]);
            t[i].ContaRecuperabili = satura(recuperabili[i]);
        }
    }
};

void ControllaQuote(const std::vector<RisultatoSviluppo>& quote) {
    if (quote.empty()) throw Errore(kErroreArgomento, "Nessuna quota da unire");
    for (const RisultatoSviluppo& q : quote)
        if (q.condizioni.size() != quote.front().condizioni.size())
            throw Errore(kErroreArgomento, "Le quote hanno tabelle delle condizioni diverse");
}

}  // namespace

void ApplicaRiduzione(std::span<const Colonna> colonne, int classe, int riduzione, DestinazioneColonne& destinazione) {
    constexpr size_t kPasso = 1 << 16;  // handed on a step at a time: no copy of the whole set
    const int distanza = DistanzaRiduzione(classe, riduzione);
    Colonna ultimaTenuta{};  // the empty element 0 shares no number
    std::vector<Colonna> tenute;
    for (const Colonna& c : colonne) {
        if (distanza >= 1 && ContaComuni(classe, c, ultimaTenuta) >= distanza) continue;
        ultimaTenuta = c;
        tenute.push_back(c);
        if (tenute.size() == kPasso) {
            destinazione.Accoda(tenute);
            tenute.clear();
        }
    }
    destinazione.Accoda(tenute);
}

void ApplicaRiduzione(std::vector<Colonna>& colonne, int classe, int riduzione) {
    if (DistanzaRiduzione(classe, riduzione) < 1) return;
    ColonneInMemoria ridotte;
    ApplicaRiduzione(colonne, classe, riduzione, ridotte);
    colonne = std::move(ridotte.colonne);
}

RisultatoSviluppo UnisciQuote(std::vector<RisultatoSviluppo> quote, int classe, int riduzione) {
    ControllaQuote(quote);
    RisultatoSviluppo r;
    r.condizioni = quote.front().condizioni;
    Somme somme(r.condizioni.size());
    for (RisultatoSviluppo& q : quote) {
        r.colonne.insert(r.colonne.end(), q.colonne.begin(), q.colonne.end());
        q.colonne = {};  // the shares' columns can be most of the memory in use
        r.testate += q.testate;
        somme.Aggiungi(q.condizioni);
        if (q.testate > 0) r.condizioni = std::move(q.condizioni);
        if (q.interrotto) {
            r.interrotto = true;
            break;
        }
    }
    somme.Scrivi(r.condizioni);
    ApplicaRiduzione(r.colonne, classe, riduzione);
    return r;
}

}  // namespace combi
