#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "../engine/ArchivioDiProva.h"
#include "ArchivioEstrazioni.h"
#include "ProvaCli.h"
#include "FileColonne.h"
#include "Spoglio.h"

namespace combi {
namespace {

class StoricoTest : public test::ProvaCli {
protected:
    StoricoTest() : ProvaCli("cf_storico_") {}
};

const std::string kArchivioSintetico = std::string(CF_CARTELLA_SORGENTI) + "/esempi/ArchivioSintetico.txt";

// The example system's columns over the synthetic archive: every totals row
// equals the winnings check run on each draw in turn and added up.
TEST_F(StoricoTest, TotalsEqualTheWinningsCheckRunDrawByDraw) {
    ASSERT_EQ(Esegui({"sviluppa", std::string(CF_CARTELLA_SORGENTI) + "/esempi/Esempio.sic", "--colonne",
                      Percorso("e.col")}), 0) << err_.str();
    const std::vector<Colonna> colonne = LeggiFileColonne(Percorso("e.col"));
    const Archivio archivio = LeggiFileArchivio(kArchivioSintetico);
    ASSERT_TRUE(archivio.scartate.empty());
    ASSERT_EQ(archivio.estrazioni.size(), 36u * kRuote);  // the first of every month, 2021-2023

    struct Caso { cli::Parole opzioni; int ruotaDa, ruotaA; DataEstrazione dal, al; int minimo, massimo; };
    const Caso casi[] = {
        {{"--gioco", "Lotto"}, 0, kRuoteLotto - 1, 0, 99991231, 2, 5},
        {{"--gioco", "Lotto", "--ruota", "Napoli", "--dal", "01/01/2022", "--al", "2022-12-31", "--minimo", "1"},
         5, 5, 20220101, 20221231, 1, 5},
        {{"--gioco", "Lotto", "--dal", "2022-03-01", "--al", "01/03/2022", "--minimo", "1"},
         0, kRuoteLotto - 1, 20220301, 20220301, 1, 5},  // one day
        {{"--gioco", "10ELotto"}, kRuotaDieciELotto, kRuotaDieciELotto, 0, 99991231, 3, 6},
        {{"--gioco", "superenalotto", "--al", "2022-06-30"}, kRuotaSuperEnalotto, kRuotaSuperEnalotto, 0, 20220630, 3, 6},
    };
    for (const Caso& c : casi) {
        std::array<int64_t, kMaxClasse + 1> attesi{};
        size_t estrazioni = 0;
        for (const Estrazione& e : archivio.estrazioni) {
            if (e.ruota < c.ruotaDa || e.ruota > c.ruotaA || e.data < c.dal || e.data > c.al) continue;
            ++estrazioni;
            // Minimum 7: no winning rows to build, only the counters.
            const EsitoSpoglio s = VerificaVincite(colonne, 6, NumeriComeTesto(e), 7);
            for (size_t p = 0; p < attesi.size(); ++p) attesi[p] += s.contatori[p];
        }
        std::string righe;
        for (int p = c.massimo; p >= c.minimo; --p)
            righe += "Vincite con " + std::to_string(p) + " punti : " + std::to_string(attesi[size_t(p)]) + "\n";
        righe += "Estrazioni controllate : " + std::to_string(estrazioni) + "\n";
        cli::Parole parole{"storico", Percorso("e.col"), "--archivio", kArchivioSintetico};
        parole.insert(parole.end(), c.opzioni.begin(), c.opzioni.end());
        ASSERT_EQ(Esegui(parole), 0) << err_.str();
        EXPECT_EQ(out_.str().substr(0, righe.size()), righe) << c.opzioni[1];
        EXPECT_GT(attesi[size_t(c.minimo)], 0) << c.opzioni[1];
    }
}

// Four columns and seven draws worked out by hand (the engine's test has the
// per-draw points), a line that is not a draw, and the money estimate.
TEST_F(StoricoTest, PrintsTotalsBestDrawLongestDelayAndMoneyPerYear) {
    ScriviFileColonne(Percorso("c.col"), {{{1, 2, 3}}, {{1, 4, 5}}, {{2, 4, 6}}, {{7, 8, 9}}});
    std::ofstream(Percorso("a.txt")) << test::kArchivioDiProva;
    ASSERT_EQ(Esegui({"storico", Percorso("c.col"), "--archivio", Percorso("a.txt"), "--gioco", "Lotto", "--posta",
                      "2.5", "--premi", "2=10,3=100"}), 0) << err_.str();
    EXPECT_EQ(out_.str(),
              "Vincite con 3 punti : 1\n"
              "Vincite con 2 punti : 5\n"
              "Estrazioni controllate : 7\n"
              "Estrazioni con vincite : 3\n"
              "Migliore estrazione : 2024-01-04 Roma 1,2,3,40,41 (3 punti: 1 colonna)\n"
              "Ritardo massimo : 2 estrazioni (dal 2024-01-06 al 2024-01-09)\n"
              "Posta per colonna : 2.50\n"
              "Anno 2023 : giocato 10.00, vinto 0.00, saldo -10.00\n"
              "Anno 2024 : giocato 60.00, vinto 375.00, saldo 315.00\n"
              "Totale : giocato 70.00, vinto 375.00, saldo 305.00\n");
    EXPECT_EQ(err_.str(), "Riga 6: Bari vuole 5 numeri: la riga ne ha 4\n");
    // Roma alone: its one draw pays, so no draw went without a hit.
    ASSERT_EQ(Esegui({"storico", Percorso("c.col"), "--archivio", Percorso("a.txt"), "--gioco", "Lotto", "--ruota",
                      "Roma"}), 0) << err_.str();
    EXPECT_EQ(out_.str(),
              "Vincite con 3 punti : 1\n"
              "Vincite con 2 punti : 0\n"
              "Estrazioni controllate : 1\n"
              "Estrazioni con vincite : 1\n"
              "Migliore estrazione : 2024-01-04 Roma 1,2,3,40,41 (3 punti: 1 colonna)\n"
              "Ritardo massimo : 0 estrazioni\n");
}

TEST_F(StoricoTest, WrongCommandLinesAndUnreadableFilesAreRefused) {
    ScriviFileColonne(Percorso("c.col"), {{{1, 2, 3}}});
    ScriviFileColonne(Percorso("vuoto.col"), {});
    std::ofstream(Percorso("a.txt")) << "2024-01-04;Bari;20;21;22;23;24\n";
    const std::string c = Percorso("c.col"), a = Percorso("a.txt");
    struct Caso { cli::Parole parole; int codice; const char* messaggio; };
    const Caso casi[] = {
        {{"storico", c, "--gioco", "Lotto"}, 2, "manca --archivio"},
        {{"storico", c, "--archivio", a}, 2, "manca --gioco"},
        {{"storico", "--archivio", a, "--gioco", "Lotto"}, 2, "un solo file"},
        {{"storico", c, "--archivio", a, "--gioco", "Totocalcio"}, 2, "gioco sconosciuto"},
        {{"storico", c, "--archivio", a, "--gioco", "Lotto", "--ruota", "Bologna"}, 2, "ruota sconosciuta"},
        {{"storico", c, "--archivio", a, "--gioco", "10ELotto", "--ruota", "Bari"}, 2, "solo per il Lotto"},
        {{"storico", c, "--archivio", a, "--gioco", "Lotto", "--dal", "2024-02-30"}, 2, "--dal non è una data"},
        {{"storico", c, "--archivio", a, "--gioco", "Lotto", "--al", "31/12/24"}, 2, "--al non è una data"},
        {{"storico", c, "--archivio", a, "--gioco", "Lotto", "--dal", "2024-02-01", "--al", "2024-01-31"}, 2,
         "--dal viene dopo --al"},
        {{"storico", c, "--archivio", a, "--gioco", "Lotto", "--gioco", "Lotto"}, 2, "ripetuta"},
        {{"storico", c, "--archivio", a, "--gioco", "Lotto", "--minimo", "0"}, 2, "--minimo"},
        {{"storico", c, "--archivio", a, "--gioco", "Lotto", "--posta", "-1"}, 2, "--posta"},
        {{"storico", c, "--archivio", a, "--gioco", "Lotto", "--posta", "1,5"}, 2, "--posta"},
        {{"storico", c, "--archivio", a, "--gioco", "Lotto", "--premi", "2=10"}, 2, "--premi vuole anche --posta"},
        {{"storico", c, "--archivio", a, "--gioco", "Lotto", "--posta", "1", "--premi", "2:10"}, 2, "punti=premio"},
        {{"storico", c, "--archivio", a, "--gioco", "Lotto", "--posta", "0.5", "--premi", "2:10"}, 2, "punti=premio"},
        {{"storico", c, "--archivio", a, "--gioco", "Lotto", "--settimane", "3"}, 2, "sconosciuta"},
        {{"storico", c, "--archivio", Percorso("manca.txt"), "--gioco", "Lotto"}, 1, "Errore 53"},
        {{"storico", Percorso("manca.col"), "--archivio", a, "--gioco", "Lotto"}, 1, "Errore"},
        {{"storico", Percorso("vuoto.col"), "--archivio", a, "--gioco", "Lotto"}, 1, "non contiene colonne"},
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(Esegui(caso.parole), caso.codice) << caso.messaggio << ": " << err_.str();
        EXPECT_NE(err_.str().find(caso.messaggio), std::string::npos) << caso.messaggio << " in: " << err_.str();
        EXPECT_EQ(out_.str(), "");
    }
}

}  // namespace
}  // namespace combi
