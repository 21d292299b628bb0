// The reduction, plain and indexed. A subset walk starting at position 0
// (always empty) instead of 1, the number table of the bit-sliced columns or
// the plain reduction's marks or the dense lists' offsets sized one row
// larger, the pairs' shift before it is set, and the bit width of
// C(90, m) - 2 instead of - 1 (the two differ only past a power of two),
// are changes no result can show; nor are the
// thresholds that choose between the dense and the sorted index, or between
// a comparison sort and counting passes (speed and memory only).
#include <gtest/gtest.h>

#include "ColonnaDiProva.h"

#include <algorithm>
#include <numeric>
#include <random>

#include "Errore.h"
#include "OsservatoriDiProva.h"
#include "Riduzione.h"
#include "RiduzioneFasi.h"

namespace combi {
namespace {

using riduzione::Rappresentativita;
using riduzione::TabellaRappresentativita;

using test::Registro;
using test::Col;

using test::Comuni;
using test::ColonneCasuali;

// The promise of a complete reduction: kept columns do not cover each other,
// and every dropped column is covered by a kept one.
void ControllaGaranzia(const std::vector<Colonna>& tutte, const std::vector<Colonna>& tenute, int t,
                       bool completa, int classe = 6) {
    ASSERT_TRUE(test::BuchiAForzaBruta(tenute, tutte, t, classe).empty());
    if (!completa) return;
    for (size_t a = 0; a < tenute.size(); ++a)
        for (size_t b = a + 1; b < tenute.size(); ++b) ASSERT_LT(Comuni(tenute[a], tenute[b], classe), t);
}

// The index against the all-pairs loop on one set: the counts, the kept
// columns and the events; the promise checked too where the set is small.
void ConfrontaConRiferimento(const std::vector<Colonna>& v, int t, int classe, bool garanzia) {
    EXPECT_EQ(riduzione::ContaCoperture(v, t), riduzione::ContaCopertureRiferimento(v, t));
    Registro veloce, riferimento;
    const RisultatoRiduzione a = RiduciColonne(v, t, veloce);
    const RisultatoRiduzione b = RiduciColonneRiferimento(v, t, riferimento);
    EXPECT_EQ(a.colonne, b.colonne);
    EXPECT_EQ(veloce.eventi, riferimento.eventi);
    EXPECT_FALSE(a.interrotto);
    EXPECT_LT(a.colonne.size(), v.size());
    if (garanzia) ControllaGaranzia(v, a.colonne, t, true, classe);
}

TEST(Riduzione, FastPathMatchesReferenceOnRandomSets) {
    struct Caso { uint32_t seme; size_t n; int t; int pool; };
    const Caso casi[] = {
        {1, 50, 3, 10},   {2, 400, 3, 14},  {3, 400, 4, 14},  {4, 400, 5, 12},  {5, 1500, 4, 20},
        {6, 1500, 3, 30}, {7, 800, 6, 9},   {8, 800, 1, 40},  {9, 800, 2, 40},  {10, 3000, 5, 16},
        {11, 20000, 4, 24},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE("seme " + std::to_string(c.seme) + " t=" + std::to_string(c.t));
        ConfrontaConRiferimento(ColonneCasuali(c.seme, c.n, c.pool), c.t, 6, c.n <= 1500);
    }
    // The top of the range, 51..90, where the pairs' ranks reach the end of
    // the dense index.
    std::vector<Colonna> alte = ColonneCasuali(12, 800, 40);
    for (Colonna& c : alte)
        for (int p = 1; p <= 6; ++p) c[p] = uint8_t(c[p] + 50);
    ConfrontaConRiferimento(alte, 2, 6, true);
}

// Every class 2..10 and every few points: the index (dense and sorted-pair
// counts, pairs with fewer column bits above class 6) against the all-pairs loop.
TEST(Riduzione, EveryClassFastPathMatchesReference) {
    struct Caso { int classe; int t; size_t n; int pool; };
    const Caso casi[] = {
        {2, 1, 300, 12}, {2, 2, 300, 20}, {3, 1, 200, 30}, {3, 2, 500, 16},  {3, 3, 400, 10},
        {4, 2, 800, 14}, {4, 3, 600, 12}, {5, 3, 600, 14}, {5, 4, 700, 12},  {5, 5, 300, 9},
        {7, 4, 500, 14}, {7, 5, 600, 12}, {8, 5, 500, 14}, {8, 7, 300, 11},  {9, 6, 400, 14},
        {9, 8, 300, 12}, {10, 5, 300, 16}, {10, 7, 600, 14}, {10, 9, 500, 13}, {10, 10, 200, 12},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE("classe " + std::to_string(c.classe) + " t=" + std::to_string(c.t));
        const std::vector<Colonna> v = ColonneCasuali(uint32_t(c.classe * 100 + c.t), c.n, c.pool, c.classe);
        ASSERT_EQ(ClasseColonne(v), c.classe);
        ConfrontaConRiferimento(v, c.t, c.classe, true);
    }
    // 7 points on the numbers 77..90, where the rank of a 7-number subset
    // needs 33 bits.
    for (int classe : {7, 8}) {
        std::vector<Colonna> alte = ColonneCasuali(uint32_t(classe), 400, 14, classe);
        for (Colonna& c : alte)
            for (int p = 1; p <= classe; ++p) c[p] = uint8_t(c[p] + 76);
        ConfrontaConRiferimento(alte, 7, classe, true);
    }
}

// Small sets worked out by hand, in every class the counts have one largest.
TEST(Riduzione, HandWorkedSetsOfOtherClasses) {
    struct Caso { std::vector<Colonna> colonne; int t; std::vector<int32_t> conte; std::vector<int> tenute; };
    const Caso casi[] = {
        // Class 3 at 2 points: 1 shares {1,2} with 2 and {2,3} with 3; 2-3 share
        // only 2, 4 shares one number with 2 and 3, 5 nothing. Counts 2,1,1,0,0:
        // 1 comes first and eliminates 2 and 3; 4 and 5 cover nobody and stay.
        {{Col({1, 2, 3}), Col({1, 2, 4}), Col({2, 3, 5}), Col({4, 5, 6}), Col({7, 8, 9})}, 2, {2, 1, 1, 0, 0},
         {1, 4, 5}},
        // Class 5 at 4 points: 2, 3 and 4 share four numbers with 1 and three with
        // each other; 6 shares three with 2 and 3, two with 1 and 4. Counts
        // 3,1,1,1,0,0: 1 eliminates 2, 3, 4.
        {{Col({1, 2, 3, 4, 5}), Col({1, 2, 3, 4, 6}), Col({1, 2, 3, 5, 7}), Col({2, 3, 4, 5, 8}),
          Col({10, 11, 12, 13, 14}), Col({1, 2, 6, 7, 8})},
         4, {3, 1, 1, 1, 0, 0}, {1, 5, 6}},
        // Class 2 at 1 point: 1-2 share 3, 2-3 share 4; 4 alone. Counts 1,2,1,0:
        // 2 eliminates 1 and 3.
        {{Col({1, 3}), Col({3, 4}), Col({4, 9}), Col({5, 6})}, 1, {1, 2, 1, 0}, {2, 4}},
        // Class 10 at 9 points: 2 differs from 1 in one number, 3 in two. Counts
        // 1,1,0 with a tie broken by the sort: the pair swaps, 2 is kept.
        {{Col({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}), Col({1, 2, 3, 4, 5, 6, 7, 8, 9, 11}),
          Col({1, 2, 3, 4, 5, 6, 7, 8, 12, 13})},
         9, {1, 1, 0}, {2, 3}},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE("t=" + std::to_string(c.t));
        EXPECT_EQ(riduzione::ContaCoperture(c.colonne, c.t), c.conte);
        std::vector<Colonna> attese;
        for (int i : c.tenute) attese.push_back(c.colonne[size_t(i) - 1]);
        Registro r;
        EXPECT_EQ(RiduciColonne(c.colonne, c.t, r).colonne, attese);
        EXPECT_EQ(RiduciColonneRiferimento(c.colonne, c.t, r).colonne, attese);
    }
}

TEST(Riduzione, StopAtAnyPumpGivesTheSameResultOnBothPaths) {
    const size_t n = 300;
    const std::vector<Colonna> v = ColonneCasuali(42, n, 13);
    // Pumps 1..300 follow the analysed columns, 301 precedes the sort, the
    // rest follow the selected positions.
    for (int k : {1, 2, 150, 299, 300, 301, 302, 303, 320, 450, 599, 100000}) {
        SCOPED_TRACE("stop alla pompa " + std::to_string(k));
        Registro veloce(k), riferimento(k);
        const RisultatoRiduzione a = RiduciColonne(v, 3, veloce);
        const RisultatoRiduzione b = RiduciColonneRiferimento(v, 3, riferimento);
        EXPECT_EQ(a.colonne, b.colonne);
        EXPECT_EQ(veloce.eventi, riferimento.eventi);
        EXPECT_EQ(a.interrotto, k <= riferimento.pompe);
        ControllaGaranzia(v, a.colonne, 3, k == 100000);
        // Stopped before the selection: it processes one position, pumps no more.
        if (k <= 301) {
            EXPECT_EQ(riferimento.pompe, k <= 300 ? k + 1 : 301);
        } else if (k < 100000) {
            EXPECT_EQ(riferimento.pompe, k);
        }
    }
}

TEST(Riduzione, SortIsTheListQuicksortWithItsEarlyReturn) {
    struct Caso { std::vector<int> conte; bool fermo; std::vector<int> ordine; };
    const Caso casi[] = {
        {{}, false, {}},
        {{7}, false, {1}},
        {{1, 1}, false, {2, 1}},               // equal counts: the pivot swaps them
        {{0, 5, 1}, false, {2, 3, 1}},
        {{0, 5, 1}, true, {3, 2, 1}},          // one exchange step, then return
        {{3, 3, 3, 3}, false, {3, 4, 1, 2}},  // all equal: every segment swaps its ends
        {{1, 2, 3, 4, 5}, false, {5, 4, 3, 2, 1}},
    };
    for (const Caso& c : casi) {
        TabellaRappresentativita t(c.conte.size() + 1);
        for (size_t i = 0; i < c.conte.size(); ++i) t[i + 1] = {int32_t(i + 1), c.conte[i]};
        riduzione::OrdinaTabella(t, c.fermo);
        std::vector<int> ordine;
        for (size_t i = 1; i < t.size(); ++i) ordine.push_back(t[i].indice);
        EXPECT_EQ(ordine, c.ordine);
    }
    std::mt19937 rng(5);
    for (int prova = 0; prova < 50; ++prova) {
        TabellaRappresentativita t(rng() % 500 + 1);
        for (size_t i = 1; i < t.size(); ++i) t[i] = {int32_t(i), int32_t(rng() % 7)};
        TabellaRappresentativita ordinata = t;
        riduzione::OrdinaTabella(ordinata, false);
        EXPECT_TRUE(std::is_sorted(ordinata.begin() + 1, ordinata.end(),
                                   [](auto& a, auto& b) { return a.conta > b.conta; }));
        EXPECT_TRUE(std::is_permutation(t.begin() + 1, t.end(), ordinata.begin() + 1));
    }
}

TEST(Riduzione, SmallSetsAndStricterGuarantees) {
    Registro r;
    EXPECT_TRUE(RiduciColonne({}, 4, r).colonne.empty());
    const auto F = [](const char* fase) { return std::string("F").append(fase); };
    EXPECT_EQ(r.eventi, (std::vector<std::string>{F(kFaseAnalisi), F(kFaseOrdinamento), "M", F(kFaseRiduzione),
                                                  "F", "P0"}));
    const std::vector<Colonna> una = {Col({1, 2, 3, 4, 5, 6})};
    EXPECT_EQ(RiduciColonne(una, 3, r).colonne, una);
    // Same first six, different tails: the sorted order reaches column 2 first.
    const std::vector<Colonna> gemelle = {Col({1, 2, 3, 4, 5, 6, 7}), Col({6, 5, 4, 3, 2, 1, 8})};
    for (int t : {3, 6}) {
        EXPECT_EQ(RiduciColonne(gemelle, t, r).colonne, std::vector<Colonna>{gemelle[1]});
        EXPECT_EQ(RiduciColonneRiferimento(gemelle, t, r).colonne, std::vector<Colonna>{gemelle[1]});
    }
    for (uint32_t seme = 1; seme <= 20; ++seme) {
        const std::vector<Colonna> v = ColonneCasuali(seme, 300, 12 + int(seme % 5), 7);
        size_t tenute[7] = {};
        for (int t = 1; t <= 6; ++t) tenute[t] = RiduciColonne(v, t, r).colonne.size();
        for (int t = 2; t <= 6; ++t) EXPECT_GE(tenute[t], tenute[t - 1]) << "seme " << seme;
    }
}

TEST(Riduzione, RefusesColumnsWithoutSixNumbersAndBadPoints) {
    struct Caso { std::vector<Colonna> colonne; int punti; int numero; std::string testo; };
    const Caso casi[] = {
        {{Col({1, 2, 3, 4, 5, 6}), Col({1, 2, 3, 4, 5})}, 3, kErroreFormatoFile, "La colonna 2 "},
        {{Col({0, 2, 3, 4, 5, 6})}, 3, kErroreFormatoFile, "La colonna 1 "},
        {{Col({1, 2, 3, 4, 5, 91})}, 3, kErroreFormatoFile, "da 1 a 90"},
        {{Col({1, 2, 3, 4, 5, 6}), Col({7, 7, 8, 9, 10, 11})}, 3, kErroreFormatoFile, "diversi"},
        {{Col({1, 2, 3, 4, 5, 6})}, 0, kErroreArgomento, "da 1 a 6"},
        {{Col({1, 2, 3, 4, 5, 6})}, 7, kErroreArgomento, "da 1 a 6"},
        // Other classes: the points up to the class, the class 2..10, no column shorter than the first.
        {{Col({1, 2, 3})}, 4, kErroreArgomento, "da 1 a 3"},
        {{Col({5})}, 1, kErroreFormatoFile, "da 2 a 10: la colonna 1 ha 1 numeri"},
        {{Col({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11})}, 3, kErroreFormatoFile, "da 2 a 10: la colonna 1 ha 11 numeri"},
        {{Col({1, 2, 3, 4, 5, 6, 7}), Col({1, 2, 3, 4, 5, 6})}, 3, kErroreFormatoFile,
         "La colonna 2 non ha sette numeri diversi da 1 a 90 nelle prime sette posizioni"},
        {{Col({1, 2, 3}), Col({1, 2, 3}), Col({4, 4, 5})}, 2, kErroreFormatoFile, "La colonna 3 non ha tre numeri"},
    };
    for (const Caso& c : casi) {
        for (bool riferimento : {false, true}) {
            Registro r;
            try {
                riferimento ? RiduciColonneRiferimento(c.colonne, c.punti, r) : RiduciColonne(c.colonne, c.punti, r);
                ADD_FAILURE() << "accepted: " << c.testo;
            } catch (const Errore& e) {
                EXPECT_EQ(e.numero(), c.numero);
                EXPECT_NE(e.descrizione().find(c.testo), std::string::npos) << e.descrizione();
            }
        }
    }
}

TEST(Riduzione, ClassOfASet) {
    EXPECT_EQ(ClasseColonne({}), 0);
    EXPECT_EQ(ClasseColonne({Col({4, 9})}), 2);
    EXPECT_EQ(ClasseColonne({Col({1, 2, 3, 4, 5, 6, 7, 8, 9, 90}), Col({11, 12, 13, 14, 15, 16, 17, 18, 19, 20})}), 10);
    // A longer column is compared on the first numbers: a class-6 file with a seventh byte.
    EXPECT_EQ(ClasseColonne({Col({1, 2, 3, 4, 5, 6}), Col({1, 2, 3, 4, 5, 6, 7})}), 6);
    EXPECT_THROW(ClasseColonne({Col({1, 2, 3, 4, 5}), Col({1, 2, 3, 4})}), Errore);
}

// A phase's bar: the integer percent, told when it changes, never past 100,
// and nothing for a phase with no steps.
TEST(Riduzione, ProgressIsTheWholePercentToldOnChange) {
    struct Percentuali : OsservatoreRiduzione {
        std::vector<int> viste;
        void Percentuale(int p) override { viste.push_back(p); }
    } oss;
    riduzione::Controllo c(oss);
    for (auto [passo, totale] : {std::pair{0, 0}, {1, 3}, {2, 6}, {2, 3}, {7, 3}}) c.Avanza(passo, totale);
    EXPECT_EQ(oss.viste, (std::vector<int>{33, 66, 100}));
}

}  // namespace
}  // namespace combi
