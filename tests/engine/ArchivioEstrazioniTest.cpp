// The archive of draws.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "ArchivioEstrazioni.h"
#include "Colonna.h"

namespace combi {
namespace {

TEST(ArchivioEstrazioni, DatesAreRealCalendarDaysInEitherForm) {
    struct Caso { const char* testo; DataEstrazione attesa; };  // 0: refused
    const Caso casi[] = {
        {"2024-03-12", 20240312}, {"12/03/2024", 20240312}, {"2/3/2024", 20240302}, {"2024-3-2", 20240302},
        {"29/02/2024", 20240229}, {"29/02/2023", 0},        {"2000-02-29", 20000229}, {"1900-02-29", 0},
        {"31/04/2024", 0},        {"31/12/2024", 20241231}, {"00/01/2024", 0},        {"01/13/2024", 0},
        {"12/03/24", 0},          {"2024/03/12", 0},        {"12-03-2024", 0},        {"2024-03-12x", 0},
        {"123/03/2024", 0},       {"", 0},                  {"//", 0},                {"12/03/02024", 0},
        {"2024-003-12", 0},       {"2024-03-012", 0},       {"0000-03-12", 0},
    };
    for (const Caso& c : casi) EXPECT_EQ(LeggiData(c.testo).value_or(0), c.attesa) << c.testo;
}

TEST(ArchivioEstrazioni, EveryRefusedLineIsNamedByItsNumberAndTheRestIsRead) {
    // Line numbers count every line, comments and empty ones included.
    const std::string testo =
        "\xEF\xBB\xBF# archivio di prova\r\n"                       // 1
        "2024-03-12;Bari;5;12;44;67;90\r\n"                         // 2
        "\n"                                                         // 3
        "12/03/2024 , roma\t1 2 3 4 5\n"                             // 4
        "   # anche questo è un commento\n"                          // 5
        "2024-02-30;Bari;1;2;3;4;5\n"                                // 6
        "2024-03-14;Bar;1;2;3;4;5\n"                                 // 7
        "2024-03-14;Bari;1;2;3;4\n"                                  // 8
        "2024-03-14;Bari;1;2;3;4;91\n"                               // 9
        "2024-03-14;Bari;1;2;3;4;4\n"                                // 10
        "2024-03-14;Bari;1;2;x;4;5\n"                                // 11
        "2024-03-14\n"                                               // 12
        "2024-03-12;Bari;1;2;3;4;5\n"                                // 13
        "2024-03-14;SuperEnalotto;1;2;3;4;5;6;7;1\n"                 // 14: the SuperStar may repeat
        "2024-03-16;SuperEnalotto;1;2;3;4;5;6;6\n"                   // 15: the Jolly may not
        "2024-03-16;SuperEnalotto;1;2;3;4;5;6;7;8;9\n"               // 16
        "2024-03-16;10ELotto;1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;16;17;18;19;20\n"  // 17
        "2024-03-16;10ELotto;1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;16;17;18;19\n"     // 18
        "2024-03-16;Xari;1;2;3;4;5\n"                                // 19: only the first letter differs
        "2024-03-16;Nazionale;0;2;3;4;5";                            // 20, no line end
    const Archivio a = LeggiArchivio(testo);
    std::vector<std::string> messaggi;
    for (const SegnalazioneArchivio& s : a.scartate) messaggi.push_back(s.messaggio);
    EXPECT_EQ(messaggi, (std::vector<std::string>{
                            "Riga 6: data non valida \"2024-02-30\" (gg/mm/aaaa o aaaa-mm-gg)",
                            "Riga 7: ruota o gioco sconosciuto \"Bar\"",
                            "Riga 8: Bari vuole 5 numeri: la riga ne ha 4",
                            "Riga 9: il numero 91 è fuori da 1 a 90",
                            "Riga 10: il numero 4 è ripetuto",
                            "Riga 11: \"x\" non è un numero",
                            "Riga 12: dopo la data servono la ruota (o il gioco) e i numeri",
                            "Riga 13: Bari del 2024-03-12 c'è già alla riga 2",
                            "Riga 15: il numero 6 è ripetuto",
                            "Riga 16: SuperEnalotto vuole 6 numeri, più Jolly e SuperStar facoltativi: la riga ne ha 9",
                            "Riga 18: 10ELotto vuole 20 numeri: la riga ne ha 19",
                            "Riga 19: ruota o gioco sconosciuto \"Xari\"",
                            "Riga 20: il numero 0 è fuori da 1 a 90",
                        }));
    ASSERT_EQ(a.estrazioni.size(), 4u);
    const Estrazione& bari = a.estrazioni[0];
    EXPECT_EQ(bari.data, 20240312);
    EXPECT_EQ(bari.ruota, 0);
    EXPECT_EQ(bari.riga, 2);
    EXPECT_EQ(NumeriComeTesto(bari), "5,12,44,67,90");
    EXPECT_EQ(a.estrazioni[1].ruota, 7);  // "roma", any case
    EXPECT_EQ(a.estrazioni[1].riga, 4);
    const Estrazione& se = a.estrazioni[2];
    EXPECT_EQ(se.ruota, kRuotaSuperEnalotto);
    EXPECT_EQ(se.quanti, 6);
    EXPECT_EQ(se.jolly, 7);
    EXPECT_EQ(se.superstar, 1);
    EXPECT_EQ(a.estrazioni[3].quanti, 20);
}

// Draws written as lines read back the same, for every game and both
// optional SuperEnalotto numbers.
TEST(ArchivioEstrazioni, WrittenLinesReadBackTheSameDraws) {
    std::mt19937 rng(7);
    std::vector<Estrazione> scritte;
    std::string testo;
    for (int i = 0; i < 300; ++i) {
        Estrazione e;
        e.data = (1990 + i / 156) * 10000 + (i / 13 % 12 + 1) * 100 + 1;  // a new date every 13 lines
        e.ruota = uint8_t(i % kRuote);
        e.quanti = uint8_t(NumeriEstratti(GiocoDellaRuota(e.ruota)));
        std::vector<int> urna(kMaxNumero);
        for (int n = 0; n < kMaxNumero; ++n) urna[size_t(n)] = n + 1;
        std::shuffle(urna.begin(), urna.end(), rng);
        for (size_t k = 0; k < e.quanti; ++k) e.numeri[k] = uint8_t(urna[k]);
        if (e.ruota == kRuotaSuperEnalotto && i % 3) e.jolly = uint8_t(urna[6]);
        if (e.jolly && i % 2) e.superstar = uint8_t(urna[i % 7]);
        e.riga = i + 1;
        scritte.push_back(e);
        testo += RigaArchivio(e) + "\n";
    }
    const Archivio a = LeggiArchivio(testo);
    EXPECT_TRUE(a.scartate.empty()) << a.scartate.front().messaggio;
    EXPECT_EQ(a.estrazioni, scritte);
}

}  // namespace
}  // namespace combi
