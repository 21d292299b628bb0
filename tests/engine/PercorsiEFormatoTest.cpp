#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <locale>

#include <unistd.h>

#include "Errore.h"
#include "CancellaFile.h"
#include "Formato.h"
#include "Percorsi.h"

namespace combi {
namespace {

namespace fs = std::filesystem;

TEST(Utilita, FileNameParts) {
    struct Caso { const char* percorso; const char* nome; const char* cartella; const char* estensione;
                  const char* base; };
    const Caso casi[] = {
        {"/x/y/Colonne.col", "Colonne.col", "/x/y/", "col", "Colonne"},
        {"C:\\Sistemi\\A.b.sic", "A.b.sic", "C:\\Sistemi\\", "sic", "A.b"},
        {"Colonne", "Colonne", "", "", "Colonne"},            // bare name: itself
        // The extension is whatever follows the path's last ".", even in a folder.
        {"/x.y/Colonne", "Colonne", "/x.y/", "y/Colonne", "Colonne"},
        {"/x/y/", "", "/x/y/", "", ""},
        {"  /x/a.col  ", "a.col  ", "/x/", "col", "a"},       // folder and extension trim
    };
    for (const Caso& c : casi) {
        EXPECT_EQ(NomeFile(c.percorso), c.nome) << c.percorso;
        EXPECT_EQ(CartellaDelFile(c.percorso), c.cartella) << c.percorso;
        EXPECT_EQ(EstensioneFile(c.percorso), c.estensione) << c.percorso;
        EXPECT_EQ(NomeSenzaEstensione(c.percorso), c.base) << c.percorso;
    }
}

TEST(Utilita, NumberedNamesAndTrailingSeparators) {
    EXPECT_EQ(NomeFileNumerato("/x/y/Colonne.col", 3), "/x/y/Colonne3.col");
    EXPECT_EQ(NomeFileNumerato("/tmp/SistCond.sic", 12), "/tmp/SistCond12.sic");
    // Folder + base + number + "." + extension, whatever the parts hold.
    EXPECT_EQ(NomeFileNumerato("Colonne", 3), "Colonne3.");
    EXPECT_EQ(NomeFileNumerato("/x.y/Colonne", 3), "/x.y/Colonne3.y/Colonne");
    const std::pair<const char*, const char*> barre[] = {
        {"/x/y", "/x/y/"}, {" /x/y/ ", "/x/y/"}, {"C:\\a\\", "C:\\a\\"}, {"   ", ""}, {"", ""}};
    for (const auto& [percorso, atteso] : barre) EXPECT_EQ(AggiungiBarra(percorso), atteso) << percorso;
}

TEST(Utilita, TemporaryFolderFallsBackWhenMissing) {
    const char* vecchio = std::getenv("TMPDIR");
    const std::string salvato = vecchio ? vecchio : "";
    const fs::path propria = fs::temp_directory_path() / "utilita_tmpdir_test";
    ::setenv("TMPDIR", "/cartella/che/non/esiste", 1);
    EXPECT_EQ(CartellaTemp(), "/tmp/");
    fs::create_directories(propria);
    ::setenv("TMPDIR", propria.c_str(), 1);
    EXPECT_EQ(CartellaTemp(), propria.string() + "/");
    EXPECT_EQ(FileSistemaTemp(), propria.string() + "/SistCond.sic");
    if (vecchio) ::setenv("TMPDIR", salvato.c_str(), 1); else ::unsetenv("TMPDIR");
    fs::remove(propria);
}

class KillFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::string modello = (fs::temp_directory_path() / "utilitaXXXXXX").string();
        ASSERT_NE(::mkdtemp(modello.data()), nullptr);
        cartella_ = modello + "/";
    }
    void TearDown() override {
        std::error_code ec;
        fs::remove_all(cartella_, ec);
    }
    std::string Crea(const std::string& nome) {
        std::ofstream(cartella_ + nome) << "x";
        return cartella_ + nome;
    }
    bool Kill(const std::string& nome) {
        return KillFile(cartella_ + nome, [this](const std::string& t, int n, const std::string& d) {
            segnalazioni_.push_back(t + "|" + std::to_string(n) + "|" + d);
        });
    }
    std::string cartella_;
    std::vector<std::string> segnalazioni_;
};

