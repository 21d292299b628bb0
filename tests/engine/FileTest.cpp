#include "../CartellaDiProva.h"
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "Errore.h"
#include "FileColonne.h"
#include "FileSistema.h"
#include "SistemiCasuali.h"

namespace combi {
namespace {

namespace fs = std::filesystem;

class FileTest : public test::TestConCartella {
protected:
    FileTest() : TestConCartella("cf_file_") {}
};

TEST_F(FileTest, SystemFileLayoutIsByteExact) {
    FileSistema s;
    s.intestazione.classe = 6;
    s.intestazione.riduzione = 2;
    s.intestazione.numeri[1] = s.intestazione.numeri[90] = -1;
    s.quadri[1] = {-1, 1, 2};
    Condizione c;
    c.Tipo = kPeso;
    c.Numeri[90] = -1;
    c.Punti[10] = -1;
    c.Recupero[0] = -1;
    c.Parametro = 0x1234;
    c.MinPunti = -2;
    c.MaxPunti = 0x01020304;
    c.QuadroRec = 20;
    c.ContaSuperate = 17;
    c.EsitoGruppo = -1;
    s.condizioni = {c, Condizione{}};
    const std::vector<uint8_t> b = CodificaSistema(s);
    ASSERT_EQ(b.size(), 587u + 270u);
    EXPECT_EQ(std::string(b.begin(), b.begin() + 7), "SISTOCX");
    EXPECT_EQ(b[7], 6);
    EXPECT_EQ(b[9], 2);
    EXPECT_EQ(b[11], 0xFF);  // number 1 picked
    EXPECT_EQ(b[12], 0xFF);
    EXPECT_EQ(b[11 + 2 * 89], 0xFF);  // number 90
    EXPECT_EQ(b[191 + 6], 0xFF);      // panel 1 Attivo
    EXPECT_EQ(b[191 + 8], 1);         // panel 1 Minimo
    const uint8_t* r = b.data() + 317;
    EXPECT_EQ(r[0], kPeso);
    EXPECT_EQ(r[2 + 2 * 90], 0xFF);
    EXPECT_EQ(r[184 + 20], 0xFF);
    EXPECT_EQ(r[206], 0xFF);
    EXPECT_EQ(r[228], 0x34);
    EXPECT_EQ(r[229], 0x12);
    EXPECT_EQ(r[230], 0xFE);
    EXPECT_EQ(r[233], 0xFF);
    EXPECT_EQ(r[234], 0x04);
    EXPECT_EQ(r[237], 0x01);
    EXPECT_EQ(r[246], 20);
    EXPECT_EQ(r[256], 17);
    EXPECT_EQ(r[268], 0xFF);
    // Everything not set above is zero, the blank second record whole: 17
    // bytes of header (signature 7, class, reduction, two picked numbers 2
    // each, panel 1: 2 + 1 + 1) and 21 of the first record (type, three marks
    // 2 each, Parametro 2, MinPunti 4, MaxPunti 4, QuadroRec, ContaSuperate,
    // EsitoGruppo 2).
    EXPECT_EQ(std::count_if(b.begin(), b.end(), [](uint8_t x) { return x != 0; }), 17 + 21);
    EXPECT_TRUE(std::all_of(b.begin() + 587, b.end(), [](uint8_t x) { return x == 0; }));
    const FileSistema letto = DecodificaSistema(b.data(), b.size());
    EXPECT_EQ(CodificaSistema(letto), b);
    EXPECT_EQ(letto.condizioni[0], c);
}

TEST_F(FileTest, SystemFileLengthDecidesTheRecordCount) {
    FileSistema vuoto;
    EXPECT_EQ(CodificaSistema(vuoto).size(), 587u);  // one zeroed record
    struct Caso { size_t lunghezza; int64_t record; bool valido; };
    const Caso casi[] = {{0, 0, false},   {316, 0, false},      {586, 1, false},
                         {587, 1, true},  {587 + 134, 1, true},  // short tail ignored
                         {587 + 136, 2, false},                    // rounds up past the end
                         {587 + 270 * 3, 4, true}, {317 + 270 * 201, 201, false}};
    for (const Caso& c : casi) {
        std::vector<uint8_t> b(c.lunghezza, 0);
        if (c.lunghezza >= 317) {
            EXPECT_EQ(NumeroCondizioniInFile(c.lunghezza), c.record) << c.lunghezza;
        }
        if (c.valido) {
            EXPECT_EQ(DecodificaSistema(b.data(), b.size()).condizioni.size(), size_t(c.record));
        } else {
            EXPECT_THROW(DecodificaSistema(b.data(), b.size()), Errore) << c.lunghezza;
        }
    }
}

TEST_F(FileTest, FilesRoundTripAndReplaceWhole) {
    test::GeneratoreSistemi gen(5);
    const ParametriSviluppo p = gen.Sistema();
    FileSistema s;
    s.intestazione.classe = int16_t(p.classe);
    for (int n : p.numeri) s.intestazione.numeri[n] = -1;
    s.condizioni = p.condizioni;
    s.quadri = p.quadri;
    ScriviFileSistema(Percorso("a.sic"), s);
    const FileSistema letto = LeggiFileSistema(Percorso("a.sic"));
    EXPECT_EQ(CodificaSistema(letto), CodificaSistema(s));
    EXPECT_EQ(ParametriDalFile(letto).numeri, p.numeri);

    std::vector<Colonna> colonne(10);
    for (size_t i = 0; i < colonne.size(); ++i) colonne[i][1] = uint8_t(i + 1);
    ScriviFileColonne(Percorso("a.col"), colonne);
    EXPECT_EQ(GetNumeroColonneInFile(Percorso("a.col")), 10.0);
    ScriviFileColonne(Percorso("a.col"), {colonne[3]});
    EXPECT_EQ(LeggiFileColonne(Percorso("a.col")), std::vector<Colonna>{colonne[3]});
    EXPECT_FALSE(GetNumeroColonneInFile(Percorso("manca.col")).has_value());
    EXPECT_THROW(LeggiFileColonne(Percorso("manca.col")), Errore);
    // A save into a folder that does not exist fails and leaves nothing behind.
    EXPECT_THROW(ScriviFileColonne(Percorso("nessuna/x.col"), colonne), Errore);
    EXPECT_EQ(std::distance(fs::directory_iterator(cartella_), fs::directory_iterator{}), 2);
}

TEST_F(FileTest, ColumnsFileToleratesACutTailAndFlagsBadColumns) {
    std::ofstream(Percorso("t.col"), std::ios::binary) << std::string(45, '\x01');
    EXPECT_EQ(GetNumeroColonneInFile(Percorso("t.col")), 2.25);
    EXPECT_EQ(LeggiFileColonne(Percorso("t.col")).size(), 2u);
    Colonna buona, discendente, oltre, ripetuta;
    buona[1] = 3, buona[2] = 9;
    discendente[1] = 9, discendente[2] = 3;
    oltre[1] = 3, oltre[2] = 91;
    ripetuta[1] = 9, ripetuta[2] = 9;
    EXPECT_FALSE(PrimaColonnaNonValida({buona, buona}).has_value());
    EXPECT_EQ(PrimaColonnaNonValida({buona, discendente}), 1u);
    EXPECT_EQ(PrimaColonnaNonValida({buona, buona, ripetuta}), 2u);
    EXPECT_EQ(PrimaColonnaNonValida({oltre}), 0u);
    EXPECT_EQ(PrimaColonnaNonValida({buona}, 3), 0u);  // class 2, not 3
    EXPECT_EQ(PrimaColonnaNonValida({Colonna{}}), 0u);
}

}  // namespace
}  // namespace combi
