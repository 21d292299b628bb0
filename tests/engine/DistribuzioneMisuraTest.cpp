#include <gtest/gtest.h>

#include "ColonnaDiProva.h"
#include "Conteggi.h"
#include "DistribuzioneMisura.h"
#include "Errore.h"
#include "Misure.h"
#include "SistemiCasuali.h"

namespace combi {
namespace {

// The plain way: every integral column measured one at a time. A level of
// the table one key longer than its numbers need is never read.
Distribuzione Enumerando(const Condizione& c, const std::vector<int>& numeri, int k) {
    Distribuzione d;
    Enumerazione e(numeri, k);
    do {
        ++d[MisuraCondizione(c, ProfilaColonna(k, e.Corrente()))];
    } while (e.Avanza());
    return d;
}

// C(n, k) by Pascal's rule, exactly, kept apart from the engine's counts.
uint64_t Binomiale(int n, int k) {
    if (k < 0 || k > n) return 0;
    std::vector<uint64_t> riga(size_t(k) + 1, 0);
    riga[0] = 1;
    for (int i = 1; i <= n; ++i)
        for (int j = std::min(i, k); j > 0; --j) riga[size_t(j)] += riga[size_t(j) - 1];
    return riga[size_t(k)];
}

using test::DaA;

// Every type on seeded random systems: the count equals the enumeration,
// and the accepted columns equal each condition's own counter after the
// engine's fast count of the same system.
TEST(DistribuzioneMisura, EqualsTheEnumerationAndTheDevelopmentCounters) {
    test::GeneratoreSistemi gen(2024);
    int confrontate = 0;
    for (int caso = 0; caso < 160; ++caso) {
        const int classe = gen.Tra(1, 8);
        int n = classe;
        while (n < kMaxNumero && Binomiale(n + 1, classe) <= 40000 && gen.Tra(0, 6) > 0) ++n;
        const ParametriSviluppo p = gen.SistemaDi(classe, n);
        OsservatoreSviluppo silenzioso;
        const EsitoSviluppo conta = ContaSistema(p, silenzioso, {.thread = 2, .quota = {}});
        for (size_t i = 0; i < p.condizioni.size(); ++i) {
            const Condizione& c = p.condizioni[i];
            const std::string nome = "case " + std::to_string(caso) + " condition " + std::to_string(i + 1) + " type " +
                                     std::to_string(c.Tipo) + " param " + std::to_string(c.Parametro);
            const std::optional<Distribuzione> d = ContaDistribuzione(c, p.numeri, classe);
            ASSERT_TRUE(d.has_value());
            EXPECT_EQ(*d, Enumerando(c, p.numeri, classe)) << nome;
            if (GiudicataSuElenco(c.Tipo) || GiudicataSuIntervallo(c.Tipo)) {
                EXPECT_EQ(ColonneAccettate(*d, c), uint64_t(conta.condizioni[i].ContaSuperate)) << nome;
                ++confrontate;
            }
            if (HasFailure()) return;
        }
    }
    EXPECT_GT(confrontate, 300);
}

// Large systems no enumeration could visit, against formulas worked out by
// hand: columns of 90 numbers in class 10 holding v of a set of 30 are
// C(30, v) C(60, 10 - v); those of width w in class 5 over 1..90 choose the
// ends (90 - w ways) and 3 of the w - 1 numbers between.
TEST(DistribuzioneMisura, LargeSystemsMatchTheFormulas) {
    Condizione punti;
    punti.Tipo = kPuntiColonna;
    for (int x = 1; x <= 30; ++x) punti.Numeri[size_t(x)] = -1;
    const Distribuzione d = *ContaDistribuzione(punti, DaA(1, 90), 10);
    uint64_t totale = 0;
    for (int v = 0; v <= 10; ++v) {
        EXPECT_EQ(d.at(v), Binomiale(30, v) * Binomiale(60, 10 - v)) << v;
        totale += d.at(v);
    }
    EXPECT_EQ(totale, 5720645481903ull);  // C(90, 10)

    Condizione ampiezza;
    ampiezza.Tipo = kAmpiezza;
    const Distribuzione a = *ContaDistribuzione(ampiezza, DaA(1, 90), 5);
    EXPECT_EQ(a.begin()->first, 4);
    EXPECT_EQ(a.rbegin()->first, 89);
    for (int w = 4; w <= 89; ++w) EXPECT_EQ(a.at(w), uint64_t(90 - w) * Binomiale(w - 1, 3)) << w;

    // Class 20 over 90 numbers, parity patterns: every column counted once.
    Condizione vortice;
    vortice.Tipo = kVortice;
    vortice.Parametro = 2;
    uint64_t colonne = 0;
    const Distribuzione v = *ContaDistribuzione(vortice, DaA(1, 90), 20);
    for (const auto& [valore, quante] : v) colonne += quante;
    EXPECT_EQ(colonne, Binomiale(90, 20));
}

TEST(DistribuzioneMisura, StopsWhenAskedAndRefusesWhatCannotBeCounted) {
    Condizione peso;
    peso.Tipo = kPeso;
    peso.Numeri[1] = -1;
    std::vector<int> fatti;
    const auto fermata = ContaDistribuzione(peso, DaA(1, 30), 5, [&](int fatto, int totale) {
        EXPECT_EQ(totale, 30);
        fatti.push_back(fatto);
        return fatto < 3;
    });
    EXPECT_FALSE(fermata.has_value());
    EXPECT_EQ(fatti, (std::vector<int>{1, 2, 3}));

    try {
        ContaDistribuzione(peso, {1, 2}, 3);
        ADD_FAILURE() << "class above the numbers";
    } catch (const Errore& e) {
        EXPECT_EQ(e.descrizione(), "Impostare il pronostico");
    }
    EXPECT_THROW(ContaDistribuzione(peso, {3, 2, 5}, 2), Errore);
    EXPECT_THROW(ContaDistribuzione(peso, {0, 2, 5}, 2), Errore);
    EXPECT_THROW(ContaDistribuzione(peso, DaA(1, 30), 21), Errore);
    EXPECT_THROW(ContaDistribuzione(peso, DaA(1, 30), 0), Errore);
    // Only the first position weighs: the smallest number of each column.
    const Distribuzione primo = *ContaDistribuzione(peso, DaA(1, 6), 2);
    EXPECT_EQ(primo, (Distribuzione{{1, 5}, {2, 4}, {3, 3}, {4, 2}, {5, 1}}));
}

}  // namespace
}  // namespace combi
