#include "Valutatore.h"

#include <algorithm>

#include "ConteggioMaschere.h"

namespace combi {

namespace {

constexpr size_t kUltimi = kMaxNumero + 1;  // the prefix's last number, 0..90
constexpr uint32_t kBlocchiPerRiordino = 4096;
constexpr size_t kMembriVeloci = 3;  // panels and groups up to this size count without loops
constexpr size_t kMassimoBlocchi = kMaxNumero;  // blocks of a row: one per number at position k-1
// No condition, group or judged position: a link's own row, a plain row's
// group, a condition judged on neither a list nor a range.
constexpr int kNessuno = -1;

}  // namespace

struct Valutatore::Quadro {
    std::vector<int> membri;   // judged conditions of the panel
    std::vector<int> finali;   // members that must pass on their own
    int minimo{}, massimo{};
    uint64_t valori{};         // the counts minimo..massimo, for few members
};

struct Valutatore::Gruppo {
    std::vector<int> foglie;   // judged member conditions
    std::vector<int> proprie;  // the leaves in no active panel, whose masks the group builds
    int sempre{};              // members that pass on every column (type 0)
    std::vector<int> figli;    // member groups, already settled
    std::vector<int> accettati;  // counts of passed members that pass the group
    uint64_t valori{};           // the same as bits, for few members
    bool finale = false;       // must pass on its own
};

void Valutatore::Contatori::Azzera() { std::fill(valori.begin(), valori.end(), 0); }

bool Valutatore::Compilabile(const TabellaCondizioni& tabella) {
    return tabella.size() < (size_t(1) << ConteggioMaschere::kPiani);
}

Valutatore::Valutatore(const TabellaCondizioni& tabella, const TabellaQuadri& quadri, int classe,
                       const std::vector<int>& numeri)
    : posto_(tabella.size(), kNessuno) {
    for (size_t i = 0; i < tabella.size(); ++i) {
        if (!GiudicataSuElenco(tabella[i].Tipo) && !GiudicataSuIntervallo(tabella[i].Tipo)) continue;
        posto_[i] = int(condizioni_.size());
        basi_.push_back(basi_.empty() ? 0 : basi_.back() + condizioni_.back().Chiavi() * kUltimi);
        basiRighe_.push_back(basiRighe_.empty() ? 0
                                                : basiRighe_.back() + condizioni_.back().ChiaviRiga() *
                                                                          CondizioneCompilata::kLarghezzaRiga);
        condizioni_.emplace_back(tabella[i], classe, numeri);
        indici_.push_back(int(i));
    }
    for (int n : numeri) scelti_.Imposta(n);
    for (int u = 0; u <= kMaxNumero; ++u) sopra_[size_t(u)] = scelti_ & Maschera128::Intervallo(u + 1, 127);
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
        q.valori = ValoriTra(q.minimo, q.massimo);
        if (!q.membri.empty()) quadri_.push_back(std::move(q));
    }
}

