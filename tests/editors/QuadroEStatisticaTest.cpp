// The recovery panel dialog, the statistics preview and the screenshots.
#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>

#include "AiutiEditori.h"
#include "Condizione.h"
#include "DistribuzioneMisura.h"
#include "Errore.h"
#include "F_QuadroRecuperi.h"
#include "F_Statistica.h"

namespace {

combi::TestiGriglia Griglia(std::vector<std::string> quadriCondizioni, std::vector<std::string> righe) {
    combi::TestiGriglia g;
    for (const auto& q : quadriCondizioni) g.colonne.push_back({"", "Ponte", "", "1", "", q});
    righe.resize(20, "-1,-1,-0");
    g.quadri = righe;
    return g;
}

}  // namespace

TEST(QuadroRecuperi, ContaLeCondizioniEAbilitaSoloIQuadriUsati) {
    F_QuadroRecuperi d;
    EXPECT_EQ(d.windowTitle(), "Quadro recuperi");
    d.LeggiRecuperiInseriti(Griglia({"3", " ", "7", "3", "", "25", "-2"}, {"1,2,-1", "4,5,-0"}));
    for (int p = 1; p <= 20; ++p) {
        SCOPED_TRACE(p);
        const int atteso = p == 3 ? 2 : (p == 7 ? 1 : 0);
        EXPECT_EQ(d.LabRecInseriti(p)->text(), QString::number(atteso));
        EXPECT_EQ(d.TxtMin(p)->isEnabled(), atteso > 0);
        EXPECT_EQ(d.TxtMax(p)->isEnabled(), atteso > 0);
        const bool giallo = d.LabRecInseriti(p)->palette().color(QPalette::Window) == QColor(255, 255, 0);
        EXPECT_EQ(giallo, atteso > 0);
    }
    EXPECT_EQ(d.TxtMin(1)->text(), "1");  // shown though not editable
    EXPECT_EQ(d.TxtMax(1)->text(), "2");
    EXPECT_TRUE(d.TxtMin(2)->text().isEmpty());  // "-0": not in use
}

TEST(QuadroRecuperi, RicostruisceLeVentiRigheDellaLista) {
    F_QuadroRecuperi d;
    d.LeggiRecuperiInseriti(Griglia({"3", "4", "5", "6"}, {"1,2,-1"}));
    d.TxtMin(3)->setText("1"), d.TxtMax(3)->setText("2");
    d.TxtMin(4)->setText("1");
    d.TxtMin(5)->setText("2,5"), d.TxtMax(5)->setText("007");
    d.TxtMin(6)->setText(" "), d.TxtMax(6)->setText("3");
    Clic(d, "XPButton1_0");
    EXPECT_EQ(d.Tag(), "ddd");
    std::vector<std::string> attese(20, "-1,-1,-0");
    attese[0] = "1,2,-1";  // disabled panel written back with its bounds
    attese[2] = "1,2,-1";
    attese[4] = "2,7,-1";
    EXPECT_EQ(d.RigheQuadri(), attese);
    Clic(d, "XPButton1_1");
    EXPECT_TRUE(d.Tag().isEmpty());
}

TEST(QuadroRecuperi, LeCaselleAccettanoSoloCifreEVirgola) {
    F_QuadroRecuperi d;
    d.LeggiRecuperiInseriti(Griglia({"3"}, {}));
    QTest::keyClicks(d.TxtMin(3), "1x2,.3");
    QTest::keyClick(d.TxtMin(3), Qt::Key_Return);
    EXPECT_EQ(d.TxtMin(3)->text(), "12,3");
}

TEST(Statistica, DistribuzioneDellaMisuraSulleColonneIntegrali) {
    combi::Condizione posizione1;
    posizione1.Tipo = combi::kPosizioni;
    posizione1.Parametro = 1;
    DistribuzioneMisura d(posizione1, {1, 2, 3, 4}, 2);
    EXPECT_TRUE(d.Avanza(4));
    EXPECT_EQ(d.Misurate(), 4u);
    EXPECT_FALSE(d.Avanza(4));
    EXPECT_EQ(d.Misurate(), 6u);
    EXPECT_EQ(d.Conteggi(), (std::map<int32_t, uint64_t>{{1, 3}, {2, 2}, {3, 1}}));
    // Slices add up to the whole system whatever their size.
    DistribuzioneMisura grande(posizione1, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 5);
    while (grande.Avanza(100)) {}
    uint64_t somma = 0;
    for (const auto& [v, n] : grande.Conteggi()) somma += n;
    EXPECT_EQ(somma, 792u);
    EXPECT_EQ(grande.Conteggi().at(8), 1u);  // only 8-9-10-11-12
    EXPECT_THROW(DistribuzioneMisura(posizione1, {1, 2}, 3), combi::Errore);
}

