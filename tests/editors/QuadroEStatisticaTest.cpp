// The recovery panel dialog, the statistics preview and the screenshots.
// The preview's share of an empty integral system is never computed (the
// preview needs at least the class's numbers), so its guard may change
// unseen.
// A panel number outside 1..20 in a hand-made file is counted nowhere; were
// the bound check lost, the count would land outside its array, which only
// the sanitizer run of scripts/test.sh, with its index checks, can see (the
// counts shown stay the same).
#include <QPainter>
#include <QPixmap>
#include <QLabel>
#include <QProgressBar>
#include <QtCharts/QCategoryAxis>
#include <QSignalSpy>
#include <QSplitter>
#include <QTableWidget>
#include <QTest>

#include "AiutiEditori.h"
#include "Condizione.h"
#include "Formato.h"
#include "GraficoBarre.h"
#include "ScalaGrafico.h"
#include "Errore.h"
#include "F_QuadroRecuperi.h"
#include "F_Statistica.h"
#include "Screenshot.h"

namespace {

combi::TestiGriglia Griglia(std::vector<std::string> quadriCondizioni, std::vector<std::string> righe) {
    combi::TestiGriglia g;
    for (const auto& q : quadriCondizioni) g.colonne.push_back({"", "Ponte", "", "1", "", q});
    righe.resize(20, "-1,-1,-0");
    g.quadri = righe;
    return g;
}

QString Migliaia() { return QString::fromStdString(combi::SeparatoriUtente().migliaia); }
QString Decimali() { return QString::fromStdString(combi::SeparatoriUtente().decimali); }

}  // namespace

