// Entering, editing and cancelling a condition of every type, and the texts
// it leaves in the grid.
#include <QTest>
#include <QLabel>

#include <functional>

#include "AiutiEditori.h"
#include "Condizione.h"
#include "DecodificaCondizioni.h"
#include "F_PuntisuColonna.h"
#include "GrigliaNumeri.h"
#include "Formato.h"

namespace {

using Azione = std::function<void(F_PuntiSuBase&)>;

struct Caso {
    int tipo;
    Azione azione;
    const char* parametri;
    const char* punti;
    const char* recupero;
    const char* quadro;
};

const std::vector<Caso>& Casi() {
    static const std::vector<Caso> casi = {
        {combi::kPuntiColonna,
         [](F_PuntiSuBase& e) {
             auto* g = static_cast<F_PuntisuColonna&>(e).Numeri();
             for (int n : {1, 5, 12, 33, 45}) g->ImpostaNumero(n, true);
             Clic(e, "ChkPunti_2");
         },
         "01-05-12-33-\r\n45", "2", "", " "},
        {combi::kPariDispari,
         [](F_PuntiSuBase& e) {
             Scegli(e, "Combo1", "Dispari");
             Quadro(e, "3");
             for (auto n : {"ChkPunti_0", "ChkPunti_2", "ChkPunti_3", "ChkRecupero_1"}) Clic(e, n);
         },
         "Dispari", "0-2-3", "1", "3"},
        {combi::kPeso,
         [](F_PuntiSuBase& e) {
             Clic(e, "ChkCaselle_1"), Clic(e, "ChkCaselle_3");
             Scrivi(e, "TxtPunti_0", "3"), Scrivi(e, "TxtPunti_1", "7");
         },
         "Caselle :\r\n1-3", "3-7", "-", " "},
        {combi::kResto,
         [](F_PuntiSuBase& e) { Scegli(e, "Combo1", "3"), Clic(e, "ChkPunti_0"), Clic(e, "ChkPunti_2"); },
         "Resto a : 3", "0-2", "", " "},
        {combi::kAmpiezza,
         [](F_PuntiSuBase& e) {
             Scrivi(e, "TxtPunti_0", "10"), Scrivi(e, "TxtPunti_1", "40"), Quadro(e, "20");
             Scrivi(e, "TxtPuntiRec_0", "5"), Scrivi(e, "TxtPuntiRec_1", "9");
         },
         "A\r\nm\r\np\r\ni\r\ne\r\nz\r\nz\r\na", "10-40", "5-9", "20"},
        {combi::kVortice,
         [](F_PuntiSuBase& e) { Scegli(e, "Combo1", "Inverso"), Clic(e, "ChkPunti_1"), Clic(e, "ChkPunti_5"); },
         "Inverso", "1-5", "", " "},
        {combi::kSimmetrie, [](F_PuntiSuBase& e) { Clic(e, "ChkPunti_0"); }, "Dirette", "0", "", " "},
        {combi::kConsecutivi, [](F_PuntiSuBase& e) { Clic(e, "ChkPunti_1"); }, nullptr, "1", "", " "},
        {combi::kInterruzioni, [](F_PuntiSuBase& e) { Clic(e, "ChkPunti_4"); }, nullptr, "4", "", " "},
        {combi::kBaricentro, [](F_PuntiSuBase& e) { Scrivi(e, "TxtPunti_0", "20"), Scrivi(e, "TxtPunti_1", "60"); },
         nullptr, "20-60", "-", " "},
        {combi::kDistanzaMinima,
         [](F_PuntiSuBase& e) { Scrivi(e, "TxtPunti_0", "1"), Scrivi(e, "TxtPunti_1", "3"); }, nullptr, "1-3", "-", " "},
        {combi::kDistanzaMassima,
         [](F_PuntiSuBase& e) { Scrivi(e, "TxtPunti_1", "20"); }, nullptr, "-20", "-", " "},
        {combi::kPosizioni,
         [](F_PuntiSuBase& e) {
             Clic(e, "ObCaselle_3"), Scrivi(e, "TxtPunti_0", "10"), Scrivi(e, "TxtPunti_1", "50");
         },
         "Casella :\r\n3", "10-50", "-", " "},
        {combi::kPonte, [](F_PuntiSuBase& e) { Clic(e, "ChkPunti_0"), Clic(e, "ChkPunti_1"); }, nullptr, "0-1", "", " "},
        {combi::kSequenze,
         [](F_PuntiSuBase& e) {
             for (auto n : {"Command1_0", "Command1_1", "Command1_0", "ChkPunti_3"}) Clic(e, n);
         },
         "P\r\nD\r\nP", "3", "", " "},
        {combi::kParalleli,
         [](F_PuntiSuBase& e) { Scegli(e, "Combo1", "Inversi"), Clic(e, "ChkPunti_5"); }, "Inversi", "5", "", " "},
    };
    return casi;
}

combi::TestiCondizione Testi(const TestiEditore& t, int tipo) {
    return {"", combi::NomeTipoCondizione(tipo), t.parametri.toStdString(), t.punti.toStdString(),
            t.recupero.toStdString(), t.quadro.toStdString()};
}

}  // namespace

