// "Verifica garanzia" on systems small enough to work out by hand.
//
// The numbers 1..8 in class 6 have 28 columns; a 6-number column of them
// leaves out exactly two of the eight.
//  - All 28 kept: any m <= 6 of the picked numbers drawn lie in one column,
//    so the table reads m -> m, and nothing is a hole at any points.
//  - All but {1,2,3,4,5,6} kept: with 6 points that column is the one hole
//    (every other column leaves out a number of it); with 5 points none.
//  - Only A = {1,2,3,4,5,6} and B = {3,4,5,6,7,8} kept. A misses 7 and 8, B
//    misses 1 and 2. For m drawn numbers S, the best column makes
//    max(m - |S ∩ {7,8}|, m - |S ∩ {1,2}|), smallest when S takes as many of
//    {1,2} and of {7,8} evenly:
//      m = 1: 1;  m = 2: {1,7} -> 1;  m = 3: {1,7,x} -> 2;  m = 4: {1,2,7,8} -> 2;
//      m = 5: {1,2,7,8,x} -> 3;  m = 6: 4;  m = 7: 5;  m = 8: 6.
//    The holes with 5 points: a column C of the 28 makes 6 - |left out ∩ A|
//    with A, so it is a hole when both numbers it leaves out are in A and in
//    B, that is in {3,4,5,6}: the C(4,2) = 6 columns leaving out two of
//    3..6. With 4 points there is none; with 6 points every column but A and
//    B, 26.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>

#include "../control/Banco.h"
#include "Screenshot.h"
#include "../engine/ColonnaDiProva.h"
#include "AiutiStrumenti.h"
#include "F_VerificaGaranzia.h"
#include "F_VisualizzaColonne.h"
#include "Formato.h"
#include "Garanzia.h"

namespace {

using combi::Colonna;
using combi::test::Col;

// The 28 columns of 1..8 in class 6, in lexicographic order.
std::vector<Colonna> VentottoColonne() { return combi::ColonneIntegrali(combi::test::DaA(1, 8), 6); }

const Colonna kA = Col({1, 2, 3, 4, 5, 6});
const Colonna kB = Col({3, 4, 5, 6, 7, 8});

struct BancoGaranzia {
    Banco b;
    QTemporaryDir cartella;

