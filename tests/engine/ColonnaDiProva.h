#pragma once
// Columns for the tests: one written out by hand, and seeded random sets of
// them.

#include <algorithm>
#include <initializer_list>
#include <numeric>
#include <random>
#include <vector>

#include "Colonna.h"

namespace combi::test {

// The numbers in positions 1, 2, ...
inline Colonna Col(std::initializer_list<int> numeri) {
    Colonna c;
    int pos = 1;
    for (int n : numeri) c[pos++] = uint8_t(n);
    return c;
}

// `n` columns of `classe` numbers out of 1..pool, ascending. From class 6
// on, about one in five is an earlier column again with its first six
// shuffled (and, past the sixth, its last number changed), and one in five an
// earlier column with one of its first six numbers changed, so that every
// reduction drops something.
inline std::vector<Colonna> ColonneCasuali(uint32_t seme, size_t n, int pool, int classe = 6) {
    std::mt19937 rng(seme);
    std::vector<int> numeri(static_cast<size_t>(pool), 0);
    std::iota(numeri.begin(), numeri.end(), 1);
    const int k = std::min(classe, pool);
    std::vector<Colonna> v;
    while (v.size() < n) {
        const int caso = classe >= 6 && !v.empty() ? int(rng() % 10) : 9;
        Colonna c;
        if (caso < 2) {
            c = v[rng() % v.size()];
            std::shuffle(c.Numeri.begin(), c.Numeri.begin() + 6, rng);
            if (classe > 6) c[classe] = uint8_t(rng() % 90 + 1);
        } else if (caso < 4) {
            c = v[rng() % v.size()];
            std::shuffle(numeri.begin(), numeri.end(), rng);
            for (int x : numeri)
                if (std::find(c.Numeri.begin(), c.Numeri.begin() + 6, x) == c.Numeri.begin() + 6) {
                    c[int(rng() % 6) + 1] = uint8_t(x);
                    break;
                }
        } else {
            std::shuffle(numeri.begin(), numeri.end(), rng);
            std::sort(numeri.begin(), numeri.begin() + k);
            for (int p = 1; p <= k; ++p) c[p] = uint8_t(numeri[size_t(p) - 1]);
        }
        v.push_back(c);
    }
    return v;
}

}  // namespace combi::test
