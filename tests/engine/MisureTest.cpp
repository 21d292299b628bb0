#include <gtest/gtest.h>

#include "ColonnaDiProva.h"

#include "Misure.h"

namespace combi {
namespace {

using test::Col;

TEST(Misure, ColumnOneTwoThreeFiveSeven) {
    const Colonna c = Col({1, 2, 3, 5, 7});  // parities 1 0 1 1 1
    const ProfiloColonna pc = ProfilaColonna(5, c);
    EXPECT_EQ(MisuraConsecutivi(pc), 2);
    EXPECT_EQ(MisuraPonte(pc), 2);
    EXPECT_EQ(MisuraAmpiezza(pc), 6);
    EXPECT_EQ(MisuraDistanzaMinima(pc), 1);
    EXPECT_EQ(MisuraDistanzaMassima(pc), 2);
    EXPECT_EQ(MisuraInterruzioni(pc), 2);
    EXPECT_EQ(MisuraSimmetrie(pc, 1), 1);
    EXPECT_EQ(MisuraSimmetrie(pc, 2), 1);
    EXPECT_EQ(MisuraParalleli(pc, 1), 1);
    EXPECT_EQ(MisuraParalleli(pc, 2), 1);
    EXPECT_EQ(MisuraBaricentro(pc), 3);  // 18 / 5 truncated
}

TEST(Misure, ClassOneHasNoPairs) {
    const ProfiloColonna pc = ProfilaColonna(1, Col({37}));
    EXPECT_EQ(MisuraAmpiezza(pc), 0);
    EXPECT_EQ(MisuraDistanzaMinima(pc), 1000);
    EXPECT_EQ(MisuraDistanzaMassima(pc), 0);
    EXPECT_EQ(MisuraConsecutivi(pc), 0);
    EXPECT_EQ(MisuraPonte(pc), 0);
    EXPECT_EQ(MisuraInterruzioni(pc), 0);
    EXPECT_EQ(MisuraSimmetrie(pc, 1), 0);
    EXPECT_EQ(MisuraParalleli(pc, 1), 0);
    EXPECT_EQ(MisuraVortice(pc, 1), 0);
    EXPECT_EQ(MisuraVortice(pc, 2), 0);
    EXPECT_EQ(MisuraBaricentro(pc), 37);
    EXPECT_EQ(CalcolaBaricentro(1, Col({37})), 37);
}

TEST(Misure, BaricentroTruncatesInTheDevelopmentAndRoundsHalfEvenInPublic) {
    // (sum, expected truncated, expected public)
    struct Caso { Colonna c; int trunc; int pub; };
    const Caso casi[] = {
        {Col({20, 25}), 22, 22},  // 45 / 2 = 22.5 -> 22 (even)
        {Col({20, 27}), 23, 24},  // 47 / 2 = 23.5 -> 24 (even)
        {Col({1, 2, 4}), 2, 2},   // 7 / 3 = 2.33
        {Col({1, 2, 5}), 2, 3},   // 8 / 3 = 2.67
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
}

TEST(Misure, SequenzeMatchesOverlappingRunsAndReadsLettersByCase) {
    const Colonna c = Col({1, 2, 3, 4});  // parities 1 0 1 0
    EXPECT_EQ(CalcolaSequenze(4, c, "DP"), 2);
    EXPECT_EQ(CalcolaSequenze(4, c, "pd"), 1);  // p even, d (not P) odd
    EXPECT_EQ(CalcolaSequenze(4, c, "DPD"), 1);
    EXPECT_EQ(CalcolaSequenze(4, c, "DPDPD"), 0);  // longer than the class
    EXPECT_EQ(CalcolaSequenze(5, Col({1, 3, 5, 7, 9}), "DD"), 4);  // overlapping
}

TEST(Misure, SetAndParameterMeasures) {
    const Colonna c = Col({1, 2, 3});
    const ProfiloColonna pc = ProfilaColonna(3, c);
    EXPECT_EQ(MisuraResto(pc, 4), 2);
    EXPECT_EQ(MisuraResto(pc, 0), -1);
    EXPECT_EQ(MisuraPosizioni(pc, 2), 2);
    EXPECT_EQ(MisuraPosizioni(pc, 5), 0);   // beyond the class
    EXPECT_EQ(MisuraPosizioni(pc, 21), 0);  // outside the record
    Insieme insieme{};
    insieme[2] = insieme[3] = insieme[90] = -1;
    EXPECT_EQ(MisuraPuntiColonna(pc, insieme), 2);
    Insieme caselle{};
    caselle[1] = caselle[3] = -1;
    EXPECT_EQ(MisuraPeso(pc, caselle), 4);
}

}  // namespace
}  // namespace combi
