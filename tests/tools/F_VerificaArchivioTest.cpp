// "Verifica su archivio" and the settings it keeps. Writing a prize with a
// field width of 1 instead of 0 changes nothing (a number is never shorter);
// nor does losing the bar's reset when a check starts, since the check's
// first report is 0 done. Saving the prizes one place past their table reads
// zeros in a release build; the sanitizer run of scripts/test.sh, with its
// index checks, is where it shows.
#include <gtest/gtest.h>

#include <QApplication>
#include <QChartView>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLineSeries>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <fstream>

#include "../control/Banco.h"
#include "../engine/ArchivioDiProva.h"
#include "AiutiStrumenti.h"
#include "F_Spoglio.h"
#include "F_VerificaArchivio.h"
#include "ImpostazioniStorico.h"
#include "Screenshot.h"

namespace {

using Tabella = std::vector<QStringList>;

// Four class-3 columns in a class-6 control, the archive of the engine's
// hand-worked test (their points are worked out there) with one line that is
// not a draw, and settings of its own.
struct Prova {
    QTemporaryDir cartella;
    QSettings impostazioni{cartella.filePath("prova.ini"), QSettings::IniFormat};
    Banco b;
    QString archivio = cartella.filePath("archivio.txt");

    Prova() {
        b.c.setClasse(6);
        b.c.ImpostaColonneSviluppo({combi::Colonna{}, {{1, 2, 3}}, {{1, 4, 5}}, {{2, 4, 6}}, {{7, 8, 9}}});
        std::ofstream(archivio.toStdString()) << combi::test::kArchivioDiProva;
        impostazioni.setValue("VerificaArchivio/Archivio", archivio);
    }
    // The prize of `punti` typed into its row of the table.
    static void Premio(F_VerificaArchivio& f, int punti, const QString& testo) {
        QTableWidget* g = f.GrdPremi();
        for (int r = 0; r < g->rowCount(); ++r)
            if (g->item(r, 0)->text() == QString::number(punti)) g->item(r, 1)->setText(testo);
    }
};

TEST(F_VerificaArchivio, OpensOnTheRememberedArchiveAndTheControlsGame) {
    Prova p;
    F_VerificaArchivio f(p.b.c, p.b.dialoghi, p.impostazioni);
    EXPECT_EQ(f.windowTitle(), "Verifica su archivio");
    EXPECT_EQ(f.LabArchivio()->text(), p.archivio);
    EXPECT_EQ(f.LabInfo()->text(), "Estrazioni lette: 7, righe scartate: 1");
    EXPECT_EQ(p.b.dialoghi.Tipi(), QStringList{"esclamazione"});
    EXPECT_EQ(p.b.dialoghi.Testi(), QStringList{"L'archivio ha 1 righe che non sono estrazioni valide:\n"
                                                "Riga 6: Bari vuole 5 numeri: la riga ne ha 4"});
    EXPECT_EQ(f.CmbGioco()->currentText(), "Lotto");
    EXPECT_TRUE(f.CmbRuota()->isEnabled());
    EXPECT_EQ(f.CmbPuntiMin()->currentText(), "2");
    EXPECT_EQ(f.TxtDal()->date(), QDate(2023, 12, 28));
    EXPECT_EQ(f.TxtAl()->date(), QDate(2024, 1, 11));
    EXPECT_EQ(f.GrdPremi()->rowCount(), 6);  // class 6, but Lotto draws five: 5..0 points

    f.CmbRuota()->setCurrentIndex(3);
    f.CmbGioco()->setCurrentText("SuperEnalotto");
    EXPECT_FALSE(f.CmbRuota()->isEnabled());
    EXPECT_EQ(f.CmbRuota()->currentText(), "Tutte");
    EXPECT_EQ(f.CmbPuntiMin()->currentText(), "3");
    EXPECT_EQ(f.GrdPremi()->rowCount(), 7);

    // The control's game picks the dialog's: both 10ELotto games draw twenty numbers.
    for (auto [giocoControllo, atteso] : {std::pair{2, "10ELotto"}, std::pair{3, "SuperEnalotto"}}) {
        p.b.c.CmbTipoGioco()->setCurrentIndex(giocoControllo);
        F_VerificaArchivio altro(p.b.c, p.b.dialoghi, p.impostazioni);
        EXPECT_EQ(altro.CmbGioco()->currentText(), atteso);
    }

    // Nothing to check: a message instead of a run.
    p.b.dialoghi.boxes.clear();
    p.b.c.ImpostaColonneSviluppo({combi::Colonna{}});
    f.XPButton1(0)->click();
    EXPECT_EQ(p.b.dialoghi.Testi(), QStringList{"Nessuna colonna da verificare: sviluppare prima il sistema"});
    p.impostazioni.remove("VerificaArchivio/Archivio");
    F_VerificaArchivio senzaArchivio(p.b.c, p.b.dialoghi, p.impostazioni);
    senzaArchivio.XPButton1(0)->click();
    EXPECT_EQ(p.b.dialoghi.Ultimo()->testo, "Scegliere l'archivio delle estrazioni");
}

TEST(F_VerificaArchivio, ShowsTheDrawsWithHitsTheChartAndTheMoneyOfThePrizesTyped) {
    Prova p;
    {
        F_VerificaArchivio f(p.b.c, p.b.dialoghi, p.impostazioni);
        p.b.dialoghi.boxes.clear();
        f.TxtPosta()->setValue(2.5);
        Prova::Premio(f, 2, "10");
        Prova::Premio(f, 3, "100");
        Prova::Premio(f, 4, "abc");
        EXPECT_EQ(p.b.dialoghi.Testi(), QStringList{"Premio non valido per 4 punti: \"abc\""});
        f.XPButton1(0)->click();
        EXPECT_EQ(p.b.dialoghi.boxes.size(), 1u);

        Tabella riepilogo = Riepilogo(5, {0, 0, 1, 5});
        riepilogo.insert(riepilogo.end(),
                         {{"Estrazioni controllate", "7"},
                          {"Estrazioni con vincite", "3"},
                          {"Migliore estrazione", "04/01/2024 Roma 01 02 03 40 41 (3 punti: 1 colonna)"},
                          {"Ritardo massimo", "2 estrazioni (dal 06/01/2024 al 09/01/2024)"}});
        EXPECT_EQ(Righe(f.LvRiepilogo()), riepilogo);
        // Only the draws with a column at two points or more; won = columns x prize x stake.
        EXPECT_EQ(Righe(f.LvEstrazioni()), (Tabella{{"2024-01-02", "Bari", "01 02 04 10 11", "2", "3", "75,00"},
                                                        {"2024-01-04", "Roma", "01 02 03 40 41", "3", "1", "250,00"},
                                                        {"2024-01-11", "Bari", "04 05 06 60 61", "2", "2", "50,00"}}));
        EXPECT_EQ(Righe(f.LvBilancio()), (Tabella{{"2023", "10,00", "0,00", "-10,00"},
                                                      {"2024", "60,00", "375,00", "315,00"},
                                                      {"Totale", "70,00", "375,00", "305,00"}}));
        // The chart has one point per date, the wheels of a date added up.
        const auto* serie = qobject_cast<QLineSeries*>(f.Grafico()->chart()->series().value(0));
        ASSERT_NE(serie, nullptr);
        QList<double> colonne;
        for (const QPointF& punto : serie->points()) colonne << punto.y();
        EXPECT_EQ(colonne, (QList<double>{0, 3, 1, 0, 0, 2}));
        EXPECT_EQ(QDateTime::fromMSecsSinceEpoch(qint64(serie->points()[2].x())).date(), QDate(2024, 1, 4));

        // Sorted by "Vincita" (numbers, descending), and still after a new check.
        f.OrdinaEstrazioni(6);
        f.XPButton1(0)->click();
        QStringList vinte;
        for (const QStringList& r : Righe(f.LvEstrazioni())) vinte << r[5];
        EXPECT_EQ(vinte, (QStringList{"250,00", "75,00", "50,00"}));
    }
    // The stake and the prize table of this game and class are remembered; another game has its own.
    F_VerificaArchivio riaperto(p.b.c, p.b.dialoghi, p.impostazioni);
    EXPECT_DOUBLE_EQ(riaperto.TxtPosta()->value(), 2.5);
    QStringList premi;
    for (int r = 0; r < riaperto.GrdPremi()->rowCount(); ++r) premi << riaperto.GrdPremi()->item(r, 1)->text();
    EXPECT_EQ(premi, (QStringList{"", "", "100,00", "10,00", "", ""}));
    riaperto.CmbGioco()->setCurrentText("10ELotto");
    for (int r = 0; r < riaperto.GrdPremi()->rowCount(); ++r) EXPECT_EQ(riaperto.GrdPremi()->item(r, 1)->text(), "");
}

// Fifteen refused lines are told one by one; past fifteen the list ends in "...".
TEST(F_VerificaArchivio, TellsUpToFifteenRefusedLines) {
    for (int scartate : {15, 16}) {
        Prova p;
        {
            std::ofstream archivio(p.archivio.toStdString());
            archivio << "2024-01-02;Bari;1;2;4;10;11\n";
            for (int i = 0; i < scartate; ++i) archivio << "2024-01-05;Bari;20;21;22;23\n";
        }
        F_VerificaArchivio f(p.b.c, p.b.dialoghi, p.impostazioni);
        ASSERT_EQ(p.b.dialoghi.boxes.size(), 1u);
        const QStringList righe = p.b.dialoghi.boxes[0].testo.split('\n');
        EXPECT_EQ(righe[0], QString("L'archivio ha %1 righe che non sono estrazioni valide:").arg(scartate));
        ASSERT_EQ(righe.size(), scartate == 15 ? 16 : 17) << scartate;
        EXPECT_EQ(righe[15], "Riga 16: Bari vuole 5 numeri: la riga ne ha 4");
        EXPECT_EQ(righe.back() == "...", scartate == 16);
    }
}

// The prize table kept in the settings, points 0..20: a hand-edited item out
// of range, not a number or negative is dropped alone.
TEST(ImpostazioniStorico, PrizeTableRoundTripsAndBadItemsDropAlone) {
    QTemporaryDir cartella;
    QSettings settings(cartella.filePath("premi.ini"), QSettings::IniFormat);
    ImpostazioniStorico impostazioni(settings);
    combi::TabellaPremi premi{};
    premi[0] = 5, premi[3] = 0.1 + 0.2, premi[20] = 1e6;
    impostazioni.SetPremi(combi::GiocoArchivio::kDieciELotto, 20, premi);
    EXPECT_EQ(impostazioni.Premi(combi::GiocoArchivio::kDieciELotto, 20), premi);
    EXPECT_EQ(impostazioni.Premi(combi::GiocoArchivio::kDieciELotto, 19), combi::TabellaPremi{});
    const QStringList chiavi = settings.allKeys();
    ASSERT_EQ(chiavi.size(), 1);
    settings.setValue(chiavi[0], QStringList{"0=5", "21=3", "-1=2", "x=1", "4=abc", "2=7", "5=-1", "6=inf", "7"});
    combi::TabellaPremi attesi{};
    attesi[0] = 5, attesi[2] = 7;
    EXPECT_EQ(impostazioni.Premi(combi::GiocoArchivio::kDieciELotto, 20), attesi);
    // The stake: 1 when never set or unreadable, any amount from 0 up otherwise.
    EXPECT_EQ(impostazioni.Posta(), 1.0);
    for (double posta : {0.5, 0.0, 2.0}) {
        impostazioni.SetPosta(posta);
        EXPECT_EQ(impostazioni.Posta(), posta);
    }
    impostazioni.SetPosta(-1);
    EXPECT_EQ(impostazioni.Posta(), 1.0);
}

TEST(F_VerificaArchivio, DoubleClickOpensTheWinningsCheckOnThatDraw) {
    Prova p;
    F_VerificaArchivio f(p.b.c, p.b.dialoghi, p.impostazioni);
    f.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&f));
    f.XPButton1(0)->click();
    f.TabRisultati()->setCurrentIndex(1);
    QApplication::processEvents();
    QTreeWidget* lista = f.LvEstrazioni();
    ASSERT_EQ(lista->topLevelItem(1)->text(1), "Roma");
    Tabella riepilogo;
    QString numeri;
    QTimer::singleShot(0, &f, [&] {
        auto* spoglio = qobject_cast<F_Spoglio*>(QApplication::activeModalWidget());
        ASSERT_NE(spoglio, nullptr);
        numeri = spoglio->Text1()->text();
        riepilogo = Righe(spoglio->ListView3());
        spoglio->close();
    });
    const QRect riga = lista->visualItemRect(lista->topLevelItem(1));
    // A user's double click starts with a click: the view pairs the two on the same row.
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, riga.center());
    QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, riga.center());
    EXPECT_EQ(numeri, "1,2,3,40,41");
    EXPECT_EQ(riepilogo, Riepilogo(6, {0, 0, 0, 1, 0}));
}

