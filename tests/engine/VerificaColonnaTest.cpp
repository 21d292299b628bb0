#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <random>

#include "ColonnaDiProva.h"

#include "DecodificaCondizioni.h"
#include "VerificaColonna.h"

namespace combi {
namespace {

using test::Col;

SistemaDecodificato Leggi(std::vector<TestiCondizione> colonne, std::vector<std::string> quadri = {}) {
    TestiGriglia g;
    g.colonne = std::move(colonne);
    g.quadri = std::move(quadri);
    return LeggiCondizioni(g);
}

// The same condition recovered by the first panel and by the last, the
// others switched off; a panel number past 20 recovers nothing.
TEST(VerificaColonna, PassAndRecoveryThroughAPanel) {
    for (int quadro : {1, 20, 21}) {
        SCOPED_TRACE("panel " + std::to_string(quadro));
        std::vector<std::string> quadri(20, "-1,-1,-0");
        if (quadro <= 20) quadri[size_t(quadro) - 1] = "1,1,-1";
        auto s = Leggi({{"", "Punti Col.", "01-02-03-04-\r\n05", "2-3", "1", std::to_string(quadro)}}, quadri);
        auto& cond = s.condizioni[0];
        const int recuperata = quadro <= 20 ? kVero : kFalso;

        EXPECT_EQ(VerificaColonna(5, Col({1, 7, 9, 11, 13}), s.condizioni, s.quadri), recuperata);
        EXPECT_EQ(cond.Valore, 1);
        EXPECT_EQ(cond.ContaFallite, 1);
        EXPECT_EQ(cond.ContaRecuperabili, 1);
        EXPECT_EQ(cond.Superata, recuperata);

        EXPECT_EQ(VerificaColonna(5, Col({7, 9, 11, 13, 15}), s.condizioni, s.quadri), kFalso);
        EXPECT_EQ(cond.ContaFallite, 2);
        EXPECT_EQ(cond.ContaRecuperabili, 1);

        EXPECT_EQ(VerificaColonna(5, Col({1, 2, 7, 9, 11}), s.condizioni, s.quadri), kVero);
        EXPECT_EQ(cond.ContaSuperate, 1);
    }
}

TEST(VerificaColonna, PanelRecoversOnlyWithinItsBounds) {
    // Three Consecutivi conditions that accept nothing and recover every value,
    // in panel 2 with bounds 1..2: all three recoverable means none recovered.
    std::vector<TestiCondizione> colonne(3, {"", "Consecutivi", "", "9", "0-1-2-3-4", "2"});
    auto s = Leggi(colonne, {"-1,-1,-0", "1,2,-1"});
    EXPECT_EQ(VerificaColonna(5, Col({1, 2, 3, 4, 5}), s.condizioni, s.quadri), kFalso);
    // Make one of them not recoverable: two recoverable, both recovered.
    s.condizioni[0].Recupero = {};
    EXPECT_EQ(VerificaColonna(5, Col({1, 2, 3, 4, 5}), s.condizioni, s.quadri), kFalso);
    EXPECT_EQ(s.condizioni[1].Superata, kVero);
    EXPECT_EQ(s.condizioni[2].Superata, kVero);
    EXPECT_EQ(s.condizioni[0].Superata, kFalso);
    // An inactive panel or a panel number outside 1..20 recovers nothing.
    s.quadri[2].Attivo = 0;
    EXPECT_EQ(VerificaColonna(5, Col({1, 2, 3, 4, 5}), s.condizioni, s.quadri), kFalso);
    EXPECT_EQ(s.condizioni[1].Superata, kFalso);
}

TEST(VerificaColonna, LinkGroupsCountPassedMembersInnerFirst) {
    // Consecutivi (value 0 on 1 3 5 7 9, 4 on 1..5), Ponte, Interruzioni, each accepting 0.
    auto s = Leggi({{"", "LinkOpen", "", "", "", ""},
                    {"", "Consecutivi", "", "0", "", ""},
                    {"", "Ponte", "", "0", "", ""},
                    {"", "Interruzioni", "", "0", "", ""},
                    {"", "LinkClose", "", "2", "", ""}});
    // 1 3 5 7 9: consecutivi 0 (pass), ponte 4 (fail), interruzioni 0 (pass): two pass.
    EXPECT_EQ(VerificaColonna(5, Col({1, 3, 5, 7, 9}), s.condizioni, s.quadri), kVero);
    // 1 2 3 4 5: consecutivi 4, ponte 0, interruzioni 4: one passes.
    EXPECT_EQ(VerificaColonna(5, Col({1, 2, 3, 4, 5}), s.condizioni, s.quadri), kFalso);
    // 10 20 30 40 50: all three pass: three is not accepted.
    EXPECT_EQ(VerificaColonna(5, Col({10, 20, 30, 40, 50}), s.condizioni, s.quadri), kFalso);

    // Nested groups settle the inner first: LinkOpen, A, LinkOpen, B, C,
    // LinkClose "1", LinkClose "2", with A, B, C the three above.
    s = Leggi({{"", "LinkOpen", "", "", "", ""},
               {"", "Consecutivi", "", "0", "", ""},
               {"", "LinkOpen", "", "", "", ""},
               {"", "Ponte", "", "0", "", ""},
               {"", "Interruzioni", "", "0", "", ""},
               {"", "LinkClose", "", "1", "", ""},
               {"", "LinkClose", "", "2", "", ""}});
    // 1 3 5 7 9: A pass, B fail, C pass -> inner one of two: pass; outer A + inner = 2: pass.
    EXPECT_EQ(VerificaColonna(5, Col({1, 3, 5, 7, 9}), s.condizioni, s.quadri), kVero);
    // 10 20 30 40 50: A, B, C pass -> inner 2: fail; outer A + 0 = 1: fail.
    EXPECT_EQ(VerificaColonna(5, Col({10, 20, 30, 40, 50}), s.condizioni, s.quadri), kFalso);
    // A LinkClose without LinkOpen groups everything from the start.
    auto t = Leggi({{"", "Consecutivi", "", "0", "", ""},
                    {"", "Ponte", "", "0", "", ""},
                    {"", "LinkClose", "", "1", "", ""},
                    {"", "LinkOpen", "", "", "", ""},
                    {"", "Interruzioni", "", "0", "", ""}});
    // 1 3 5 7 9: Consecutivi pass, Ponte fail: 1 accepted; unclosed LinkOpen ignored,
    // Interruzioni (0) passes on its own.
    EXPECT_EQ(VerificaColonna(5, Col({1, 3, 5, 7, 9}), t.condizioni, t.quadri), kVero);
    EXPECT_EQ(VerificaColonna(5, Col({1, 2, 3, 4, 6}), t.condizioni, t.quadri), kFalso);
    // The counts a LinkClose can list stop at 90: a group of 90 passed members
    // may pass, one of 91 never does.
    for (int membri : {90, 91}) {
        std::vector<TestiCondizione> gruppo{{"", "LinkOpen", "", "", "", ""}};
        gruppo.insert(gruppo.end(), size_t(membri), {"", "Consecutivi", "", "0", "", ""});
        gruppo.push_back({"", "LinkClose", "", "90", "", ""});
        t = Leggi(gruppo);
        EXPECT_EQ(VerificaColonna(5, Col({1, 3, 5, 7, 9}), t.condizioni, t.quadri), membri == 90 ? kVero : kFalso);
    }
}

TEST(VerificaColonna, ValuesOutsideThePointListFail) {
    // Consecutivi of class 12 on twelve consecutive numbers is 11: beyond 0..10.
    auto s = Leggi({{"", "Consecutivi", "", "0-1-2-3-4-5-6-7-8-9-10", "0-10", "1"}}, {"1,1,-1"});
    Colonna c;
    for (int i = 1; i <= 12; ++i) c[i] = uint8_t(i);
    EXPECT_EQ(VerificaColonna(12, c, s.condizioni, s.quadri), kFalso);
    EXPECT_EQ(s.condizioni[0].Valore, 11);
    EXPECT_EQ(s.condizioni[0].Recuperabile, kFalso);
}

// The numbers two columns share among their first k, against a hand count and
// against a count by sorted intersection over random columns of every class.
// The columns are not sorted, share numbers in different positions, and hold
// numbers past k that must not count.
TEST(VerificaColonna, ContaComuniCountsSharedNumbers) {
    struct Caso { int k; Colonna a, b; int comuni; };
    const Caso casi[] = {
        {6, Col({1, 2, 3, 4, 5, 6}), Col({2, 4, 6, 8, 10, 12}), 3},
        {6, Col({1, 2, 3, 4, 5, 6}), Colonna{}, 0},
        {6, Col({90, 1, 45, 7, 8, 9, 10}), Col({10, 45, 2, 3, 90, 4, 1}), 2},  // 1 and 10 past k
        {6, Col({90, 1, 45, 7, 8, 9}), Col({9, 8, 7, 45, 1, 90}), 6},
        {1, Col({5, 6}), Col({6, 5}), 0},
        {2, Col({5, 6}), Col({6, 5}), 2},
        {5, Col({11, 12, 13, 14, 15, 16}), Col({16, 20, 21, 22, 11, 15}), 1},  // 15 and 16 past k in a or b
        {20, Col({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20}),
         Col({20, 40, 41, 42, 43, 44, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 1}), 2},
    };
    for (const Caso& c : casi) EXPECT_EQ(ContaComuni(c.k, c.a, c.b), c.comuni) << "class " << c.k;
    std::mt19937 rng(17);
    std::vector<int> urna(kMaxNumero);
    std::iota(urna.begin(), urna.end(), 1);
    for (int prova = 0; prova < 400; ++prova) {
        const int k = 1 + prova % kMaxClasse;
        Colonna a, b;
        std::shuffle(urna.begin(), urna.begin() + 30, rng);
        for (int i = 1; i <= kMaxClasse; ++i) a[i] = uint8_t(urna[size_t(i - 1)]);
        std::shuffle(urna.begin(), urna.begin() + 30, rng);
        for (int i = 1; i <= kMaxClasse; ++i) b[i] = uint8_t(urna[size_t(i - 1)]);
        std::vector<int> va(a.Numeri.begin(), a.Numeri.begin() + k), vb(b.Numeri.begin(), b.Numeri.begin() + k);
        std::sort(va.begin(), va.end());
        std::sort(vb.begin(), vb.end());
        std::vector<int> comuni;
        std::set_intersection(va.begin(), va.end(), vb.begin(), vb.end(), std::back_inserter(comuni));
        EXPECT_EQ(ContaComuni(k, a, b), int(comuni.size())) << "class " << k << " try " << prova;
    }
}

}  // namespace
}  // namespace combi
