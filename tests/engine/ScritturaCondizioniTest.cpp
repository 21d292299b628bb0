// Writing a condition back into the grid's texts.
#include <gtest/gtest.h>

#include "ConfrontoColonna.h"
#include "DecodificaCondizioni.h"
#include "ScritturaCondizioni.h"
#include "SistemiCasuali.h"

namespace combi {
namespace {

TEST(ScritturaCondizioni, TextsOfEveryTypeAsTheEditorsWriteThem) {
    struct Caso { TestiCondizione testi; };
    const TestiCondizione casi[] = {
        {"", "LinkOpen", "L\r\ni\r\nn\r\nk\r\nO\r\np\r\ne\r\nn", "", "", ""},
        {"", "LinkClose", "L\r\ni\r\nn\r\nk\r\nC\r\nl\r\no\r\ns\r\ne", "2-3", "", ""},
        {"", "Punti Col.", "01-05-12-33-\r\n45", "0-2", "1", "3"},
        {"", "Pari-Dispari", "Dispari", "1", "", ""},
        {"", "Peso", "Caselle :\r\n1-3-20", "10-25", "-", ""},
        {"", "Resto", "Resto a : 3", "0-2", "1", "2"},
        {"", "Ampiezza", "A\r\nm\r\np\r\ni\r\ne\r\nz\r\nz\r\na", "20-60", "10-19", "1"},
        {"", "Vortice", "Inverso", "1-4", "", ""},
        {"", "Simmetrie", "Dirette", "0", "", ""},
        {"", "Posizioni", "Casella :\r\n3", "5-40", "-", ""},
        {"", "Sequenze", "P\r\nD\r\nD", "1-2", "", ""},
        {"", "Paralleli", "Inversi", "2", "", ""},
        {"", "Distanza Minima", "D\r\ni\r\ns\r\nt\r\na\r\nn\r\nz\r\na\r\nM\r\ni\r\nn", "3-9", "-", ""},
    };
    for (const TestiCondizione& t : casi) {
        TestiGriglia g;
        g.colonne = {t};
        const Condizione c = LeggiCondizioni(g).condizioni[0];
        EXPECT_EQ(TestiDaCondizione(c), t) << t[kRigaCondizione];
    }
    // A hand-made record may mark cell 0 or cells past the 20th, which the
    // weight never reads: they are not written.
    TestiGriglia g;
    g.colonne = {casi[4]};
    Condizione peso = LeggiCondizioni(g).condizioni[0];
    peso.Numeri[0] = -1;
    peso.Numeri[21] = -1;
    EXPECT_EQ(TestiDaCondizione(peso), casi[4]);
}

TEST(ScritturaCondizioni, RandomSystemsSurviveTextsAndBack) {
    test::GeneratoreSistemi gen(11);
    for (int caso = 0; caso < 200; ++caso) {
        const ParametriSviluppo p = gen.Sistema();
        const SistemaDecodificato riletto = LeggiCondizioni(TestiDaSistema(p.condizioni, p.quadri));
        // An unknown name becomes an empty column, where reading stops.
        size_t fino = 0;
        while (fino < p.condizioni.size() && p.condizioni[fino].Tipo != kNessuna) ++fino;
        for (size_t i = 0; i < fino; ++i) EXPECT_EQ(riletto.condizioni[i], p.condizioni[i]) << caso << "/" << i;
        EXPECT_EQ(riletto.quadri, p.quadri);
    }
}

TEST(ConfrontoColonna, RowsTellTheOutcomeOfEachCondition) {
    TestiGriglia g;
    g.colonne = {{"", "Consecutivi", "", "0", "1-2", "1"},
                 {"", "LinkOpen", "", "", "", ""},
                 {"", "Ampiezza", "", "10-20", "-", ""},
                 {"", "Ponte", "", "3", "", ""},
                 {"", "LinkClose", "", "1", "", ""}};
    g.quadri = {"1,1,-1"};
    Colonna c;
    c[1] = 1, c[2] = 2, c[3] = 30;  // consecutivi 1, ampiezza 29, ponte 0
    const Confronto r = ConfrontaCondizioniSuColonna(c, g);
    ASSERT_EQ(r.righe.size(), 5u);
    EXPECT_EQ(r.righe[0].colonne, (std::vector<std::string>{"1", "Consecutivi", "0", "1-2", "1", "Si"}));
    EXPECT_EQ(r.righe[0].esito, EsitoRiga::kSuperata);  // recovered by its panel
    EXPECT_EQ(r.righe[1].colonne.size(), 2u);
    EXPECT_EQ(r.righe[2].colonne, (std::vector<std::string>{"3", "Ampiezza", "10-20", "0-0", "29", "No"}));
    EXPECT_EQ(r.righe[2].esito, EsitoRiga::kFallita);
    EXPECT_EQ(r.righe[3].esito, EsitoRiga::kFallita);
    EXPECT_FALSE(r.superata);  // the group has no passed member: 0 is not accepted
    EXPECT_EQ(PreparaTabellaCandidati({3, 8, 15, 0, 21}, 3),
              (std::vector<std::vector<int>>{{3, 8, 15}, {8, 15, 21}}));
    EXPECT_TRUE(PreparaTabellaCandidati({3, 8}, 3).empty());
    std::string avviso;
    EXPECT_TRUE(PreparaTabellaCandidati({3, 8}, 0, [&](const std::string& m) { avviso = m; }).empty());
    EXPECT_EQ(avviso, "Impostare il numero di elementi per ciascuna combinazione");
}

}  // namespace
}  // namespace combi
