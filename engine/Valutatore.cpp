#include "Valutatore.h"

#include <algorithm>

#include "ConteggioMaschere.h"

namespace combi {

namespace {

constexpr size_t kUltimi = kMaxNumero + 1;  // the prefix's last number, 0..90

}  // namespace

struct Valutatore::Quadro {
    std::vector<int> membri;   // judged conditions of the panel
    std::vector<int> finali;   // members that must pass on their own
    int minimo = 0, massimo = 0;
};

struct Valutatore::Gruppo {
    std::vector<int> foglie;   // judged member conditions
    std::vector<int> proprie;  // the leaves in no active panel, whose masks the group builds
    int sempre = 0;            // members that pass on every column (type 0)
    std::vector<int> figli;    // member groups, already settled
    std::vector<int> accettati;  // counts of passed members that pass the group
    bool finale = false;       // must pass on its own
};

void Valutatore::Contatori::Somma(const Contatori& altri) {
    for (size_t i = 0; i < valori.size(); ++i) valori[i] += altri.valori[i];
}

void Valutatore::Contatori::Azzera() { std::fill(valori.begin(), valori.end(), 0); }

bool Valutatore::Compilabile(const TabellaCondizioni& tabella) {
    return tabella.size() < (size_t(1) << ConteggioMaschere::kPiani);
}

Valutatore::Valutatore(const TabellaCondizioni& tabella, const TabellaQuadri& quadri, int classe,
                       const std::vector<int>& numeri)
    : posto_(tabella.size(), -1) {
    for (size_t i = 0; i < tabella.size(); ++i) {
        if (!GiudicataSuElenco(tabella[i].Tipo) && !GiudicataSuIntervallo(tabella[i].Tipo)) continue;
        posto_[i] = int(condizioni_.size());
        basi_.push_back(basi_.empty() ? 0 : basi_.back() + condizioni_.back().Chiavi() * kUltimi);
        condizioni_.emplace_back(tabella[i], classe, numeri);
        indici_.push_back(int(i));
    }
    Maschera128 scelti;
    for (int n : numeri) scelti.Imposta(n);
    for (int u = 0; u <= kMaxNumero; ++u) sopra_[size_t(u)] = scelti & Maschera128::Intervallo(u + 1, 127);
    CompilaQuadri(tabella, quadri);
    CompilaGruppi(tabella);
}

Valutatore::~Valutatore() = default;

void Valutatore::CompilaQuadri(const TabellaCondizioni& tabella, const TabellaQuadri& quadri) {
    for (int p = 1; p <= kNumeroQuadri; ++p) {
        if (quadri[size_t(p)].Attivo == 0) continue;
        Quadro q;
        q.minimo = quadri[size_t(p)].Minimo;
        q.massimo = quadri[size_t(p)].Massimo;
        for (size_t i = 0; i < condizioni_.size(); ++i)
            if (tabella[size_t(indici_[i])].QuadroRec == p) q.membri.push_back(int(i));
        // With no recoverable member the count is 0 on every column: the
        // panel recovers nothing then, whatever its range.
        if (!q.membri.empty()) quadri_.push_back(std::move(q));
    }
}

void Valutatore::CompilaGruppi(const TabellaCondizioni& tabella) {
    // Replays the collapse of the link groups on the types alone: the same
    // groups form on every column, only their verdicts change.
    struct Voce { int tipo; int condizione; int gruppo; };
    std::vector<Voce> voci;
    for (size_t i = 0; i < tabella.size(); ++i) voci.push_back({tabella[i].Tipo, int(i), -1});
    std::vector<bool> inQuadro(condizioni_.size());
    for (const Quadro& q : quadri_)
        for (int m : q.membri) inQuadro[size_t(m)] = true;
    for (;;) {
        size_t chiusura = 0;
        while (chiusura < voci.size() && voci[chiusura].tipo != kLinkClose) ++chiusura;
        if (chiusura == voci.size()) break;
        size_t apertura = chiusura;
        while (apertura > 0 && voci[apertura].tipo != kLinkOpen) --apertura;
        Gruppo g;
        for (size_t i = apertura; i < chiusura; ++i) {
            const Voce& v = voci[i];
            const int posto = v.condizione >= 0 ? posto_[size_t(v.condizione)] : -1;
            if (v.gruppo >= 0) g.figli.push_back(v.gruppo);
            else if (v.tipo == kLinkOpen) continue;  // never passed itself
            else if (posto < 0) ++g.sempre;
            else {
                g.foglie.push_back(posto);
                if (!inQuadro[size_t(posto)]) g.proprie.push_back(posto);
            }
        }
        const int membri = int(g.foglie.size() + g.figli.size()) + g.sempre;
        const auto& conteggi = tabella[size_t(voci[chiusura].condizione)].Numeri;
        for (int n = g.sempre; n <= std::min(membri, kMaxNumero); ++n)
            if (conteggi[size_t(n)] != 0) g.accettati.push_back(n - g.sempre);
        gruppi_.push_back(std::move(g));
        voci[apertura] = {kNessuna, -1, int(gruppi_.size()) - 1};
        voci.erase(voci.begin() + long(apertura) + 1, voci.begin() + long(chiusura) + 1);
    }
    for (const Voce& v : voci) {
        if (v.gruppo >= 0) {
            gruppi_[size_t(v.gruppo)].finale = true;
            continue;
        }
        const int posto = v.tipo == kLinkOpen ? -1 : posto_[size_t(v.condizione)];
        if (posto < 0) continue;
        if (!inQuadro[size_t(posto)]) {
            foglieSole_.push_back(posto);
            continue;
        }
        for (Quadro& q : quadri_)
            if (std::find(q.membri.begin(), q.membri.end(), posto) != q.membri.end()) q.finali.push_back(posto);
    }
}

Valutatore::Lavagna Valutatore::NuovaLavagna() const {
    const size_t n = condizioni_.size();
    Lavagna l;
    l.chiavi.resize(n);
    l.superate.resize(n);
    l.recuperabili.resize(n);
    l.gruppi.resize(gruppi_.size());
    l.tallie.resize(basi_.empty() ? 0 : basi_.back() + condizioni_.back().Chiavi() * kUltimi);
    l.primaChiave.assign(n, UINT32_MAX);
    l.ultimaChiave.assign(n, 0);
    return l;
}

Valutatore::Contatori Valutatore::NuoviContatori() const {
    Contatori c;
    c.valori.resize(2 * condizioni_.size());
    return c;
}

inline void Valutatore::Maschere(int i, int ultimo, Lavagna& l) const {
    condizioni_[size_t(i)].Maschere(l.chiavi[size_t(i)], ultimo, l.superate[size_t(i)], l.recuperabili[size_t(i)]);
}

Maschera128 Valutatore::EsitoGruppo(const Gruppo& g, Lavagna& l, int ultimo) const {
    for (int f : g.proprie) Maschere(f, ultimo, l);
    ConteggioMaschere conteggio(g.foglie.size() + g.figli.size());
    for (int f : g.foglie) conteggio.Aggiungi(l.superate[size_t(f)]);
    for (int f : g.figli) conteggio.Aggiungi(l.gruppi[size_t(f)]);
    Maschera128 esito;
    for (int v : g.accettati) esito |= conteggio.Uguale(v);
    return esito;
}

Maschera128 Valutatore::Giudica(const Prefisso& p, Maschera128 candidati, bool intero, Contatori& contatori,
                                Lavagna& l) const {
    const size_t n = condizioni_.size();
    const int u = p.ultimo;
    // The counters: every condition, on every candidate.
    const CondizioneCompilata* cc = condizioni_.data();
    uint32_t* chiavi = l.chiavi.data();
    for (size_t i = 0; i < n; ++i) chiavi[i] = cc[i].Chiave(p);
    if (intero) {
        uint32_t* tallie = l.tallie.data() + size_t(u);
        const size_t* basi = basi_.data();
        uint32_t* prima = l.primaChiave.data();
        uint32_t* ultima = l.ultimaChiave.data();
        for (size_t i = 0; i < n; ++i) {
            ++tallie[basi[i] + chiavi[i] * kUltimi];
            prima[i] = std::min(prima[i], chiavi[i]);
            ultima[i] = std::max(ultima[i], chiavi[i]);
        }
    } else {
        for (size_t i = 0; i < n; ++i) {
            Maschere(int(i), u, l);
            contatori.valori[i] += (l.superate[i] & candidati).Conta();
            contatori.valori[n + i] += (l.recuperabili[i] & candidati).Conta();
        }
    }
    // The verdict: one condition at a time while a candidate is left.
    Maschera128 esito = candidati;
    for (int f : foglieSole_) {
        Maschere(f, u, l);
        esito &= l.superate[size_t(f)];
        if (esito.Vuota()) return esito;
    }
    for (const Quadro& q : quadri_) {
        ConteggioMaschere conteggio(q.membri.size());
        for (int m : q.membri) {
            Maschere(m, u, l);
            conteggio.Aggiungi(l.recuperabili[size_t(m)]);
        }
        Maschera128 dentro;
        const int da = std::max(q.minimo, 0), a = std::min<int>(q.massimo, int(q.membri.size()));
        for (int v = da; v <= a; ++v) dentro |= conteggio.Uguale(v);
        for (int m : q.membri) l.superate[size_t(m)] |= l.recuperabili[size_t(m)] & dentro;
        for (int m : q.finali) esito &= l.superate[size_t(m)];
        if (esito.Vuota()) return esito;
    }
    for (size_t g = 0; g < gruppi_.size(); ++g) {
        l.gruppi[g] = EsitoGruppo(gruppi_[g], l, u);
        if (!gruppi_[g].finale) continue;
        esito &= l.gruppi[g];
        if (esito.Vuota()) return esito;
    }
    return esito;
}

void Valutatore::Riversa(Lavagna& l, Contatori& contatori) const {
    const size_t n = condizioni_.size();
    for (size_t i = 0; i < n; ++i) {
        if (l.primaChiave[i] > l.ultimaChiave[i]) continue;
        for (uint32_t chiave = l.primaChiave[i]; chiave <= l.ultimaChiave[i]; ++chiave) {
            uint32_t* riga = &l.tallie[basi_[i] + chiave * kUltimi];
            for (size_t u = 0; u < kUltimi; ++u) {
                if (riga[u] == 0) continue;
                Maschera128 sup, rec;
                condizioni_[i].Maschere(chiave, int(u), sup, rec);
                contatori.valori[i] += int64_t(riga[u]) * (sup & sopra_[u]).Conta();
                contatori.valori[n + i] += int64_t(riga[u]) * (rec & sopra_[u]).Conta();
                riga[u] = 0;
            }
        }
        l.primaChiave[i] = UINT32_MAX;
        l.ultimaChiave[i] = 0;
    }
}

void Valutatore::ScriviContatori(const Contatori& c, uint64_t testate, TabellaCondizioni& tabella) const {
    const auto satura = [](int64_t v) { return int32_t(std::min<int64_t>(v, INT32_MAX)); };
    const size_t n = condizioni_.size();
    for (size_t i = 0; i < n; ++i) {
        Condizione& cond = tabella[size_t(indici_[i])];
        const int64_t superate = c.valori[i];
        cond.ContaSuperate = satura(superate);
        cond.ContaFallite = satura(int64_t(testate) - superate);
        cond.ContaRecuperabili = satura(c.valori[n + i]);
    }
}

}  // namespace combi
