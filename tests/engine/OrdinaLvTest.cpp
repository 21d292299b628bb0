// The report lists' sort. A text whose key would be "not a number" cannot be
// written (the reader takes digits only), so that key's value is never used.
// The quicksort's guard on the pivot position (below 2 or past the end) is
// never met from a call over positions 1..n, and a one-row segment pushed
// on the stack finds nothing to exchange: changes there are not visible.
// Every kind but 1 sorts by number, so the number kind's code may be 3 too.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numeric>
#include <random>

#include "Errore.h"
#include "OrdinaLv.h"

namespace combi {
namespace {

std::vector<RigaLista> Righe(std::initializer_list<std::vector<std::string>> testi) {
    std::vector<RigaLista> righe;
    int n = 0;
    for (const auto& t : testi) {
        ++n;
        righe.push_back({t, std::string("K").append(std::to_string(n)), std::string("tag").append(std::to_string(n))});
    }
    return righe;
}

std::vector<std::string> Colonna(const std::vector<RigaLista>& righe, size_t c) {
    std::vector<std::string> v;
    for (const RigaLista& r : righe) v.push_back(c < r.testi.size() ? r.testi[c] : "-");
    return v;
}

TEST(OrdinaLv, KeysOfEachKindSortInBothOrders) {
    // The codes a host passes: kind 1 text, 2 and 3 number; order 0 up, 1 down.
    struct Caso { std::vector<std::string> testi; int tipo; int ordine; std::vector<std::string> attesi; };
    const Caso casi[] = {
        {{"99", "1.234,5", "abc"}, 3, 1, {"1.234,5", "99", "abc"}},
        {{"99", "1.234,5", "abc"}, 2, 0, {"abc", "99", "1.234,5"}},
        {{"-3", "0,00004", "-2,5", "10"}, 2, 1, {"10", "0,00004", "-2,5", "-3"}},
        {{"a", "B", "b"}, 1, 1, {"b", "a", "B"}},
        {{"a", "B", "b"}, 1, 0, {"B", "a", "b"}},
        {{"10", "9", "100"}, 1, 1, {"9", "100", "10"}},  // text, not value
        {{"àbc", "zeta"}, 1, 1, {"àbc", "zeta"}},        // UTF-8 bytes above ASCII
    };
    for (const Caso& c : casi) {
        std::vector<RigaLista> righe;
        for (const std::string& t : c.testi) righe.push_back({{"x", t}, t, ""});
        EXPECT_EQ(Colonna(OrdinaRighe(righe, 2, c.tipo, c.ordine), 1), c.attesi);
    }
    EXPECT_EQ(ChiaveNumerica("1,23456"), 12'346);
    EXPECT_EQ(ChiaveNumerica("-1" + std::string(30, '0')), std::numeric_limits<int64_t>::min());  // clamped
    // 2^63 / 10000 scales to 2^63 exactly, one past the largest key: clamped too.
    EXPECT_EQ(ChiaveNumerica("922337203685477,5808"), std::numeric_limits<int64_t>::max());
    EXPECT_EQ(ChiaveNumerica("-922337203685477,5808"), std::numeric_limits<int64_t>::min());
}

TEST(OrdinaLv, EqualKeysFollowTheQuicksortAndRowsStayWhole) {
    // Four equal keys: the pivot exchanges leave the rows as 3, 4, 1, 2.
    const auto uguali = Righe({{"a", "5"}, {"b", "5"}, {"c", "5"}, {"d", "5"}});
    EXPECT_EQ(Colonna(OrdinaRighe(uguali, 2, kOrdinaNumero, kDecrescente), 0),
              (std::vector<std::string>{"c", "d", "a", "b"}));
    EXPECT_EQ(Colonna(OrdinaRighe(uguali, 2, kOrdinaNumero, kCrescente), 0),
              (std::vector<std::string>{"b", "a", "d", "c"}));

    // Sub-items, keys and tags travel with their row; a row without the
    // sorted sub-item sorts as an empty text.
    const auto righe = Righe({{"1", "05 12", "2"}, {"2", "33 41 90", "3"}, {"3"}, {"4", "01", "1"}});
    const auto ordinate = OrdinaRighe(righe, 3, kOrdinaNumero, kDecrescente);
    EXPECT_EQ(Colonna(ordinate, 0), (std::vector<std::string>{"2", "1", "4", "3"}));
    for (const RigaLista& r : ordinate) {
        const RigaLista& originale = righe[size_t(std::stoi(r.testi[0])) - 1];
        EXPECT_EQ(r, originale);
    }
}

TEST(OrdinaLv, DistinctKeysReverseBetweenOrders) {
    std::mt19937 rng(11);
    for (int tipo : {kOrdinaTesto, kOrdinaNumero}) {
        for (int prova = 0; prova < 20; ++prova) {
            std::vector<RigaLista> righe;
            const size_t n = rng() % 60 + 2;
            std::vector<int> valori(400);
            std::iota(valori.begin(), valori.end(), -200);
            std::shuffle(valori.begin(), valori.end(), rng);
            for (size_t i = 0; i < n; ++i) righe.push_back({{std::to_string(valori[i]).append(",5")}, "", ""});
            auto giu = OrdinaRighe(righe, 1, tipo, kDecrescente);
            const auto su = OrdinaRighe(righe, 1, tipo, kCrescente);
            std::reverse(giu.begin(), giu.end());
            EXPECT_EQ(giu, su);
        }
    }
}

TEST(OrdinaLv, HeaderIconsAndShortLists) {
    EXPECT_EQ(IconeIntestazioni(3, 5, 2, kDecrescente), (std::vector<int>{0, 2, 0}));
    EXPECT_EQ(IconeIntestazioni(3, 2, 1, kCrescente), (std::vector<int>{1, 0, 0}));  // two rows sort
    EXPECT_EQ(IconeIntestazioni(3, 5, 3, kCrescente), (std::vector<int>{0, 0, 1}));
    EXPECT_TRUE(IconeIntestazioni(3, 1, 1, kDecrescente).empty());
    EXPECT_TRUE(IconeIntestazioni(3, 0, 1, kDecrescente).empty());
    const auto una = Righe({{"zeta", "1"}});
    EXPECT_EQ(OrdinaRighe(una, 2, kOrdinaNumero, kCrescente), una);
    EXPECT_TRUE(OrdinaRighe({}, 1, kOrdinaTesto, kCrescente).empty());
    EXPECT_THROW(OrdinaRighe(una, 1, 4, kCrescente), Errore);
    EXPECT_THROW(OrdinaRighe(una, 1, kOrdinaTesto, 2), Errore);
}

}  // namespace
}  // namespace combi