    // The control holds `tenute` for the picked numbers 1..8 in class 6.
    explicit BancoGaranzia(const std::vector<Colonna>& tenute, int gioco = 0) {
        b.c.CmbTipoGioco()->setCurrentIndex(gioco);
        b.NumeriDa1A(8, 6);
        std::vector<Colonna> conZero = tenute;
        conZero.insert(conZero.begin(), Colonna{});
        b.c.ImpostaColonneSviluppo(conZero);
    }
};

std::vector<std::pair<int, int>> Tabella(const F_VerificaGaranzia& f) {
    std::vector<std::pair<int, int>> righe;
    const QTableWidget* t = f.GrdGaranzia();
    for (int r = 0; r < t->rowCount(); ++r) righe.emplace_back(t->item(r, 0)->text().toInt(), t->item(r, 1)->text().toInt());
    return righe;
}

std::vector<std::pair<int, int>> Righe(std::initializer_list<int> punti) {
    std::vector<std::pair<int, int>> righe;
    int m = 1;
    for (int p : punti) righe.emplace_back(m++, p);
    return righe;
}

TEST(F_VerificaGaranzia, TableOfTheSystemsWorkedOutByHand) {
    struct Caso {
        const char* nome;
        std::vector<Colonna> tenute;
        int gioco;     // the control's game: 0 Lotto, 3 SuperEnalotto
        int estratti;  // 0: as the game says
        std::vector<std::pair<int, int>> attesa;
    };
    const Caso casi[] = {
        {"tutte, Lotto", VentottoColonne(), 0, 0, Righe({1, 2, 3, 4, 5})},
        {"tutte, SuperEnalotto", VentottoColonne(), 3, 0, Righe({1, 2, 3, 4, 5, 6})},
        {"A e B, Lotto", {kA, kB}, 0, 0, Righe({1, 1, 2, 2, 3})},
        {"A e B, SuperEnalotto", {kA, kB}, 3, 0, Righe({1, 1, 2, 2, 3, 4})},
        {"A e B, 3 estratti", {kA, kB}, 0, 3, Righe({1, 1, 2})},
        {"A e B, 20 estratti su 8 numeri", {kA, kB}, 0, 20, Righe({1, 1, 2, 2, 3, 4, 5, 6})},
        // A alone: 7 and 8 drawn first make nothing.
        {"solo A, 8 estratti", {kA}, 0, 8, Righe({0, 0, 1, 2, 3, 4, 5, 6})},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE(c.nome);
        BancoGaranzia g(c.tenute, c.gioco);
        F_VerificaGaranzia f(g.b.c, g.b.dialoghi);
        EXPECT_EQ(f.windowTitle(), "Verifica garanzia");
        EXPECT_EQ(f.TxtEstratti()->value(), c.gioco == 3 ? 6 : 5);
        EXPECT_EQ(f.LabColonne()->text(), QString::number(c.tenute.size()));
        EXPECT_EQ(f.LabNumeri()->text(), "8: 01 02 03 04 05 06 07 08");
        if (c.estratti > 0) f.TxtEstratti()->setValue(c.estratti);
        f.CmdTabella()->click();
        EXPECT_EQ(f.GrdGaranzia()->horizontalHeaderItem(0)->text(), "Indovinati");
        EXPECT_EQ(f.GrdGaranzia()->horizontalHeaderItem(1)->text(), "Punti garantiti");
        EXPECT_EQ(Tabella(f), c.attesa);
        EXPECT_EQ(f.LabInfo()->text(), QString("Tabella calcolata su %1 colonne").arg(c.tenute.size()));
        EXPECT_EQ(f.PanPerc()->value(), 100);
        EXPECT_TRUE(g.b.dialoghi.boxes.empty());
    }
}

TEST(F_VerificaGaranzia, HolesOfTheSystemsWorkedOutByHand) {
    std::vector<Colonna> senzaA = VentottoColonne();
    senzaA.erase(std::find(senzaA.begin(), senzaA.end(), kA));
    struct Caso {
        const char* nome;
        std::vector<Colonna> tenute;
        int punti;
        std::vector<Colonna> buchi;  // empty with `quanti` > 0: only counted
        int quanti;
    };
    const Caso casi[] = {
        {"tutte, 6 punti", VentottoColonne(), 6, {}, 0},
        {"tutte tranne A, 6 punti", senzaA, 6, {kA}, 1},
        {"tutte tranne A, 5 punti", senzaA, 5, {}, 0},
        {"A e B, 4 punti", {kA, kB}, 4, {}, 0},
        {"A e B, 5 punti", {kA, kB}, 5,
         {Col({1, 2, 3, 4, 7, 8}), Col({1, 2, 3, 5, 7, 8}), Col({1, 2, 3, 6, 7, 8}), Col({1, 2, 4, 5, 7, 8}),
          Col({1, 2, 4, 6, 7, 8}), Col({1, 2, 5, 6, 7, 8})},
         6},
        {"A e B, 6 punti", {kA, kB}, 6, {}, 26},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE(c.nome);
        BancoGaranzia g(c.tenute);
        F_VerificaGaranzia f(g.b.c, g.b.dialoghi);
        EXPECT_TRUE(f.OptIntegrale()->isChecked());
        EXPECT_EQ(f.TxtClasse()->value(), 6);
        EXPECT_FALSE(f.CmdVisualizza()->isEnabled());
        f.TxtPunti()->setValue(c.punti);
        f.CmdBuchi()->click();
        EXPECT_EQ(f.LabBuchi()->text(), QString("Buchi : %1").arg(c.quanti));
        EXPECT_EQ(int(f.Buchi().size()), c.quanti);
        if (!c.buchi.empty()) {
            EXPECT_EQ(f.Buchi(), c.buchi);
        }
        for (const Colonna& buco : f.Buchi())
            EXPECT_EQ(std::find(c.tenute.begin(), c.tenute.end(), buco), c.tenute.end()) << "a kept column is no hole";
        EXPECT_EQ(f.LabInfo()->text(), QString("Ricerca terminata: 28 colonne da coprire con %1 punti").arg(c.punti));
        EXPECT_EQ(f.CmdVisualizza()->isEnabled(), c.quanti > 0);
        EXPECT_TRUE(g.b.dialoghi.boxes.empty());
    }
}

// The columns to cover read from a file give the same holes as the integral
// system they hold; a file not chosen is asked for. The holes open in the
// column viewer.
TEST(F_VerificaGaranzia, HolesAgainstAColumnsFileShownInTheColumnViewer) {
    BancoGaranzia g({kA, kB});
    F_VerificaGaranzia f(g.b.c, g.b.dialoghi);
    f.OptFile()->setChecked(true);
    EXPECT_FALSE(f.TxtClasse()->isEnabled());
    EXPECT_TRUE(f.CmdFile()->isEnabled());
    f.TxtPunti()->setValue(5);
    f.CmdBuchi()->click();
    EXPECT_EQ(g.b.dialoghi.Testi(), QStringList{"Scegliere il file delle colonne da coprire"});

    // A itself, the three holes that leave out 3 and one of 4..6, and the
    // column that leaves out 6 and 8 (five numbers of A).
    std::vector<Colonna> daCoprire = {kA, Col({1, 2, 4, 5, 7, 8}), Col({1, 2, 4, 6, 7, 8}), Col({1, 2, 5, 6, 7, 8}),
                                      Col({1, 2, 3, 4, 5, 7})};
    const QString file = ScriviColonne(g.cartella, "Coprire.col", daCoprire);
    g.b.dialoghi.fileScelti.push_back(file);
    f.CmdFile()->click();
    EXPECT_EQ(f.LabFile()->text(), file);
    EXPECT_EQ(g.b.dialoghi.dialoghiFile.back().titolo, "Colonne da coprire");
    f.CmdBuchi()->click();
    EXPECT_EQ(f.LabBuchi()->text(), "Buchi : 3");
    EXPECT_EQ(f.Buchi(), std::vector<Colonna>(daCoprire.begin() + 1, daCoprire.begin() + 4));

    ASSERT_TRUE(f.CmdVisualizza()->isEnabled());
    QString titolo, posizione, prima;
    int righe = -1;
    QTimer::singleShot(0, [&] {
        auto* vista = qobject_cast<F_VisualizzaColonne*>(QApplication::activeModalWidget());
        if (vista == nullptr) return;
        titolo = vista->windowTitle();
        posizione = vista->LabPosizione()->text();
        righe = vista->ListView1()->topLevelItemCount();
        prima = vista->ListView1()->topLevelItem(0)->text(1);
        vista->close();
    });
    f.CmdVisualizza()->click();
    EXPECT_EQ(titolo, "Buchi");
    EXPECT_EQ(posizione, "colonna 1 di 3");
    EXPECT_EQ(righe, 3);
    EXPECT_EQ(prima, "01 02 04 05 07 08");
}

TEST(F_VerificaGaranzia, SaysWhatIsMissing) {
    {
        BancoGaranzia g({});
        F_VerificaGaranzia f(g.b.c, g.b.dialoghi);
        f.CmdTabella()->click();
        f.CmdBuchi()->click();
        EXPECT_EQ(g.b.dialoghi.Testi(), QStringList(2, "Nessuna colonna da verificare: sviluppare prima il sistema"));
    }
    {
        BancoGaranzia g({kA});
        for (int n = 1; n <= 8; ++n) g.b.c.SelezionaNumero(int16_t(n), false);
        F_VerificaGaranzia f(g.b.c, g.b.dialoghi);
        EXPECT_EQ(f.LabNumeri()->text(), "Nessun numero scelto");
        f.CmdTabella()->click();
        f.CmdBuchi()->click();
        EXPECT_EQ(g.b.dialoghi.Testi(), QStringList(2, "Scegliere i numeri del sistema"));
        EXPECT_EQ(g.b.dialoghi.boxes[0].titolo, "Verifica garanzia");
    }
}

// A large table and a large search for holes stopped with "Annulla": what
// was done so far, the window free again and closable. Meanwhile it refuses
// to close. Ten disjoint columns over 1..60; the holes among the 50,063,860
// columns of 1..60 would not even fit, so the search covers 1..30 in class 6
// (593,775 columns) with 3 points.
TEST(F_VerificaGaranzia, AnnullaStopsALargeRun) {
    for (const bool tabella : {true, false}) {
        SCOPED_TRACE(tabella ? "tabella" : "buchi");
        Banco b;
        b.NumeriDa1A(tabella ? 60 : 30);
        std::vector<Colonna> tenute = {Colonna{}};
        for (int i = 0; i < 10; ++i)
            tenute.push_back(Col({6 * i + 1, 6 * i + 2, 6 * i + 3, 6 * i + 4, 6 * i + 5, 6 * i + 6}));
        b.c.ImpostaColonneSviluppo(tenute);
        F_VerificaGaranzia f(b.c, b.dialoghi);
        f.TxtEstratti()->setValue(20);
        f.TxtPunti()->setValue(3);
        f.show();
        bool occupato = false, chiusa = true, annullaAttivo = false;
        Spia spia([&] {
            if (!f.Occupato() || occupato) return;
            occupato = true;
            annullaAttivo = f.CmdAnnulla()->isEnabled() && !f.CmdTabella()->isEnabled() && !f.CmdBuchi()->isEnabled();
            f.close();
            chiusa = !f.isVisible();
            f.CmdAnnulla()->click();
        });
        (tabella ? f.CmdTabella() : f.CmdBuchi())->click();
        ASSERT_TRUE(occupato) << "the run never pumped the events";
        EXPECT_TRUE(annullaAttivo);
        EXPECT_FALSE(chiusa);
        EXPECT_FALSE(f.Occupato());
        if (tabella) {
            EXPECT_LT(f.GrdGaranzia()->rowCount(), 20);
            EXPECT_EQ(f.LabInfo()->text(),
                      QString("Calcolo interrotto: %1 righe su 20").arg(f.GrdGaranzia()->rowCount()));
        } else {
            // The search stopped before the end: the holes it gives are the
            // first ones of the whole list.
            EXPECT_EQ(f.LabInfo()->text(), QString("Ricerca interrotta: %1 colonne da coprire con 3 punti")
                                               .arg(QString::fromStdString(combi::FormatNumero(593775))));
            const std::vector<Colonna> tutti = combi::test::BuchiAForzaBruta(
                std::vector<Colonna>(tenute.begin() + 1, tenute.end()), combi::ColonneIntegrali(combi::test::DaA(1, 30), 6), 3);
            EXPECT_LT(f.Buchi().size(), tutti.size());
            EXPECT_TRUE(std::equal(f.Buchi().begin(), f.Buchi().end(), tutti.begin()))
                << "the holes found before the stop, in order";
            EXPECT_EQ(f.LabBuchi()->text(),
                      "Buchi : " + QString::fromStdString(combi::FormatNumero(double(f.Buchi().size()))));
        }
        EXPECT_FALSE(f.CmdAnnulla()->isEnabled());
        EXPECT_TRUE(f.CmdTabella()->isEnabled());
        f.CmdChiudi()->click();
        EXPECT_FALSE(f.isVisible());
    }
}

// Not a check: with --screenshot (scripts/screenshot-strumenti.sh)
// it saves a picture of the window after the table and the holes.
SCREENSHOT(VerificaGaranzia) {
    BancoGaranzia g({kA, kB}, 3);
    F_VerificaGaranzia f(g.b.c, g.b.dialoghi);
    f.show();
    f.CmdTabella()->click();
    f.TxtPunti()->setValue(5);
    f.CmdBuchi()->click();
    QTest::qWait(200);
    EXPECT_TRUE(f.grab().save(cartella + "/verifica-garanzia.png"));
}

}  // namespace