TEST_F(KillFileTest, DeletesFilesAndPatternsQuietly) {
    const std::string solaLettura = Crea("protetto.col");
    fs::permissions(solaLettura, fs::perms::owner_read, fs::perm_options::replace);
    EXPECT_TRUE(Kill("protetto.col"));
    EXPECT_FALSE(FileEsiste(solaLettura));
    EXPECT_TRUE(Kill("mancante.col"));
    EXPECT_TRUE(Kill("non/esiste/*.col"));
    // No file of that name (a folder, left alone; a name too long to exist).
    fs::create_directory(cartella_ + "cartella");
    EXPECT_TRUE(Kill("cartella"));
    EXPECT_TRUE(IsCartella(cartella_ + "cartella"));
    EXPECT_TRUE(Kill(std::string(300, 'n') + ".col"));
    for (const char* n : {"a.col", "bb.col", "SistCond1.sic", "SistCond12.sic", "SistCond.sic", "nota.txt", "xab.txt",
                          "axb.txt", "vecchio.bak"})
        Crea(n);
    fs::create_directory(cartella_ + "sotto.col");
    EXPECT_TRUE(Kill("*.col"));
    EXPECT_TRUE(Kill("SistCond?.sic"));  // "?" alone is no pattern: a literal, missing name
    EXPECT_TRUE(Kill("SistCond?*.sic"));
    EXPECT_TRUE(Kill("*.nessuno"));
    EXPECT_TRUE(Kill("*ab.txt"));  // after a false start on "a", "x" is no "a": axb.txt stays
    EXPECT_TRUE(Kill("vecchio.bak*"));
    for (const char* n : {"a.col", "bb.col", "SistCond1.sic", "SistCond12.sic", "xab.txt", "vecchio.bak"})
        EXPECT_FALSE(FileEsiste(cartella_ + n)) << n;
    for (const char* n : {"SistCond.sic", "nota.txt", "sotto.col", "axb.txt"})
        EXPECT_TRUE(FileEsiste(cartella_ + n)) << n;
    EXPECT_TRUE(IsCartella(cartella_ + "sotto.col"));
    EXPECT_FALSE(IsCartella(cartella_ + "nota.txt"));
    EXPECT_TRUE(segnalazioni_.empty());
}

TEST_F(KillFileTest, FailureIsReportedOnceAndAnswersFalse) {
    // A file that exists and cannot go: procfs refuses even root.
    EXPECT_FALSE(KillFile("/proc/version", [this](const std::string& t, int n, const std::string& d) {
        segnalazioni_.push_back(t + "|" + std::to_string(n) + "|" + d);
    }));
    ASSERT_EQ(segnalazioni_.size(), 1u);
    EXPECT_EQ(segnalazioni_[0].rfind("ModFunzGeneriche.KillFile|75|", 0), 0u) << segnalazioni_[0];
    EXPECT_FALSE(KillFile("/proc/version"));  // no callback: still false
}

TEST(Utilita, FormatNumeroGroupsThousands) {
    struct Caso { double valore; const char* separatore; const char* atteso; };
    const Caso casi[] = {
        {0, ",", "0"}, {1200000, ",", "1,200,000"}, {1200000, ".", "1.200.000"}, {999, ".", "999"},
        {1000, ".", "1.000"}, {-1234567, ",", "-1,234,567"}, {-999, ",", "-999"}, {2.5, ",", "3"},
        {-2.5, ",", "-3"}, {0.4, ",", "0"}, {-0.4, ",", "0"}, {123456.49, ".", "123.456"},
        {1e21, ",", "1,000,000,000,000,000,000,000"}, {622614630, ".", "622.614.630"},
        {15504, "\u202f", "15\u202f504"},  // a separator of several bytes (French)
    };
    for (const Caso& c : casi) EXPECT_EQ(FormatNumero(c.valore, c.separatore), c.atteso) << c.valore;
    EXPECT_THROW(FormatNumero(std::numeric_limits<double>::infinity(), ","), Errore);
    // Decimals use the user's separators, whatever they are in this process.
    const std::string m = SeparatoriUtente().migliaia, d = SeparatoriUtente().decimali;
    EXPECT_EQ(FormatDecimale(1234.5, 2), "1" + m + "234" + d + "50");
    EXPECT_EQ(FormatDecimale(0.004, 2), "0" + d + "00");
    EXPECT_EQ(FormatDecimale(-0.006, 2), "-0" + d + "01");
    EXPECT_EQ(FormatDecimale(99.999, 2), "100" + d + "00");
    EXPECT_EQ(FormatDecimale(1500000, 0), "1" + m + "500" + m + "000");
}

