// What the program does at the limits of its data: files too short or far
// too long, headers with values outside their domain, developments that keep
// more columns than can be held, saves that fail. A temporary file's name
// clashing with another's is left untested: the process id, a counter and a
// random part make it practically impossible, so whether the clash is
// retried, how many times, or given up is never seen; nor which negative
// marks a closed temporary file.
#include "../CartellaDiProva.h"
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "ColonnaDiProva.h"
#include "Errore.h"
#include "FileBinario.h"
#include "FileColonne.h"
#include "FileSistema.h"
#include "Riduzione.h"
#include "Spoglio.h"
#include "Sviluppo.h"

namespace combi {
namespace {

namespace fs = std::filesystem;
using test::Col;

class LimitiTest : public test::TestConCartella {
protected:
    LimitiTest() : TestConCartella("cf_limiti_") {}
    // A file of that length that takes no room on disk.
    std::string FileSparso(const std::string& nome, uint64_t lunghezza) const {
        std::ofstream(Percorso(nome), std::ios::binary).close();
        fs::resize_file(Percorso(nome), lunghezza);
        return Percorso(nome);
    }
};

// The number and description of the error `f` throws; {0, ""} when none.
template <typename F>
std::pair<int, std::string> ErroreDi(F f) {
    try {
        f();
    } catch (const Errore& e) {
        return {e.numero(), e.descrizione()};
    }
    return {0, ""};
}

constexpr uint64_t kDieciGB = 10'000'000'000ull;

TEST_F(LimitiTest, SystemFilesAreRefusedByLengthBeforeReading) {
    struct Caso { uint64_t lunghezza; int numero; const char* testo; };
    const Caso casi[] = {
        {0, kErroreFileTroncato, "servono almeno 587 byte, ne ha 0"},
        {316, kErroreFileTroncato, "ne ha 316"},
        {587, 0, ""},
        {317 + 270ull * 100'000, kErroreFormatoFile, "Il file contiene 100000 condizioni: al massimo 200"},
        {kDieciGB, kErroreFormatoFile, "condizioni: al massimo 200"},
    };
    for (const Caso& c : casi) {
        const auto [numero, testo] = ErroreDi([&] { ControllaLunghezzaSistema(c.lunghezza); });
        EXPECT_EQ(numero, c.numero) << c.lunghezza;
        EXPECT_NE(testo.find(c.testo), std::string::npos) << c.lunghezza << ": " << testo;
    }
    // Through the file: the sparse 10 GB file is refused without being read
    // (reading it whole would need 10 GB of memory).
    EXPECT_EQ(ErroreDi([&] { LeggiFileSistema(FileSparso("enorme.sic", kDieciGB)); }).first, kErroreFormatoFile);
    EXPECT_EQ(ErroreDi([&] { LeggiFileSistema(FileSparso("vuoto.sic", 0)); }).first, kErroreFileTroncato);
    EXPECT_EQ(LeggiFileSistema(FileSparso("zeri.sic", 587)).condizioni.size(), 1u);
}

TEST_F(LimitiTest, HugeColumnsFilesAreRefusedByLength) {
    const std::string enorme = FileSparso("enorme.col", kDieciGB);
    EXPECT_EQ(GetNumeroColonneInFile(enorme), 500'000'000.0);  // the count needs no reading
    const auto [numero, testo] = ErroreDi([&] { LeggiFileColonne(enorme); });
    EXPECT_EQ(numero, kErroreMemoria);
    EXPECT_NE(testo.find("File troppo grande"), std::string::npos) << testo;
    EXPECT_NE(testo.find("10000000000 byte, al massimo 5000000000"), std::string::npos) << testo;
    EXPECT_EQ(ErroreDi([&] { LeggiColonneDaRidurre(enorme); }).first, kErroreMemoria);
    EXPECT_TRUE(LeggiFileColonne(FileSparso("vuoto.col", 0)).empty());
}

TEST_F(LimitiTest, HeaderValuesOutsideTheirDomain) {
    FileSistema s;
    for (int n = 1; n <= 8; ++n) s.intestazione.numeri[n] = -1;
    // Flags other than 0 and -1 still mean picked: the header keeps no other state.
    s.intestazione.numeri[40] = 1;
    s.intestazione.numeri[50] = 0x7FFF;
    s.intestazione.numeri[60] = INT16_MIN;
    const std::vector<uint8_t> byte = CodificaSistema(s);
    const FileSistema letto = DecodificaSistema(byte.data(), byte.size());
    EXPECT_EQ(ParametriDalFile(letto).numeri, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 40, 50, 60}));