void Valutatore::CompilaGruppi(const TabellaCondizioni& tabella) {
    // Replays the collapse of the link groups on the types alone: the same
    // groups form on every column, only their verdicts change.
    struct Voce { int tipo; int condizione; int gruppo; };
    std::vector<Voce> voci;
    for (size_t i = 0; i < tabella.size(); ++i) voci.push_back({tabella[i].Tipo, int(i), kNessuno});
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
            const int posto = v.condizione != kNessuno ? posto_[size_t(v.condizione)] : kNessuno;
            if (v.gruppo != kNessuno) g.figli.push_back(v.gruppo);
            else if (v.tipo == kLinkOpen) continue;  // never passed itself
            else if (posto == kNessuno) ++g.sempre;
            else {
                g.foglie.push_back(posto);
                if (!inQuadro[size_t(posto)]) g.proprie.push_back(posto);
            }
        }
        const int membri = int(g.foglie.size() + g.figli.size()) + g.sempre;
        const auto& conteggi = tabella[size_t(voci[chiusura].condizione)].Numeri;
        for (int n = g.sempre; n <= std::min(membri, kMaxNumero); ++n)
            if (conteggi[size_t(n)] != 0) g.accettati.push_back(n - g.sempre);
        for (int v : g.accettati)
            if (v < 64) g.valori |= uint64_t{1} << v;
        gruppi_.push_back(std::move(g));
        voci[apertura] = {kNessuna, kNessuno, int(gruppi_.size()) - 1};
        voci.erase(voci.begin() + long(apertura) + 1, voci.begin() + long(chiusura) + 1);
    }
    for (const Voce& v : voci) {
        if (v.gruppo != kNessuno) {
            gruppi_[size_t(v.gruppo)].finale = true;
            continue;
        }
        const int posto = v.tipo == kLinkOpen ? kNessuno : posto_[size_t(v.condizione)];
        if (posto == kNessuno) continue;
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
    l.superate.resize(n);
    l.recuperabili.resize(n);
    l.gruppi.resize(gruppi_.size());
    l.tallie.resize(n == 0 ? 0 : basi_.back() + condizioni_.back().Chiavi() * kUltimi);
    l.righe.resize(n == 0 ? 0
                          : basiRighe_.back() + condizioni_.back().ChiaviRiga() * CondizioneCompilata::kLarghezzaRiga);
    l.primaChiave.assign(n, UINT32_MAX);
    l.ultimaChiave.assign(n, {});
    l.primaRiga.assign(n, UINT32_MAX);
    l.ultimaRiga.assign(n, {});
    l.ordine = foglieSole_;
    for (int f : foglieSole_)
        if (!condizioni_[size_t(f)].CostanteNellaRiga()) l.ordineRiga.push_back(f);
    l.scartiRiga.assign(l.ordineRiga.size(), {});
    l.righeBlocco.resize(n);
    l.superateBlocchi.resize(n * kMassimoBlocchi);
    l.recuperabiliBlocchi.resize(n * kMassimoBlocchi);
    l.gruppiBlocchi.resize(gruppi_.size() * kMassimoBlocchi);
    l.scarti.assign(foglieSole_.size(), {});
    return l;
}

Valutatore::Contatori Valutatore::NuoviContatori() const {
    Contatori c;
    c.valori.resize(2 * condizioni_.size());
    return c;
}

inline void Valutatore::Maschere(int i, uint32_t chiave, int ultimo, Lavagna& l) const {
    condizioni_[size_t(i)].Maschere(chiave, ultimo, l.superate[size_t(i)], l.recuperabili[size_t(i)]);
}

CondizioneCompilata::Tallie Valutatore::TallieDi(size_t i, Lavagna& l) const {
    return {l.tallie.data() + basi_[i], l.righe.data() + basiRighe_[i], &l.primaChiave[i], &l.ultimaChiave[i],
            &l.primaRiga[i], &l.ultimaRiga[i]};
}

// The verdict on the candidates of a block: one condition at a time while a
// candidate is left. maschere(i, sup, rec) gives the masks of condition i on
// this block (rec is left unread for the conditions in no panel).
template <class Fornitore>
Maschera128 Valutatore::Verdetto(Maschera128 candidati, const Fornitore& maschere, std::vector<int>& ordine,
                                 std::vector<uint32_t>& scarti, Lavagna& l) const {
    Maschera128* sup = l.superate.data();
    Maschera128* rec = l.recuperabili.data();
    Maschera128 scarto;
    Maschera128 esito = candidati;
    if (esito.Vuota()) return esito;
    if (++l.blocchi % kBlocchiPerRiordino == 0) Riordina(ordine, scarti);
    for (size_t j = 0; j < ordine.size(); ++j) {
        const int f = ordine[j];
        maschere(f, sup[f], scarto);
        esito &= sup[f];
        if (esito.Vuota()) {
            ++scarti[j];
            return esito;
        }
    }
    std::array<Maschera128, kMembriVeloci> membri;
    for (const Quadro& q : quadri_) {
        Maschera128 dentro;
        if (q.membri.size() <= kMembriVeloci) {
            for (size_t i = 0; i < q.membri.size(); ++i) {
                const int m = q.membri[i];
                maschere(m, sup[m], rec[m]);
                membri[i] = rec[m];
            }
            dentro = ConteggioInInsieme(membri.data(), q.membri.size(), q.valori);
        } else {
            ConteggioMaschere conteggio(q.membri.size());
            for (int m : q.membri) {
                maschere(m, sup[m], rec[m]);
                conteggio.Aggiungi(rec[m]);
            }
            const int da = std::max(q.minimo, 0), a = std::min<int>(q.massimo, int(q.membri.size()));
            for (int v = da; v <= a; ++v) dentro |= conteggio.Uguale(v);
        }
        for (int m : q.membri) sup[m] |= rec[m] & dentro;
        for (int m : q.finali) esito &= sup[m];
        if (esito.Vuota()) return esito;
    }
    for (size_t g = 0; g < gruppi_.size(); ++g) {
        const Gruppo& gr = gruppi_[g];
        for (int f : gr.proprie) maschere(f, sup[f], scarto);
        Maschera128 passa;
        const size_t quanti = gr.foglie.size() + gr.figli.size();
        if (quanti <= kMembriVeloci) {
            size_t i = 0;
            for (int f : gr.foglie) membri[i++] = sup[f];
            for (int f : gr.figli) membri[i++] = l.gruppi[size_t(f)];
            passa = ConteggioInInsieme(membri.data(), quanti, gr.valori);
        } else {
            ConteggioMaschere conteggio(quanti);
            for (int f : gr.foglie) conteggio.Aggiungi(sup[f]);
            for (int f : gr.figli) conteggio.Aggiungi(l.gruppi[size_t(f)]);
            for (int v : gr.accettati) passa |= conteggio.Uguale(v);
        }
        l.gruppi[g] = passa;
        if (!gr.finale) continue;
        esito &= passa;
        if (esito.Vuota()) return esito;
    }
    return esito;
}

