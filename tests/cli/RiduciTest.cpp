#include "../engine/ColonnaDiProva.h"
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "ProvaCli.h"
#include "FileBinario.h"
#include "FileColonne.h"

namespace combi {
namespace {

namespace fs = std::filesystem;

class RiduciSpoglioTest : public test::ProvaCli {
protected:
    RiduciSpoglioTest() : ProvaCli("cf_cli_rid_") {}
};

using test::Col;

TEST_F(RiduciSpoglioTest, BothReductionPathsWriteTheSameFileFromWholeRecords) {
    std::vector<Colonna> colonne;
    for (int a = 1; a <= 6; ++a)
        for (int b = a + 1; b <= 9; ++b)
            for (int c = b + 1; c <= 12; ++c) colonne.push_back(Col({a, b, c, 20 + a, 30 + b, 40 + c % 3}));
    ScriviFileColonne(P("in.col"), colonne);
    std::ofstream(P("in.col"), std::ios::app | std::ios::binary) << "cut";  // not a whole record
    ASSERT_EQ(Esegui({"riduci", P("in.col"), "--punti", "4", "--colonne", P("veloce.col")}), 0) << err_.str();
    const std::string resoconto = out_.str();
    ASSERT_EQ(Esegui({"riduci", P("in.col"), "--punti", "4", "--colonne", P("rif.col"), "--riferimento"}), 0);
    const std::vector<uint8_t> veloce = LeggiFileBinario(P("veloce.col"), 1 << 20);
    EXPECT_EQ(veloce, LeggiFileBinario(P("rif.col"), 1 << 20));
    EXPECT_GT(veloce.size(), 0u);
    EXPECT_LT(veloce.size(), colonne.size() * 20);
    EXPECT_NE(resoconto.find("Colonne : " + std::to_string(colonne.size()) + "\nColonne ridotte : " +
                             std::to_string(veloce.size() / 20) + "\nTempo : 00:00:"),
              std::string::npos) << resoconto;
}

TEST_F(RiduciSpoglioTest, WrongInputGivesAMessageAndAnExitCode) {
    ScriviFileColonne(P("buono.col"), {Col({1, 2, 3, 4, 5, 6})});
    ScriviFileColonne(P("corto.col"), {Col({1, 2, 3, 4, 5, 6}), Col({1, 2, 3, 4, 5})});
    ScriviFileColonne(P("vuoto.col"), {});
    ScriviFileColonne(P("doppio.col"), {Col({1, 2, 3, 4, 5, 6}), Col({1, 2, 3, 4, 5, 7}), Col({8, 9, 10, 11, 9, 12})});
    struct Caso { cli::Parole parole; int codice; std::string messaggio; };
    const Caso casi[] = {
        {{"riduci", P("buono.col"), "--colonne", P("o.col")}, 2, "manca --punti"},
        {{"riduci", P("buono.col"), "--punti", "7", "--colonne", P("o.col")}, 2, "--punti deve"},
        {{"riduci", P("buono.col"), "--punti", "0", "--colonne", P("o.col")}, 2,
         "--punti deve essere un numero intero tra 1 e 10: \"0\""},
        {{"riduci", P("buono.col"), "--punti", "3", "--punti", "4", "--colonne", P("o.col")}, 2,
         "opzione --punti ripetuta"},
        {{"riduci", P("buono.col"), "--punti", "3", "--colonne", P("o.col"), "--riferimento", "--riferimento"}, 2,
         "opzione --riferimento ripetuta"},
        {{"riduci", P("manca.col"), "--punti", "3", "--colonne", P("o.col")}, 1,
         "Errore 53- Il file delle colonne non esiste"},
        {{"riduci", P("corto.col"), "--punti", "3", "--colonne", P("o.col")}, 1, "La colonna 2 "},
        {{"riduci", P("doppio.col"), "--punti", "3", "--colonne", P("o.col")}, 1,
         "La colonna 3 non ha sei numeri diversi da 1 a 90 nelle prime sei posizioni"},
        {{"spoglio", P("buono.col"), "--estrazione", "0,5"}, 2, "Inserire numeri da 1 a 90"},
        {{"spoglio", P("buono.col"), "--estrazione", "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21"}, 2,
         "La colonna vincente deve contenere massimo 20 numeri"},
        {{"spoglio", P("vuoto.col"), "--estrazione", "5"}, 2, "--classe"},
        {{"spoglio", P("buono.col"), "--estrazione", "5", "--minimo", "0"}, 2,
         "--minimo deve essere un numero intero tra 1 e 10: \"0\""},
        {{"spoglio", P("buono.col"), "--estrazione", "5", "--minimo", "11"}, 2, "tra 1 e 10"},
        {{"spoglio", P("buono.col"), "--estrazione", "5", "--classe", "21"}, 2, "--classe deve essere"},
    };
    for (const Caso& c : casi) {
        EXPECT_EQ(Esegui(c.parole), c.codice) << c.messaggio;
        EXPECT_NE(err_.str().find(c.messaggio), std::string::npos) << err_.str();
    }
    EXPECT_FALSE(fs::exists(P("o.col")));
}

TEST_F(RiduciSpoglioTest, SpoglioListsWinningColumnsAndTheSummary) {
    ScriviFileColonne(P("s.col"), {Col({1, 5, 7, 9, 11}), Col({5, 12, 20, 30, 90}), Col({2, 3, 4, 6, 8})});
    ASSERT_EQ(Esegui({"spoglio", P("s.col"), "--estrazione", "90,5,12,5"}), 0) << err_.str();
    EXPECT_EQ(out_.str(),
              "Colonna\tNumeri\tPunti\n2\t05 12 20 30 90\t3\n\nVincita\tColonne\nVincite con 5 punti \t0\n"
              "Vincite con 4 punti \t0\nVincite con 3 punti \t1\nVincite con 2 punti \t0\n");
    ASSERT_EQ(Esegui({"spoglio", P("s.col"), "--estrazione", "12", "--minimo", "1", "--classe", "2"}), 0);
    EXPECT_EQ(out_.str(), "Colonna\tNumeri\tPunti\n2\t05 12 20 30 90\t1\n\nVincita\tColonne\n"
                          "Vincite con 2 punti \t0\nVincite con 1 punti \t1\n");
}

}  // namespace
}  // namespace combi
