// The parameter text a host sends to insert a condition without its editor:
// what each form of type reads from it, and the texts it refuses.
#include <gtest/gtest.h>

#include "Condizione.h"
#include "Errore.h"
#include "ParametriTesto.h"

using namespace combi;

namespace {

using Intervallo = std::pair<std::string, std::string>;

TEST(ParametriTesto, EachFormReadsItsFields) {
    const ParametriInserimento consecutivi = LeggiTestoParametri(kConsecutivi, "0,2,3|1");
    EXPECT_EQ(consecutivi.accettati, (std::vector<int>{0, 2, 3}));
    EXPECT_EQ(consecutivi.recupero, (std::vector<int>{1}));
    EXPECT_TRUE(consecutivi.conRecupero);
    EXPECT_EQ(consecutivi.intestazione, "");
    const ParametriInserimento resto = LeggiTestoParametri(kResto, "Resto a : 3\r\n1,2");
    EXPECT_EQ(resto.intestazione, "Resto a : 3");
    EXPECT_EQ(resto.accettati, (std::vector<int>{1, 2}));
    EXPECT_FALSE(resto.conRecupero);
    const ParametriInserimento sequenze = LeggiTestoParametri(kSequenze, "PDP\r\n0,1|2|ignorato");
    EXPECT_EQ(sequenze.intestazione, "PDP");
    EXPECT_EQ(sequenze.accettati, (std::vector<int>{0, 1}));
    EXPECT_EQ(sequenze.recupero, (std::vector<int>{2}));
    const ParametriInserimento peso = LeggiTestoParametri(kPeso, " 5 , 40 |1,9");
    EXPECT_EQ(peso.intervallo, (Intervallo{"5", "40"}));
    EXPECT_EQ(peso.intervalloRecupero, (Intervallo{"1", "9"}));
    EXPECT_TRUE(peso.conRecupero);
    EXPECT_TRUE(peso.accettati.empty());
    // An empty recovery field is no recovery; an empty text and a type
    // without a form give empty parameters.
    EXPECT_FALSE(LeggiTestoParametri(kPonte, "1|").conRecupero);
    EXPECT_TRUE(LeggiTestoParametri(kPonte, "").accettati.empty());
    EXPECT_TRUE(LeggiTestoParametri(kPuntiColonna, "1,2").accettati.empty());
    EXPECT_TRUE(LeggiTestoParametri(kLinkClose, "1,2").accettati.empty());
}

TEST(ParametriTesto, MalformedTextsAreRefusedWithTheirNumber) {
    struct Caso {
        int tipo;
        const char* testo;
        int numero;
    };
    // The host sees the numbers: 5 for a text it cannot read, 9 for a piece missing.
    const Caso casi[] = {
        {kPariDispari, "Pari 0,2", 9},         // no CR LF after the variant
        {kPariDispari, "\r\n0,2", 5},          // empty variant
        {kSequenze, "PXD\r\n0", 5},            // letters other than P and D
        {kSequenze, "\r\n0", 5},               // no sequence at all
        {kAmpiezza, "10", 9},                  // one end of the range
        {kAmpiezza, "10,20,30", 9},            // three
        {kAmpiezza, "10,20|5", 9},             // recovery range with one end
    };
    for (const Caso& c : casi) {
        try {
            LeggiTestoParametri(c.tipo, c.testo);
            ADD_FAILURE() << c.testo << " was accepted";
        } catch (const Errore& e) {
            EXPECT_EQ(e.numero(), c.numero) << c.testo;
        }
    }
    EXPECT_TRUE(SequenzaValida("D"));
    EXPECT_FALSE(SequenzaValida("DP "));
}

}  // namespace