// The locale named by the environment decides; with none (or the plain C
// one) the numbers are written the Italian way. Needs the it_IT and en_US
// locales, which scripts/dipendenze.sh generates.
TEST(Utilita, SeparatorsComeFromTheEnvironmentWithItalianAsDefault) {
    struct Caso { const char* lcAll; const char* lcNumeric; const char* lang; SeparatoriNumeri attesi; };
    const SeparatoriNumeri it{".", ","}, en{",", "."};
    const Caso casi[] = {
        {nullptr, nullptr, nullptr, it},
        {"", "", "", it},
        {nullptr, nullptr, "C", it},
        {nullptr, nullptr, "POSIX", it},
        {nullptr, nullptr, "C.UTF-8", it},
        {nullptr, nullptr, "it_IT.UTF-8", it},
        {nullptr, nullptr, "en_US.UTF-8", en},
        {nullptr, "en_US.UTF-8", "it_IT.UTF-8", en},  // LC_NUMERIC before LANG
        {"C", "en_US.UTF-8", nullptr, it},            // LC_ALL before both
        {"en_US.UTF-8", "C", "it_IT.UTF-8", en},
        {"", "", "en_US.UTF-8", en},                  // empty counts as unset
        {nullptr, nullptr, "xx_YY.UTF-8", it},        // unknown here
    };
    for (const Caso& c : casi) {
        const std::string nome = std::string(c.lcAll ? c.lcAll : "-") + "/" + (c.lcNumeric ? c.lcNumeric : "-") +
                                 "/" + (c.lang ? c.lang : "-");
        EXPECT_EQ(SeparatoriDaAmbiente(c.lcAll, c.lcNumeric, c.lang), c.attesi) << nome;
    }
}

TEST(Utilita, TempoTrascorsoIsHoursMinutesSeconds) {
    const std::pair<int32_t, const char*> casi[] = {
        {0, "00:00:00"}, {59, "00:00:59"}, {65, "00:01:05"}, {3725, "01:02:05"},
        {86399, "23:59:59"}, {360000, "100:00:00"}, {-65, "00:-01:-05"}};
    for (const auto& [secondi, atteso] : casi) EXPECT_EQ(TempoTrascorso(secondi), atteso) << secondi;
}

TEST(Utilita, TestoVerticaleCutsIntoLines) {
    struct Caso { const char* testo; int lunghezza; const char* atteso; };
    const Caso casi[] = {
        {"Ponte", 1, "P\r\no\r\nn\r\nt\r\ne"}, {"", 1, ""}, {"", 12, ""}, {"A", 12, "A"},
        {"01-02-03-04-", 12, "01-02-03-04-"},
        {"01-02-03-04-05-06-07-08-", 12, "01-02-03-04-\r\n05-06-07-08-"},
        {"01-02-03-04-05", 12, "01-02-03-04-\r\n05"}, {"Più", 1, "P\r\ni\r\nù"},
    };
    for (const Caso& c : casi) EXPECT_EQ(TestoVerticale(c.testo, c.lunghezza), c.atteso) << c.testo;
    EXPECT_THROW(TestoVerticale("abc", 0), Errore);
}

