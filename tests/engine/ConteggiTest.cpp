// Counts of columns and the masks of numbers. A count of masks that takes a
// single member takes one bit plane whether one member is asked for as the
// small case or through the bit width (1 either way), and C(n, k) for k
// above n is 0 whether the guard or the table's zeros give it.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "Conteggi.h"
#include "ConteggioMaschere.h"

namespace combi {
namespace {

TEST(Conteggi, FactorialsAndIntegralCounts) {
    EXPECT_EQ(Fattoriale(0), 0.0);
    EXPECT_EQ(Fattoriale(1), 1.0);
    EXPECT_EQ(Fattoriale(5), 120.0);
    EXPECT_EQ(CalcolaIntegrali(5, 5), 1.0);
    EXPECT_EQ(CalcolaIntegrali(6, 5), 6.0);
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

// The values a range accepts, as bits: clamped to 0..63, none when reversed.
// And the candidates held by an accepted number of masks, against a count
// bit by bit, for every number of masks up to 70 (the written-out cases
// 0..3 and the bit-sliced count beyond).
TEST(Conteggi, MasksCountedPerCandidate) {
    struct Intervallo { int64_t da, a; uint64_t bit; };
    for (const Intervallo& c : {Intervallo{3, 0, 0}, Intervallo{5, 5, 1u << 5}, Intervallo{-2, 1, 0b11},
                                Intervallo{0, 63, ~uint64_t{0}}, Intervallo{60, 70, uint64_t{0xF} << 60},
                                Intervallo{64, 70, 0}, Intervallo{2, 4, 0b11100}})
        EXPECT_EQ(ValoriTra(c.da, c.a), c.bit) << c.da << ".." << c.a;
    std::mt19937_64 rng(29);
    for (size_t n = 0; n <= 70; ++n) {
        std::vector<Maschera128> maschere(n);
        for (Maschera128& m : maschere) m = {rng() & rng(), rng() | rng()};
        const uint64_t valori = n % 5 == 0 ? ValoriTra(0, 1) : rng();
        const Maschera128 esito = ConteggioInInsieme(maschere.data(), n, valori);
        for (int candidato = 0; candidato < 128; ++candidato) {
            int quante = 0;
            for (const Maschera128& m : maschere) quante += m.Contiene(candidato);
            const bool atteso = quante < 64 && ((valori >> quante) & 1);
            ASSERT_EQ(esito.Contiene(candidato), atteso) << n << " masks, candidate " << candidato;
        }
    }
    // Held by every one of 64 or 65 masks: a count past 63 is never wanted, whatever the bits.
    for (size_t n : {64u, 65u}) {
        const std::vector<Maschera128> piene(n, Maschera128{~uint64_t{0}, ~uint64_t{0}});
        EXPECT_TRUE(ConteggioInInsieme(piene.data(), n, ~uint64_t{0}).Vuota()) << n;
    }
}

// The mask is a set of 0..127 for any caller, though a column's numbers
// never set bit 0: the walk, the emptiness and the shift are checked at both
// ends of each word.
TEST(Conteggi, MaskOf128NumbersAtTheEndsOfItsWords) {
    Maschera128 m;
    EXPECT_TRUE(m.Vuota());
    for (int n : {127, 0, 64, 1, 63}) m.Imposta(n);
    std::vector<int> visti;
    m.PerOgni([&](int n) { visti.push_back(n); });
    EXPECT_EQ(visti, (std::vector<int>{0, 1, 63, 64, 127}));
    EXPECT_EQ(m.Conta(), 5);
    for (int n : {0, 127}) {
        Maschera128 uno;
        uno.Imposta(n);
        EXPECT_FALSE(uno.Vuota()) << n;
        EXPECT_TRUE(uno.Contiene(n));
        EXPECT_FALSE(uno.Contiene(n == 0 ? 64 : 63)) << n;
    }
    const Maschera128 spostata = m.Sposta(1);  // 127 drops out, 63 crosses into the high word
    EXPECT_EQ(spostata, (Maschera128{0b110, 0b11}));  // 1 2 | 64 65
    EXPECT_TRUE(Maschera128::Intervallo(90, 89).Vuota());
    EXPECT_EQ(Maschera128::Intervallo(-5, 2), (Maschera128{0b111, 0}));  // from 0 on
    EXPECT_EQ(Maschera128::Intervallo(62, 65), (Maschera128{uint64_t{3} << 62, 0b11}));
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