    OsservatoreSviluppo o;
    for (int16_t classe : {int16_t(0), int16_t(21), int16_t(25), int16_t(-1), int16_t(INT16_MAX)}) {
        s.intestazione.classe = classe;
        const ParametriSviluppo p = ParametriDalFile(s);
        const auto rif = ErroreDi([&] { SviluppaSistemaRiferimento(p, o); });
        EXPECT_EQ(rif, std::make_pair(int(kErroreArgomento), std::string("La classe deve essere compresa tra 1 e 20")))
            << classe;
        EXPECT_EQ(ErroreDi([&] { SviluppaSistema(p, o); }), rif) << classe;
    }
    s.intestazione.classe = 12;  // more than the 11 picked numbers
    EXPECT_EQ(ErroreDi([&] { SviluppaSistema(ParametriDalFile(s), o); }).second, "Impostare il pronostico");
}

TEST_F(LimitiTest, ColumnsOutsideTheRules) {
    // The reduction needs six different numbers 1..90 and names the column.
    const std::vector<Colonna> colonne = {Col({1, 2, 3, 4, 5, 6}), Col({1, 2, 3, 4, 5, 91}),
                                          Col({6, 5, 4, 3, 2, 1})};
    OsservatoreRiduzione o;
    const auto [numero, testo] = ErroreDi([&] { RiduciColonne(colonne, 5, o); });
    EXPECT_EQ(numero, kErroreFormatoFile);
    EXPECT_EQ(testo, "La colonna 2 non ha sei numeri diversi da 1 a 90 nelle prime sei posizioni");
    // The numbers need not be ascending there: the same set in any order.
    EXPECT_EQ(RiduciColonne({colonne[0], colonne[2]}, 6, o).colonne.size(), 1u);
    // The winnings check counts a column as it is stored: 91 matches nothing.
    const EsitoSpoglio e = VerificaVincite(std::vector<Colonna>{colonne[1], Col({200, 5, 1})}, 6, "1,5,90", 1);
    EXPECT_EQ(e.contatori[2], 2);
}

TEST_F(LimitiTest, AFailedSaveSaysSoAndKeepsWhatWasThere) {
    const std::string sistema = Percorso("s.sic");
    FileSistema vecchio, nuovo;
    vecchio.intestazione.classe = 5;
    nuovo.intestazione.classe = 6;
    ScriviFileSistema(sistema, vecchio);
    ScriviFileSistema(sistema, nuovo);
    EXPECT_EQ(LeggiFileSistema(sistema).intestazione.classe, 6);
    // A target that cannot be replaced (a folder holding a file): the save
    // fails with a message naming it, and neither the folder nor the file in
    // it is touched, nor is a temporary file left behind.
    fs::create_directories(Percorso("cartella.col"));
    ScriviFileColonne(Percorso("cartella.col/dentro.col"), {Col({1, 2})});
    const auto [numero, testo] = ErroreDi([&] { ScriviFileColonne(Percorso("cartella.col"), {Col({3})}); });
    EXPECT_EQ(numero, kErroreAccessoFile);
    EXPECT_NE(testo.find("Impossibile scrivere il file: " + Percorso("cartella.col")), std::string::npos) << testo;
    EXPECT_EQ(LeggiFileColonne(Percorso("cartella.col/dentro.col")), std::vector<Colonna>{Col({1, 2})});
    EXPECT_EQ(std::distance(fs::directory_iterator(cartella_), fs::directory_iterator{}), 2);
}

}  // namespace
}  // namespace combi