TEST(Utilita, NumberLists) {
    const std::vector<bool> flag = {true, false, true, true, false, false, false};
    EXPECT_EQ(ElencoIndici(flag, 0, "-", false), "0-2-3");
    EXPECT_EQ(ElencoIndici(flag, 1, "-", true), "01-03-04");
    EXPECT_EQ(ElencoIndici(flag, 9, ", ", false), "9, 11, 12");
    EXPECT_EQ(ElencoIndici(std::vector<bool>(5, false), 0, "-", false), "");
    const std::array<int16_t, 12> punti = {0, -1, 0, 0, 0, 0, 0, 0, 0, 0, -1, 1};
    EXPECT_EQ(ElencoIndici(punti, "-", true), "01-10-11");
    EXPECT_EQ(ElencoIndici(std::span<const int16_t>(punti).subspan(10), 10, "-", false), "10-11");

    EXPECT_EQ(ElencoPariDispari(true, 1, 10, "-"), "1-3-5-7-9");
    EXPECT_EQ(ElencoPariDispari(false, 1, 10, "-"), "2-4-6-8-10");
    EXPECT_EQ(ElencoPariDispari(true, -3, 0, ","), "-3,-1");
    EXPECT_EQ(ElencoPariDispari(true, 4, 4, "-"), "");
    EXPECT_EQ(ElencoPariDispari(false, 5, 1, "-"), "");
    for (const auto& [n, dispari] : {std::pair{0, false}, {1, true}, {-3, true}, {-4, false}, {89, true}})
        EXPECT_EQ(Dispari(n), dispari) << n;
}

TEST(Utilita, TestoColonnaPlacesNumbersEveryThreeCharacters) {
    struct Caso { std::vector<int16_t> numeri; bool zeri; const char* atteso; };
    const Caso casi[] = {
        {{3, 17, 45, 88}, false, "03 17 45 88"}, {{0, 5, 0, 12}, false, "05 12"},
        {{0, 5, 0, 12}, true, "00 05 00 12"}, {{5, 0, 0}, true, "05 00 00"}, {{0, 0}, false, ""},
        {{}, true, ""}, {{5, 100}, false, "05 10"},  // a wide number is cut at the end
    };
    for (const Caso& c : casi) EXPECT_EQ(TestoColonna(c.numeri, c.zeri), c.atteso) << c.atteso;
    Colonna colonna;
    colonna[1] = 7, colonna[2] = 30, colonna[3] = 90;
    EXPECT_EQ(TestoColonna(colonna, false), "07 30 90");
    const std::string tutte = TestoColonna(colonna, true);
    EXPECT_EQ(tutte.size(), 59u);
    EXPECT_EQ(tutte.substr(0, 12), "07 30 90 00 ");
    EXPECT_EQ(tutte.substr(54), "00 00");
}

TEST(Utilita, AllineaKeepsThePaddingLength) {
    struct Caso { const char* testo; const char* riempimento; bool destra; const char* atteso; };
    const Caso casi[] = {
        {"12", "     ", true, "   12"}, {"12", "     ", false, "12   "}, {"  12 ", "abcde", true, "abc12"},
        {"  12 ", "abcde", false, "12cde"}, {"   ", "abc", true, "abc"}, {"", "abc", false, "abc"},
        {"12345", "abc", true, "12345"}, {" 123 ", "abc", false, "123"}, {"è", "    ", true, "   è"},
    };
    for (const Caso& c : casi) EXPECT_EQ(Allinea(c.testo, c.riempimento, c.destra), c.atteso) << c.testo;
}

TEST(Utilita, PercentualeAndValoreDecimale) {
    struct Caso { double conta, totale; int16_t atteso; };
    const Caso casi[] = {{50, 200, 25}, {1, 3, 33}, {2, 3, 66}, {200, 200, 100}, {300, 200, 100},
                         {0, 0, 0},    {5, 0, 0},   {-50, 100, -50}, {-1e10, 1, 0}, {1e300, 1e-300, 0}};
    for (const Caso& c : casi) EXPECT_EQ(Percentuale(c.conta, c.totale), c.atteso) << c.conta << "/" << c.totale;

    const std::pair<const char*, double> testi[] = {
        {"1.234,5", 1234.5}, {"abc", 0}, {"12", 12}, {"1.234.567", 1234567}, {"0,25", 0.25},
        {"  -3,5kg", -3.5}, {"1,2,3", 1.2}, {"", 0}};
    for (const auto& [testo, atteso] : testi) EXPECT_DOUBLE_EQ(ValoreDecimale(testo), atteso) << testo;
}

}  // namespace
}  // namespace combi
