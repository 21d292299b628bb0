#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "ColonnaDiProva.h"
#include "ProvaCli.h"
#include "FileColonne.h"
#include "Garanzia.h"
#include "Formato.h"

namespace combi {
namespace {

namespace fs = std::filesystem;

class GaranziaCliTest : public test::ProvaCli {
protected:
    GaranziaCliTest() : ProvaCli("cf_cli_gar_") {}
};

using test::Col;

TEST_F(GaranziaCliTest, OptimisedReductionIsCheckedByTheGuaranteeCommand) {
    ScriviFileColonne(P("tutte.col"), ColonneIntegrali(test::DaA(1, 13), 6));  // 1,716 columns
    ASSERT_EQ(Esegui({"riduci", P("tutte.col"), "--punti", "4", "--colonne", P("avida.col")}), 0) << err_.str();
    ASSERT_EQ(Esegui({"riduci", P("tutte.col"), "--punti", "4", "--colonne", P("ottima.col"), "--ottimizza",
                      "--secondi", "1", "--seme", "5"}),
              0)
        << err_.str();
    const size_t avide = LeggiFileColonne(P("avida.col")).size();
    const size_t ottime = LeggiFileColonne(P("ottima.col")).size();
    EXPECT_LE(ottime, avide);
    EXPECT_NE(out_.str().find("Colonne ridotte : " + FormatNumero(double(ottime)) + "\n"), std::string::npos);
    // The same guarantee against the file and against the numbers in class 6.
    for (const cli::Parole& su : {cli::Parole{"--su", P("tutte.col")}, cli::Parole{"--numeri", "1-13", "--classe", "6"}}) {
        cli::Parole parole = {"garanzia", P("ottima.col"), "--punti", "4"};
        parole.insert(parole.end(), su.begin(), su.end());
        ASSERT_EQ(Esegui(parole), 0) << err_.str();
        EXPECT_EQ(out_.str(), "Colonne tenute : " + FormatNumero(double(ottime)) + "\nColonne da coprire : " +
                                  FormatNumero(1716) + "\nBuchi : 0\n");
    }
}

TEST_F(GaranziaCliTest, HolesAreCountedAndWritten) {
    // Kept 1-6 at 6 points against 1..7: only 1-6 itself is covered, the other six columns are holes.
    ScriviFileColonne(P("una.col"), {Col({1, 2, 3, 4, 5, 6})});
    ASSERT_EQ(Esegui({"garanzia", P("una.col"), "--punti", "6", "--numeri", "1-7", "--classe", "6", "--buchi",
                      P("buchi.col")}),
              0)
        << err_.str();
    EXPECT_EQ(out_.str(), "Colonne tenute : 1\nColonne da coprire : 7\nBuchi : 6\n");
    const std::vector<Colonna> buchi = LeggiFileColonne(P("buchi.col"));
    ASSERT_EQ(buchi.size(), 6u);
    EXPECT_EQ(buchi.front(), Col({1, 2, 3, 4, 5, 7}));
    EXPECT_EQ(buchi.back(), Col({2, 3, 4, 5, 6, 7}));
    // At 5 points every column of 1..7 shares five numbers with 1-6.
    ASSERT_EQ(Esegui({"garanzia", P("una.col"), "--punti", "5", "--numeri", "1,2,3-7", "--classe", "6"}), 0);
    EXPECT_NE(out_.str().find("Buchi : 0\n"), std::string::npos);
}

TEST_F(GaranziaCliTest, TableInItalian) {
    // Three columns over three groups of three numbers (see the engine's table test).
    ScriviFileColonne(P("tre.col"), {Col({1, 2, 3, 4, 5, 6}), Col({4, 5, 6, 7, 8, 9}), Col({1, 2, 3, 7, 8, 9})});
    ASSERT_EQ(Esegui({"garanzia", P("tre.col"), "--tabella", "--numeri", "1-10"}), 0) << err_.str();
    EXPECT_EQ(out_.str(),
              "Se esce 1 dei tuoi numeri : almeno 0 punti\n"
              "Se escono 2 dei tuoi numeri : almeno 1 punto\n"
              "Se escono 3 dei tuoi numeri : almeno 2 punti\n"
              "Se escono 4 dei tuoi numeri : almeno 2 punti\n"
              "Se escono 5 dei tuoi numeri : almeno 3 punti\n");
    ASSERT_EQ(Esegui({"garanzia", P("tre.col"), "--tabella", "--numeri", "1-9", "--estratti", "2"}), 0);
    EXPECT_EQ(out_.str(), "Se esce 1 dei tuoi numeri : almeno 1 punto\nSe escono 2 dei tuoi numeri : almeno 2 punti\n");
}

TEST_F(GaranziaCliTest, WrongArgumentsGiveAMessageAndExitCode) {
    ScriviFileColonne(P("buono.col"), {Col({1, 2, 3, 4, 5, 6}), Col({1, 2, 3, 4, 5, 7})});
    ScriviFileColonne(P("terna.col"), {Col({1, 2, 3})});
    struct Caso { cli::Parole parole; int codice; std::string messaggio; };
    const Caso casi[] = {
        {{"riduci", P("buono.col"), "--punti", "3", "--colonne", P("o.col"), "--secondi", "5"}, 2, "solo con --ottimizza"},
        {{"riduci", P("buono.col"), "--punti", "3", "--colonne", P("o.col"), "--ottimizza", "--riferimento"}, 2,
         "non vanno insieme"},
        {{"riduci", P("buono.col"), "--punti", "3", "--colonne", P("o.col"), "--ottimizza", "--secondi", "0"}, 2,
         "--secondi deve"},
        {{"riduci", P("buono.col"), "--punti", "3", "--colonne", P("o.col"), "--ottimizza", "--seme", "x"}, 2,
         "--seme deve"},
        {{"riduci", P("terna.col"), "--punti", "4", "--colonne", P("o.col")}, 2, "--punti deve essere un numero intero tra 1 e 3"},
        {{"riduci", P("buono.col"), "--punti", "11", "--colonne", P("o.col")}, 2, "--punti deve"},
        {{"garanzia", P("buono.col"), "--numeri", "1-9", "--classe", "6"}, 2, "manca --punti"},
        {{"garanzia", P("buono.col"), "--punti", "3"}, 2, "manca --su"},
        {{"garanzia", P("buono.col"), "--punti", "3", "--numeri", "1-9"}, 2, "manca --su"},
        {{"garanzia", P("buono.col"), "--punti", "3", "--su", P("buono.col"), "--numeri", "1-9", "--classe", "6"}, 2,
         "non entrambi"},
        {{"garanzia", P("buono.col"), "--punti", "3", "--numeri", "0-9", "--classe", "6"}, 2, "da 1 a 90"},
        {{"garanzia", P("buono.col"), "--punti", "3", "--numeri", "9-1", "--classe", "6"}, 2, "al contrario"},
        {{"garanzia", P("buono.col"), "--punti", "3", "--numeri", "2-9,9", "--classe", "6"}, 2, "ripetuto"},
        {{"garanzia", P("buono.col"), "--punti", "3", "--numeri", "1-5", "--classe", "6"}, 2, "--classe deve"},
        {{"garanzia", P("buono.col"), "--punti", "3", "--numeri", "1-9", "--classe", "6", "--estratti", "3"}, 2,
         "solo con --tabella"},
        {{"garanzia", P("buono.col"), "--tabella", "--numeri", "1-9", "--punti", "3"}, 2, "non va con --punti"},
        {{"garanzia", P("buono.col"), "--tabella"}, 2, "manca --numeri"},
        {{"garanzia", P("buono.col"), "--tabella", "--numeri", "1-9", "--estratti", "0"}, 2, "--estratti deve"},
        {{"garanzia", P("manca.col"), "--tabella", "--numeri", "1-9"}, 1, "Errore 53"},
        {{"garanzia", P("buono.col"), "--punti", "3", "--su", P("manca.col")}, 1, "Errore 53"},
    };
    for (const Caso& c : casi) {
        EXPECT_EQ(Esegui(c.parole), c.codice) << c.messaggio;
        EXPECT_NE(err_.str().find(c.messaggio), std::string::npos) << err_.str();
    }
    EXPECT_FALSE(fs::exists(P("o.col")));
}

}  // namespace
}  // namespace combi