TEST(EditoriCondizione, InserisceModificaEAnnullaOgniTipo) {
    ASSERT_EQ(Casi().size(), 16u);
    for (const Caso& caso : Casi()) {
        SCOPED_TRACE(combi::NomeTipoCondizione(caso.tipo));
        FakeDialoghi dialoghi;
        auto nuovo = Editore(caso.tipo, dialoghi, 5, {1, 5, 12, 33, 45, 60});
        EXPECT_EQ(nuovo->windowTitle(), VoceDelTipo(caso.tipo)->titolo);
        caso.azione(*nuovo);
        Clic(*nuovo, "XPButton1_0");
        EXPECT_EQ(nuovo->Tag(), "ooo");
        EXPECT_TRUE(Messaggi(dialoghi).isEmpty()) << Messaggi(dialoghi).join("|").toStdString();
        const combi::TestiCondizione scritti = Testi(nuovo->GetParametri(), caso.tipo);
        // No parameters of its own: the type's key word written down the cell.
        const char* parola = VoceDelTipo(caso.tipo)->parolaChiave;
        EXPECT_EQ(scritti[combi::kRigaParametri],
                  caso.parametri ? std::string(caso.parametri) : combi::TestoVerticale(parola, 1));
        EXPECT_EQ(scritti[combi::kRigaPunti], caso.punti);
        EXPECT_EQ(scritti[combi::kRigaRecupero], caso.recupero);
        EXPECT_EQ(scritti[combi::kRigaQuadroRec], caso.quadro);

        // Editing the column shows it back as written and confirms unchanged.
        auto modifica = Editore(caso.tipo, dialoghi, 5, {1, 5, 12, 33, 45, 60});
        modifica->LeggiPunti(scritti);
        Clic(*modifica, "XPButton1_0");
        EXPECT_EQ(Testi(modifica->GetParametri(), caso.tipo), scritti);

        auto annullato = Editore(caso.tipo, dialoghi);
        caso.azione(*annullato);
        Clic(*annullato, "XPButton1_1");
        EXPECT_TRUE(annullato->Tag().isEmpty());
    }
}

TEST(EditoriCondizione, ITestiScrittiSiDecodificanoNelRecordAtteso) {
    FakeDialoghi dialoghi;
    combi::TestiGriglia griglia;
    for (int tipo : {combi::kPariDispari, combi::kAmpiezza, combi::kResto, combi::kSequenze, combi::kPosizioni}) {
        const Caso& caso = Casi()[tipo - combi::kPuntiColonna];
        auto e = Editore(tipo, dialoghi);
        caso.azione(*e);
        griglia.colonne.push_back(Testi(e->GetParametri(), tipo));
        // The host reaches the three buttons by index, and nothing else.
        EXPECT_EQ(e->Pulsante(2)->objectName(), "XPButton1_2");
        EXPECT_EQ(e->Pulsante(3), nullptr);
        EXPECT_EQ(e->Pulsante(-1), nullptr);
    }
    const auto c = combi::LeggiCondizioni(griglia).condizioni;
    ASSERT_EQ(c.size(), 5u);
    EXPECT_EQ(c[0].Tipo, combi::kPariDispari);
    EXPECT_EQ(c[0].Numeri[45], combi::kVero);
    EXPECT_EQ(c[0].Numeri[44], combi::kFalso);
    EXPECT_EQ(c[0].Punti[2], combi::kVero);
    EXPECT_EQ(c[0].Punti[1], combi::kFalso);
    EXPECT_EQ(c[0].Recupero[1], combi::kVero);
    EXPECT_EQ(c[0].QuadroRec, 3);
    EXPECT_EQ(std::tie(c[1].MinPunti, c[1].MaxPunti, c[1].MinRecupero, c[1].MaxRecupero, c[1].QuadroRec),
              std::make_tuple(10, 40, 5, 9, int16_t(20)));
    EXPECT_EQ(c[2].Parametro, 3);
    EXPECT_EQ(c[2].Punti[2], combi::kVero);
    EXPECT_EQ(c[3].Parametro, 3);  // the sequence's length
    EXPECT_EQ(std::tie(c[3].Numeri[0], c[3].Numeri[1], c[3].Numeri[2]),
              std::make_tuple(int16_t(0), int16_t(1), int16_t(0)));
    EXPECT_EQ(c[4].Parametro, 3);
    EXPECT_EQ(c[4].MaxPunti, 50);
}

