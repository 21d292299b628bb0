// The worker's report as both sides see it: the lines as documented, read
// back to what was written, and anything else refused.

#include <gtest/gtest.h>

#include "ProtocolloLavoratori.h"

namespace combi {
namespace {

using Tipo = RigaRapporto::Tipo;

TEST(ProtocolloLavoratori, LinesAsDocumentedReadBackToWhatWasWritten) {
    EXPECT_EQ(RigaTestate(120000), "testate 120000");
    EXPECT_EQ(RigaTenute(345), "tenute 345");
    EXPECT_EQ(RigaFine("/tmp/x y/SistCond2.col"), "fine /tmp/x y/SistCond2.col");
    for (uint64_t n : {uint64_t(0), uint64_t(10000), uint64_t(622614630), UINT64_MAX}) {
        const auto t = LeggiRigaRapporto(RigaTestate(n) + "\n");
        ASSERT_TRUE(t);
        EXPECT_EQ(t->tipo, Tipo::Testate);
        EXPECT_EQ(t->numero, n);
        const auto k = LeggiRigaRapporto(RigaTenute(n) + "\r\n");
        ASSERT_TRUE(k);
        EXPECT_EQ(k->tipo, Tipo::Tenute);
        EXPECT_EQ(k->numero, n);
    }
    const auto f = LeggiRigaRapporto(RigaFine("/tmp/x y/SistCond2.col"));
    ASSERT_TRUE(f);
    EXPECT_EQ(f->tipo, Tipo::Fine);
    EXPECT_EQ(f->file, "/tmp/x y/SistCond2.col");
    for (const char* altro : {"", "testate", "testate ", "testate x", "testate -1", "testate 5 6", "tenute 1e3",
                              "fine ", "Testate 5", "altro 5", " testate 5"})
        EXPECT_FALSE(LeggiRigaRapporto(altro)) << '"' << altro << '"';
}

TEST(ProtocolloLavoratori, FilesOfARunInItsFolder) {
    EXPECT_EQ(FileSistemaDellaCorsa("/tmp/corsa/"), "/tmp/corsa/SistCond.sic");
    EXPECT_EQ(FileContatoriLavoratore("/tmp/corsa/", 3), "/tmp/corsa/SistCond3.sic");
    EXPECT_EQ(FileColonneLavoratore("/tmp/corsa/", 12), "/tmp/corsa/SistCond12.col");
}

}  // namespace
}  // namespace combi
