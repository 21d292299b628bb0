#pragma once
// Columns for the tests: one written out by hand, seeded random sets of
// them, and the numbers two of them share counted one by one, with the
// holes of a reduction found that way.

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

// The numbers da..a.
inline std::vector<int> DaA(int da, int a) {
    std::vector<int> v;
    for (int x = da; x <= a; ++x) v.push_back(x);
    return v;
}

// The numbers two columns of class `classe` have in common, each of one
// compared with each of the other.
inline int Comuni(const Colonna& a, const Colonna& b, int classe = 6) {
    int comuni = 0;
    for (int p = 1; p <= classe; ++p)
        for (int q = 1; q <= classe; ++q) comuni += a[p] == b[q];
    return comuni;
}

// The columns of `daCoprire` sharing fewer than `punti` numbers with every
// kept column, in their order.
inline std::vector<Colonna> BuchiAForzaBruta(const std::vector<Colonna>& tenute, const std::vector<Colonna>& daCoprire,
                                             int punti, int classe = 6) {
    std::vector<Colonna> buchi;
    for (const Colonna& d : daCoprire)
        if (std::none_of(tenute.begin(), tenute.end(), [&](const Colonna& t) { return Comuni(d, t, classe) >= punti; }))
            buchi.push_back(d);
    return buchi;
}

// `n` columns of `classe` numbers out of 1..pool, so that every reduction
// drops something: six in ten are drawn afresh (ascending), about one in five is an earlier column again
// with its numbers shuffled and a number after them changed (a tail the
// reduction does not compare), and one in five an earlier column with one of
// its numbers changed.
inline std::vector<Colonna> ColonneCasuali(uint32_t seme, size_t n, int pool, int classe = 6) {
    std::mt19937 rng(seme);
    std::vector<int> numeri(static_cast<size_t>(pool), 0);
    std::iota(numeri.begin(), numeri.end(), 1);
    std::vector<Colonna> v;
    while (v.size() < n) {
        const int caso = int(rng() % 10);
        Colonna c;
        if (caso < 2 && !v.empty()) {
            c = v[rng() % v.size()];
            std::shuffle(c.Numeri.begin(), c.Numeri.begin() + classe, rng);
            if (classe < int(c.Numeri.size())) c[classe + 1] = uint8_t(rng() % 90 + 1);
        } else if (caso < 4 && !v.empty()) {
            c = v[rng() % v.size()];
            std::shuffle(numeri.begin(), numeri.end(), rng);
            for (int x : numeri)
                if (std::find(c.Numeri.begin(), c.Numeri.begin() + classe, x) == c.Numeri.begin() + classe) {
                    c[int(rng() % unsigned(classe)) + 1] = uint8_t(x);
                    break;
                }
        } else {
            std::shuffle(numeri.begin(), numeri.end(), rng);
            std::sort(numeri.begin(), numeri.begin() + std::min(classe, pool));
            for (int p = 1; p <= std::min(classe, pool); ++p) c[p] = uint8_t(numeri[size_t(p) - 1]);
        }
        v.push_back(c);
    }
    return v;
}

}  // namespace combi::test
