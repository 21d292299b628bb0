#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTreeWidget>

#include "../control/Banco.h"
#include "AiutiStrumenti.h"
#include "CollegaStrumenti.h"
#include "F_NavigaSistema.h"
#include "GrigliaCondizioni.h"
#include "RegistroControllo.h"
#include "UtilitaSchermo.h"
#include "Screenshot.h"

namespace {

// "Testo(child,child,...)" depth first; the key and tag of every node are
// checked on the way.
QString Descrivi(const QTreeWidgetItem* nodo) {
    const int tag = nodo->data(0, F_NavigaSistema::kRuoloTag).toInt();
    const QString chiave = nodo->data(0, F_NavigaSistema::kRuoloChiave).toString();
    EXPECT_EQ(chiave, tag == 0 ? QString("sistema") : "Cond" + QString::number(tag)) << nodo->text(0).toStdString();
    QStringList figli;
    for (int i = 0; i < nodo->childCount(); ++i) figli << Descrivi(nodo->child(i));
    return figli.isEmpty() ? nodo->text(0) : nodo->text(0) + "(" + figli.join(",") + ")";
}

QString Albero(const F_NavigaSistema& navigatore) {
    const QTreeWidget* albero = navigatore.TreeView1();
    if (albero->topLevelItemCount() != 1) return "radici: " + QString::number(albero->topLevelItemCount());
    return Descrivi(albero->topLevelItem(0));
}

// Two groups, the first holding a nested one, between plain conditions.
void SistemaConGruppi(Banco& b) {
    b.Condizione(1, "Peso", "Caselle :\r\n1", "1-5");
    b.Condizione(2, "LinkOpen", "L");
    b.Condizione(3, "Resto", "Resto a : 2", "0");
    b.Condizione(4, "LinkOpen", "L");
    b.Condizione(5, "Ampiezza", "A", "5-7");
    b.Condizione(6, "LinkClose", "L", "1");
    b.Condizione(7, "LinkClose", "L", "0-2");
    b.Condizione(8, "LinkOpen", "L");
    b.Condizione(9, "Ponte", "P", "0-1");
    b.Condizione(10, "LinkClose", "L", "1");
    b.Condizione(11, "Vortice", "Diretto", "1");
}

const QString kAlberoConGruppi =
    "Sistema(Peso,LinkOpen(Resto,LinkOpen(Ampiezza,LinkClose (1)),LinkClose (0-2)),"
    "LinkOpen(Ponte,LinkClose (1)),Vortice)";

F_NavigaSistema* Navigatore(Banco& b) {
    F_NavigaSistema* n = b.c.findChild<F_NavigaSistema*>();
    return n != nullptr && n->isVisible() ? n : nullptr;
}

TEST(F_NavigaSistema, TreeOfTheLinkGroups) {
    struct Caso {
        const char* nome;
        std::function<void(Banco&)> griglia;
        QString atteso;
    } casi[] = {
        {"groups nested and one after the other", SistemaConGruppi, kAlberoConGruppi},
        {"one group between plain conditions",
         [](Banco& b) {
             b.Condizione(1, "Peso", "Caselle :\r\n1", "1-5");
             b.Condizione(2, "LinkOpen", "L");
             b.Condizione(3, "Resto", "Resto a : 2", "0");
             b.Condizione(4, "Ampiezza", "A", "5-7");
             b.Condizione(5, "LinkClose", "L", "0-2");
             b.Condizione(6, "Ponte", "P", "0-1");
         },
         "Sistema(Peso,LinkOpen(Resto,Ampiezza,LinkClose (0-2)),Ponte)"},
        {"an empty first column gives the root alone",
         [](Banco& b) { b.Condizione(2, "Peso", "Caselle :\r\n1", "1-5"); }, "Sistema"},
    };
    for (const Caso& caso : casi) {
        Banco b;
        caso.griglia(b);
        F_NavigaSistema navigatore(b.c);
        EXPECT_EQ(Albero(navigatore), caso.atteso) << caso.nome;
        EXPECT_TRUE(navigatore.TreeView1()->topLevelItem(0)->isExpanded()) << caso.nome;
    }
}

// One modeless window above the others, whose open tree follows the
// deletions, until Deinit unloads it.
TEST(F_NavigaSistema, ToolbarShowsOneModelessWindowFollowingDeletionsUntilDeinit) {
    Banco b;
    CollegaStrumenti(b.c, b.dialoghi);
    SistemaConGruppi(b);
    b.c.EseguiComando("Naviga");
    F_NavigaSistema* navigatore = Navigatore(b);
    ASSERT_NE(navigatore, nullptr);
    EXPECT_FALSE(navigatore->isModal());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(navigatore->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(FormCaricato("F_NavigaSistema"));
    EXPECT_EQ(Albero(*navigatore), kAlberoConGruppi);

    // While it stays open the grid's changes do not show, and "Naviga"
    // brings back the same window.
    b.Condizione(12, "Baricentro", "B", "30-60");
    b.c.EseguiComando("Naviga");
    EXPECT_EQ(Navigatore(b), navigatore);
    EXPECT_EQ(b.c.findChildren<F_NavigaSistema*>().size(), 1);
    EXPECT_EQ(Albero(*navigatore), kAlberoConGruppi);

    // Closed and opened again, it reads the grid afresh.
    navigatore->close();
    b.c.EseguiComando("Naviga");
    navigatore = Navigatore(b);
    ASSERT_NE(navigatore, nullptr);
    EXPECT_EQ(Albero(*navigatore), "Sistema(Peso,LinkOpen(Resto,LinkOpen(Ampiezza,LinkClose (1)),LinkClose (0-2)),"
                                   "LinkOpen(Ponte,LinkClose (1)),Vortice,Baricentro)");
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(b.c.findChildren<F_NavigaSistema*>().size(), 1) << "the closed window was unloaded";
    EXPECT_TRUE(b.dialoghi.boxes.empty());

    b.c.SetColonnaGrid(5);  // Ampiezza: its group keeps only the LinkClose
    b.c.EseguiComando("Delete");
    EXPECT_EQ(Albero(*navigatore), "Sistema(Peso,LinkOpen(Resto,LinkOpen(LinkClose (1)),LinkClose (0-2)),"
                                   "LinkOpen(Ponte,LinkClose (1)),Vortice,Baricentro)");
    b.c.SetColonnaGrid(2);  // the outer LinkOpen: its close now ends at the root
    b.c.EseguiComando("Delete");
    EXPECT_EQ(Albero(*navigatore), "Sistema(Peso,Resto,LinkOpen(LinkClose (1)),LinkClose (0-2),"
                                   "LinkOpen(Ponte,LinkClose (1)),Vortice,Baricentro)");
    b.c.Deinit();
    EXPECT_EQ(b.c.findChild<F_NavigaSistema*>(), nullptr);
    EXPECT_FALSE(FormCaricato("F_NavigaSistema"));
    EXPECT_EQ(ControlloRegistrato(), nullptr);
    b.c.Deinit();  // twice, or with no window: nothing to do
    EXPECT_EQ(b.c.findChild<F_NavigaSistema*>(), nullptr);
}

TEST(F_NavigaSistema, NodeClickBringsTheConditionIntoView) {
    Banco b;
    SistemaConGruppi(b);
    F_NavigaSistema navigatore(b.c);
    navigatore.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&navigatore));
    QTreeWidget* albero = navigatore.TreeView1();
    albero->expandAll();
    b.c.SetColonnaGrid(1);
    struct Caso {
        const char* chiave;
        int colonna;
    } casi[] = {{"Cond5", 5}, {"Cond10", 10}, {"Cond2", 2}, {"sistema", 2} /* the root moves nothing */};
    for (const Caso& caso : casi) {
        QTreeWidgetItem* nodo = navigatore.Nodo(caso.chiave);
        ASSERT_NE(nodo, nullptr) << caso.chiave;
        Clicca(albero, nodo);
        EXPECT_EQ(b.c.GetGridCond()->ColonnaCorrente(), caso.colonna) << caso.chiave;
    }
}

SCREENSHOT(NavigaSistema) {
    Banco b;
    SistemaConGruppi(b);
    F_NavigaSistema navigatore(b.c);
    navigatore.TreeView1()->expandAll();
    navigatore.show();
    QTest::qWait(200);
    EXPECT_TRUE(navigatore.grab().save(cartella + "/naviga-sistema.png"));
}

}  // namespace
