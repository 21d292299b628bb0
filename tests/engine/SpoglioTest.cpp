// The winnings check. Trimming the blanks after the drawn numbers could be
// lost without a user noticing: the numbers are split on blanks anyway; nor
// does anyone read a summary row's count before it is set.
#include <gtest/gtest.h>

#include "ColonnaDiProva.h"

#include "Errore.h"
#include "Spoglio.h"

namespace combi {
namespace {

using test::Col;

std::string Elenco(int da, int a, const std::string& extra = "") {
    std::string s;
    for (int n = da; n <= a; ++n) {
        if (n > da) s += ',';
        s += std::to_string(n);
    }
    s += extra;
    return s;
}

TEST(Spoglio, DrawnNumbersAreCheckedBeforeTheCount) {
    struct Caso { std::string testo; std::string messaggio; };
    const Caso casi[] = {
        {"5,12,90", ""},
        {" 5, 12 ,90", ""},
        {"3 12 24 50 77", ""},
        {"3;12; 24 ;50", ""},
        {"3 12 91", kMsgNumeriDa1a90},
        {"5;;7", kMsgNumeriDa1a90},
        {"5 ;, 7", kMsgNumeriDa1a90},
        {"   ", ""},
        {"0,5", kMsgNumeriDa1a90},
        {"5,91", kMsgNumeriDa1a90},
        {"-1", kMsgNumeriDa1a90},
        {"5,,7", kMsgNumeriDa1a90},
        {"5,", kMsgNumeriDa1a90},
        {"abc", kMsgNumeriDa1a90},
        {"", ""},  // no item: nothing to refuse
        {Elenco(1, 20), ""},
        {Elenco(1, 21), kMsgMassimo20Numeri},
        {Elenco(1, 20, ",0"), kMsgMassimo20Numeri},  // the count message wins
        {"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21", kMsgMassimo20Numeri},
    };
    for (const Caso& c : casi) EXPECT_EQ(ControllaEstrazione(c.testo), c.messaggio) << "\"" << c.testo << "\"";
    EXPECT_THROW(VerificaVincite({}, 6, "5,91", 2), Errore);
    EXPECT_THROW(EstrazioneComeColonna(Elenco(1, 21)), Errore);
}

TEST(Spoglio, BlanksSemicolonsAndCommasSeparateTheDrawnNumbers) {
    using V = std::vector<std::string_view>;
    struct Caso { const char* testo; V voci; };
    const Caso casi[] = {
        {"3 12 24 50 77", {"3", "12", "24", "50", "77"}},
        {"3,12,24", {"3", "12", "24"}},
        {"  3\t12   24  ", {"3", "12", "24"}},
        {"3 ; 12,24", {"3", "12", "24"}},
        {"3 , 12 ;  24 50", {"3", "12", "24", "50"}},
        {"5,,7", {"5", "", "7"}},
        {"5 ; ;7", {"5", "", "7"}},
        {"5,", {"5", ""}},
        {";5", {"", "5"}},
        {"", {}},
        {" \t ", {}},
        {"5x 7", {"5x", "7"}},
    };
    for (const Caso& c : casi) EXPECT_EQ(VociEstrazione(c.testo), c.voci) << "\"" << c.testo << "\"";
    EXPECT_EQ(NumeriEstrazione("3 12,, 5.5"), (std::vector<double>{3, 12, 0, 5.5}));
    Colonna attesa;
    attesa[1] = 77, attesa[2] = 3, attesa[3] = 12;
    EXPECT_EQ(EstrazioneComeColonna("77 3;12"), attesa);
}

TEST(Spoglio, ColumnsScoreEachPositionOnce) {
    const std::vector<Colonna> colonne = {
        Col({1, 2, 3, 4, 5, 6}),        // 5
        Col({5, 12, 20, 30, 40, 90}),   // 5 12 90
        Col({12, 13, 14, 15, 16, 90}),  // 12 90
        Col({7, 8, 9, 10, 11, 13}),     // none
        Col({1, 2, 3, 4, 6, 7, 5}),     // 5 sits beyond class 6
    };
    for (const char* estrazione : {"5,12,90", "5,5,12,90,12", "90,12,5", "5 12 90", "90; 12 ;5"}) {
        const EsitoSpoglio e = VerificaVincite(colonne, 6, estrazione, 2);
        EXPECT_EQ(e.vincite, (std::vector<RigaVincita>{{2, "05 12 20 30 40 90", 3}, {3, "12 13 14 15 16 90", 2}}));
        EXPECT_EQ(e.contatori[0], 2);
        EXPECT_EQ(e.contatori[1], 1);
        EXPECT_EQ(e.contatori[3], 1);
    }
    // Class 7 counts the seventh position; a fractional number matches nothing.
    EXPECT_EQ(VerificaVincite(colonne, 7, "5,6", 2).vincite, (std::vector<RigaVincita>{{1, "01 02 03 04 05 06", 2},
                                                                                       {5, "01 02 03 04 06 07 05", 2}}));
    EXPECT_EQ(VerificaVincite(colonne, 6, "5,5.5", 1).vincite.size(), 2u);
    // Neither cut down nor rounded: 5.5, 6.5 and 4.999 hit no column, only 12 counts.
    for (const char* estrazione : {"5.5,12", "6.5,12", "12,4.999"})
        EXPECT_EQ(VerificaVincite(colonne, 6, estrazione, 1).vincite,
                  (std::vector<RigaVincita>{{2, "05 12 20 30 40 90", 1}, {3, "12 13 14 15 16 90", 1}}))
            << estrazione;
}

TEST(Spoglio, SummaryRunsFromTheClassDownToTheMinimum) {
    const EsitoSpoglio e = VerificaVincite(std::vector<Colonna>{Col({1, 2, 3, 4, 5, 6}), Col({1, 2, 3, 7, 8, 9})}, 6, "1,2,3,4", 3);
    EXPECT_EQ(e.riepilogo, (std::vector<RigaRiepilogo>{
                               {"Vincite con 6 punti ", 0}, {"Vincite con 5 punti ", 0},
                               {"Vincite con 4 punti ", 1}, {"Vincite con 3 punti ", 1}}));
    const EsitoSpoglio vuoto = VerificaVincite({}, 6, "1,2", 2);
    EXPECT_TRUE(vuoto.vincite.empty());
    ASSERT_EQ(vuoto.riepilogo.size(), 5u);
    for (const RigaRiepilogo& r : vuoto.riepilogo) EXPECT_EQ(r.colonne, 0);
    // Class 20 with all twenty drawn: the table reaches 20 points.
    Colonna venti;
    for (int p = 1; p <= 20; ++p) venti[p] = uint8_t(p * 4);
    std::string tutti;
    for (int p = 1; p <= 20; ++p) {
        if (p > 1) tutti += ',';
        tutti += std::to_string(p * 4);
    }
    const EsitoSpoglio pieno = VerificaVincite(std::vector<Colonna>{venti}, 20, tutti, 10);
    EXPECT_EQ(pieno.contatori[20], 1);
    EXPECT_EQ(pieno.riepilogo.front(), (RigaRiepilogo{"Vincite con 20 punti ", 1}));
    EXPECT_EQ(pieno.riepilogo.size(), 11u);
    EXPECT_THROW(VerificaVincite(std::vector<Colonna>{venti}, 21, "1", 1), Errore);
}

TEST(Spoglio, DrawnNumbersBecomeAColumnInTypedOrder) {
    EXPECT_EQ(EstrazioneComeColonna("90,5, 12"), Col({90, 5, 12}));
    EXPECT_EQ(EstrazioneComeColonna("7,7"), Col({7, 7}));
    EXPECT_EQ(EstrazioneComeColonna(Elenco(71, 90)), Col({71, 72, 73, 74, 75, 76, 77, 78, 79, 80, 81, 82, 83, 84,
                                                            85, 86, 87, 88, 89, 90}));
}

}  // namespace
}  // namespace combi
