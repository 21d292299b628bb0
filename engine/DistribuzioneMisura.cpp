#include "DistribuzioneMisura.h"

#include <algorithm>
#include <string>

#include "Errore.h"
#include "Messaggi.h"
#include "Misure.h"

namespace combi {

namespace {

// Each summary below gives: Livello(j), how many keys a prefix of j numbers
// can have (j = k: the keys of whole columns); Passo(key, j, x), the key after
// x joins a prefix of j numbers as its (j+1)-th; Valore(key), the measure of
// a whole column with that key.

constexpr int kMaxSomma = kMaxNumero * kMaxClasse;  // a sum of at most 20 numbers up to 90
constexpr uint32_t kNumeri = kMaxNumero + 1;        // a number 0..90 as part of a key

// Types that measure the same value on every column.
struct Costante {
    size_t Livello(int) const { return 1; }
    uint32_t Passo(uint32_t, int, int) const { return 0; }
    int32_t Valore(uint32_t) const { return 0; }
};

// Punti Col., Pari-Dispari: how many numbers of the condition's set.
struct NumeriNellInsieme {
    const Insieme& insieme;
    size_t Livello(int) const { return kMaxClasse + 1; }
    uint32_t Passo(uint32_t chiave, int, int x) const { return chiave + (insieme[size_t(x)] != 0); }
    int32_t Valore(uint32_t chiave) const { return int32_t(chiave); }
};

// Peso: the sum of the numbers at the chosen positions.
struct SommaDelleCaselle {
    const Insieme& caselle;
    size_t Livello(int) const { return kMaxSomma + 1; }
    uint32_t Passo(uint32_t chiave, int j, int x) const { return chiave + (caselle[size_t(j) + 1] != 0 ? x : 0); }
    int32_t Valore(uint32_t chiave) const { return int32_t(chiave); }
};

// Resto, Baricentro: the whole sum, measured by the engine's own function.
struct SommaIntera {
    const Condizione& condizione;
    int k;
    size_t Livello(int) const { return kMaxSomma + 1; }
    uint32_t Passo(uint32_t chiave, int, int x) const { return chiave + uint32_t(x); }
    int32_t Valore(uint32_t chiave) const {
        ProfiloColonna pc;
        pc.k = k;
        pc.somma = int32_t(chiave);
        return MisuraCondizione(condizione, pc);
    }
};

// Ampiezza: the first number; a whole column keeps its width.
struct Larghezza {
    int k;
    size_t Livello(int j) const { return j < k ? kNumeri : kNumeri - 1; }
    uint32_t Passo(uint32_t chiave, int j, int x) const {
        const uint32_t primo = j == 0 ? uint32_t(x) : chiave;
        return j + 1 == k ? uint32_t(x) - primo : primo;
    }
    int32_t Valore(uint32_t chiave) const { return int32_t(chiave); }
};

// Distanza Minima / Massima: the last number and the extreme gap so far
// (kNessuno before the second number).
struct DistanzaEstrema {
    int k;
    bool massima;
    static constexpr uint32_t kNessuno = kMaxNumero;  // no gap reaches 90
    size_t Livello(int j) const { return j < k ? kNumeri * kNumeri : kNumeri; }
    uint32_t Passo(uint32_t chiave, int j, int x) const {
        uint32_t estremo = kNessuno;
        if (j > 0) {
            const uint32_t ultimo = chiave / kNumeri, salto = uint32_t(x) - ultimo;
            estremo = chiave % kNumeri;
            estremo = estremo == kNessuno ? salto : massima ? std::max(estremo, salto) : std::min(estremo, salto);
        }
        return j + 1 == k ? estremo : uint32_t(x) * kNumeri + estremo;
    }
    // A lone number has no gap: 1000 for the smallest, 0 for the largest.
    int32_t Valore(uint32_t chiave) const { return chiave == kNessuno ? (massima ? 0 : 1000) : int32_t(chiave); }
};

// Consecutivi (salto 1), Ponte (salto 2): the last number and the pairs so far.
struct CoppieASalto {
    int k;
    int salto;
    static constexpr uint32_t kConte = kMaxClasse + 1;
    size_t Livello(int j) const { return j < k ? kNumeri * kConte : kConte; }
    uint32_t Passo(uint32_t chiave, int j, int x) const {
        uint32_t coppie = 0;
        if (j > 0) coppie = chiave % kConte + (x - int(chiave / kConte) == salto);
        return j + 1 == k ? coppie : uint32_t(x) * kConte + coppie;
    }
    int32_t Valore(uint32_t chiave) const { return int32_t(chiave); }
};

// Posizioni: the number at position `posizione` once it is reached.
struct NumeroInPosizione {
    int posizione;
    size_t Livello(int) const { return kNumeri; }
    uint32_t Passo(uint32_t chiave, int j, int x) const { return j + 1 == posizione ? uint32_t(x) : chiave; }
    int32_t Valore(uint32_t chiave) const { return int32_t(chiave); }
};

// Interruzioni, Simmetrie, Paralleli, Vortice, Sequenze read the parities
// alone: bit i of the key is the parity of position i + 1.
struct SchemaParita {
    const Condizione& condizione;
    int k;
    size_t Livello(int j) const { return size_t(1) << j; }
    uint32_t Passo(uint32_t chiave, int j, int x) const { return chiave | uint32_t(x & 1) << j; }
    int32_t Valore(uint32_t chiave) const {
        ProfiloColonna pc;
        pc.k = k;
        for (int i = 1; i <= k; ++i) pc.p[size_t(i)] = int(chiave >> (i - 1) & 1u);
        return MisuraCondizione(condizione, pc);
    }
};

// The count itself. The picked numbers are taken in ascending order; a prefix
// of j numbers gains the number as its (j+1)-th, j running downwards so that
// no number joins a prefix it already ended. Prefixes that the numbers left
// can no longer complete are not extended.
template <typename Riassunto>
std::optional<Distribuzione> Conta(const Riassunto& r, const std::vector<int>& numeri, int k,
                                   const AvanzamentoDistribuzione& avanzamento) {
    const int n = int(numeri.size());
    std::vector<std::vector<uint64_t>> livelli(size_t(k) + 1);
    for (int j = 0; j <= k; ++j) livelli[size_t(j)].assign(r.Livello(j), 0);
    livelli[0][0] = 1;
    for (int i = 0; i < n; ++i) {
        const int x = numeri[size_t(i)];
        for (int j = std::min(i, k - 1); j >= std::max(0, k - n + i); --j) {
            const std::vector<uint64_t>& da = livelli[size_t(j)];
            std::vector<uint64_t>& a = livelli[size_t(j) + 1];
            for (size_t chiave = 0; chiave < da.size(); ++chiave)
                if (da[chiave] != 0) a[r.Passo(uint32_t(chiave), j, x)] += da[chiave];
        }
        if (avanzamento && !avanzamento(i + 1, n)) return std::nullopt;
    }
    Distribuzione distribuzione;
    const std::vector<uint64_t>& colonne = livelli[size_t(k)];
    for (size_t chiave = 0; chiave < colonne.size(); ++chiave)
        if (colonne[chiave] != 0) distribuzione[r.Valore(uint32_t(chiave))] += colonne[chiave];
    return distribuzione;
}

}  // namespace

void ControllaNumeriDistribuzione(const std::vector<int>& numeri, int classe) {
    if (classe < 1 || classe > kMaxClasse || int(numeri.size()) < classe)
        throw Errore(kErroreArgomento, std::string(kImpostarePronostico));
    for (size_t i = 0; i < numeri.size(); ++i) {
        if (numeri[i] < 1 || numeri[i] > kMaxNumero || (i > 0 && numeri[i] <= numeri[i - 1]))
            throw Errore(kErroreArgomento, "Numeri non in ordine crescente da 1 a 90");
    }
}

std::optional<Distribuzione> ContaDistribuzione(const Condizione& c, const std::vector<int>& numeri, int k,
                                                const AvanzamentoDistribuzione& avanzamento) {
    ControllaNumeriDistribuzione(numeri, k);
    switch (c.Tipo) {
    case kPuntiColonna:
    case kPariDispari: return Conta(NumeriNellInsieme{c.Numeri}, numeri, k, avanzamento);
    case kPeso: return Conta(SommaDelleCaselle{c.Numeri}, numeri, k, avanzamento);
    case kResto:
    case kBaricentro: return Conta(SommaIntera{c, k}, numeri, k, avanzamento);
    case kAmpiezza: return Conta(Larghezza{k}, numeri, k, avanzamento);
    case kDistanzaMinima: return Conta(DistanzaEstrema{k, false}, numeri, k, avanzamento);
    case kDistanzaMassima: return Conta(DistanzaEstrema{k, true}, numeri, k, avanzamento);
    case kConsecutivi: return Conta(CoppieASalto{k, 1}, numeri, k, avanzamento);
    case kPonte: return Conta(CoppieASalto{k, 2}, numeri, k, avanzamento);
    case kPosizioni:
        // Positions past the class hold 0, as do positions outside the record.
        if (c.Parametro >= 1 && c.Parametro <= k) return Conta(NumeroInPosizione{c.Parametro}, numeri, k, avanzamento);
        break;
    case kInterruzioni:
    case kSimmetrie:
    case kParalleli:
    case kVortice:
    case kSequenze: return Conta(SchemaParita{c, k}, numeri, k, avanzamento);
    default: break;
    }
    return Conta(Costante{}, numeri, k, avanzamento);
}

bool ValoreAccettato(const Condizione& c, int32_t valore) {
    if (GiudicataSuElenco(c.Tipo)) return valore >= 0 && valore <= 10 && c.Punti[size_t(valore)] != 0;
    if (GiudicataSuIntervallo(c.Tipo)) return c.MinPunti <= valore && valore <= c.MaxPunti;
    return false;
}

uint64_t ColonneAccettate(const Distribuzione& distribuzione, const Condizione& condizione) {
    uint64_t colonne = 0;
    for (const auto& [valore, quante] : distribuzione)
        if (ValoreAccettato(condizione, valore)) colonne += quante;
    return colonne;
}

}  // namespace combi
