#pragma once
// The subsets of a column's numbers, numbered by the combinatorial number
// system: the subset a1 < ... < ak of 0..89 is sum C(a_m, m). C(90,10) - 1
// needs 43 bits, so ranks are 64-bit. Shared by the reduction's index, the
// optimising reduction and the search for holes; not part of the public interface.

#include <array>
#include <cstdint>

#include "Colonna.h"

namespace combi::sottoinsiemi {

inline constexpr int kMassimoK = 10;  // the largest subset numbered

// Binomial coefficients C(n, k), n 0..90, k 0..10.
struct Binomiali {
    uint64_t c[kMaxNumero + 1][kMassimoK + 1] = {};
    constexpr Binomiali() {
        for (int n = 0; n <= kMaxNumero; ++n) {
            c[n][0] = 1;
            // c[n - 1][n] is still 0: no subset of n - 1 numbers has n.
            for (int k = 1; k <= kMassimoK && k <= n; ++k) c[n][k] = c[n - 1][k - 1] + c[n - 1][k];
        }
    }
};
inline constexpr Binomiali kBinomiali;

// 0 outside 0 <= k <= n (a negative n included, since k is not negative then).
inline uint64_t C(int n, int k) { return k < 0 || k > kMassimoK || n < k ? 0 : kBinomiali.c[n][k]; }

// Calls f(rank) for every k-subset of the `quanti` ascending numbers 0..89 in
// `a` (k 1..10), in lexicographic order of positions.
template <typename F>
void PerSottoinsiemi(const uint8_t* a, int quanti, int k, F&& f) {
    if (k < 1 || k > quanti || k > kMassimoK) return;
    std::array<int, kMassimoK> p{};
    for (int m = 0; m < k; ++m) p[m] = m;
    for (;;) {
        uint64_t r = 0;
        for (int m = 0; m < k; ++m) r += kBinomiali.c[a[p[m]]][m + 1];
        f(r);
        int m = k - 1;
        while (m >= 0 && p[m] == quanti - k + m) --m;
        if (m < 0) return;
        ++p[m];
        for (int q = m + 1; q < k; ++q) p[q] = p[q - 1] + 1;
    }
}

// The non-zero numbers of a column minus one, ascending; returns their count.
inline int NumeriOrdinati(const Colonna& c, int posizioni, uint8_t* a) {
    int quanti = 0;
    for (int pos = 1; pos <= posizioni; ++pos) {
        if (c[pos] == 0) continue;
        const uint8_t numero = uint8_t(c[pos] - 1);
        int q = quanti++;
        for (; q > 0 && a[q - 1] > numero; --q) a[q] = a[q - 1];
        a[q] = numero;
    }
    return quanti;
}

}  // namespace combi::sottoinsiemi
