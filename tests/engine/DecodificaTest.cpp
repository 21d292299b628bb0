// Decoding the grid texts. The index of the grid's row 0 (the column's
// number) is read by no one in the engine, and a list of counts cannot hold
// a negative one (the "-" between them splits it), so its guard against one
// is never met.
#include <gtest/gtest.h>

#include <clocale>

#include "Colonna.h"
#include "DecodificaCondizioni.h"
#include "LetturaNumero.h"
#include "TipiCondizione.h"

namespace combi {
namespace {

TestiCondizione Testi(const std::string& nome, const std::string& parametri, const std::string& punti,
                      const std::string& recupero = "", const std::string& quadro = "") {
    return {"", nome, parametri, punti, recupero, quadro};
}

// The same readings on a desktop whose locale writes decimals with a comma:
// "3.7" is 3.7 there too (scripts/dipendenze.sh installs it_IT.UTF-8).
TEST(LetturaNumero, LeadingNumberRoundsHalvesToEvenInAnyLocale) {
    struct Caso { const char* testo; double valore; int32_t intero; };
    const Caso casi[] = {
        {"12", 12, 12},     {"  7abc", 7, 7},  {"", 0, 0},         {"abc", 0, 0},
        {"2,5", 2, 2},      {"2.5", 2.5, 2},   {"3.5", 3.5, 4},    {"-1", -1, -1},
        {"-0", 0, 0},       {"\r\n45", 45, 45}, {"-", 0, 0},       {".5", 0.5, 0},
        {"3.7", 3.7, 4},    {"+4", 4, 4},      {"7.", 7, 7},       {"-2.5x", -2.5, -2},
        {".", 0, 0},        {"-.x", 0, 0},     {"+.25", 0.25, 0},  {"99999999999", 99999999999.0, INT32_MAX},
        {"1e5", 1, 1},      {"2.5e1", 2.5, 2},  // no exponent: the number ends at the letter
    };
    for (const char* locale : {"C", "it_IT.UTF-8"}) {
        ASSERT_NE(std::setlocale(LC_ALL, locale), nullptr) << locale << " is missing: run scripts/dipendenze.sh";
        for (const Caso& c : casi) {
            EXPECT_DOUBLE_EQ(LeggiNumero(c.testo), c.valore) << c.testo << " " << locale;
            EXPECT_EQ(LeggiInt32(c.testo), c.intero) << c.testo << " " << locale;
        }
    }
    std::setlocale(LC_ALL, "C");
}

TEST(Decodifica, ListsSetTheIndexedElements) {
    struct Caso { const char* testo; std::vector<int> attesi; };
    const Caso casi[] = {
        {"0-1-2", {0, 1, 2}}, {"3", {3}}, {"", {}}, {"1-", {0, 1}},
        {"01-05\r\n-10", {1, 5, 10}}, {"11-12", {}},  // beyond the points: ignored
    };
    for (const Caso& c : casi) {
        std::array<int16_t, 11> punti{};
        DecodificaElenco(c.testo, punti);
        std::array<int16_t, 11> attesi{};
        for (int i : c.attesi) attesi[i] = -1;
        EXPECT_EQ(punti, attesi) << c.testo;
    }
}

TEST(Decodifica, RangesNeedExactlyTwoPieces) {
    struct Caso { const char* testo; int32_t min, max; };
    const Caso casi[] = {{"10-25", 10, 25}, {"7-7", 7, 7}, {"10", 0, 0}, {"10-25-30", 0, 0}, {"-5", 0, 5},
                         {"3-", 3, 0},      {"-", 0, 0}};
    for (const Caso& c : casi) {
        int32_t min = 99, max = 99;
        DecodificaIntervallo(c.testo, min, max);
        EXPECT_EQ(min, c.min) << c.testo;
        EXPECT_EQ(max, c.max) << c.testo;
    }
}

TEST(Decodifica, ParityTokensAreLinesOfExactLetters) {
    std::array<int16_t, 91> e{};
    EXPECT_EQ(DecodificaPariDispari("P\r\nD\r\nD", e), 3);
    EXPECT_EQ(e[0], 0);
    EXPECT_EQ(e[1], 1);
    EXPECT_EQ(e[2], 1);
    EXPECT_EQ(e[3], -1);
    EXPECT_EQ(CodificaPariDispari(e), "PDD");
    std::array<int16_t, 91> f{};
    EXPECT_EQ(DecodificaPariDispari("PDD", f), 1);
    EXPECT_EQ(f[0], 0);
    EXPECT_EQ(f[1], -1);
}

// "Pari" marks the 45 even numbers, "Dispari" the 45 odd ones, nothing else.
TEST(Decodifica, PariDispariMarksEveryEvenOrOddNumber) {
    TestiGriglia g;
    g.colonne = {Testi("Pari-Dispari", "Pari", "0"), Testi("Pari-Dispari", "Dispari", "0")};
    const SistemaDecodificato s = LeggiCondizioni(g);
    ASSERT_EQ(s.condizioni.size(), 2u);
    for (int n = 0; n <= kMaxNumero; ++n) {
        EXPECT_EQ(s.condizioni[0].Numeri[n] != 0, n > 0 && n % 2 == 0) << n;
        EXPECT_EQ(s.condizioni[1].Numeri[n] != 0, n % 2 == 1) << n;
    }
}

TEST(Decodifica, GridColumnsBecomeRecordsInGridOrder) {
    TestiGriglia g;
    g.colonne = {
        Testi("Punti Col.", "01-05-12-33-\r\n45", "2-3", "1", "1"),
        Testi("Pari-Dispari", "pari", "0"),
        Testi("Peso", "Caselle :\r\n1-3", "10-25", "-", " "),
        Testi("Resto", "Resto a : 3", "0-2"),
        Testi("Vortice", "Inverso", "1"),
        Testi("Simmetrie", " Dirette ", "1"),
        Testi("Posizioni", "Casella :\r\n4", "5-40"),
        Testi("Sequenze", "D\r\nP\r\nD", "1"),
        Testi("Sconosciuta", "x", "1"),
        Testi("LinkClose", "L", "2"),
        Testi("", "", ""),
        Testi("Ponte", "", "1"),  // after an empty name: never read
    };
    g.quadri = {"1,1,-1", "-1,-1,-0", "7"};
    const SistemaDecodificato s = LeggiCondizioni(g);
    ASSERT_EQ(s.condizioni.size(), 10u);
    const auto& pc = s.condizioni[0];
    EXPECT_EQ(pc.Tipo, kPuntiColonna);
    for (int n : {1, 5, 12, 33, 45}) EXPECT_EQ(pc.Numeri[n], -1) << n;
    EXPECT_EQ(pc.Punti[2] & pc.Punti[3], -1);
    EXPECT_EQ(pc.Recupero[1], -1);
    EXPECT_EQ(pc.QuadroRec, 1);
    EXPECT_EQ(s.condizioni[1].Numeri, (std::array<int16_t, 91>{}));  // "pari" is not "Pari"
    const auto& peso = s.condizioni[2];
    EXPECT_EQ(peso.Numeri[1] & peso.Numeri[3], -1);
    EXPECT_EQ(peso.Numeri[2], 0);
    EXPECT_EQ(peso.MinPunti, 10);
    EXPECT_EQ(peso.MaxPunti, 25);
    EXPECT_EQ(peso.QuadroRec, 0);
    EXPECT_EQ(s.condizioni[3].Parametro, 3);
    EXPECT_EQ(s.condizioni[4].Parametro, 2);
    EXPECT_EQ(s.condizioni[5].Parametro, 1);  // trimmed
    EXPECT_EQ(s.condizioni[6].Parametro, 4);
    EXPECT_EQ(s.condizioni[7].Parametro, 3);
    // D P D: odd, even, odd, then the end mark.
    EXPECT_EQ((std::vector<int16_t>(s.condizioni[7].Numeri.begin(), s.condizioni[7].Numeri.begin() + 4)),
              (std::vector<int16_t>{1, 0, 1, -1}));
    EXPECT_EQ(s.condizioni[8].Tipo, kNessuna);
    EXPECT_EQ(s.condizioni[9].Numeri[2], -1);
    EXPECT_EQ(s.quadri[1], (QuadroRecupero{-1, 1, 1}));
    EXPECT_EQ(s.quadri[2], (QuadroRecupero{0, -1, -1}));
    EXPECT_EQ(s.quadri[3], (QuadroRecupero{0, 7, 0}));  // short line: missing fields 0
}

// Type codes from a hand-made file may be anything: outside 1..18 a code has
// no name and is judged neither on a list nor on a range.
TEST(Decodifica, TypeCodesOutsideTheTable) {
    for (int codice : {-1, 0, 19, 32767}) {
        EXPECT_EQ(NomeTipoCondizione(codice), "") << codice;
        EXPECT_FALSE(GiudicataSuElenco(codice) || GiudicataSuIntervallo(codice)) << codice;
        EXPECT_EQ(DescrizioneDelTipo(codice) == nullptr, codice != 0) << codice;
    }
}

TEST(Decodifica, EmptyGridGivesOneRecordThatAlwaysPasses) {
    TestiGriglia g;
    g.colonne.assign(200, TestiCondizione{});
    g.colonne[3] = Testi("Ponte", "", "1");
    const SistemaDecodificato s = LeggiCondizioni(g);
    ASSERT_EQ(s.condizioni.size(), 1u);
    EXPECT_EQ(s.condizioni[0].Tipo, kNessuna);
}

TEST(Decodifica, TextsBeyondTheLimitsStayInsideTheArrays) {
    TestiGriglia g;
    g.colonne = {Testi("Sequenze", std::string(300, 'P'), "999-5", "", "5000"),
                 Testi("LinkClose", "", "95-3")};
    for (int i = 0; i < 30; ++i) g.quadri.push_back("1,2,-1");
    const SistemaDecodificato s = LeggiCondizioni(g);
    EXPECT_EQ(s.condizioni[0].Parametro, 1);  // one line of 300 letters: one piece
    EXPECT_EQ(s.condizioni[0].Punti[5], -1);
    EXPECT_EQ(s.condizioni[0].QuadroRec, 5000);
    EXPECT_EQ(s.condizioni[1].Numeri[3], -1);
    std::string lunga;
    for (int i = 0; i < 120; ++i) lunga += (i ? "\r\nD" : "D");
    std::array<int16_t, 91> e{};
    EXPECT_EQ(DecodificaPariDispari(lunga, e), 90);
    EXPECT_EQ(e[90], -1);
}

}  // namespace
}  // namespace combi
