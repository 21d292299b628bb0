// combifiltro-cli end to end.
#include <gtest/gtest.h>

#include <unistd.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <new>
#include <sstream>
#include <stdexcept>

#include "../engine/ColonnaDiProva.h"
#include "Argomenti.h"
#include "Errore.h"
#include "ProvaCli.h"
#include "Terminale.h"
#include "DecodificaCondizioni.h"
#include "FileBinario.h"
#include "FileColonne.h"
#include "FileSistema.h"
#include "Formato.h"
#include "Sviluppo.h"

namespace combi {
namespace {

namespace fs = std::filesystem;

class CliTest : public test::ProvaCli {
protected:
    CliTest() : ProvaCli("cf_cli_") {}
    // A system with every condition type, a nested link group and two panels.
    void ScriviSistemaCompleto(const std::string& percorso, int riduzione) {
        TestiGriglia g;
        g.colonne = {
            {"", "Punti Col.", "01-02-03-04-\r\n05-06", "0-1-2", "3", "1"},
            {"", "Pari-Dispari", "Pari", "2-3-4", "1", "1"},
            {"", "LinkOpen", "", "", "", ""},
            {"", "Peso", "Caselle :\r\n1-2", "5-40", "-", ""},
            {"", "Resto", "Resto a : 3", "0-1", "2", "2"},
            {"", "LinkOpen", "", "", "", ""},
            {"", "Ampiezza", "", "10-60", "-", ""},
            {"", "Vortice", "Diretto", "2-3-4", "", ""},
            {"", "LinkClose", "", "1-2", "", ""},
            {"", "Simmetrie", "Inverse", "0-1", "", ""},
            {"", "LinkClose", "", "2-3", "", ""},
            {"", "Consecutivi", "", "0-1", "", ""},
            {"", "Interruzioni", "", "1-2-3-4", "0", "2"},
            {"", "Baricentro", "", "8-30", "-", ""},
            {"", "Distanza Minima", "", "1-9", "-", ""},
            {"", "Distanza Massima", "", "3-20", "-", ""},
            {"", "Posizioni", "Casella :\r\n2", "2-20", "-", ""},
            {"", "Ponte", "", "0-1", "", ""},
            {"", "Sequenze", "D\r\nP", "0-1-2", "", ""},
            {"", "Paralleli", "Diretti", "1-2", "", ""},
        };
        g.quadri = {"1,1,-1", "1,2,-1"};
        const SistemaDecodificato d = LeggiCondizioni(g);
        FileSistema s;
        s.intestazione.classe = 5;
        s.intestazione.riduzione = int16_t(riduzione);
        for (int n = 1; n <= 24; ++n) s.intestazione.numeri[n] = -1;
        s.condizioni = d.condizioni;
        s.quadri = d.quadri;
        ScriviFileSistema(percorso, s);
    }

};

std::vector<uint8_t> Byte(const std::string& percorso) { return LeggiFileBinario(percorso, 1u << 30); }

// The count printed after `etichetta`, its thousands separators dropped.
uint64_t Contatore(const std::string& testo, const std::string& etichetta) {
    const size_t da = testo.find(etichetta);
    if (da == std::string::npos) return UINT64_MAX;
    std::string cifre;
    for (size_t i = da + etichetta.size(); i < testo.size() && testo[i] != '\n'; ++i)
        if (std::isdigit(static_cast<unsigned char>(testo[i]))) cifre += testo[i];
    return std::stoull(cifre);
}

TEST_F(CliTest, FastAndReferenceDevelopmentsWriteIdenticalFiles) {
    for (int riduzione : {0, 2}) {
        ScriviSistemaCompleto(P("s.sic"), riduzione);
        ASSERT_EQ(Esegui({"sviluppa", P("s.sic"), "--colonne", P("v.col"), "--contatori", P("v.sic"),
                          "--thread", "3"}), 0) << err_.str();
        EXPECT_NE(out_.str().find("Sviluppate : 42"), std::string::npos) << out_.str();
        EXPECT_NE(out_.str().find("504\n"), std::string::npos) << out_.str();
        ASSERT_EQ(Esegui({"sviluppa", P("s.sic"), "--colonne", P("r.col"), "--contatori", P("r.sic"),
                          "--riferimento"}), 0) << err_.str();
        EXPECT_EQ(Byte(P("v.col")), Byte(P("r.col")));
        EXPECT_EQ(Byte(P("v.sic")), Byte(P("r.sic")));
        // Counting gives the same counters and the same kept count, writing no column.
        const std::string sviluppa = out_.str();
        ASSERT_EQ(Esegui({"conta", P("s.sic"), "--contatori", P("c.sic"), "--thread", "2"}), 0) << err_.str();
        EXPECT_EQ(Byte(P("c.sic")), Byte(P("r.sic")));
        EXPECT_EQ(Contatore(out_.str(), "Condizionate : "), Byte(P("v.col")).size() / 20);
        EXPECT_EQ(Contatore(sviluppa, "Condizionate : "), Byte(P("v.col")).size() / 20);
        EXPECT_GT(Byte(P("v.col")).size(), 0u);
        EXPECT_LT(Byte(P("v.col")).size(), 42504u * 20);
        const FileSistema contatori = LeggiFileSistema(P("v.sic"));
        EXPECT_EQ(contatori.condizioni[0].ContaSuperate + contatori.condizioni[0].ContaFallite, 42504);
    }
}

TEST_F(CliTest, SharesOfWorkersAddUpToTheWholeDevelopment) {
    ScriviSistemaCompleto(P("s.sic"), 0);
    ASSERT_EQ(Esegui({"sviluppa", P("s.sic"), "--colonne", P("tutto.col")}), 0);
    std::vector<uint8_t> unite;
    for (int i = 1; i <= 3; ++i) {
        const std::string col = P("q" + std::to_string(i) + ".col");
        ASSERT_EQ(Esegui({"sviluppa", P("s.sic"), "--colonne", col, "--quota", std::to_string(i) + "/3"}), 0);
        const auto b = Byte(col);
        unite.insert(unite.end(), b.begin(), b.end());
    }
    EXPECT_EQ(unite, Byte(P("tutto.col")));
}

TEST_F(CliTest, BadArgumentsAndHostileFilesGiveAMessageNotACrash) {
    ScriviSistemaCompleto(P("s.sic"), 0);
    std::ofstream(P("corto.sic"), std::ios::binary) << std::string(316, 'x');
    std::ofstream(P("tagliato.sic"), std::ios::binary) << std::string(587 + 200, '\0');
    std::string classeAlta(587, '\0');
    classeAlta[7] = 25;
    std::ofstream(P("classe.sic"), std::ios::binary) << classeAlta;
    struct Caso { cli::Parole parole; int codice; const char* messaggio; };
    const Caso casi[] = {
        {{}, 2, "Uso:"},
        {{"boh"}, 2, "comando sconosciuto"},
        {{"sviluppa", P("s.sic")}, 2, "manca --colonne"},
        {{"sviluppa", P("s.sic"), "--colonne"}, 2, "manca il valore"},
        {{"sviluppa", P("s.sic"), "--colonne", P("x.col"), "--thread", "0"}, 2, "--thread"},
        {{"sviluppa", P("s.sic"), "--colonne", P("x.col"), "--quota", "4/3"}, 2, "--quota"},
        {{"sviluppa", P("s.sic"), "--colonne", P("x.col"), "--quota", "2"}, 2, "I/W"},
        {{"sviluppa", P("s.sic"), "--colonne", P("x.col"), "--quota", "0/3"}, 2,
         "I di --quota deve essere un numero intero tra 1 e 3: \"0\""},
        {{"sviluppa", P("s.sic"), "--colonne", P("x.col"), "--quota", "1/0"}, 2,
         "W di --quota deve essere un numero intero tra 1 e 4096: \"0\""},
        {{"sviluppa", P("s.sic"), "--colonne", P("x.col"), "--quota", "1/4097"}, 2, "tra 1 e 4096"},
        {{"sviluppa", P("s.sic"), "--colonne", P("x.col"), "--quota", "1/3", "--quota", "1/3"}, 2,
         "opzione --quota ripetuta"},
        {{"sviluppa", P("s.sic"), "--colonne", P("x.col"), "--velocissimo"}, 2, "sconosciuta"},
        {{"sviluppa", P("manca.sic"), "--colonne", P("x.col")}, 1, "Errore 53"},
        {{"sviluppa", P("corto.sic"), "--colonne", P("x.col")}, 1, "troppo corto"},
        {{"sviluppa", P("tagliato.sic"), "--colonne", P("x.col")}, 1, "troncato"},
        {{"sviluppa", P("classe.sic"), "--colonne", P("x.col")}, 1, "classe"},
        {{"sviluppa", P("s.sic"), "--colonne", P("nessuna/x.col")}, 1, "Impossibile"},
        {{"sviluppa", P("s.sic"), "--colonne", P("x.col"), "--mpi", "--mpi"}, 2, "ripetuta"},
        {{"sviluppa", P("s.sic"), "--colonne", P("x.col"), "--thread", "2", "--thread", "3"}, 2, "ripetuta"},
        {{"sviluppa", P("s.sic"), "--colonne", P("x.col"), "--colonne", P("y.col")}, 2, "opzione --colonne ripetuta"},
        {{"conta", P("s.sic"), "--silenzioso", "--silenzioso"}, 2, "opzione --silenzioso ripetuta"},
        {{"conta"}, 2, "un solo file"},
        {{"conta", P("s.sic"), "--colonne", P("x.col")}, 2, "sconosciuta"},
        {{"conta", P("manca.sic")}, 1, "Errore 53"},
        {{"info", P("s.txt")}, 2, "estensione"},
        {{"info"}, 2, "un solo file"},
    };
    for (const Caso& c : casi) {
        EXPECT_EQ(Esegui(c.parole), c.codice) << err_.str();
        EXPECT_NE(err_.str().find(c.messaggio), std::string::npos) << c.messaggio << " in: " << err_.str();
    }
    EXPECT_FALSE(fs::exists(P("x.col")));
}

// How a command's ending becomes its exit code and message: running out of
// memory and a failure of the system cannot be brought about from the
// command line, so a body throws them here.
TEST(EseguiComando, EveryEndingHasItsExitCodeAndMessage) {
    struct Caso { std::function<int()> corpo; int codice; const char* messaggio; };
    const Caso casi[] = {
        {[] { return 0; }, 0, ""},
        {[] { return 1; }, 1, ""},
        {[]() -> int { throw cli::ErroreUso{"opzione --x ripetuta"}; }, 2,
         "combifiltro-cli prova: opzione --x ripetuta\nUso: combifiltro-cli prova FILE\n"},
        {[]() -> int { throw Errore(53, "File non trovato"); }, 1, "Errore 53- File non trovato\n"},
        {[]() -> int { throw std::bad_alloc(); }, 1, "Errore 7- Memoria insufficiente\n"},
        {[]() -> int { throw std::runtime_error("thread rifiutato"); }, 1, "Errore imprevisto: thread rifiutato\n"},
    };
    for (const Caso& c : casi) {
        std::ostringstream err;
        EXPECT_EQ(cli::EseguiComando("prova", "prova FILE", c.corpo, err), c.codice) << c.messaggio;
        EXPECT_EQ(err.str(), c.messaggio);
    }
}

// The separator the process groups thousands with, in place of each "'".
std::string Migliaia(std::string testo) {
    for (size_t i = testo.find('\''); i != std::string::npos; i = testo.find('\'', i))
        testo.replace(i, 1, SeparatoreMigliaia());
    return testo;
}

// The progress line worked out by hand: 2,500,000 of 10,000,000 columns in
// 2 s is 25 % at 1,250,000 columns a second, 6 s to go.
TEST(Terminale, ProgressLineShowsShareSpeedAndTimeLeft) {
    EXPECT_EQ(cli::OsservatoreTerminale::Riga(2'500'000, 100'000, 10'000'000, 2.0),
              Migliaia("25 %   Sviluppate : 2'500'000   Condizionate : 100'000   1'250'000 colonne/s   mancano 00:00:06"));
    EXPECT_EQ(cli::OsservatoreTerminale::Riga(9'999'999, 3, 10'000'000, 1.0),
              Migliaia("99 %   Sviluppate : 9'999'999   Condizionate : 3   9'999'999 colonne/s   mancano 00:00:01"));
    EXPECT_EQ(cli::OsservatoreTerminale::Riga(0, 0, 10, 0.0), "0 %   Sviluppate : 0   Condizionate : 0");
    // Off a terminal nothing is drawn, whatever the counts.
    std::ostringstream err;
    cli::OsservatoreTerminale spento(err, 100, false);
    spento.Progresso(50, 5);
    spento.Chiudi();
    EXPECT_EQ(err.str(), "");
    std::ostringstream flusso;
    EXPECT_FALSE(cli::SuTerminale(flusso)) << "only the standard streams can be a terminal";
    // On a terminal the last count is always drawn, however soon after the
    // one before it comes.
    std::ostringstream terminale;
    cli::OsservatoreTerminale acceso(terminale, 100, true);
    acceso.Progresso(10, 1);
    acceso.Progresso(100, 5);
    acceso.Chiudi();
    EXPECT_NE(terminale.str().find("\r100 %   Sviluppate : 100   Condizionate : 5"), std::string::npos)
        << terminale.str();
}

TEST_F(CliTest, InfoDescribesSystemsAndColumns) {
    ScriviSistemaCompleto(P("s.sic"), 2);
    ASSERT_EQ(Esegui({"info", P("s.sic")}), 0) << err_.str();
    const std::string s = out_.str();
    EXPECT_NE(s.find("Classe : 5"), std::string::npos);
    EXPECT_NE(s.find("Riduzione N-K : 2"), std::string::npos);
    EXPECT_NE(s.find("Condizioni : 20"), std::string::npos);
    EXPECT_NE(s.find("Parametri: Resto a : 3;"), std::string::npos);
    EXPECT_NE(s.find("Quadri di recupero in uso : 1 (1-1) 2 (1-2)\n"), std::string::npos);
    FileSistema ultimo = LeggiFileSistema(P("s.sic"));
    ultimo.quadri[20] = {-1, 3, 4};
    ScriviFileSistema(P("q.sic"), ultimo);
    ASSERT_EQ(Esegui({"info", P("q.sic")}), 0);
    EXPECT_NE(out_.str().find("Quadri di recupero in uso : 1 (1-1) 2 (1-2) 20 (3-4)\n"), std::string::npos);
    ASSERT_EQ(Esegui({"sviluppa", P("s.sic"), "--colonne", P("v.col")}), 0);
    std::ofstream(P("v.col"), std::ios::binary | std::ios::app) << "abc";
    ASSERT_EQ(Esegui({"info", P("v.col")}), 0);
    EXPECT_NE(out_.str().find("3 byte finali"), std::string::npos) << out_.str();
    EXPECT_NE(out_.str().find("  1: "), std::string::npos);
    ScriviFileColonne(P("due.col"), {test::Col({1, 2, 3, 4, 5}), test::Col({6, 7, 8, 9, 10, 90})});
    ASSERT_EQ(Esegui({"info", P("due.col")}), 0);
    EXPECT_EQ(out_.str(), "Colonne : 2\n  1: 01 02 03 04 05\n  2: 06 07 08 09 10 90\n");
    // Of a longer file only the first ten columns are shown.
    std::vector<Colonna> undici;
    for (int i = 1; i <= 11; ++i) undici.push_back(test::Col({i, 79 + i}));
    ScriviFileColonne(P("undici.col"), undici);
    ASSERT_EQ(Esegui({"info", P("undici.col")}), 0);
    EXPECT_EQ(out_.str(), "Colonne : 11\n  1: 01 80\n  2: 02 81\n  3: 03 82\n  4: 04 83\n  5: 05 84\n"
                          "  6: 06 85\n  7: 07 86\n  8: 08 87\n  9: 09 88\n  10: 10 89\n");
}

}  // namespace
}  // namespace combi

namespace combi {
namespace {

// The bundled example is what a new user develops first: it must keep loading
// and developing as the formats evolve.
TEST(Esempio, BundledSystemDevelops) {
    const FileSistema s = LeggiFileSistema(std::string(CF_CARTELLA_SORGENTI) + "/esempi/Esempio.sic");
    const ParametriSviluppo p = ParametriDalFile(s);
    EXPECT_EQ(p.classe, 6);
    EXPECT_EQ(p.numeri.size(), 24u);
    OsservatoreSviluppo o;
    const RisultatoSviluppo r = SviluppaSistema(p, o);
    EXPECT_EQ(r.testate, 134596u);
    EXPECT_GT(r.colonne.size(), 0u);
    EXPECT_LT(r.colonne.size(), r.testate);
}

}  // namespace
}  // namespace combi