TEST(EditoriCondizione, PuntiSuColonnaOffreSoloINumeriDelSistemaEVaACapoOgniQuattro) {
    FakeDialoghi dialoghi;
    auto e = Editore(combi::kPuntiColonna, dialoghi, 5, {2, 4, 6, 8});
    auto* g = static_cast<F_PuntisuColonna&>(*e).Numeri();
    EXPECT_TRUE(g->Disponibile(4));
    EXPECT_FALSE(g->Disponibile(5));
    GrigliaNumeri principale;
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8}) principale.ImpostaNumero(n, true);
    e->AbilitaNum(principale);
    EXPECT_TRUE(g->Disponibile(5));
    EXPECT_FALSE(g->Disponibile(9));
    const std::vector<std::pair<std::vector<int>, std::string>> casi = {
        {{2, 4, 6, 8}, "02-04-06-08"},
        {{1, 2, 3, 4, 5, 6, 7, 8}, "01-02-03-04-\r\n05-06-07-08"},
        {{}, ""},
    };
    for (const auto& [numeri, atteso] : casi) {
        g->Pulisci();
        for (int n : numeri) g->ImpostaNumero(n, true);
        EXPECT_EQ(e->GetParametri().parametri.toStdString(), atteso);
    }
    // Reading back skips the line breaks: 33 and 45 both come back.
    auto letto = Editore(combi::kPuntiColonna, dialoghi);
    letto->LeggiPunti(combi::TestiCondizione{"", "Punti Col.", "01-05-12-33-\r\n45", "1", "", " "});
    auto* gl = static_cast<F_PuntisuColonna&>(*letto).Numeri();
    EXPECT_EQ(gl->Conta(), 5);
    EXPECT_TRUE(gl->Selezionato(33) && gl->Selezionato(45));

    // Enter in the dialog's grid ends the pick as on the main panel: it confirms.
    g->ImpostaNumero(2, true);
    Clic(*e, "ChkPunti_1");
    QTest::keyClick(g, Qt::Key_Return);
    EXPECT_EQ(e->Tag(), "ooo");
    EXPECT_EQ(e->result(), QDialog::Accepted);
}

// Numbers of an edited condition no longer in the system: ticked, can be unticked.
TEST(EditoriCondizione, PuntiSuColonnaLasciaTogliereINumeriNonPiuDelSistema) {
    FakeDialoghi dialoghi;
    auto e = Editore(combi::kPuntiColonna, dialoghi, 5, {2, 4, 6, 8});
    e->LeggiPunti(combi::TestiCondizione{"", "Punti Col.", "02-15-40", "1", "", " "});
    GrigliaNumeri principale;  // the main grid, as the control hands it over
    for (int n : {2, 4, 6, 8}) principale.ImpostaNumero(n, true);
    e->AbilitaNum(principale);
    auto* g = static_cast<F_PuntisuColonna&>(*e).Numeri();
    for (int n : {2, 15, 40}) EXPECT_TRUE(g->Selezionato(n) && g->Disponibile(n)) << n;
    EXPECT_FALSE(g->Disponibile(9));

    Clic(*g, "Numero15");
    EXPECT_FALSE(g->Selezionato(15));
    EXPECT_FALSE(g->Disponibile(15)) << "once cleared, an outside number cannot come back";
    EXPECT_EQ(e->GetParametri().parametri.toStdString(), "02-40");
}

TEST(EditoriCondizione, ValoriDiUnaClassePiuAltaIgnoratiConNota) {
    FakeDialoghi dialoghi;
    auto e = Editore(combi::kConsecutivi, dialoghi, 3);
    e->LeggiPunti(combi::TestiCondizione{"", "Consecutivi", "", "1-5-7", "2-9", "4"});
    EXPECT_FALSE(e->Nota()->isHidden());
    EXPECT_TRUE(e->Nota()->text().contains("5, 7, 9"));
    const auto t = e->GetParametri();
    EXPECT_EQ(t.punti, "1");
    EXPECT_EQ(t.recupero, "2");
    EXPECT_EQ(t.quadro, "4");
    auto pulito = Editore(combi::kConsecutivi, dialoghi, 3);
    pulito->LeggiPunti(combi::TestiCondizione{"", "Consecutivi", "", "1", "", ""});
    EXPECT_TRUE(pulito->Nota()->isHidden());
    EXPECT_EQ(pulito->GetParametri().quadro, " ");  // a file's empty panel is the blank item
}

// Resto's divisor is what follows the colon, with or without a blank.
TEST(EditoriCondizione, IlDivisoreDelRestoSegueIDuePunti) {
    FakeDialoghi dialoghi;
    for (const char* testo : {"Resto a : 4", "Resto a :4", "Resto a:  4 "}) {
        auto e = Editore(combi::kResto, dialoghi);
        e->LeggiPunti(combi::TestiCondizione{"", "Resto", testo, "0-3", "", ""});
        EXPECT_EQ(e->GetParametri().parametri, "Resto a : 4") << testo;
        EXPECT_EQ(e->GetParametri().punti, "0-3") << testo;
    }
}