Maschera128 Valutatore::Giudica(const Prefisso& p, Maschera128 candidati, bool intero, Contatori& contatori,
                                Lavagna& l) const {
    const size_t n = condizioni_.size();
    const int u = p.ultimo;
    // The counters: every condition, on every candidate.
    if (intero) {
        uint32_t* tallie = l.tallie.data() + size_t(u);
        for (size_t i = 0; i < n; ++i) {
            const uint32_t chiave = condizioni_[i].Chiave(p);
            ++tallie[basi_[i] + chiave * kUltimi];
            l.primaChiave[i] = std::min(l.primaChiave[i], chiave);
            l.ultimaChiave[i] = std::max(l.ultimaChiave[i], chiave);
        }
    } else {
        for (size_t i = 0; i < n; ++i) {
            Maschere(int(i), condizioni_[i].Chiave(p), u, l);
            contatori.valori[i] += (l.superate[i] & candidati).Conta();
            contatori.valori[n + i] += (l.recuperabili[i] & candidati).Conta();
        }
    }
    const CondizioneCompilata* cc = condizioni_.data();
    return Verdetto(candidati, [&](int i, Maschera128& sup, Maschera128& rec) {
        cc[i].Maschere(cc[i].Chiave(p), u, sup, rec);
    }, l.ordine, l.scarti, l);
}

// A row is judged a condition at a time over all its blocks still alive,
// rather than a block at a time over all conditions: each condition costs
// one dispatch on its kind per row, and dead blocks leave the list at once.
void Valutatore::GiudicaRiga(const Prefisso& q, int yPrimo, int yUltimo, Lavagna& l) const {
    const size_t n = condizioni_.size();
    for (size_t i = 0; i < n; ++i) {
        l.righeBlocco[i] = condizioni_[i].RigaDi(q);
        condizioni_[i].ContaRiga(q, l.righeBlocco[i], yPrimo, yUltimo, scelti_, TallieDi(i, l));
    }
    l.esitiRiga.clear();
    const int c = q.ultimo;
    // The conditions whose masks do not change over the row are judged once:
    // what they leave bounds every block, and may end the whole row.
    const CondizioneCompilata* cc = condizioni_.data();
    const uint32_t* righe = l.righeBlocco.data();
    Maschera128 riga = Maschera128::Tutti();
    Maschera128 ys = scelti_ & Maschera128::Intervallo(yPrimo, yUltimo);
    for (int f : foglieSole_) {
        if (cc[f].CostanteNellaRiga()) riga &= cc[f].SuperateDelBlocco(righe[f], 0, c);
        else ys &= cc[f].YPossibili(righe[f]);
    }
    if (ys.Vuota() || (riga & sopra_[size_t(yPrimo)]).Vuota()) return;
    l.ys.clear();
    l.esiti.clear();
    ys.PerOgni([&](int y) {
        const Maschera128 candidati = sopra_[size_t(y)] & riga;
        if (candidati.Vuota()) return;
        l.ys.push_back(y);
        l.esiti.push_back(candidati);
    });
    l.blocchi += uint32_t(l.ys.size());
    if (l.blocchi >= kBlocchiPerRiordino) {
        Riordina(l.ordineRiga, l.scartiRiga);
        l.blocchi = 0;
    }
    for (size_t j = 0; j < l.ordineRiga.size() && !l.ys.empty(); ++j) {
        const int f = l.ordineRiga[j];
        const size_t prima = l.ys.size();
        cc[f].PerOgniBlocco(righe[f], c, l.ys.data(), prima,
                            [&](size_t b, const Maschera128& sup, const Maschera128&) { l.esiti[b] &= sup; });
        CompattaVivi(l);
        l.scartiRiga[j] += uint32_t(prima - l.ys.size());
    }
    if (l.ys.empty() || !QuadriDellaRiga(c, l)) return;
    GruppiDellaRiga(c, l);
    for (size_t b = 0; b < l.ys.size(); ++b)
        if (!l.esiti[b].Vuota()) l.esitiRiga.push_back({l.ys[b], l.esiti[b]});
}

