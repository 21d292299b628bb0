#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QWheelEvent>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTreeWidget>

#include "../control/Banco.h"
#include "../engine/ColonnaDiProva.h"
#include "F_VisualizzaColonne.h"
#include "Formato.h"
#include "Screenshot.h"

namespace {

using combi::Colonna;

// `quante` kept columns; column i holds 1 + i % 85 and the next five numbers,
// so that every row's text tells which column it is.
void ImpostaColonne(CombiFiltroA& c, int quante) {
    std::vector<Colonna> v(static_cast<size_t>(quante) + 1);
    for (int i = 1; i <= quante; ++i)
        for (int p = 1; p <= 6; ++p) v[static_cast<size_t>(i)][p] = static_cast<uint8_t>(i % 85 + p);
    c.ImpostaColonneSviluppo(v);
}

// The "Colonna" cells of the list, in order.
std::vector<int> Righe(const F_VisualizzaColonne& f) {
    std::vector<int> ids;
    for (int r = 0; r < f.ListView1()->topLevelItemCount(); ++r)
        ids.push_back(f.ListView1()->topLevelItem(r)->text(0).toInt());
    return ids;
}

using combi::test::DaA;

TEST(F_VisualizzaColonne, PagesTwentyOneColumnsFromTheSlider) {
    struct Caso {
        const char* nome;
        int colonne;
        bool cursore;
        int massimo;
        int posizione;  // where the slider is moved, 0: left at 1
        std::vector<int> righe;
    };
    const Caso casi[] = {
        {"nessuna", 0, false, 1, 0, {}},
        {"una", 1, false, 1, 0, {1}},
        {"cinque", 5, true, 5, 0, DaA(1, 5)},
        {"cinque, all'ultima", 5, true, 5, 5, {5}},
        {"ventidue", 22, true, 22, 0, DaA(1, 21)},
        {"mille, alla 100", 1000, true, 1000, 100, DaA(100, 120)},
        {"mille, verso la fine", 1000, true, 1000, 990, DaA(990, 1000)},
        {"mille, oltre la fine", 1000, true, 1000, 5000, {1000}},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE(c.nome);
        Banco b;
        ImpostaColonne(b.c, c.colonne);
        F_VisualizzaColonne f(b.c);
        EXPECT_EQ(f.windowTitle(), "Colonne condizionate");
        EXPECT_EQ(f.Slider1()->isEnabled(), c.cursore);
        EXPECT_EQ(f.Slider1()->minimum(), 1);
        EXPECT_EQ(f.Slider1()->maximum(), c.massimo);
        if (c.posizione > 0) f.Slider1()->setValue(c.posizione);
        EXPECT_EQ(Righe(f), c.righe);
        for (int r = 0; r < f.ListView1()->topLevelItemCount(); ++r) {
            const QTreeWidgetItem* voce = f.ListView1()->topLevelItem(r);
            EXPECT_EQ(voce->text(1), b.c.GetColonnaSviluppo(voce->text(0).toInt()));
        }
    }
}

TEST(F_VisualizzaColonne, FollowsTheSliderWhileDraggedAndShowsTheColumnTexts) {
    Banco b;
    ImpostaColonne(b.c, 40);
    F_VisualizzaColonne f(b.c);
    ASSERT_EQ(f.ListView1()->headerItem()->text(0), "Colonna");
    ASSERT_EQ(f.ListView1()->headerItem()->text(1), "Numeri");
    EXPECT_EQ(f.ListView1()->topLevelItem(0)->text(1), "02 03 04 05 06 07");
    f.Slider1()->setSliderDown(true);
    f.Slider1()->setSliderPosition(30);
    EXPECT_EQ(Righe(f), DaA(30, 40)) << "while dragging";
    f.Slider1()->setSliderDown(false);
    f.Slider1()->triggerAction(QAbstractSlider::SliderToMinimum);
    EXPECT_EQ(Righe(f), DaA(1, 21));
    f.show();
    f.XPButton1()->click();
    EXPECT_FALSE(f.isVisible());
}

void Rotella(F_VisualizzaColonne& f, int angolo) {
    QWidget* v = f.ListView1()->viewport();
    const QPointF centro(v->width() / 2.0, v->height() / 2.0);
    QWheelEvent evento(centro, v->mapToGlobal(centro), QPoint(), QPoint(0, angolo), Qt::NoButton, Qt::NoModifier,
                       Qt::NoScrollPhase, false);
    QApplication::sendEvent(v, &evento);
}

// The wheel and the keys page as the slider does; the line under the list
// says where the page starts, with the count grouped as every count is.
TEST(F_VisualizzaColonne, WheelAndKeysMoveThePageAndTheLineSaysWhere) {
    Banco b;
    ImpostaColonne(b.c, 1000);
    F_VisualizzaColonne f(b.c);
    const int passo = QApplication::wheelScrollLines();
    const QString mille = "1" + QString::fromStdString(combi::SeparatoreMigliaia()) + "000";
    EXPECT_EQ(f.LabPosizione()->text(), "colonna 1 di " + mille);
    Rotella(f, 120);  // up, already at the top
    EXPECT_EQ(f.Slider1()->value(), 1);
    Rotella(f, -120);
    EXPECT_EQ(Righe(f).front(), 1 + passo);
    Rotella(f, -60);  // half a notch waits for the other half
    EXPECT_EQ(f.Slider1()->value(), 1 + passo);
    Rotella(f, -60);
    EXPECT_EQ(f.Slider1()->value(), 1 + 2 * passo);
    EXPECT_EQ(f.LabPosizione()->text(), QString("colonna %1 di ").arg(1 + 2 * passo) + mille);
    Rotella(f, 120);  // one notch up
    EXPECT_EQ(f.Slider1()->value(), 1 + passo);
    Rotella(f, -120);
    QTest::keyClick(f.ListView1(), Qt::Key_PageDown);
    EXPECT_EQ(f.Slider1()->value(), 1 + 2 * passo + F_VisualizzaColonne::kRighe);
    QTest::keyClick(f.ListView1(), Qt::Key_End);
    EXPECT_EQ(Righe(f), DaA(1000 - F_VisualizzaColonne::kRighe + 1, 1000));
    QTest::keyClick(f.ListView1(), Qt::Key_Home);
    EXPECT_EQ(Righe(f).front(), 1);
    QTest::keyClick(f.ListView1(), Qt::Key_Down);
    EXPECT_EQ(f.Slider1()->value(), 2);
    QTest::keyClick(f.ListView1(), Qt::Key_PageDown);
    QTest::keyClick(f.ListView1(), Qt::Key_PageUp);
    QTest::keyClick(f.ListView1(), Qt::Key_Up);
    EXPECT_EQ(f.Slider1()->value(), 1);
    for (int i = 0; i < 400; ++i) Rotella(f, -120);  // past the end: the last column alone
    EXPECT_EQ(Righe(f), std::vector<int>{1000});

    Banco vuoto;
    F_VisualizzaColonne nessuna(vuoto.c);
    EXPECT_EQ(nessuna.LabPosizione()->text(), "Nessuna colonna");
}

// A taller window shows more columns: as many whole rows as the list holds.
TEST(F_VisualizzaColonne, ATallerWindowShowsMoreRows) {
    Banco b;
    ImpostaColonne(b.c, 1000);
    F_VisualizzaColonne f(b.c);
    f.resize(520, 600);
    f.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&f));
    f.resize(520, 1400);
    QTest::qWait(50);
    const QTreeWidget* lista = f.ListView1();
    const int altezzaRiga = lista->visualItemRect(lista->topLevelItem(0)).height();
    ASSERT_GT(altezzaRiga, 0);
    const int attese = lista->viewport()->height() / altezzaRiga;
    ASSERT_GT(attese, F_VisualizzaColonne::kRighe);
    EXPECT_EQ(Righe(f), DaA(1, attese));
    EXPECT_LE(lista->visualItemRect(lista->topLevelItem(attese - 1)).bottom(), lista->viewport()->height());
    EXPECT_EQ(f.Slider1()->pageStep(), attese);
}

// Not a check: with --screenshot (scripts/screenshot-strumenti.sh)
// it saves a picture of the viewer paged to column 100 of 1000.
SCREENSHOT(VisualizzaColonne) {
    Banco b;
    ImpostaColonne(b.c, 1000);
    F_VisualizzaColonne f(b.c);
    f.Slider1()->setValue(100);
    f.show();
    QTest::qWait(200);
    EXPECT_TRUE(f.grab().save(cartella + "/visualizza-colonne.png"));
}

}  // namespace
