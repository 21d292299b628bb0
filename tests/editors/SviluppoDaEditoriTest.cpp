// From the editors to the developed columns: conditions entered through the
// host's InsCondizione (each editor filled from its parameter text) write the
// grid texts the decoder expects, and the control's development keeps exactly
// the columns that the engine keeps for those texts.

#include <gtest/gtest.h>

#include <QListWidget>

#include "../control/Banco.h"
#include "CollegaEditori.h"
#include "DecodificaCondizioni.h"
#include "FabbricaEditoriQt.h"
#include "Sviluppo.h"

namespace {

struct Inserita {
    int tipo;
    const char* parametriInseriti;
    combi::TestiCondizione attesi;  // rows 0..5 of the grid column
};

// The texts are the ones the editors write; row 5 names the recovery panel.
const std::vector<Inserita>& Inserite() {
    static const std::vector<Inserita> elenco = {
        {combi::kPariDispari, "Dispari\r\n1,3|0", {"", "Pari-Dispari", "Dispari", "1-3", "0", "1"}},
        {combi::kConsecutivi, "0,1|2", {"", "Consecutivi", "C\r\no\r\nn\r\ns\r\ne\r\nc", "0-1", "2", "1"}},
        {combi::kAmpiezza, "6,12|13,13", {"", "Ampiezza", "", "6-12", "13-13", "1"}},
        {combi::kResto, "4\r\n0,2", {"", "Resto", "Resto a : 4", "0-2", "", " "}},
        {combi::kSequenze, "PD\r\n0,3", {"", "Sequenze", "P\r\nD", "0-3", "", " "}},
    };
    return elenco;
}

}  // namespace

TEST(SviluppoDaEditori, IlControlloTieneLeColonneDelMotorePerGliStessiTesti) {
    Banco b;
    auto fabbrica = CollegaEditori(b.c, b.dialoghi);
    b.NumeriDa1A(14, 5);
    b.c.GetLbQuadroRec()->addItem("1,1,-1");  // panel 1: one failed condition is forgiven
    for (int p = 2; p <= 20; ++p) b.c.GetLbQuadroRec()->addItem("-1,-1,-0");

    combi::TestiGriglia attesi;
    for (const Inserita& i : Inserite()) {
        combi::Condizione t;
        t.Tipo = static_cast<int16_t>(i.tipo);
        b.c.InsCondizione(t, QString::fromUtf8(i.parametriInseriti));
        attesi.colonne.push_back(i.attesi);
    }
    for (int p = 1; p <= 20; ++p) attesi.quadri.push_back(b.c.GetLbQuadroRec()->item(p - 1)->text().toStdString());
    ASSERT_TRUE(b.dialoghi.boxes.empty()) << b.dialoghi.Testi().join("|").toStdString();

    // Rows 1, 3, 4, 5 are fixed texts; the parameter row of the range types is
    // the editors' own caption, compared through the decoded records below.
    for (size_t c = 0; c < attesi.colonne.size(); ++c) {
        for (int riga : {1, 3, 4, 5}) {
            EXPECT_EQ(b.Cella(riga, int(c) + 1).toStdString(), attesi.colonne[c][riga]) << "column " << c + 1 << " row " << riga;
        }
        attesi.colonne[c][2] = b.Cella(2, int(c) + 1).toStdString();
    }

    b.c.GestSviluppo();
    std::vector<combi::Colonna> dalControllo;
    b.c.GetColonneSviluppo(dalControllo);

    combi::ParametriSviluppo p;
    for (int n = 1; n <= 14; ++n) p.numeri.push_back(n);
    p.classe = 5;
    const auto sistema = combi::LeggiCondizioni(attesi);
    p.condizioni = sistema.condizioni;
    p.quadri = sistema.quadri;
    combi::OsservatoreSviluppo muto;
    const auto r = combi::SviluppaSistemaRiferimento(p, muto);
    ASSERT_GT(r.colonne.size(), 10u) << "a system that keeps almost nothing proves little";
    ASSERT_LT(r.colonne.size(), 2002u);
    ASSERT_EQ(dalControllo.size(), r.colonne.size() + 1);
    EXPECT_TRUE(std::equal(r.colonne.begin(), r.colonne.end(), dalControllo.begin() + 1));
}