// The blocks left without a candidate leave the list.
void Valutatore::CompattaVivi(Lavagna& l) const {
    size_t vivi = 0;
    for (size_t b = 0; b < l.ys.size(); ++b) {
        if (l.esiti[b].Vuota()) continue;
        l.ys[vivi] = l.ys[b];
        l.esiti[vivi++] = l.esiti[b];
    }
    l.ys.resize(vivi);
    l.esiti.resize(vivi);
}

// The recovery panels over the alive blocks; false when none is left.
bool Valutatore::QuadriDellaRiga(int c, Lavagna& l) const {
    const CondizioneCompilata* cc = condizioni_.data();
    const uint32_t* righe = l.righeBlocco.data();
    const size_t blocchi = l.ys.size();
    Maschera128* supDi = l.superateBlocchi.data();
    Maschera128* recDi = l.recuperabiliBlocchi.data();
    for (const Quadro& q : quadri_) {
        for (int m : q.membri) {
            Maschera128* sup = supDi + size_t(m) * kMassimoBlocchi;
            Maschera128* rec = recDi + size_t(m) * kMassimoBlocchi;
            cc[m].PerOgniBlocco(righe[m], c, l.ys.data(), blocchi,
                                [&](size_t b, const Maschera128& s, const Maschera128& r) {
                                    sup[b] = s;
                                    rec[b] = r;
                                });
        }
        const size_t quanti = q.membri.size();
        std::array<const Maschera128*, kMembriVeloci> rec{};
        for (size_t i = 0; i < quanti && i < kMembriVeloci; ++i) rec[i] = recDi + size_t(q.membri[i]) * kMassimoBlocchi;
        std::array<Maschera128, kMembriVeloci> membri;
        for (size_t b = 0; b < blocchi; ++b) {
            Maschera128 dentro;
            if (quanti <= kMembriVeloci) {
                for (size_t i = 0; i < quanti; ++i) membri[i] = rec[i][b];
                dentro = ConteggioInInsieme(membri.data(), quanti, q.valori);
            } else {
                ConteggioMaschere conteggio(quanti);
                for (int m : q.membri) conteggio.Aggiungi(recDi[size_t(m) * kMassimoBlocchi + b]);
                const int da = std::max(q.minimo, 0), a = std::min<int>(q.massimo, int(quanti));
                for (int v = da; v <= a; ++v) dentro |= conteggio.Uguale(v);
            }
            for (int m : q.membri) {
                const size_t k = size_t(m) * kMassimoBlocchi + b;
                supDi[k] |= recDi[k] & dentro;
            }
        }
        for (int m : q.finali) {
            const Maschera128* sup = supDi + size_t(m) * kMassimoBlocchi;
            for (size_t b = 0; b < blocchi; ++b) l.esiti[b] &= sup[b];
        }
    }
    for (const Maschera128& e : l.esiti)
        if (!e.Vuota()) return true;
    return false;
}