TEST(F_VerificaArchivio, StopAskedDuringTheCheckKeepsTheDrawsAlreadyChecked) {
    Prova p;
    F_VerificaArchivio f(p.b.c, p.b.dialoghi, p.impostazioni);
    f.ImpostaDivisione(1, 2);
    p.b.dialoghi.risposte = {true};
    QString testoDuranteLaVerifica;
    bool verificaAbilitata = true;
    QTimer::singleShot(0, &f, [&] {
        testoDuranteLaVerifica = f.XPButton1(1)->text();
        verificaAbilitata = f.XPButton1(0)->isEnabled();
        f.XPButton1(1)->click();
    });
    f.XPButton1(0)->click();
    EXPECT_EQ(testoDuranteLaVerifica, "STOP");
    EXPECT_FALSE(verificaAbilitata);
    EXPECT_EQ(p.b.dialoghi.Ultimo()->testo, "Interrompere ?");
    EXPECT_TRUE(f.Esito().interrotto);
    EXPECT_EQ(f.LabInfo()->text(), "Interrotta dopo 2 estrazioni su 7");
    EXPECT_EQ(f.XPButton1(1)->text(), "CHIUDI");
    EXPECT_TRUE(f.XPButton1(0)->isEnabled());
}

}  // namespace

// Not a check: with --screenshot (scripts/screenshot-strumenti.sh)
// the pages over the synthetic archive are saved as pictures.
SCREENSHOT(VerificaArchivio) {
    Prova p;
    p.impostazioni.setValue("VerificaArchivio/Archivio",
                            QFileInfo(__FILE__).dir().filePath("../../esempi/ArchivioSintetico.txt"));
    p.b.NumeriDa1A(20, 5);
    p.b.c.GestSviluppo();
    F_VerificaArchivio f(p.b.c, p.b.dialoghi, p.impostazioni);
    f.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&f));
    Prova::Premio(f, 2, "2,5");
    Prova::Premio(f, 3, "45");
    f.XPButton1(0)->click();
    const char* nomi[4] = {"archivio-riepilogo", "archivio-estrazioni", "archivio-grafico", "archivio-bilancio"};
    for (int pagina = 0; pagina < 4; ++pagina) {
        f.TabRisultati()->setCurrentIndex(pagina);
        QTest::qWait(200);
        EXPECT_TRUE(f.grab().save(cartella + "/" + nomi[pagina] + ".png"));
    }
}