TEST(QuadroRecuperi, ContaLeCondizioniEAbilitaSoloIQuadriUsati) {
    F_QuadroRecuperi d;
    EXPECT_EQ(d.windowTitle(), "Quadro recuperi");
    // Before any reading every panel, the last too, shows 0 and is closed;
    // each row holds its panel's count, Min and Max left to right.
    d.layout()->activate();
    for (int p = 1; p <= 20; ++p) {
        EXPECT_EQ(d.LabRecInseriti(p)->text(), "0") << p;
        EXPECT_FALSE(d.TxtMin(p)->isEnabled()) << p;
        const QRect conto = d.LabRecInseriti(p)->geometry(), min = d.TxtMin(p)->geometry();
        EXPECT_GT(min.width(), 0) << p;
        EXPECT_EQ(min.center().y(), conto.center().y()) << p;
        EXPECT_LT(conto.right(), min.left()) << p;
        EXPECT_LT(min.right(), d.TxtMax(p)->geometry().left()) << p;
    }
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
    // Read again, the counts start over: panel 20 in use, then in use no more.
    d.LeggiRecuperiInseriti(Griglia({"20"}, {}));
    EXPECT_EQ(d.LabRecInseriti(20)->text(), "1");
    d.LeggiRecuperiInseriti(Griglia({"3"}, {}));
    EXPECT_EQ(d.LabRecInseriti(20)->text(), "0");
    EXPECT_FALSE(d.TxtMin(20)->isEnabled());
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

TEST(Statistica, IlPulsanteApreLAnteprimaSenzaToccareLEditore) {
    FakeDialoghi dialoghi;
    ContestoEditore contesto{5, {}, 1, &dialoghi};
    for (int n = 1; n <= 30; ++n) contesto.numeriSelezionati.push_back(n);
    auto e = CreaEditore(combi::kPosizioni, contesto);
    Clic(*e, "ObCaselle_2");
    Clic(*e, "XPButton1_2");
    auto* anteprima = e->findChild<F_Statistica*>();
    ASSERT_NE(anteprima, nullptr);
    EXPECT_FALSE(anteprima->Finita());  // counted off the user-interface thread
    EXPECT_EQ(anteprima->findChild<QProgressBar*>("BarraAvanzamento")->minimum(), 0) << "the bar starts empty";
    EXPECT_EQ(anteprima->findChild<QLabel*>("LabIntestazione")->text(),
              "Distribuzione di Numero in posizione 2 \u2013 10ELotto, classe 5");
    EXPECT_EQ(anteprima->CodiceStatistica(), 11);
    EXPECT_EQ(anteprima->CodiceGioco(), 2);
    QSignalSpy completata(anteprima, &F_Statistica::Completata);
    ASSERT_TRUE(completata.wait(20000));
    uint64_t totale = 0;
    for (const auto& [valore, quante] : anteprima->Distribuzione()) totale += quante;
    EXPECT_EQ(totale, 142506u);  // C(30, 5)
    auto* tabella = anteprima->findChild<QTableWidget*>("TabDistribuzione");
    EXPECT_EQ(tabella->rowCount(), 26);  // position 2 holds 2..27
    EXPECT_EQ(tabella->item(0, 0)->text(), "2");
    EXPECT_EQ(tabella->item(0, 1)->text(), "3" + Migliaia() + "276");  // 1-2-x-x-x: C(28,3)
    EXPECT_EQ(tabella->item(0, 2)->text(), "2" + Decimali() + "30");    // 3276 / 142506
    EXPECT_FALSE(anteprima->findChild<QProgressBar*>("BarraAvanzamento")->isVisibleTo(anteprima));
    EXPECT_TRUE(e->Tag().isEmpty());
    EXPECT_TRUE(Messaggi(dialoghi).isEmpty());
    // Too few numbers: reported, no preview, the editor stays.
    auto poco = Editore(combi::kPonte, dialoghi, 5, {1, 2, 3});
    Clic(*poco, "XPButton1_2");
    EXPECT_EQ(poco->findChild<F_Statistica*>(), nullptr);
    EXPECT_EQ(Messaggi(dialoghi), QStringList{"Impostare il pronostico"});
}

// The accepted values are told apart: the line under the chart counts the
// columns of the values ticked in the editor (here Pari-Dispari "Pari" with
// 2 or 3 even numbers among 1..10 in class 5: C(5,2)C(5,3) + C(5,3)C(5,2)).
TEST(Statistica, LeColonneAccettateSonoQuelleDeiValoriSpuntati) {
    FakeDialoghi dialoghi;
    auto e = Editore(combi::kPariDispari, dialoghi);
    Clic(*e, "ChkPunti_2"), Clic(*e, "ChkPunti_3");
    Clic(*e, "XPButton1_2");
    auto* anteprima = e->findChild<F_Statistica*>();
    ASSERT_NE(anteprima, nullptr);
    QSignalSpy completata(anteprima, &F_Statistica::Completata);
    ASSERT_TRUE(completata.wait(20000));
    EXPECT_EQ(anteprima->findChild<QLabel*>("LabAccettate")->text(),
              "Valori accettati (in verde): 200 colonne, 79" + Decimali() + "37 % delle integrali.");
    // Widened, the window gives the new room to the chart: the table keeps its width.
    auto* divisore = anteprima->findChild<QSplitter*>();
    ASSERT_NE(divisore, nullptr);
    anteprima->resize(900, 500);
    anteprima->show();
    QApplication::processEvents();
    const int tabella = divisore->widget(0)->width(), grafico = divisore->widget(1)->width();
    anteprima->resize(1300, 500);
    QApplication::processEvents();
    EXPECT_EQ(divisore->widget(0)->width(), tabella);
    EXPECT_EQ(divisore->widget(1)->width(), grafico + 400);
}

// "Annulla" stops a count that is still running: the largest one there is,
// class 20 over the 90 numbers, follows parity patterns for a good while.
TEST(Statistica, AnnullaFermaIlConteggio) {
    FakeDialoghi dialoghi;
    std::vector<int> tutti;
    for (int n = 1; n <= 90; ++n) tutti.push_back(n);
    auto e = Editore(combi::kVortice, dialoghi, 20, tutti);
    Clic(*e, "XPButton1_2");
    auto* anteprima = e->findChild<F_Statistica*>();
    ASSERT_NE(anteprima, nullptr);
    QSignalSpy annullata(anteprima, &F_Statistica::Annullata);
    Clic(*anteprima, "Annulla");
    ASSERT_TRUE(annullata.wait(20000));
    EXPECT_FALSE(anteprima->Finita());
    EXPECT_EQ(anteprima->findChild<QLabel*>("LabAvanzamento")->text(), "Conteggio annullato.");
    EXPECT_EQ(anteprima->findChild<QTableWidget*>("TabDistribuzione")->rowCount(), 0);
    // Closing a preview whose count runs stops it too (no crash, no report).
    Clic(*e, "XPButton1_2");
    auto anteprime = e->findChildren<F_Statistica*>();
    ASSERT_EQ(anteprime.size(), 2);
    delete anteprime.back();
}

// Round ticks at any range, worked out by hand: the step is 1, 2 or 5 times
// a power of ten just above range / (ticks - 1).
TEST(Statistica, ScaleRotonde) {
    struct Caso { double minimo, massimo; int tacche; bool interi; double passo, primo, ultimo; };
    const Caso casi[] = {
        {0, 10, 6, true, 2, 0, 10},
        {3.6, 89.4, 10, true, 10, 0, 90},        // Ampiezza of class 5
        {-0.4, 3.4, 10, true, 1, -1, 4},         // a few point values: whole steps
        {149.6, 400.4, 8, true, 50, 100, 450},   // Peso
        {0, 142506, 6, false, 50000, 0, 150000},
        {0, 5720645481903, 6, false, 2e12, 0, 6e12},
        {7, 7, 5, true, 1, 7, 8},                // one value only
        {7, 7, 5, false, 1, 7, 8},
    };
    for (const Caso& c : casi) {
        const scala::Scala s = scala::ScalaRotonda(c.minimo, c.massimo, c.tacche, c.interi);
        EXPECT_DOUBLE_EQ(s.passo, c.passo) << c.minimo << ".." << c.massimo;
        EXPECT_DOUBLE_EQ(s.primo, c.primo) << c.minimo << ".." << c.massimo;
        EXPECT_DOUBLE_EQ(s.ultimo, c.ultimo) << c.minimo << ".." << c.massimo;
    }
}

// The heading names the measure the way the editor's choice reads, direct or
// inverse, and the game by its code (nothing outside 1..4).
TEST(Statistica, NomiDelleMisureEDeiGiochi) {
    struct Caso { int16_t tipo; int parametro; bool pari; const char* nome; };
    const Caso casi[] = {
        {combi::kVortice, 1, false, "Vortice diretto"},     {combi::kVortice, 2, false, "Vortice inverso"},
        {combi::kSimmetrie, 1, false, "Simmetrie dirette"}, {combi::kSimmetrie, 2, false, "Simmetrie inverse"},
        {combi::kParalleli, 1, false, "Paralleli diretti"}, {combi::kParalleli, 2, false, "Paralleli inversi"},
        {combi::kResto, 7, false, "Resto a 7"},             {combi::kPosizioni, 3, false, "Numero in posizione 3"},
        {combi::kPariDispari, 0, true, "Numeri pari"},      {combi::kPariDispari, 0, false, "Numeri dispari"},
    };
    for (const Caso& c : casi) {
        combi::Condizione condizione;
        condizione.Tipo = c.tipo;
        condizione.Parametro = c.parametro;
        if (c.pari) condizione.Numeri[2] = -1;
        EXPECT_EQ(NomeMisura(condizione), c.nome);
    }
    const QStringList giochi = {"", "Lotto", "10ELotto", "10ELotto5M", "SuperEnalotto", ""};
    for (int codice = 0; codice <= 5; ++codice) EXPECT_EQ(NomeGioco(codice), giochi[codice]) << codice;
}

// The chart's axes carry grouped round labels; pointing at a bar tells it.
TEST(Statistica, IlGraficoHaTaccheLeggibiliEDiceIlValoreIndicato) {
    GraficoBarre grafico;
    grafico.resize(640, 360);
    const combi::Distribuzione d{{150, 1000}, {200, 1234}, {400, 1198766}};
    grafico.ImpostaDati(d, "Peso", [](int32_t v) { return v == 200; });
    const QString m = Migliaia();
    // 0..1,198,766 in about 6 ticks: steps of 500,000.
    EXPECT_EQ(grafico.AsseY()->categoriesLabels(),
              (QStringList{"0", "500" + m + "000", "1" + m + "000" + m + "000", "1" + m + "500" + m + "000"}));
    const QStringList x = grafico.AsseX()->categoriesLabels();
    ASSERT_GE(x.size(), 3);
    ASSERT_LE(x.size(), 12);
    double precedente = 0;
    for (const QString& etichetta : x) {
        const double valore = QString(etichetta).remove(m).toDouble();
        EXPECT_GE(valore, 150) << etichetta.toStdString();
        EXPECT_LE(valore, 400) << etichetta.toStdString();
        EXPECT_GT(valore, precedente);
        precedente = valore;
    }
    QSignalSpy indicato(&grafico, &GraficoBarre::ValoreIndicato);
    grafico.Indica(QPointF(199.7, 500), true);
    ASSERT_EQ(indicato.size(), 1);
    // 1234 of 1,201,000 columns: 0.1027...%.
    EXPECT_EQ(indicato[0][0].toString(), "Peso 200: 1" + m + "234 colonne (0" + Decimali() + "10 %)");
    grafico.Indica(QPointF(300, 10), true);  // no column has 300
    EXPECT_TRUE(indicato[1][0].toString().isEmpty());
    // A value is written as the editor's boxes take it, a count grouped.
    grafico.ImpostaDati({{1050, 2500}}, "Peso", {});
    grafico.Indica(QPointF(1050.2, 1), true);
    EXPECT_EQ(indicato[2][0].toString(), "Peso 1050: 2" + m + "500 colonne (100" + Decimali() + "00 %)");
    EXPECT_TRUE(grafico.AsseX()->categoriesLabels().contains("1050"));
}

// Not a check: with --screenshot (scripts/screenshot-editori.sh)
// it saves pictures of a few editors, of the preview, and of an editor beside
// its chart ("editore-grafico.png", the README's picture).
SCREENSHOT(SalvaImmaginiDegliEditori) {
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
    F_QuadroRecuperi quadro;
    quadro.LeggiRecuperiInseriti(Griglia({"3", "3", "7"}, {"", "", "1,2,-1"}));
    salva(quadro, "quadro-recuperi");

    // Peso over 30 numbers in class 5, values 150..250 accepted.
    ContestoEditore sistema{5, {}, 0, &dialoghi};
    for (int n = 3; n <= 90; n += 3) sistema.numeriSelezionati.push_back(n);
    auto peso = CreaEditore(combi::kPeso, sistema);
    for (int p = 1; p <= 5; ++p) Clic(*peso, QString("ChkCaselle_%1").arg(p));
    Scrivi(*peso, "TxtPunti_0", "150"), Scrivi(*peso, "TxtPunti_1", "250");
    Clic(*peso, "XPButton1_2");
    auto* anteprima = peso->findChild<F_Statistica*>();
    ASSERT_NE(anteprima, nullptr);
    QSignalSpy completata(anteprima, &F_Statistica::Completata);
    ASSERT_TRUE(completata.wait(20000));
    anteprima->findChild<GraficoBarre*>()->Indica(QPointF(231, 100), true);  // as the mouse on a bar
    salva(*anteprima, "statistica");
    peso->show();
    QTest::qWait(100);
    const QPixmap editore = peso->grab(), grafico = anteprima->grab();
    QPixmap insieme(editore.width() + 16 + grafico.width(), std::max(editore.height(), grafico.height()));
    insieme.fill(QColor(225, 225, 225));
    QPainter pittore(&insieme);
    pittore.drawPixmap(0, 0, editore);
    pittore.drawPixmap(editore.width() + 16, 0, grafico);
    pittore.end();
    EXPECT_TRUE(insieme.save(cartella + "/editore-grafico.png"));
}
