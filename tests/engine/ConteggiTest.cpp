#include <gtest/gtest.h>

#include <algorithm>

#include "Conteggi.h"

namespace combi {
namespace {

TEST(Conteggi, FactorialsAndIntegralCounts) {
    EXPECT_EQ(Fattoriale(0), 0.0);
    EXPECT_EQ(Fattoriale(1), 1.0);
    EXPECT_EQ(Fattoriale(5), 120.0);
    EXPECT_EQ(CalcolaIntegrali(5, 5), 1.0);
    EXPECT_EQ(CalcolaIntegrali(4, 5), 0.0);
    EXPECT_NEAR(CalcolaIntegrali(90, 6), 622614630.0, 1e-3);
    EXPECT_EQ(Combinazioni(90, 6), 622614630u);
    EXPECT_EQ(Combinazioni(90, 20), UINT64_MAX);  // beyond 64 bits: saturates
    EXPECT_EQ(Combinazioni(90, 10), 5720645481903ull);
    // No way to choose a negative count, or more than there are.
    struct Caso { int n, k; uint64_t attese; };
    for (const Caso& c : {Caso{5, -1, 0}, Caso{-1, -2, 0}, Caso{-1, 0, 0}, Caso{4, 5, 0}, Caso{5, 0, 1}, Caso{0, 0, 1},
                          Caso{7, 7, 1}, Caso{7, 6, 7}, Caso{20, 10, 184756}})
        EXPECT_EQ(Combinazioni(c.n, c.k), c.attese) << c.n << "," << c.k;
}

TEST(Conteggi, EnumerationIsLexicographicAndUnrankingAgrees) {
    const std::vector<int> sel = {4, 9, 17, 33, 60};
    Enumerazione en(sel, 3);
    std::vector<Colonna> tutte;
    do tutte.push_back(en.Corrente()); while (en.Avanza());
    ASSERT_EQ(tutte.size(), 10u);
    EXPECT_EQ(tutte.front()[1], 4);
    EXPECT_EQ(tutte.front()[3], 17);
    EXPECT_EQ(tutte[1][3], 33);   // (s1 s2 s4)
    EXPECT_EQ(tutte[3][2], 17);   // (s1 s3 s4)
    EXPECT_EQ(tutte.back()[1], 17);
    EXPECT_TRUE(std::is_sorted(tutte.begin(), tutte.end(), [](const Colonna& a, const Colonna& b) {
        return a.Numeri < b.Numeri;
    }));
    for (uint64_t r = 0; r < tutte.size(); ++r) {
        Enumerazione salto(sel, 3);
        salto.Posiziona(r);
        EXPECT_EQ(salto.Corrente(), tutte[r]) << "rank " << r;
    }
}

TEST(Conteggi, EnumerationCountsMatchBinomials) {
    for (int n : {1, 6, 12, 20}) {
        for (int k = 1; k <= std::min(n, 6); ++k) {
            std::vector<int> sel(n);
            for (int i = 0; i < n; ++i) sel[i] = i + 1;
            Enumerazione en(sel, k);
            uint64_t conta = 1;
            while (en.Avanza()) ++conta;
            EXPECT_EQ(conta, Combinazioni(n, k)) << n << "," << k;
        }
    }
}

}  // namespace
}  // namespace combi
