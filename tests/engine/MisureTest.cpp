// The measures of one column. A direction other than 1 is inverse, so the
// public inverse forms passing 3 instead of 2 give the same values; and the
// range of a class-1 column is 0 whether the guard stops at class 1 or 2.
#include <gtest/gtest.h>

#include <array>

#include "ColonnaDiProva.h"

#include "Misure.h"

namespace combi {
namespace {

using test::Col;

// Every measure on columns chosen so that each loop's first and last pair
// counts: the smallest gap is the first pair in one column and the last in
// another, the largest likewise, a run of parities changes at the very end,
// and the record holds numbers past the class (22 24 after a class-6 column)
// that a loop running one position too far would count. Worked out by hand
// from the parities (D odd, P even) and the gaps written beside each row.
TEST(Misure, HandWorkedTable) {
    // Punti Col. over these numbers; Peso over positions 1 2 6 7 10 20.
    Insieme numeri{}, caselle{};
    for (int n : {1, 3, 21, 22, 24, 30, 33, 44, 45, 46, 51, 60, 88, 89, 90}) numeri[n] = -1;
    for (int c : {1, 2, 6, 7, 10, 20}) caselle[c] = -1;
    // In the order of `nomi` below.
    using Attesi = std::array<int, 18>;
    enum { iAmpiezza = 3, iDistMin, iDistMax, iConsecutivi, iPonte, iBaricentro, iInterruzioni, iSimDirette,
           iSimInverse, iParDiretti, iParInversi, iVorticeDiretto, iVorticeInverso };
    struct Caso { int k; Colonna c; Attesi a; };
    const Caso casi[] = {
        // DPPPPD, gaps 7 2 4 4 1, sum 82
        {6, Col({3, 10, 12, 16, 20, 21, 22, 24}), {2, 34, 5, 18, 1, 7, 1, 1, 13, 2, 3, 0, 1, 2, 6, 1, 1, 1}},
        // DPDPP, gaps 1 5 19 2, sum 84
        {5, Col({5, 6, 11, 30, 32, 33, 35}), {1, 11, 0, 27, 1, 19, 1, 1, 16, 3, 1, 1, 2, 0, 3, 4, 2, 0}},
        // DDPPDDP, gaps 2 1 2 1 2 41, sum 80
        {7, Col({1, 3, 4, 6, 7, 9, 50, 51, 52}), {2, 63, 3, 49, 1, 41, 2, 3, 11, 3, 1, 2, 1, 2, 5, 4, 2, 1}},
        // PD, gap 1, sum 89
        {2, Col({44, 45, 46, 47}), {2, 89, 5, 1, 1, 1, 1, 0, 44, 1, 0, 1, 0, 1, 1, 2, 0, 0}},
        // PDDPPDDPDD, gaps 5 4 1 2 19 2 25 1 28, sum 324
        {10, Col({2, 7, 11, 12, 14, 33, 35, 60, 61, 89, 90, 1}),
         {3, 166, 2, 87, 1, 28, 2, 2, 32, 5, 1, 4, 1, 4, 5, 6, 2, 1}},
        // DPPDDDPDDPDDPDPDPPDP, sum 689
        {20, Col({1, 2, 4, 5, 9, 11, 16, 17, 23, 30, 31, 33, 40, 47, 52, 53, 70, 80, 85, 90}),
         {4, 150, 6, 89, 1, 17, 5, 3, 34, 13, 3, 7, 7, 3, 9, 13, 7, 2}},
        // PDP, gaps 7 1, sum 255
        {3, Col({80, 87, 88, 89, 90}), {1, 167, 3, 8, 1, 7, 1, 0, 85, 2, 1, 0, 0, 1, 3, 1, 1, 0}},
        // class 1: no pair at all (smallest gap 1000 by convention), sum 37
        {1, Col({37, 38}), {0, 37, 2, 0, 1000, 0, 0, 0, 37, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    };
    for (const Caso& caso : casi) {
        const ProfiloColonna pc = ProfilaColonna(caso.k, caso.c);
        const Attesi& a = caso.a;
        const Attesi misurati{MisuraPuntiColonna(pc, numeri), MisuraPeso(pc, caselle), MisuraResto(pc, 7),
                              MisuraAmpiezza(pc), MisuraDistanzaMinima(pc), MisuraDistanzaMassima(pc),
                              MisuraConsecutivi(pc), MisuraPonte(pc), MisuraBaricentro(pc),
                              MisuraInterruzioni(pc), MisuraSimmetrie(pc, 1), MisuraSimmetrie(pc, 2),
                              MisuraParalleli(pc, 1), MisuraParalleli(pc, 2), MisuraVortice(pc, 1),
                              MisuraVortice(pc, 2), CalcolaSequenze(caso.k, caso.c, "DP"),
                              CalcolaSequenze(caso.k, caso.c, "PPD")};
        const char* nomi[] = {"punti", "peso", "resto", "ampiezza", "distMin", "distMax", "consecutivi",
                              "ponte", "baricentro", "interruzioni", "simDirette", "simInverse", "parDiretti",
                              "parInversi", "vorticeDiretto", "vorticeInverso", "seqDP", "seqPPD"};
        for (size_t m = 0; m < a.size(); ++m) EXPECT_EQ(misurati[m], a[m]) << "class " << caso.k << ": " << nomi[m];
        // The public forms go through the same profile.
        EXPECT_EQ(CalcolaAmpiezza(caso.k, caso.c), a[iAmpiezza]);
        EXPECT_EQ(CalcolaPonte(caso.k, caso.c), a[iPonte]);
        EXPECT_EQ(CalcolaDistanzaMinima(caso.k, caso.c), a[iDistMin]);
        EXPECT_EQ(CalcolaDistanzaMassima(caso.k, caso.c), a[iDistMax]);
        EXPECT_EQ(CalcolaConsecutivi(caso.k, caso.c), a[iConsecutivi]);
        EXPECT_EQ(CalcolaInterruzioni(caso.k, caso.c), a[iInterruzioni]);
        EXPECT_EQ(CalcolaSimmetrieDirette(caso.k, caso.c), a[iSimDirette]);
        EXPECT_EQ(CalcolaSimmetrieInverse(caso.k, caso.c), a[iSimInverse]);
        EXPECT_EQ(CalcolaParalleliDiretti(caso.k, caso.c), a[iParDiretti]);
        EXPECT_EQ(CalcolaParalleliInversi(caso.k, caso.c), a[iParInversi]);
        EXPECT_EQ(CalcolaVorticeDiretto(caso.k, caso.c), a[iVorticeDiretto]);
        EXPECT_EQ(CalcolaVorticeInverso(caso.k, caso.c), a[iVorticeInverso]);
        EXPECT_EQ(MisuraPosizioni(pc, 1), caso.c[1]);
        EXPECT_EQ(MisuraPosizioni(pc, caso.k), caso.c[caso.k]);
    }
    // Class 0 has no numbers, so no range and no centre, whatever the record holds.
    EXPECT_EQ(CalcolaAmpiezza(0, Col({5, 9})), 0);
    EXPECT_EQ(CalcolaBaricentro(0, Col({5, 9})), 0);
}

// The class of a column is its last position holding a number.
TEST(Misure, ClasseDellaColonna) {
    EXPECT_EQ(ClasseDellaColonna(Col({37})), 1);
    EXPECT_EQ(ClasseDellaColonna(Colonna{}), 0);
    Colonna ultima;
    ultima[20] = 1;
    EXPECT_EQ(ClasseDellaColonna(ultima), 20);
}

TEST(Misure, BaricentroTruncatesInTheDevelopmentAndRoundsHalfEvenInPublic) {
    // (sum, expected truncated, expected public)
    struct Caso { Colonna c; int trunc; int pub; };
    const Caso casi[] = {
        {Col({20, 25}), 22, 22},  // 45 / 2 = 22.5 -> 22 (even)
        {Col({20, 27}), 23, 24},  // 47 / 2 = 23.5 -> 24 (even)
        {Col({1, 2, 4}), 2, 2},   // 7 / 3 = 2.33
        {Col({1, 2, 5}), 2, 3},   // 8 / 3 = 2.67
        {Col({37}), 37, 37},
    };
    for (const Caso& caso : casi) {
        const int k = ClasseDellaColonna(caso.c);
        EXPECT_EQ(MisuraBaricentro(ProfilaColonna(k, caso.c)), caso.trunc);
        EXPECT_EQ(CalcolaBaricentro(k, caso.c), caso.pub);
    }
}

TEST(Misure, VorticeWalksTheSpiral) {
    // parities 1 0 1 1 0: direct lands on 4 then 3.
    EXPECT_EQ(CalcolaVorticeDiretto(5, Col({1, 2, 3, 5, 6})), 3);
    // Hand-run inverse on the same parities: a=1,b=5: first p[j]=p[5]=0 from 1 is j=2
    // (a=2,b=4,v=2); then from 4 down p[j]=p[2]=0: p4=1,p3=1,p2=0 -> j=2 (b=2,a=3,v=2).
    EXPECT_EQ(CalcolaVorticeInverso(5, Col({1, 2, 3, 5, 6})), 2);
    // All odd: direct lands on b each time: a=1,b=6 -> j=6 (b=6,a=2) -> j=2 (a=2,b=5)
    // -> j=5 (b=5,a=3) -> j=3 (a=3,b=4) -> j=4 (b=4,a=4) -> j=4 (a=4,b=3): v=4.
    EXPECT_EQ(CalcolaVorticeDiretto(6, Col({1, 3, 5, 7, 9, 11})), 4);
    // Two odd numbers: a=1,b=2 -> j=2 (b=2,a=2) -> j=2 (a=2,b=1): v=2.
    EXPECT_EQ(CalcolaVorticeDiretto(2, Col({1, 3})), 2);
}

TEST(Misure, SequenzeMatchesOverlappingRunsAndReadsLettersByCase) {
    const Colonna c = Col({1, 2, 3, 4});  // parities 1 0 1 0
    EXPECT_EQ(CalcolaSequenze(4, c, "DP"), 2);
    EXPECT_EQ(CalcolaSequenze(4, c, "pd"), 1);  // p even, d (not P) odd
    EXPECT_EQ(CalcolaSequenze(4, c, "DPD"), 1);
    EXPECT_EQ(CalcolaSequenze(4, c, "DPDPD"), 0);  // longer than the class
    EXPECT_EQ(CalcolaSequenze(4, c, ""), 5);       // the empty pattern matches at each of the k + 1 starts
    EXPECT_EQ(CalcolaSequenze(5, Col({1, 3, 5, 7, 9}), "DD"), 4);  // overlapping
}

// Past the table: no divisor, and positions outside the class or the record.
TEST(Misure, ParametersOutsideTheirRange) {
    const ProfiloColonna pc = ProfilaColonna(3, Col({1, 2, 3}));
    EXPECT_EQ(MisuraResto(pc, 0), -1);
    EXPECT_EQ(MisuraPosizioni(pc, 5), 0);   // beyond the class
    EXPECT_EQ(MisuraPosizioni(pc, 21), 0);  // outside the record
    EXPECT_EQ(MisuraPosizioni(pc, 0), 0);
    // A class outside 0..20 is clamped: nothing read before the first number.
    EXPECT_EQ(ProfilaColonna(-3, Col({1, 2, 3})).k, 0);
    EXPECT_EQ(ProfilaColonna(25, Col({1, 2, 3})).k, 20);
}

}  // namespace
}  // namespace combi
