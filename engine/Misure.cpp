#include "Misure.h"

#include <algorithm>
#include <cmath>

namespace combi {

ProfiloColonna ProfilaColonna(int k, const Colonna& colonna) {
    ProfiloColonna pc;
    pc.k = std::clamp(k, 0, kMaxClasse);
    for (int i = 1; i <= pc.k; ++i) {
        pc.c[i] = colonna[i];
        pc.p[i] = pc.c[i] & 1;
        pc.somma += pc.c[i];
    }
    for (int i = pc.k + 1; i <= kMaxClasse; ++i) pc.c[i] = colonna[i];
    return pc;
}

int32_t MisuraPuntiColonna(const ProfiloColonna& pc, const Insieme& numeri) {
    int32_t n = 0;
    for (int i = 1; i <= pc.k; ++i)
        if (pc.c[i] <= kMaxNumero && numeri[pc.c[i]] != 0) ++n;
    return n;
}

int32_t MisuraPeso(const ProfiloColonna& pc, const Insieme& caselle) {
    int32_t s = 0;
    for (int i = 1; i <= pc.k; ++i)
        if (caselle[i] != 0) s += pc.c[i];
    return s;
}

int32_t MisuraResto(const ProfiloColonna& pc, int divisore) {
    if (divisore == 0) return -1;
    return pc.somma % divisore;
}

int32_t MisuraAmpiezza(const ProfiloColonna& pc) {
    return pc.k == 0 ? 0 : pc.c[pc.k] - pc.c[1];
}

int32_t MisuraDistanzaMinima(const ProfiloColonna& pc) {
    if (pc.k < 2) return 1000;
    int32_t d = pc.c[2] - pc.c[1];
    for (int i = 2; i < pc.k; ++i) d = std::min(d, pc.c[i + 1] - pc.c[i]);
    return d;
}

int32_t MisuraDistanzaMassima(const ProfiloColonna& pc) {
    int32_t d = 0;
    for (int i = 2; i <= pc.k; ++i) d = std::max(d, pc.c[i] - pc.c[i - 1]);
    return d;
}

int32_t MisuraConsecutivi(const ProfiloColonna& pc) {
    int32_t n = 0;
    for (int i = 2; i <= pc.k; ++i)
        if (pc.c[i - 1] + 1 == pc.c[i]) ++n;
    return n;
}

int32_t MisuraPonte(const ProfiloColonna& pc) {
    int32_t n = 0;
    for (int i = 2; i <= pc.k; ++i)
        if (pc.c[i - 1] + 2 == pc.c[i]) ++n;
    return n;
}

int32_t MisuraBaricentro(const ProfiloColonna& pc) {
    return pc.k < 1 ? 0 : pc.somma / pc.k;
}

int32_t MisuraPosizioni(const ProfiloColonna& pc, int posizione) {
    if (posizione < 1 || posizione > kMaxClasse) return 0;
    return pc.c[posizione];
}

int32_t MisuraInterruzioni(const ProfiloColonna& pc) {
    int32_t n = 0;
    for (int i = 2; i <= pc.k; ++i)
        if (pc.p[i - 1] != pc.p[i]) ++n;
    return n;
}

int32_t MisuraSimmetrie(const ProfiloColonna& pc, int direzione) {
    int32_t n = 0;
    const bool diretta = direzione == 1;
    for (int a = 1, b = pc.k; a < b; ++a, --b)
        if ((pc.p[a] == pc.p[b]) == diretta) ++n;
    return n;
}

int32_t MisuraParalleli(const ProfiloColonna& pc, int direzione) {
    int32_t n = 0;
    const bool diretti = direzione == 1;
    const int h = pc.k / 2;
    for (int i = 1; i <= h; ++i)
        if ((pc.p[i] == pc.p[i + h]) == diretti) ++n;
    return n;
}

namespace {

// First j scanning from `da` down to `a` with p[j] == valore; 0 when none.
int CercaIndietro(const ProfiloColonna& pc, int da, int a, int valore) {
    for (int j = da; j >= a; --j)
        if (pc.p[j] == valore) return j;
    return 0;
}

// First j scanning from `da` up to `a` with p[j] == valore; 0 when none.
int CercaAvanti(const ProfiloColonna& pc, int da, int a, int valore) {
    for (int j = da; j <= a; ++j)
        if (pc.p[j] == valore) return j;
    return 0;
}

}  // namespace

int32_t MisuraVortice(const ProfiloColonna& pc, int direzione) {
    int a = 1, b = pc.k, v = 0;
    if (pc.k < 2) return 0;
    while (a < b) {
        if (direzione == 1) {
            // The scan from b down always lands (j = a matches); the scan up may
            // find an empty stretch once the bounds have crossed.
            int j = CercaIndietro(pc, b, a, pc.p[a]);
            b = j; ++a; v = j;
            j = CercaAvanti(pc, a, b, pc.p[b]);
            if (j != 0) { a = j; --b; v = j; }
        } else {
            int j = CercaAvanti(pc, a, b, pc.p[b]);
            a = j; --b; v = j;
            j = CercaIndietro(pc, b, a, pc.p[a]);
            if (j != 0) { b = j; ++a; v = j; }
        }
    }
    return v;
}

int32_t MisuraSequenze(const ProfiloColonna& pc, const Insieme& schema, int lunghezza) {
    if (lunghezza < 0 || lunghezza > pc.k) return 0;
    int32_t n = 0;
    for (int s = 1; s <= pc.k - lunghezza + 1; ++s) {
        int t = 0;
        while (t < lunghezza && pc.p[s + t] == schema[t]) ++t;
        if (t == lunghezza) ++n;
    }
    return n;
}

int32_t MisuraCondizione(const Condizione& cond, const ProfiloColonna& pc) {
    switch (cond.Tipo) {
    case kPuntiColonna:
    case kPariDispari: return MisuraPuntiColonna(pc, cond.Numeri);
    case kPeso: return MisuraPeso(pc, cond.Numeri);
    case kResto: return MisuraResto(pc, cond.Parametro);
    case kAmpiezza: return MisuraAmpiezza(pc);
    case kVortice: return MisuraVortice(pc, cond.Parametro);
    case kSimmetrie: return MisuraSimmetrie(pc, cond.Parametro);
    case kConsecutivi: return MisuraConsecutivi(pc);
    case kInterruzioni: return MisuraInterruzioni(pc);
    case kBaricentro: return MisuraBaricentro(pc);
    case kDistanzaMinima: return MisuraDistanzaMinima(pc);
    case kDistanzaMassima: return MisuraDistanzaMassima(pc);
    case kPosizioni: return MisuraPosizioni(pc, cond.Parametro);
    case kPonte: return MisuraPonte(pc);
    case kSequenze: return MisuraSequenze(pc, cond.Numeri, cond.Parametro);
    case kParalleli: return MisuraParalleli(pc, cond.Parametro);
    default: return 0;
    }
}

int32_t CalcolaBaricentro(int nClasse, const Colonna& col) {
    const ProfiloColonna pc = ProfilaColonna(nClasse, col);
    if (pc.k < 1) return 0;
    return static_cast<int32_t>(std::nearbyint(static_cast<double>(pc.somma) / pc.k));
}

int32_t CalcolaPonte(int k, const Colonna& c) { return MisuraPonte(ProfilaColonna(k, c)); }
int32_t CalcolaAmpiezza(int k, const Colonna& c) { return MisuraAmpiezza(ProfilaColonna(k, c)); }
int32_t CalcolaDistanzaMinima(int k, const Colonna& c) { return MisuraDistanzaMinima(ProfilaColonna(k, c)); }
int32_t CalcolaDistanzaMassima(int k, const Colonna& c) { return MisuraDistanzaMassima(ProfilaColonna(k, c)); }
int32_t CalcolaConsecutivi(int k, const Colonna& c) { return MisuraConsecutivi(ProfilaColonna(k, c)); }
int32_t CalcolaInterruzioni(int k, const Colonna& c) { return MisuraInterruzioni(ProfilaColonna(k, c)); }
int32_t CalcolaVorticeDiretto(int k, const Colonna& c) { return MisuraVortice(ProfilaColonna(k, c), 1); }
int32_t CalcolaVorticeInverso(int k, const Colonna& c) { return MisuraVortice(ProfilaColonna(k, c), 2); }
int32_t CalcolaSimmetrieDirette(int k, const Colonna& c) { return MisuraSimmetrie(ProfilaColonna(k, c), 1); }
int32_t CalcolaSimmetrieInverse(int k, const Colonna& c) { return MisuraSimmetrie(ProfilaColonna(k, c), 2); }
int32_t CalcolaParalleliDiretti(int k, const Colonna& c) { return MisuraParalleli(ProfilaColonna(k, c), 1); }
int32_t CalcolaParalleliInversi(int k, const Colonna& c) { return MisuraParalleli(ProfilaColonna(k, c), 2); }

int32_t CalcolaSequenze(int nClasse, const Colonna& col, std::string_view sSeq) {
    Insieme schema{};
    const int lunghezza = static_cast<int>(std::min<size_t>(sSeq.size(), schema.size()));
    for (int t = 0; t < lunghezza; ++t) schema[t] = (sSeq[t] == 'P' || sSeq[t] == 'p') ? 0 : 1;
    return MisuraSequenze(ProfilaColonna(nClasse, col), schema, lunghezza);
}

}  // namespace combi
