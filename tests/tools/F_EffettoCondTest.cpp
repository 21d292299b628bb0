#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "../control/Banco.h"
#include "AiutiStrumenti.h"
#include "CollegaStrumenti.h"
#include "F_EffettoCond.h"
#include "F_VisualizzaColonne.h"
#include "GrigliaCondizioni.h"
#include "Screenshot.h"

namespace {

// 10 numbers in class 5 (252 integral columns) under a link group.
void SviluppaSistemaDiProva(Banco& b) {
    b.NumeriDa1A(10, 5);
    b.Condizione(1, "Consecutivi", "C", "0");
    b.Condizione(2, "LinkOpen");
    b.Condizione(3, "Punti Col.", "01", "1", "0", "1");
    b.Condizione(4, "Ampiezza", "A", "5-7");
    b.Condizione(5, "LinkClose", "L", "1-2");
    b.c.GetLbQuadroRec()->addItem("1,1,-1");
    b.c.GestSviluppo();
}

TEST(F_EffettoCond, CountsAndSharesOfTheLastDevelopment) {
    Banco b;
    SviluppaSistemaDiProva(b);
    ASSERT_GT(b.c.QuantitaColonne(), 0);
    F_EffettoCond effetto(b.c);
    EXPECT_EQ(effetto.windowTitle(), "Effetto condizioni");
    QTreeWidget* lista = effetto.ListView1();
    EXPECT_EQ(Testi(lista->headerItem()),
              QStringList({"Id", "Condizione", "Superate", "%", "Scartate", "%", "Recuperate", "%"}));
    ASSERT_EQ(lista->topLevelItemCount(), 5);

    // Known counts: 6 columns of 1..10 have no neighbours; 126 hold the 1,
    // and the other 126 (value 0) are recoverable.
    EXPECT_EQ(Testi(lista->topLevelItem(0)), QStringList({"1", "Consecutivi", "6", "2", "246", "97", "0", "0"}));
    EXPECT_EQ(Testi(lista->topLevelItem(1)), QStringList({"2", "LinkOpen", "", "", "", "", "", ""}));
    EXPECT_EQ(Testi(lista->topLevelItem(2)),
              QStringList({"3", "Punti Col.", "126", "50", "126", "50", "126", "50"}));
    EXPECT_EQ(Testi(lista->topLevelItem(4)), QStringList({"5", "LinkClose", "", "", "", "", "", ""}));

    // Every condition is measured on every column. Ampiezza a = largest -
    // smallest: (10 - a) places for the pair, C(a - 1, 3) middles; 5..7 gives
    // 5*4 + 4*10 + 3*20 = 120 of 252 (47 %, cut down), the other 132 (52 %).
    EXPECT_EQ(Testi(lista->topLevelItem(3)), QStringList({"4", "Ampiezza", "120", "47", "132", "52", "0", "0"}));
    // Figures to the right, the condition's name to the left.
    for (int c = 0; c < lista->columnCount(); ++c)
        EXPECT_EQ(lista->topLevelItem(3)->textAlignment(c) & Qt::AlignRight ? 1 : 0, c == 1 ? 0 : 1) << c;

    // Shares are of the integral system as it is now: with 7 numbers left
    // (21 columns) the counts of the 252 exceed it and stop at 100.
    for (int n = 8; n <= 10; ++n) b.c.SelezionaNumero(int16_t(n), false);
    effetto.Carica();
    ASSERT_EQ(lista->topLevelItemCount(), 5);
    EXPECT_EQ(Testi(lista->topLevelItem(0)), QStringList({"1", "Consecutivi", "6", "28", "246", "100", "0", "0"}));
}

TEST(F_EffettoCond, RowClickBringsTheConditionIntoView) {
    Banco b;
    SviluppaSistemaDiProva(b);
    F_EffettoCond effetto(b.c);
    effetto.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&effetto));
    b.c.SetColonnaGrid(1);
    Clicca(effetto.ListView1(), effetto.ListView1()->topLevelItem(3));
    EXPECT_EQ(b.c.GetGridCond()->ColonnaCorrente(), 4);
    EXPECT_TRUE(effetto.isVisible()) << "the dialog stays open";
    Clicca(effetto.ListView1(), effetto.ListView1()->topLevelItem(1));
    EXPECT_EQ(b.c.GetGridCond()->ColonnaCorrente(), 2);
}

// The toolbar opens the effect of the conditions, the column viewer and the
// winnings check modally on the control's system, with no message.
TEST(CollegaStrumenti, ToolbarOpensTheToolsModallyOnTheControlsSystem) {
    Banco b;
    CollegaStrumenti(b.c, b.dialoghi);
    SviluppaSistemaDiProva(b);
    const size_t boxPrima = b.dialoghi.boxes.size();
    const int colonne = b.c.QuantitaColonne();
    ASSERT_GT(colonne, 0);
    ASSERT_LT(colonne, F_VisualizzaColonne::kRighe) << "the viewer shows them all";
    const struct {
        const char* comando;
        const char* titolo;
        int righe;      // of its (first) list
        QString cella;  // row 0, column 1, when there are rows
    } casi[] = {
        {"EffettoCondizioni", "Effetto condizioni", 5, "Consecutivi"},
        {"VisualizzaColonne", "Colonne condizionate", colonne, b.c.GetColonnaSviluppo(1)},
        {"ConfrontoCondSuCol", "Spoglio vincite", 0, ""},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.comando);
        QString titolo, cella;
        int righe = -1;
        bool modale = false;
        QTimer::singleShot(0, [&] {
            QWidget* finestra = QApplication::activeModalWidget();
            if (finestra == nullptr) return;
            titolo = finestra->windowTitle();
            modale = finestra->isModal();
            const QTreeWidget* lista = finestra->findChild<QTreeWidget*>();
            righe = lista->topLevelItemCount();
            if (righe > 0) cella = lista->topLevelItem(0)->text(1);
            finestra->close();
        });
        b.c.EseguiComando(caso.comando);
        EXPECT_EQ(titolo, caso.titolo);
        EXPECT_TRUE(modale);
        EXPECT_EQ(righe, caso.righe);
        EXPECT_EQ(cella, caso.cella);
        EXPECT_EQ(b.dialoghi.boxes.size(), boxPrima) << "no message along the way";
    }
}

SCREENSHOT(EffettoCondizioni) {
    Banco b;
    SviluppaSistemaDiProva(b);
    F_EffettoCond effetto(b.c);
    effetto.show();
    QTest::qWait(200);
    EXPECT_TRUE(effetto.grab().save(cartella + "/effetto-condizioni.png"));
}

}  // namespace
