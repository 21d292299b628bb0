// The effect of each condition.
#include <gtest/gtest.h>

#include "EffettoCondizioni.h"

namespace combi {
namespace {

Condizione Con(int16_t tipo, int32_t superate, int32_t fallite, int32_t recuperabili) {
    Condizione c;
    c.Tipo = tipo;
    c.ContaSuperate = superate;
    c.ContaFallite = fallite;
    c.ContaRecuperabili = recuperabili;
    return c;
}

using Testi = std::array<std::string, kColonneEffetto>;

TEST(EffettoCondizioni, RowsCountsAndPercentages) {
    const TabellaCondizioni tabella = {
        Con(kConsecutivi, 6, 246, 0),
        Con(kLinkOpen, 9, 9, 9),  // stray counters of a link record are never shown
        Con(kPuntiColonna, 126, 126, 126),
        Con(kPeso, 300, 0, 1),    // more than the integral system: capped at 100
        Con(kLinkClose, 0, 0, 0),
        Con(kNessuna, 5, 5, 5),   // ends the report
        Con(kPonte, 1, 1, 1),
    };
    const auto righe = RigheEffetto(tabella, 252, ".");
    ASSERT_EQ(righe.size(), 5u);
    const Testi attese[] = {
        {"1", "Consecutivi", "6", "2", "246", "97", "0", "0"},
        {"2", "LinkOpen", "", "", "", "", "", ""},
        {"3", "Punti Col.", "126", "50", "126", "50", "126", "50"},
        {"4", "Peso", "300", "100", "0", "0", "1", "0"},
        {"5", "LinkClose", "", "", "", "", "", ""},
    };
    for (size_t i = 0; i < righe.size(); ++i) {
        EXPECT_EQ(righe[i].id, int(i) + 1);
        EXPECT_EQ(righe[i].testi, attese[i]) << "row " << i;
    }
}

TEST(EffettoCondizioni, EdgeTablesAndTotals) {
    EXPECT_TRUE(RigheEffetto({Con(kNessuna, 0, 0, 0)}, 252, ".").empty()) << "no conditions";
    EXPECT_TRUE(RigheEffetto({}, 252, ".").empty());

    const auto zero = RigheEffetto({Con(kAmpiezza, 7, 3, 2)}, 0, ".");
    ASSERT_EQ(zero.size(), 1u);
    EXPECT_EQ(zero[0].testi[kEffettoPercSuperate], "0") << "an empty integral system gives 0";
    EXPECT_EQ(zero[0].testi[kEffettoPercScartate], "0");

    // C(90, 5): counts of millions grouped by the given separator.
    const auto grandi = RigheEffetto({Con(kResto, 1234567, 42715701, 43949268)}, 43949268, ".");
    ASSERT_EQ(grandi.size(), 1u);
    EXPECT_EQ(grandi[0].testi[kEffettoSuperate], "1.234.567");
    EXPECT_EQ(grandi[0].testi[kEffettoPercSuperate], "2");
    EXPECT_EQ(grandi[0].testi[kEffettoScartate], "42.715.701");
    EXPECT_EQ(grandi[0].testi[kEffettoPercScartate], "97");
    EXPECT_EQ(grandi[0].testi[kEffettoPercRecuperate], "100");
    EXPECT_EQ(RigheEffetto({Con(kResto, 1234567, 0, 0)}, 1e7, ",")[0].testi[kEffettoSuperate], "1,234,567");
}

}  // namespace
}  // namespace combi
