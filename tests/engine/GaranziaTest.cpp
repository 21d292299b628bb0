// The guarantee check, the holes and the table. The table search's first
// bound, m + 1 for m drawn numbers, works as well from any value above m,
// which no column can make; how often it pumps messages is not seen.
#include <gtest/gtest.h>

#include "ColonnaDiProva.h"

#include <algorithm>
#include <random>

#include "Errore.h"
#include "Garanzia.h"
#include "OsservatoriDiProva.h"
#include "Riduzione.h"

namespace combi {
namespace {

using test::Col;

using test::BuchiAForzaBruta;

TEST(ColonneIntegrali, EveryCombinationInLexicographicOrder) {
    struct Caso { std::vector<int> numeri; int classe; size_t quante; Colonna prima; Colonna ultima; };
    const Caso casi[] = {
        {{1, 2, 3, 4, 5, 6, 7, 8}, 6, 28, Col({1, 2, 3, 4, 5, 6}), Col({3, 4, 5, 6, 7, 8})},
        {{5, 9, 90}, 2, 3, Col({5, 9}), Col({9, 90})},
        {{7, 3, 11, 2}, 3, 4, Col({3, 7, 11}), Col({2, 3, 11})},  // positions in list order, numbers sorted
        {{4}, 1, 1, Col({4}), Col({4})},
    };
    for (const Caso& c : casi) {
        const std::vector<Colonna> v = ColonneIntegrali(c.numeri, c.classe);
        ASSERT_EQ(v.size(), c.quante);
        EXPECT_EQ(v.front(), c.prima);
        EXPECT_EQ(v.back(), c.ultima);
        // All different, each `classe` numbers of the list.
        for (size_t i = 0; i < v.size(); ++i) {
            EXPECT_EQ(ClasseDellaColonna(v[i]), c.classe);
            for (size_t j = 0; j < i; ++j) EXPECT_NE(v[i], v[j]);
        }
    }
    // 1..20 in class 6 ascending: sorted as byte strings, C(20,6) of them.
    std::vector<int> venti;
    for (int n = 1; n <= 20; ++n) venti.push_back(n);
    const std::vector<Colonna> v = ColonneIntegrali(venti, 6);
    EXPECT_EQ(v.size(), 38760u);
    EXPECT_TRUE(std::is_sorted(v.begin(), v.end(), [](const Colonna& a, const Colonna& b) {
        return a.Numeri < b.Numeri;
    }));
    for (const auto& [numeri, classe] : std::vector<std::pair<std::vector<int>, int>>{
             {{1, 2, 3}, 4}, {{1, 2, 3}, 0}, {{1, 2, 2}, 2}, {{0, 1, 2}, 2}, {{1, 91}, 1}}) {
        EXPECT_THROW(ColonneIntegrali(numeri, classe), Errore);
    }
}

// Holes planted by removing kept columns from a covering set, against the
// all-pairs check of this file.
TEST(CercaBuchi, FindsThePlantedHolesAndNoneInACoveringSet) {
    std::mt19937 rng(11);
    int conBuchi = 0;
    for (int prova = 0; prova < 12; ++prova) {
        const int classe = 3 + prova % 5, punti = 1 + int(rng() % unsigned(classe - 1));
        std::vector<int> numeri;
        for (int n = 1; n <= 90; ++n) numeri.push_back(n);
        std::vector<Colonna> daCoprire;
        for (int i = 0; i < 400; ++i) {
            std::shuffle(numeri.begin(), numeri.begin() + 14, rng);  // a pool of 14 numbers
            Colonna c;
            for (int p = 1; p <= classe; ++p) c[p] = uint8_t(numeri[size_t(p) - 1]);
            daCoprire.push_back(c);
        }
        OsservatoreRiduzione muto;
        std::vector<Colonna> tenute = RiduciColonne(daCoprire, punti, muto).colonne;
        SCOPED_TRACE("classe " + std::to_string(classe) + " punti " + std::to_string(punti));
        EXPECT_TRUE(CercaBuchi(tenute, daCoprire, punti, muto).empty());
        EXPECT_TRUE(CercaBuchi(daCoprire, daCoprire, punti, muto).empty());
        // A kept column of a complete reduction is covered by no other kept
        // one: removing it leaves at least itself uncovered.
        int tolte = 0;
        for (; tolte < 3 && tenute.size() > 1; ++tolte) tenute.erase(tenute.begin() + rng() % tenute.size());
        const std::vector<Colonna> attesi = BuchiAForzaBruta(tenute, daCoprire, punti, classe);
        EXPECT_EQ(attesi.empty(), tolte == 0);
        conBuchi += !attesi.empty();
        EXPECT_EQ(CercaBuchi(tenute, daCoprire, punti, muto), attesi);
    }
    EXPECT_GE(conBuchi, 8);
}

TEST(CercaBuchi, ColumnsOfOtherClassesStopAndRefusals) {
    OsservatoreRiduzione muto;
    // A class-10 kept column against class-6 columns at 5 points: only those with
    // five of its numbers are covered; a column with fewer numbers than the points never is.
    const std::vector<Colonna> tenute = {Col({1, 2, 3, 4, 5, 6, 7, 8, 9, 10})};
    const std::vector<Colonna> daCoprire = {Col({1, 2, 3, 4, 5, 90}), Col({1, 2, 3, 4, 80, 90}),
                                            Col({6, 7, 8, 9, 10, 11}), Col({1, 2, 3})};
    EXPECT_EQ(CercaBuchi(tenute, daCoprire, 5, muto), (std::vector<Colonna>{daCoprire[1], daCoprire[3]}));
    EXPECT_EQ(CercaBuchi({}, daCoprire, 1, muto), daCoprire);
    // A gap in a column: every non-zero position counts, also after it.
    Colonna conBuco = Col({1, 2, 3, 4, 5, 6});
    conBuco[2] = 0;
    EXPECT_TRUE(CercaBuchi({conBuco}, {Col({3, 4, 5, 6, 7, 8})}, 4, muto).empty());
    EXPECT_EQ(CercaBuchi({Col({3, 4, 5, 6, 7, 8})}, {conBuco}, 5, muto), std::vector<Colonna>{conBuco});
    // Stopped at the first pump (after 4096 columns): the holes among those
    // only, every one but the five copies of 1-6 (positions 0, 924, ..., 3696).
    std::vector<int> dodici;
    for (int n = 1; n <= 12; ++n) dodici.push_back(n);
    const std::vector<Colonna> tutte = ColonneIntegrali(dodici, 6);  // 924 columns
    std::vector<Colonna> molte;
    for (int r = 0; r < 6; ++r) molte.insert(molte.end(), tutte.begin(), tutte.end());
    test::Registro stop(1);  // a stop from the first message pump
    EXPECT_EQ(CercaBuchi({Col({1, 2, 3, 4, 5, 6})}, molte, 6, stop).size(), 4091u);
    EXPECT_EQ(stop.pompe, 1);
    EXPECT_THROW(CercaBuchi(tenute, daCoprire, 0, muto), Errore);
    EXPECT_THROW(CercaBuchi(tenute, daCoprire, 11, muto), Errore);
    EXPECT_THROW(CercaBuchi({Col({1, 2, 2})}, daCoprire, 2, muto), Errore);
}

// The table by enumerating every subset as a bit mask, the maximum taken
// over the columns: the definition, without the search's pruning.
std::vector<RigaGaranzia> TabellaAForzaBruta(const std::vector<Colonna>& tenute, const std::vector<int>& numeri,
                                             int estratti) {
    const int n = int(numeri.size());
    std::vector<int> minimo(size_t(n) + 1, 99);
    for (uint32_t m = 0; m < (1u << n); ++m) {
        int massimo = 0;
        for (const Colonna& c : tenute) {
            int k = 0;
            for (int b = 0; b < n; ++b)
                if (m >> b & 1) k += std::count(c.Numeri.begin(), c.Numeri.end(), numeri[size_t(b)]);
            massimo = std::max(massimo, k);
        }
        int& v = minimo[size_t(std::popcount(m))];
        v = std::min(v, massimo);
    }
    std::vector<RigaGaranzia> righe;
    for (int m = 1; m <= std::min(n, estratti); ++m) righe.push_back({m, minimo[size_t(m)]});
    return righe;
}

TEST(TabellaGaranzia, HandWorkedSystemsAndTheDefinition) {
    const auto Righe = [](std::initializer_list<int> punti) {
        std::vector<RigaGaranzia> r;
        int m = 0;
        for (int p : punti) r.push_back({++m, p});
        return r;
    };
    const std::vector<int> otto = {1, 2, 3, 4, 5, 6, 7, 8};
    // 1..9 in three groups of three, G1 = 1-3, G2 = 4-6, G3 = 7-9, and the
    // columns G1+G2, G2+G3, G1+G3: with g_i drawn numbers in group i the
    // columns make g1+g2, g2+g3, g1+g3. The drawing that keeps the best lowest
    // spreads the numbers evenly: m = 3 as 1,1,1 gives 2; m = 4 as 2,1,1 gives
    // 3; m = 5 as 2,2,1 gives 4; m = 6 as 2,2,2 gives 4; m = 7 as 3,2,2 gives 5;
    // m = 8 as 3,3,2 gives 6; m = 9 gives 6.
    const std::vector<Colonna> tre = {Col({1, 2, 3, 4, 5, 6}), Col({4, 5, 6, 7, 8, 9}), Col({1, 2, 3, 7, 8, 9})};
    // One column of class 20 holds every number of 1..20: each drawn one hits.
    Colonna venti;
    for (int p = 1; p <= 20; ++p) venti[p] = uint8_t(p);
    std::vector<int> nove = otto, dieci;
    nove.push_back(9);
    dieci = nove;
    dieci.push_back(10);
    struct Caso { std::vector<Colonna> tenute; std::vector<int> numeri; int estratti; std::vector<RigaGaranzia> attese; };
    const Caso casi[] = {
        // Every column of 1..8: any 6 drawn numbers are a column.
        {ColonneIntegrali(otto, 6), otto, 5, Righe({1, 2, 3, 4, 5})},
        {ColonneIntegrali(otto, 6), otto, 9, Righe({1, 2, 3, 4, 5, 6, 6, 6})},
        {tre, nove, 9, Righe({1, 2, 2, 3, 4, 4, 5, 6, 6})},
        // 10 is in no column: a drawing may waste one number on it.
        {tre, dieci, 10, Righe({0, 1, 2, 2, 3, 4, 4, 5, 6, 6})},
        {{venti}, test::DaA(1, 20), 20, Righe({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20})},
        {{}, {3, 4}, 5, Righe({0, 0})},
        // 1 first and in no column: the one drawing that misses 4 5 6 is the first tried.
        {{Col({4, 5, 6})}, {1, 4, 5, 6}, 4, Righe({0, 1, 2, 3})},
        {tre, {}, 5, {}},
    };
    for (const Caso& c : casi) {
        OsservatoreRiduzione muto;
        const TabellaGaranzia t = CalcolaTabellaGaranzia(c.tenute, c.numeri, c.estratti, muto);
        EXPECT_EQ(t.righe, c.attese);
        EXPECT_FALSE(t.interrotto);
        if (!c.numeri.empty()) {
            EXPECT_EQ(t.righe, TabellaAForzaBruta(c.tenute, c.numeri, c.estratti));
        }
    }
    // Random reduced systems against the definition.
    std::mt19937 rng(3);
    for (int prova = 0; prova < 10; ++prova) {
        std::vector<int> numeri;
        for (int n = 1; n <= 12 + prova % 4; ++n) numeri.push_back(n * 3);
        std::vector<Colonna> tenute;
        for (int k = 0; k < 3 + prova; ++k) {
            std::shuffle(numeri.begin(), numeri.end(), rng);
            std::vector<int> sei(numeri.begin(), numeri.begin() + 6);
            std::sort(sei.begin(), sei.end());
            Colonna c;
            for (int p = 1; p <= 6; ++p) c[p] = uint8_t(sei[size_t(p) - 1]);
            tenute.push_back(c);
        }
        OsservatoreRiduzione muto;
        EXPECT_EQ(CalcolaTabellaGaranzia(tenute, numeri, 7, muto).righe, TabellaAForzaBruta(tenute, numeri, 7));
    }
}

// A reduction at P points of every column of some numbers promises, when six
// of those numbers are drawn, a kept column with at least P of them: the row
// for 6 of the table, reached by a different road.
TEST(TabellaGaranzia, ReducedIntegralSystemsKeepTheirPromise) {
    for (int n : {9, 11, 12}) {
        std::vector<int> numeri;
        for (int x = 1; x <= n; ++x) numeri.push_back(x);
        const std::vector<Colonna> integrale = ColonneIntegrali(numeri, 6);
        for (int punti = 2; punti <= 5; ++punti) {
            OsservatoreRiduzione muto;
            const std::vector<Colonna> tenute = RiduciColonne(integrale, punti, muto).colonne;
            const TabellaGaranzia t = CalcolaTabellaGaranzia(tenute, numeri, 6, muto);
            ASSERT_EQ(t.righe.size(), 6u);
            EXPECT_GE(t.righe[5].puntiMinimi, punti) << n << " numeri, " << punti << " punti";
            // Every row is at least the one before and at most one more.
            for (size_t m = 1; m < t.righe.size(); ++m) {
                EXPECT_GE(t.righe[m].puntiMinimi, t.righe[m - 1].puntiMinimi);
                EXPECT_LE(t.righe[m].puntiMinimi, t.righe[m - 1].puntiMinimi + 1);
            }
        }
    }
}

TEST(TabellaGaranzia, StopAndRefusals) {
    std::vector<int> trenta;
    for (int n = 1; n <= 30; ++n) trenta.push_back(n);
    const std::vector<Colonna> tenute = {Col({1, 2, 3, 4, 5, 6}), Col({7, 8, 9, 10, 11, 12})};
    test::Registro stop(1);  // a stop from the first message pump
    const TabellaGaranzia t = CalcolaTabellaGaranzia(tenute, trenta, 6, stop);
    // A pump after every row (and every 65,536 subsets): the first row
    // stands; the phase and the bar are cleared at the end.
    EXPECT_TRUE(t.interrotto);
    EXPECT_EQ(t.righe, (std::vector<RigaGaranzia>{{1, 0}}));
    EXPECT_EQ(std::vector<std::string>(stop.eventi.end() - 2, stop.eventi.end()),
              (std::vector<std::string>{"F", "P0"}));
    OsservatoreRiduzione muto;
    EXPECT_THROW(CalcolaTabellaGaranzia(tenute, trenta, 0, muto), Errore);
    EXPECT_THROW(CalcolaTabellaGaranzia(tenute, {1, 1}, 2, muto), Errore);
    EXPECT_THROW(CalcolaTabellaGaranzia(tenute, {91}, 2, muto), Errore);
}

}  // namespace
}  // namespace combi