TEST(Statistica, IlPulsanteApreLAnteprimaSenzaToccareLEditore) {
    FakeDialoghi dialoghi;
    ContestoEditore contesto{5, {}, 1, &dialoghi};
    for (int n = 1; n <= 30; ++n) contesto.numeriSelezionati.push_back(n);
    auto e = CreaEditore(combi::kPosizioni, contesto);
    Clic(*e, "ObCaselle_2");
    Clic(*e, "XPButton1_2");
    auto* anteprima = e->findChild<F_Statistica*>();
    ASSERT_NE(anteprima, nullptr);
    EXPECT_FALSE(anteprima->Finita());  // counted on the event loop, not at once
    EXPECT_TRUE(anteprima->findChild<QLabel*>("LabIntestazione")->text().contains("codice statistica 11 - gioco 2"));
    QSignalSpy completata(anteprima, &F_Statistica::Completata);
    ASSERT_TRUE(completata.wait(20000));
    EXPECT_EQ(anteprima->Distribuzione()->Misurate(), 142506u);
    auto* tabella = anteprima->findChild<QTableWidget*>("TabDistribuzione");
    EXPECT_EQ(tabella->rowCount(), 26);  // position 2 holds 2..27
    EXPECT_EQ(tabella->item(0, 0)->text(), "2");
    EXPECT_EQ(tabella->item(0, 1)->text(), "3276");  // 1-2-x-x-x: C(28,3)
    EXPECT_TRUE(e->Tag().isEmpty());
    EXPECT_TRUE(Messaggi(dialoghi).isEmpty());
    // Too few numbers: reported, no preview, the editor stays.
    auto poco = Editore(combi::kPonte, dialoghi, 5, {1, 2, 3});
    Clic(*poco, "XPButton1_2");
    EXPECT_EQ(poco->findChild<F_Statistica*>(), nullptr);
    EXPECT_EQ(Messaggi(dialoghi), QStringList{"Impostare il pronostico"});
}

// Not a check: with CF_CARTELLA_SCREENSHOT set (scripts/screenshot-editori.sh)
// it saves pictures of a few editors and of the preview.
TEST(Screenshot, SalvaImmaginiDegliEditori) {
    const QString cartella = qEnvironmentVariable("CF_CARTELLA_SCREENSHOT");
    if (cartella.isEmpty()) GTEST_SKIP() << "CF_CARTELLA_SCREENSHOT non impostata";
    QDir().mkpath(cartella);
    FakeDialoghi dialoghi;
    ContestoEditore contesto{6, {3, 8, 15, 21, 40, 77, 81, 88}, 0, &dialoghi};
    auto salva = [&](QWidget& w, const QString& nome) {
        w.show();
        QTest::qWait(200);
        EXPECT_TRUE(w.grab().save(cartella + "/" + nome + ".png"));
    };
    auto pari = CreaEditore(combi::kPariDispari, contesto);
    Clic(*pari, "ChkPunti_2"), Clic(*pari, "ChkPunti_3"), Quadro(*pari, "2"), Clic(*pari, "ChkRecupero_4");
    salva(*pari, "pari-dispari");
    auto ampiezza = CreaEditore(combi::kAmpiezza, contesto);
    Scrivi(*ampiezza, "TxtPunti_0", "30"), Scrivi(*ampiezza, "TxtPunti_1", "70");
    salva(*ampiezza, "ampiezza");
    auto sequenze = CreaEditore(combi::kSequenze, contesto);
    Clic(*sequenze, "Command1_0"), Clic(*sequenze, "Command1_1"), Clic(*sequenze, "ChkPunti_1");
    salva(*sequenze, "sequenze");
    Clic(*ampiezza, "XPButton1_2");
    auto* anteprima = ampiezza->findChild<F_Statistica*>();
    ASSERT_NE(anteprima, nullptr);
    QSignalSpy completata(anteprima, &F_Statistica::Completata);
    completata.wait(20000);
    salva(*anteprima, "statistica");
    F_QuadroRecuperi quadro;
    quadro.LeggiRecuperiInseriti(Griglia({"3", "3", "7"}, {"", "", "1,2,-1"}));
    salva(quadro, "quadro-recuperi");
}
