#include <gtest/gtest.h>

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include <vector>

#include "../engine/ColonnaDiProva.h"
#include "../control/Banco.h"
#include "AiutiStrumenti.h"
#include "ClsOrdinaLv.h"
#include "F_Spoglio.h"
#include "Screenshot.h"

namespace {

// What the user does: type the draw, pick the minimum, press the first button.
void Controlla(F_Spoglio& f, const QString& estrazione, const QString& minimo = {}) {
    f.Text1()->setText(estrazione);
    if (!minimo.isEmpty()) f.CmbPuntiMin()->setCurrentText(minimo);
    f.XPButton1(0)->click();
}

void ClicIntestazione(QTreeWidget* lista, int sezione) {
    QHeaderView* h = lista->header();
    const QPoint punto(h->sectionViewportPosition(sezione) + h->sectionSize(sezione) / 2, h->height() / 2);
    QTest::mouseClick(h->viewport(), Qt::LeftButton, {}, punto);
}

using combi::test::Col;

}  // namespace

TEST(F_Spoglio, OpensWithItsPagesAndTheMinimumOfTheGame) {
    Banco b;
    F_Spoglio lotto(b.c, b.dialoghi);
    EXPECT_EQ(lotto.windowTitle(), "Spoglio vincite");
    QStringList voci;
    for (int i = 0; i < lotto.CmbPuntiMin()->count(); ++i) voci << lotto.CmbPuntiMin()->itemText(i);
    EXPECT_EQ(voci, (QStringList{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
    EXPECT_EQ(lotto.CmbPuntiMin()->currentText(), "2");
    EXPECT_EQ(Testi(lotto.ListView1()->headerItem()), (QStringList{"Colonna", "Numeri", "Punti"}));
    EXPECT_EQ(Testi(lotto.ListView2()->headerItem()),
              (QStringList{"Condizione", "Punti", "Recupero", "Punti effettivi", "Esito"}));
    EXPECT_EQ(Testi(lotto.ListView3()->headerItem()), (QStringList{"Vincita", "Colonne"}));
    QTabWidget* tab = lotto.TabStrip1();
    ASSERT_EQ(tab->count(), 3);
    EXPECT_EQ(QStringList({tab->tabText(0), tab->tabText(1), tab->tabText(2)}),
              (QStringList{"Vincite", "Confronto condizioni", "Riepilogo"}));
    lotto.show();
    QTreeWidget* liste[3] = {lotto.ListView1(), lotto.ListView2(), lotto.ListView3()};
    for (int scelta = 2; scelta >= 0; --scelta) {
        tab->setCurrentIndex(scelta);
        for (int i = 0; i < 3; ++i) EXPECT_EQ(liste[i]->isVisible(), i == scelta) << scelta << " " << i;
    }
    EXPECT_EQ(lotto.ColonnaOrdinamento(), 0);

    for (int gioco : {1, 2, 3}) {
        b.c.CmbTipoGioco()->setCurrentIndex(gioco);
        F_Spoglio altro(b.c, b.dialoghi);
        EXPECT_EQ(altro.CmbPuntiMin()->currentText(), "3") << gioco;
    }
    lotto.XPButton1(1)->click();
    EXPECT_FALSE(lotto.isVisible());
    EXPECT_TRUE(b.dialoghi.boxes.empty());
}

TEST(F_Spoglio, ChecksTheDevelopedColumnsAndSummarisesByPoints) {
    Banco b;
    b.NumeriDa1A(10, 5);
    b.c.GestSviluppo();
    ASSERT_EQ(b.c.QuantitaColonne(), 252);
    b.dialoghi.boxes.clear();
    F_Spoglio f(b.c, b.dialoghi);

    Controlla(f, "1,2,3,4,5", "2");
    EXPECT_TRUE(b.dialoghi.boxes.empty());
    // 5 of 1..10 sharing p numbers with 1..5: C(5, p) * C(5, 5 - p).
    EXPECT_EQ(Righe(f.ListView3()), Riepilogo(5, {1, 25, 100, 100}));
    // The 252 columns in the order developed (ascending), counted apart: the
    // listed ones are those with 2 or more of 1..5, under their number.
    std::vector<QStringList> vincenti;
    int numero = 0;
    for (int a = 1; a <= 6; ++a)
        for (int b2 = a + 1; b2 <= 7; ++b2)
            for (int c = b2 + 1; c <= 8; ++c)
                for (int d = c + 1; d <= 9; ++d)
                    for (int e = d + 1; e <= 10; ++e) {
                        ++numero;
                        const int punti = (a <= 5) + (b2 <= 5) + (c <= 5) + (d <= 5) + (e <= 5);
                        if (punti < 2) continue;
                        vincenti.push_back({QString::number(numero),
                                            QString::asprintf("%02d %02d %02d %02d %02d", a, b2, c, d, e),
                                            QString::number(punti)});
                    }
    ASSERT_EQ(numero, 252);
    ASSERT_EQ(vincenti.size(), 226u);  // 252 less the C(5,4)C(5,1) + 1 columns with 0 or 1 point
    EXPECT_EQ(Righe(f.ListView1()), vincenti);

    // A number typed twice scores once; a higher minimum lists fewer rows.
    Controlla(f, "1,1,2,2,3", "3");
    EXPECT_EQ(Righe(f.ListView3()), Riepilogo(5, {0, 0, 21}));
    EXPECT_EQ(f.ListView1()->topLevelItemCount(), 21);
}

TEST(F_Spoglio, OnlyColumnsWithEnoughPointsAreListed) {
    struct Caso {
        const char* nome;
        std::vector<combi::Colonna> colonne;
        int classe;  // game index 0 Lotto (class 5), 3 SuperEnalotto (class 6)
        QString estrazione, minimo;
        std::vector<QStringList> vincite, riepilogo;
    };
    const std::vector<combi::Colonna> quattro = {Col({5, 12, 30, 40, 50}), Col({1, 2, 3, 5, 90}),
                                                 Col({5, 12, 20, 60, 90}), Col({12, 13, 14, 15, 16})};
    const std::vector<QStringList> treVincenti = {
        {"1", "05 12 30 40 50", "2"}, {"2", "01 02 03 05 90", "2"}, {"3", "05 12 20 60 90", "3"}};
    const Caso casi[] = {
        {"5,12,90 from two points", quattro, 0, "5,12,90", "2", treVincenti, Riepilogo(5, {0, 0, 1, 2})},
        {"blanks between the numbers, as a player types them", quattro, 0, " 5  12 90 ", "2", treVincenti,
         Riepilogo(5, {0, 0, 1, 2})},
        {"semicolons and commas mixed", {Col({5, 12, 30, 40, 50}), Col({12, 13, 14, 15, 16})}, 0, "90;12 , 5", "2",
         {{"1", "05 12 30 40 50", "2"}}, Riepilogo(5, {0, 0, 0, 1})},
        {"empty draw: checked all the same", {Col({1, 2, 3, 4, 5}), Col({6, 7, 8, 9, 10})}, 0, "", "1", {},
         Riepilogo(5, {0, 0, 0, 0, 0})},
        {"no kept columns", {}, 0, "1,2,3", "2", {}, Riepilogo(5, {0, 0, 0, 0})},
        {"class 6, minimum 3: every row down to 3 points",
         {Col({1, 2, 3, 4, 5, 6}), Col({1, 2, 3, 7, 8, 9}), Col({1, 2, 10, 11, 12, 13})}, 3, "1,2,3,4,5", "3",
         {{"1", "01 02 03 04 05 06", "5"}, {"2", "01 02 03 07 08 09", "3"}}, Riepilogo(6, {0, 1, 0, 1})},
    };
    for (const Caso& caso : casi) {
        Banco b;
        b.c.CmbTipoGioco()->setCurrentIndex(caso.classe);
        std::vector<combi::Colonna> colonne{combi::Colonna{}};
        colonne.insert(colonne.end(), caso.colonne.begin(), caso.colonne.end());
        b.c.ImpostaColonneSviluppo(colonne);
        F_Spoglio f(b.c, b.dialoghi);
        Controlla(f, caso.estrazione, caso.minimo);
        EXPECT_EQ(Righe(f.ListView1()), caso.vincite) << caso.nome;
        EXPECT_EQ(Righe(f.ListView3()), caso.riepilogo) << caso.nome;
        EXPECT_TRUE(b.dialoghi.boxes.empty()) << caso.nome;
    }
}

TEST(F_Spoglio, WrongDrawsAreRefusedAndTheListsKept) {
    Banco b;
    b.c.ImpostaColonneSviluppo({combi::Colonna{}, Col({1, 2, 3, 4, 5}), Col({6, 7, 8, 9, 10})});
    F_Spoglio f(b.c, b.dialoghi);
    Controlla(f, "1,2,6", "1");
    const auto vincite = Righe(f.ListView1());
    const auto confronto = Righe(f.ListView2());
    const auto riepilogo = Righe(f.ListView3());
    ASSERT_EQ(vincite.size(), 2u);

    const QString venti = "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20";
    const struct {
        QString estrazione, messaggio;
    } casi[] = {
        {"0,5", "Inserire numeri da 1 a 90"},
        {"5,91", "Inserire numeri da 1 a 90"},
        {"5,,6", "Inserire numeri da 1 a 90"},
        {"5,x", "Inserire numeri da 1 a 90"},
        {venti + ",21", "La colonna vincente deve contenere massimo 20 numeri"},
        {venti + ",0", "La colonna vincente deve contenere massimo 20 numeri"},
    };
    for (const auto& caso : casi) {
        b.dialoghi.boxes.clear();
        Controlla(f, caso.estrazione);
        EXPECT_EQ(b.dialoghi.Tipi(), QStringList{"esclamazione"}) << caso.estrazione.toStdString();
        EXPECT_EQ(b.dialoghi.Testi(), QStringList{caso.messaggio});
        EXPECT_EQ(Righe(f.ListView1()), vincite);
        EXPECT_EQ(Righe(f.ListView2()), confronto);
        EXPECT_EQ(Righe(f.ListView3()), riepilogo);
    }
    b.dialoghi.boxes.clear();
    Controlla(f, venti);
    EXPECT_TRUE(b.dialoghi.boxes.empty()) << "twenty numbers are accepted";
    EXPECT_EQ(Righe(f.ListView3()), Riepilogo(5, {2, 0, 0, 0, 0}));
}

// The line under the box follows the typing and shows the numbers as the
// check will read them; a refused draw shows why, before VERIFICA.
TEST(F_Spoglio, TheNumbersReadAreShownUnderTheBox) {
    Banco b;
    F_Spoglio f(b.c, b.dialoghi);
    const struct {
        QString testo, riga;
    } casi[] = {
        {"", "Numeri letti: nessuno"},
        {"3 12 24 50 77", "Numeri letti: 3 12 24 50 77"},
        {"3,12;24  50 ;77", "Numeri letti: 3 12 24 50 77"},
        {"3 12 91", "Numeri letti: 3 12 ? \u2013 Inserire numeri da 1 a 90"},
        {"5,,7", "Numeri letti: 5 ? 7 \u2013 Inserire numeri da 1 a 90"},
        {"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21",
         "Numeri letti: 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 \u2013 "
         "La colonna vincente deve contenere massimo 20 numeri"},
    };
    for (const auto& caso : casi) {
        f.Text1()->clear();
        QTest::keyClicks(f.Text1(), caso.testo);
        EXPECT_EQ(f.LabNumeriLetti()->text(), caso.riga) << caso.testo.toStdString();
    }
}

TEST(F_Spoglio, AFailingCheckIsReportedAsCritical) {
    Banco b;
    b.c.ImpostaColonneSviluppo({combi::Colonna{}, Col({1, 2, 3, 4, 5})});
    F_Spoglio f(b.c, b.dialoghi);
    Controlla(f, "1,2", "1");
    const auto riepilogo = Righe(f.ListView3());
    ASSERT_EQ(riepilogo.size(), 5u);
    b.c.CmbClasse()->setCurrentIndex(-1);  // no class to check with
    b.dialoghi.boxes.clear();
    Controlla(f, "1,2");
    ASSERT_EQ(b.dialoghi.boxes.size(), 1u);
    EXPECT_EQ(b.dialoghi.boxes[0].tipo, "critico");
    EXPECT_EQ(b.dialoghi.boxes[0].titolo, "F_Spoglio.VerificaVincite");
    EXPECT_TRUE(b.dialoghi.boxes[0].testo.startsWith("5- ")) << b.dialoghi.boxes[0].testo.toStdString();
    EXPECT_EQ(f.ListView1()->topLevelItemCount(), 0);
    EXPECT_EQ(Righe(f.ListView3()), riepilogo) << "the summary keeps the last good check";
}

TEST(F_Spoglio, ConditionsOfTheGridAgainstTheDrawnNumbers) {
    Banco b;
    b.Condizione(1, "Punti Col.", "10-20-30", "2");
    b.Condizione(2, "LinkOpen");
    b.Condizione(3, "Consecutivi", "C", "0", "1");  // fails, recoverable without a panel
    b.Condizione(4, "Consecutivi", "C", "0");      // fails
    b.Condizione(5, "LinkClose", "L", "1");
    F_Spoglio f(b.c, b.dialoghi);
    const QString estrazione = "40,10,20,21,70";  // out of order: checked as typed
    Controlla(f, estrazione);
    ASSERT_TRUE(b.dialoghi.boxes.empty()) << b.dialoghi.Ultimo()->testo.toStdString();

    // Worked out by hand: 10 and 20 of the set are drawn (2 points, passed);
    // as typed, only 20-21 are next to each other (1 consecutive pair: the
    // first Consecutivi recovers it, the second fails); link rows show their
    // number and name only. No recovery reads "0-0".
    const QStringList attese[5] = {{"1 - Punti Col.", "2", "0-0", "2", "Si"},
                                   {"2 - LinkOpen", "", "", "", ""},
                                   {"3 - Consecutivi", "0", "1", "1", "Si"},
                                   {"4 - Consecutivi", "0", "0-0", "1", "No"},
                                   {"5 - LinkClose", "", "", "", ""}};
    QTreeWidget* lista = f.ListView2();
    ASSERT_EQ(lista->topLevelItemCount(), 5);
    const QColor verde(0, 255, 0), giallo(255, 255, 0), rosso(255, 0, 0);
    const QColor colori[5] = {verde, {}, giallo, rosso, {}};
    for (int r = 0; r < 5; ++r) {
        EXPECT_EQ(Testi(lista->topLevelItem(r)), attese[r]) << r;
        if (colori[r].isValid()) { EXPECT_EQ(lista->topLevelItem(r)->foreground(3).color(), colori[r]) << r; }
    }

    // The same numbers in another order are not sorted first: 21 right
    // after 20 no longer makes a consecutive pair.
    Controlla(f, "70,21,20,10,40");
    EXPECT_EQ(lista->topLevelItem(2)->text(3), "0");
    EXPECT_EQ(lista->topLevelItem(2)->text(4), "Si");
}

TEST(F_Spoglio, HeaderClicksSortAndANewCheckKeepsTheOrder) {
    Banco b;
    b.NumeriDa1A(10, 5);
    b.c.GestSviluppo();
    F_Spoglio f(b.c, b.dialoghi);
    f.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&f));
    Controlla(f, "1,2,3,4,5", "3");
    QTreeWidget* lista = f.ListView1();
    const int righe = lista->topLevelItemCount();
    ASSERT_EQ(righe, 126);

    auto nonCrescente = [&](int colonna) {
        for (int r = 1; r < lista->topLevelItemCount(); ++r)
            if (lista->topLevelItem(r)->text(colonna).toInt() > lista->topLevelItem(r - 1)->text(colonna).toInt())
                return false;
        return true;
    };
    ClicIntestazione(lista, 2);  // "Punti"
    EXPECT_EQ(f.ColonnaOrdinamento(), 3);
    EXPECT_EQ(f.OrdineOrdinamento(), 1);
    EXPECT_TRUE(nonCrescente(2));
    EXPECT_EQ(Testi(lista->topLevelItem(0)), (QStringList{"1", "01 02 03 04 05", "5"}));
    EXPECT_EQ(IconaIntestazione(*lista, 3), 2);
    EXPECT_EQ(IconaIntestazione(*lista, 1), 0);

    ClicIntestazione(lista, 2);
    EXPECT_EQ(f.OrdineOrdinamento(), 0);
    EXPECT_EQ(IconaIntestazione(*lista, 3), 1);
    EXPECT_EQ(lista->topLevelItem(righe - 1)->text(2), "5");

    // A new check comes out sorted the same way.
    Controlla(f, "6,7,8,9,10");
    ASSERT_EQ(lista->topLevelItemCount(), 126);
    EXPECT_EQ(Testi(lista->topLevelItem(125)), (QStringList{"252", "06 07 08 09 10", "5"}));
    for (int r = 1; r < 126; ++r)
        ASSERT_LE(lista->topLevelItem(r - 1)->text(2).toInt(), lista->topLevelItem(r)->text(2).toInt()) << r;
    EXPECT_EQ(IconaIntestazione(*lista, 3), 1);

    // "Colonna" by value (252 above 99), "Numeri" as text.
    ClicIntestazione(lista, 0);
    EXPECT_EQ(f.ColonnaOrdinamento(), 1);
    EXPECT_EQ(f.OrdineOrdinamento(), 1);
    EXPECT_TRUE(nonCrescente(0));
    EXPECT_EQ(lista->topLevelItem(0)->text(0), "252");
    EXPECT_EQ(IconaIntestazione(*lista, 3), 0);
    EXPECT_EQ(IconaIntestazione(*lista, 1), 2);
    ClicIntestazione(lista, 1);
    for (int r = 1; r < righe; ++r)
        ASSERT_GE(lista->topLevelItem(r - 1)->text(1), lista->topLevelItem(r)->text(1)) << r;
    EXPECT_EQ(lista->topLevelItem(0)->text(1), "06 07 08 09 10");
}

SCREENSHOT(Spoglio) {
    Banco b;
    b.NumeriDa1A(14, 5);
    b.Condizione(1, "Punti Col.", "01-02-03-04-\r\n05", "1-2-3");
    b.Condizione(2, "Consecutivi", "C", "0-1", "2");
    b.Condizione(3, "Consecutivi", "C", "0");
    b.c.GestSviluppo();
    F_Spoglio f(b.c, b.dialoghi);
    f.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&f));
    Controlla(f, "2,3,4,11,40", "2");
    ClicIntestazione(f.ListView1(), 2);
    const char* nomi[3] = {"spoglio-vincite", "spoglio-confronto", "spoglio-riepilogo"};
    for (int pagina = 0; pagina < 3; ++pagina) {
        f.TabStrip1()->setCurrentIndex(pagina);
        QTest::qWait(200);
        EXPECT_TRUE(f.grab().save(cartella + "/" + nomi[pagina] + ".png"));
    }
}