void Valutatore::GruppiDellaRiga(int c, Lavagna& l) const {
    const CondizioneCompilata* cc = condizioni_.data();
    const uint32_t* righe = l.righeBlocco.data();
    const size_t blocchi = l.ys.size();
    Maschera128* supDi = l.superateBlocchi.data();
    for (size_t g = 0; g < gruppi_.size(); ++g) {
        const Gruppo& gr = gruppi_[g];
        for (int f : gr.proprie) {
            Maschera128* sup = supDi + size_t(f) * kMassimoBlocchi;
            cc[f].PerOgniBlocco(righe[f], c, l.ys.data(), blocchi,
                                [&](size_t b, const Maschera128& s, const Maschera128&) { sup[b] = s; });
        }
        Maschera128* passa = l.gruppiBlocchi.data() + g * kMassimoBlocchi;
        const size_t quanti = gr.foglie.size() + gr.figli.size();
        std::array<Maschera128, kMembriVeloci> membri;
        for (size_t b = 0; b < blocchi; ++b) {
            if (quanti <= kMembriVeloci) {
                size_t i = 0;
                for (int f : gr.foglie) membri[i++] = supDi[size_t(f) * kMassimoBlocchi + b];
                for (int f : gr.figli) membri[i++] = l.gruppiBlocchi[size_t(f) * kMassimoBlocchi + b];
                passa[b] = ConteggioInInsieme(membri.data(), quanti, gr.valori);
            } else {
                ConteggioMaschere conteggio(quanti);
                for (int f : gr.foglie) conteggio.Aggiungi(supDi[size_t(f) * kMassimoBlocchi + b]);
                for (int f : gr.figli) conteggio.Aggiungi(l.gruppiBlocchi[size_t(f) * kMassimoBlocchi + b]);
                passa[b] = {};
                for (int v : gr.accettati) passa[b] |= conteggio.Uguale(v);
            }
            if (gr.finale) l.esiti[b] &= passa[b];
        }
    }
}

// The order of the conditions tried alone changes no verdict, only how soon
// a dead block is left: the ones that ended the most blocks go first.
void Valutatore::Riordina(std::vector<int>& ordine, std::vector<uint32_t>& scarti) {
    std::vector<std::pair<uint32_t, int>> voci;
    for (size_t j = 0; j < ordine.size(); ++j) voci.push_back({scarti[j], ordine[j]});
    std::stable_sort(voci.begin(), voci.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
    for (size_t j = 0; j < voci.size(); ++j) ordine[j] = voci[j].second;
    scarti.assign(scarti.size(), {});
}

void Valutatore::Riversa(Lavagna& l, Contatori& contatori) const {
    for (size_t i = 0; i < condizioni_.size(); ++i) {
        RiversaRighe(i, l);
        RiversaChiavi(i, l, contatori);
    }
}

// The rows' differences summed over y into the blocks' tallies.
void Valutatore::RiversaRighe(size_t i, Lavagna& l) const {
    const CondizioneCompilata& c = condizioni_[i];
    const CondizioneCompilata::Tallie t = TallieDi(i, l);
    for (uint32_t riga = l.primaRiga[i]; riga <= l.ultimaRiga[i] && riga != UINT32_MAX; ++riga) {
        int32_t* differenze = t.perRiga + riga * CondizioneCompilata::kLarghezzaRiga;
        int64_t blocchi = 0;
        for (size_t y = 0; y < CondizioneCompilata::kLarghezzaRiga; ++y) {
            blocchi += differenze[y];
            differenze[y] = 0;
            if (blocchi == 0 || !scelti_.Contiene(int(y))) continue;
            const uint32_t chiave = c.ChiaveDaRiga(riga, int(y));
            t.perChiave[chiave * kUltimi + y] += uint32_t(blocchi);
            l.primaChiave[i] = std::min(l.primaChiave[i], chiave);
            l.ultimaChiave[i] = std::max(l.ultimaChiave[i], chiave);
        }
    }
    l.primaRiga[i] = UINT32_MAX;
    l.ultimaRiga[i] = 0;
}

void Valutatore::RiversaChiavi(size_t i, Lavagna& l, Contatori& contatori) const {
    const size_t n = condizioni_.size();
    for (uint32_t chiave = l.primaChiave[i]; chiave <= l.ultimaChiave[i] && chiave != UINT32_MAX; ++chiave) {
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
