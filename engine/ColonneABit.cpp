#include "ColonneABit.h"

#include <algorithm>
#include <bit>

namespace combi {

namespace {

// Columns are taken 32,768 at a time (4 KB of each row), and every draw of
// a group is counted on them before moving on: the rows of one block stay
// in the core's cache for the whole group instead of being read from memory
// once per draw.
constexpr size_t kParoleBlocco = 512;

// The sum of `quante` (>= 1) rows over words w0..w1 in P bit planes (P bits
// hold every value up to `massimo`), then for each value 1..massimo the
// columns that reach it, added to acc. The planes live in arrays so that each
// step is a plain loop over words, which the compiler turns into vector
// instructions; rows go in two at a time through a full adder into the first
// plane, the carry rippling up.
template <int P>
inline __attribute__((always_inline)) void Somma(const uint64_t* const* righe, int quante, size_t w0, size_t w1,
                                                 int massimo, int64_t* acc) {
    alignas(64) uint64_t piano[P][kParoleBlocco];
    const size_t n = w1 - w0;
    for (size_t w = 0; w < n; ++w) piano[0][w] = righe[0][w0 + w];
    for (int b = 1; b < P; ++b)
        for (size_t w = 0; w < n; ++w) piano[b][w] = 0;
    int r = 1;
    for (; r + 1 < quante; r += 2) {
        const uint64_t* x = righe[r] + w0;
        const uint64_t* y = righe[r + 1] + w0;
        for (size_t w = 0; w < n; ++w) {
            const uint64_t a = piano[0][w], ax = a ^ x[w];
            piano[0][w] = ax ^ y[w];
            uint64_t riporto = (a & x[w]) | (ax & y[w]);
            for (int b = 1; b < P; ++b) {
                const uint64_t nuovo = piano[b][w] & riporto;
                piano[b][w] ^= riporto;
                riporto = nuovo;
            }
        }
    }
    if (r < quante) {
        const uint64_t* x = righe[r] + w0;
        for (size_t w = 0; w < n; ++w) {
            uint64_t riporto = x[w];
            for (int b = 0; b < P; ++b) {
                const uint64_t nuovo = piano[b][w] & riporto;
                piano[b][w] ^= riporto;
                riporto = nuovo;
            }
        }
    }
    for (int s = 1; s <= massimo; ++s) {
        // Columns at s: every plane equal to bit b of s (a plane whose bit is 0 inverted).
        uint64_t inverti[P];
        for (int b = 0; b < P; ++b) inverti[b] = (s >> b & 1) ? 0 : ~uint64_t(0);
        int64_t quanti = 0;
        for (size_t w = 0; w < n; ++w) {
            uint64_t uguale = piano[0][w] ^ inverti[0];
            for (int b = 1; b < P; ++b) uguale &= piano[b][w] ^ inverti[b];
            quanti += std::popcount(uguale);
        }
        acc[s] += quanti;
    }
}

#define CF_SOMMA_BLOCCO_CORPO                                                          \
    if (massimo <= 1) Somma<1>(righe, quante, w0, w1, massimo, acc);                   \
    else if (massimo <= 3) Somma<2>(righe, quante, w0, w1, massimo, acc);              \
    else if (massimo <= 7) Somma<3>(righe, quante, w0, w1, massimo, acc);              \
    else if (massimo <= 15) Somma<4>(righe, quante, w0, w1, massimo, acc);             \
    else Somma<5>(righe, quante, w0, w1, massimo, acc);

using SommaBloccoFn = void (*)(const uint64_t* const*, int, size_t, size_t, int, int64_t*);

// The same code compiled for several processors, the best one chosen at run
// time. What pays is a vector population count: AVX-512 VPOPCNTDQ counts
// eight words at once and makes the whole count about three times faster
// than the processor's scalar one; AVX2 has none and gains less; the
// portable copy runs anywhere.
#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
__attribute__((target_clones("arch=x86-64-v3", "popcnt", "default")))
#endif
void SommaBlocco(const uint64_t* const* righe, int quante, size_t w0, size_t w1, int massimo, int64_t* acc) {
    CF_SOMMA_BLOCCO_CORPO
}

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
__attribute__((target("avx512f,avx512vl,avx512bw,avx512vpopcntdq,popcnt")))
void SommaBloccoAvx512(const uint64_t* const* righe, int quante, size_t w0, size_t w1, int massimo, int64_t* acc) {
    CF_SOMMA_BLOCCO_CORPO
}

SommaBloccoFn ScegliSomma() {
    __builtin_cpu_init();
    return __builtin_cpu_supports("avx512vpopcntdq") ? SommaBloccoAvx512 : SommaBlocco;
}
#else
SommaBloccoFn ScegliSomma() { return SommaBlocco; }
#endif

#undef CF_SOMMA_BLOCCO_CORPO

}  // namespace

ColonneABit::ColonneABit(const std::vector<Colonna>& colonne)
    : colonne_(colonne.size()), parole_((colonne.size() + 63) / 64), righe_((kMaxNumero + 1) * parole_, 0) {
    for (size_t j = 0; j < colonne.size(); ++j) {
        int numeri = 0;
        for (uint8_t n : colonne[j].Numeri) {
            if (n == 0 || n > kMaxNumero) continue;
            righe_[n * parole_ + j / 64] |= uint64_t(1) << (j % 64);
            presente_[n] = true;
            ++numeri;
        }
        classeMassima_ = std::max(classeMassima_, numeri);
    }
}

void ColonneABit::Conta(const Estrazione* estrazioni, size_t quante, std::array<int64_t, kMaxClasse + 1>* conte) const {
    static const SommaBloccoFn somma = ScegliSomma();
    for (size_t i = 0; i < quante; ++i) conte[i].fill(0);
    for (size_t w0 = 0; w0 < parole_; w0 += kParoleBlocco) {
        const size_t w1 = std::min(parole_, w0 + kParoleBlocco);
        for (size_t i = 0; i < quante; ++i) {
            const Estrazione& e = estrazioni[i];
            // A number drawn twice counts once, as in the winnings check.
            const uint64_t* righe[20];
            std::array<bool, kMaxNumero + 1> preso{};
            int usate = 0;
            for (size_t k = 0; k < std::min<size_t>(e.quanti, e.numeri.size()); ++k) {
                const uint8_t n = e.numeri[k];
                if (n > kMaxNumero || !presente_[n] || preso[n]) continue;
                preso[n] = true;
                righe[usate++] = &righe_[n * parole_];
            }
            const int massimo = std::min(usate, classeMassima_);
            if (massimo > 0) somma(righe, usate, w0, w1, massimo, conte[i].data());
        }
    }
    for (size_t i = 0; i < quante; ++i) {
        int64_t conSomma = 0;
        for (size_t p = 1; p < conte[i].size(); ++p) conSomma += conte[i][p];
        conte[i][0] = int64_t(colonne_) - conSomma;  // padding bits of the last word sum to 0 and land here
    }
}

}  // namespace combi
