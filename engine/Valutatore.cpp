#include "Valutatore.h"

#include <algorithm>
#include <bit>

#include "Misure.h"

namespace combi {

namespace {

using Bitset = Valutatore::Bitset;

struct Maschera128 {
    uint64_t basso = 0, alto = 0;
    void Imposta(int bit) { (bit < 64 ? basso : alto) |= uint64_t{1} << (bit & 63); }
    bool Contiene(int bit) const { return ((bit < 64 ? basso : alto) >> (bit & 63)) & 1; }
    int ContaComuni(const Maschera128& m) const {
        return std::popcount(basso & m.basso) + std::popcount(alto & m.alto);
    }
};

void Imposta(Bitset& b, int i) { b[i >> 6] |= uint64_t{1} << (i & 63); }

int ContaBit(const Bitset& a, const Bitset& b, int parole) {
    int n = 0;
    for (int w = 0; w < parole; ++w) n += std::popcount(a[w] & b[w]);
    return n;
}

uint16_t MascheraPunti(const std::array<int16_t, 11>& valori) {
    uint16_t m = 0;
    for (int v = 0; v <= 10; ++v)
        if (valori[v] != 0) m |= uint16_t(1u << v);
    return m;
}

bool InElenco(uint16_t maschera, int32_t v) { return v >= 0 && v <= 10 && ((maschera >> v) & 1); }

// A column as the fast measures see it.
struct Colonna128 {
    ProfiloColonna pc;
    Maschera128 numeri;     // bit n set for each number n of the column
    uint32_t parita = 0;    // bit i-1 set when position i holds an odd number
};

uint32_t BitBassi(int n) { return n <= 0 ? 0u : (n >= 32 ? ~0u : (1u << n) - 1u); }

}  // namespace

struct Valutatore::Compilata {
    int tipo = 0;
    bool elenco = false;          // judged on a point list, else on a range
    int indice = 0;
    uint16_t punti = 0, recupero = 0;
    int32_t minPunti = 0, maxPunti = 0, minRecupero = 0, maxRecupero = 0;
    int parametro = 0;
    Maschera128 insieme;          // Punti Col., Pari-Dispari
    const Condizione* origine = nullptr;  // measures that keep the plain loop
    // Measures that depend on the parities alone, tabulated by the column's
    // parity bits when the class is small enough for a table.
    std::vector<int8_t> perParita;
};

namespace {

bool SoloParita(int tipo) {
    return tipo == kVortice || tipo == kSimmetrie || tipo == kParalleli || tipo == kInterruzioni ||
           tipo == kSequenze;
}

constexpr int kMaxClasseTabulata = 16;

std::vector<int8_t> TabulaPerParita(const Condizione& c, int k) {
    std::vector<int8_t> tabella(size_t(1) << k);
    ProfiloColonna pc;
    pc.k = k;
    for (uint32_t m = 0; m < tabella.size(); ++m) {
        for (int i = 1; i <= k; ++i) pc.p[i] = int((m >> (i - 1)) & 1);
        tabella[m] = int8_t(MisuraCondizione(c, pc));
    }
    return tabella;
}

}  // namespace

struct Valutatore::Quadro {
    Bitset membri{};
    int minimo = 0, massimo = 0;
};

struct Valutatore::Gruppo {
    Bitset foglie{};              // member conditions
    std::vector<int> figli;       // member groups, already settled
    Maschera128 accettati;        // counts of passed members that pass the group
};

void Valutatore::Contatori::Somma(const Contatori& altri) {
    for (size_t i = 0; i < fallite.size(); ++i) {
        fallite[i] += altri.fallite[i];
        superate[i] += altri.superate[i];
        recuperabili[i] += altri.recuperabili[i];
    }
}

Valutatore::Valutatore(const TabellaCondizioni& tabella, const TabellaQuadri& quadri, int classe)
    : k_(classe), parole_(int(tabella.size() + 63) / 64) {
    for (size_t i = 0; i < tabella.size(); ++i) {
        const Condizione& c = tabella[i];
        if (!GiudicataSuElenco(c.Tipo) && !GiudicataSuIntervallo(c.Tipo)) {
            if (c.Tipo != kLinkOpen && c.Tipo != kLinkClose) Imposta(sempreSuperate_, int(i));
            continue;
        }
        Compilata cc;
        cc.tipo = c.Tipo;
        cc.elenco = GiudicataSuElenco(c.Tipo);
        cc.indice = int(i);
        cc.punti = MascheraPunti(c.Punti);
        cc.recupero = MascheraPunti(c.Recupero);
        cc.minPunti = c.MinPunti, cc.maxPunti = c.MaxPunti;
        cc.minRecupero = c.MinRecupero, cc.maxRecupero = c.MaxRecupero;
        cc.parametro = c.Parametro;
        for (int n = 1; n <= kMaxNumero; ++n)
            if (c.Numeri[n] != 0) cc.insieme.Imposta(n);
        cc.origine = &c;
        if (SoloParita(c.Tipo) && classe <= kMaxClasseTabulata) cc.perParita = TabulaPerParita(c, classe);
        condizioni_.push_back(std::move(cc));
    }
    for (int p = 1; p <= kNumeroQuadri; ++p) {
        if (quadri[p].Attivo == 0) continue;
        Quadro q;
        q.minimo = quadri[p].Minimo;
        q.massimo = quadri[p].Massimo;
        for (size_t i = 0; i < tabella.size(); ++i)
            if (tabella[i].QuadroRec == p) Imposta(q.membri, int(i));
        quadri_.push_back(q);
    }
    CompilaGruppi(tabella);
}

Valutatore::~Valutatore() = default;

void Valutatore::CompilaGruppi(const TabellaCondizioni& tabella) {
    // Replays the collapse of the link groups on the types alone: the same
    // groups form on every column, only their verdicts change.
    struct Voce { int tipo; int condizione; int gruppo; };
    std::vector<Voce> voci;
    for (size_t i = 0; i < tabella.size(); ++i) voci.push_back({tabella[i].Tipo, int(i), -1});
    for (;;) {
        size_t chiusura = 0;
        while (chiusura < voci.size() && voci[chiusura].tipo != kLinkClose) ++chiusura;
        if (chiusura == voci.size()) break;
        size_t apertura = chiusura;
        while (apertura > 0 && voci[apertura].tipo != kLinkOpen) --apertura;
        Gruppo g;
        for (size_t i = apertura; i < chiusura; ++i) {
            if (voci[i].tipo == kLinkOpen) continue;  // never passed itself
            if (voci[i].gruppo >= 0) g.figli.push_back(voci[i].gruppo);
            else Imposta(g.foglie, voci[i].condizione);
        }
        const auto& conteggi = tabella[voci[chiusura].condizione].Numeri;
        for (int n = 0; n <= kMaxNumero; ++n)
            if (conteggi[n] != 0) g.accettati.Imposta(n);
        gruppi_.push_back(g);
        voci[apertura] = {kNessuna, -1, int(gruppi_.size()) - 1};
        voci.erase(voci.begin() + long(apertura) + 1, voci.begin() + long(chiusura) + 1);
    }
    for (const Voce& v : voci) {
        if (v.tipo == kLinkOpen) continue;
        if (v.gruppo >= 0) gruppiFinali_.push_back(v.gruppo);
        else Imposta(foglieFinali_, v.condizione);
    }
}

namespace {

// The same profile as ProfilaColonna, filled in one pass with the masks:
// this runs once per column of the development.
void Prepara(int k, const Colonna& c, Colonna128& col) {
    col.pc.k = k;
    col.pc.somma = 0;
    col.numeri = {};
    col.parita = 0;
    for (int i = 1; i <= kMaxClasse; ++i) {
        const int n = c[i];
        col.pc.c[i] = n;
        if (i > k) continue;
        col.pc.p[i] = n & 1;
        col.pc.somma += n;
        col.numeri.Imposta(n);
        col.parita |= uint32_t(n & 1) << (i - 1);
    }
}


int32_t Consecutivi(const Colonna128& col) {
    const Maschera128& m = col.numeri;  // x and x+1 both in the column
    return std::popcount(m.basso & (m.basso >> 1)) +
           std::popcount(m.alto & ((m.alto >> 1))) + int((m.basso >> 63) & m.alto & 1);
}

int32_t Ponte(const Colonna128& col) {
    // x and x+2 in the column with x+1 missing: the two stand side by side.
    const uint64_t b = col.numeri.basso, a = col.numeri.alto;
    const uint64_t su1 = (b >> 1) | (a << 63), su2 = (b >> 2) | (a << 62);
    return std::popcount(b & su2 & ~su1) + std::popcount(a & (a >> 2) & ~(a >> 1));
}

int32_t Interruzioni(const Colonna128& col) {
    return std::popcount((col.parita ^ (col.parita >> 1)) & BitBassi(col.pc.k - 1));
}

int32_t Paralleli(const Colonna128& col, int direzione) {
    const int h = col.pc.k / 2;
    const uint32_t diverse = (col.parita ^ (col.parita >> h)) & BitBassi(h);
    return direzione == 1 ? h - std::popcount(diverse) : std::popcount(diverse);
}

int32_t Misura(const Colonna128& col, int tipo, int parametro, const Maschera128& insieme,
               const Condizione& origine) {
    switch (tipo) {
    case kPuntiColonna:
    case kPariDispari: return col.numeri.ContaComuni(insieme);
    case kConsecutivi: return Consecutivi(col);
    case kPonte: return Ponte(col);
    case kInterruzioni: return Interruzioni(col);
    case kParalleli: return Paralleli(col, parametro);
    case kResto: return MisuraResto(col.pc, parametro);
    case kBaricentro: return MisuraBaricentro(col.pc);
    case kAmpiezza: return MisuraAmpiezza(col.pc);
    case kPosizioni: return MisuraPosizioni(col.pc, parametro);
    case kDistanzaMinima: return MisuraDistanzaMinima(col.pc);
    case kDistanzaMassima: return MisuraDistanzaMassima(col.pc);
    case kPeso: return MisuraPeso(col.pc, origine.Numeri);
    default: return MisuraCondizione(origine, col.pc);
    }
}

}  // namespace

bool Valutatore::Giudica(const Colonna& c, Contatori& contatori) const {
    // Reused from column to column: clearing a fresh profile would cost more
    // than the measures of a typical system.
    thread_local Colonna128 col;
    Prepara(k_, c, col);
    Bitset superate = sempreSuperate_;
    Bitset recuperabili{};
    for (const Compilata& cc : condizioni_) {
        const int32_t v = cc.perParita.empty() ? Misura(col, cc.tipo, cc.parametro, cc.insieme, *cc.origine)
                                               : cc.perParita[col.parita];
        bool sup, rec;
        if (cc.elenco) {
            sup = InElenco(cc.punti, v);
            rec = InElenco(cc.recupero, v);
        } else {
            sup = cc.minPunti <= v && v <= cc.maxPunti;
            rec = cc.minRecupero <= v && v <= cc.maxRecupero;
        }
        ++(sup ? contatori.superate : contatori.fallite)[cc.indice];
        if (sup) Imposta(superate, cc.indice);
        if (rec) {
            ++contatori.recuperabili[cc.indice];
            Imposta(recuperabili, cc.indice);
        }
    }
    for (const Quadro& q : quadri_) {
        const int n = ContaBit(recuperabili, q.membri, parole_);
        if (n < q.minimo || n > q.massimo) continue;
        for (int w = 0; w < parole_; ++w) superate[w] |= recuperabili[w] & q.membri[w];
    }
    // Every group's verdict is written before a containing group reads it.
    std::array<bool, kMaxCondizioniVeloci> esiti;
    for (size_t g = 0; g < gruppi_.size(); ++g) {
        const Gruppo& gr = gruppi_[g];
        int n = ContaBit(superate, gr.foglie, parole_);
        for (int f : gr.figli) n += esiti[f];
        esiti[g] = n <= kMaxNumero && gr.accettati.Contiene(n);
    }
    for (int w = 0; w < parole_; ++w)
        if ((superate[w] & foglieFinali_[w]) != foglieFinali_[w]) return false;
    for (int g : gruppiFinali_)
        if (!esiti[g]) return false;
    return true;
}

}  // namespace combi
