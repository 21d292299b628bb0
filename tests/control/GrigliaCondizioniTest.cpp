// The conditions grid. Scanning for the first free column down to column 0
// instead of 1 changes nothing: column 0 holds the heading "Condizione" and
// is never free; it is also hidden, so the empty-column mark reaching it
// is never seen. Likewise a combo's exact-text search running one index past
// its items (UtilitaSchermo) meets an empty text no caller asks for, a cell
// asked for one column past the grid is missing either way (the table has
// none there), and the number grid's spacing and button sizes one pixel
// apart are nothing a user can tell.
#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QScrollBar>

#include "GrigliaCondizioni.h"
#include "TestiGrigliaQt.h"

namespace {

void Riempi(GrigliaCondizioni& g, std::initializer_list<int> colonne) {
    for (int c : colonne) g.ImpostaTesto(1, c, QString("C%1").arg(c));
}

QStringList Nomi(const GrigliaCondizioni& g, int fino) {
    QStringList nomi;
    for (int c = 1; c <= fino; ++c) nomi << g.Testo(1, c);
    return nomi;
}

}  // namespace

TEST(GrigliaCondizioni, LayoutShapesAnEmptyGrid) {
    GrigliaCondizioni g;
    Riempi(g, {1, 2});
    g.resize(600, 400);
    g.show();
    g.horizontalScrollBar()->setValue(20);  // the user had scrolled far right
    g.LayOut();
    EXPECT_EQ(g.horizontalScrollBar()->value(), 0) << "a new system starts from its first condition";
    EXPECT_EQ(g.rowCount(), 6);
    EXPECT_EQ(g.columnCount(), 201);
    EXPECT_EQ(g.Testo(1, 0), "Condizione");
    EXPECT_EQ(g.Testo(5, 0), "Quadro Rec.");
    EXPECT_EQ(g.Testo(0, 1), "1");
    EXPECT_EQ(g.Testo(0, 200), "200");
    EXPECT_TRUE(g.item(0, 57)->font().bold());
    EXPECT_EQ(g.Testo(1, 1), "") << "layout empties the conditions";
    EXPECT_GE(g.rowHeight(2), 10 * g.rowHeight(1)) << "the tall Parametri row";
    EXPECT_EQ(g.ColonnaEvidenziata(), 0);
    EXPECT_FALSE(g.item(1, 3)->flags() & Qt::ItemIsSelectable) << "row 1 is fixed";
}

// Where a new condition goes, and the first empty column before the last
// condition (0: none).
TEST(GrigliaCondizioni, PrimaColonnaLiberaAndColonnaVuotaInterna) {
    struct Caso {
        const char* nome;
        std::vector<int> piene;
        int corrente;
        int attesa;
        int vuota;
    } casi[] = {
        {"empty grid", {}, 0, 1, 0},
        {"gap after the last condition", {1, 2, 3, 5}, 9, 6, 4},
        {"current empty column right of a filled one", {1, 2, 3, 5}, 4, 4, 4},
        {"current column filled", {1, 2, 3}, 2, 4, 0},
        {"the first column empty", {2, 3}, 0, 4, 1},
        {"the first column empty and current", {2, 3}, 1, 1, 1},
        {"current empty column, a filled one left, an empty one right", {1, 2, 3, 6}, 4, 4, 4},
        {"current empty column, an empty one left, a filled one right", {1, 5}, 4, 6, 2},
    };
    for (const Caso& caso : casi) {
        GrigliaCondizioni g;
        for (int c : caso.piene) g.ImpostaTesto(1, c, "Ponte");
        if (caso.corrente > 0) g.setCurrentCell(2, caso.corrente);
        EXPECT_EQ(g.PrimaColonnaLibera(), caso.attesa) << caso.nome;
        EXPECT_EQ(g.ColonnaVuotaInterna(), caso.vuota) << caso.nome;
    }
    GrigliaCondizioni piena;
    for (int c = 1; c <= 200; ++c) piena.ImpostaTesto(1, c, "Ponte");
    EXPECT_EQ(piena.PrimaColonnaLibera(), 0);
    EXPECT_EQ(piena.UltimaColonnaUsata(), 200);
}

TEST(GrigliaCondizioni, InsertAndDeleteMoveWholeColumns) {
    GrigliaCondizioni g;
    Riempi(g, {1, 2, 3});
    g.ImpostaTesto(3, 3, "0-1");
    g.InserisciColonna(2);
    EXPECT_EQ(Nomi(g, 4), (QStringList{"C1", "", "C2", "C3"}));
    EXPECT_EQ(g.Testo(3, 4), "0-1") << "every row moves";
    EXPECT_EQ(g.Testo(0, 2), "2") << "the number row stays";

    g.EliminaColonna(2);
    g.EliminaColonna(1);
    EXPECT_EQ(Nomi(g, 3), (QStringList{"C2", "C3", ""}));
    g.EliminaColonna(5);
    EXPECT_EQ(g.UltimaColonnaUsata(), 2) << "deleting an empty column past the end deletes nothing";

    GrigliaCondizioni ultima;
    ultima.ImpostaTesto(1, 200, "Perduta");
    ultima.ImpostaTesto(1, 199, "Spostata");
    ultima.InserisciColonna(199);
    EXPECT_EQ(ultima.Testo(1, 200), "Spostata") << "column 200's content is lost";
}

TEST(GrigliaCondizioni, LinkGroupCounts) {
    GrigliaCondizioni g;
    g.ImpostaTesto(1, 1, "LinkOpen");
    g.ImpostaTesto(1, 4, "LinkOpen");
    Riempi(g, {2, 3, 5, 6, 7});
    EXPECT_EQ(g.ContaCondizioniInLink(7), 3) << "stops at the nearest LinkOpen";
    EXPECT_EQ(g.ContaCondizioniInLink(4), 0) << "right after a LinkOpen";
    EXPECT_EQ(g.ContaCondizioniInLink(3), 2);
    GrigliaCondizioni senza;
    Riempi(senza, {1, 2, 3});
    EXPECT_EQ(senza.ContaCondizioniInLink(3), 3) << "no LinkOpen: every earlier column";
    EXPECT_EQ(senza.ContaCondizioniInLink(0), 0);
}

TEST(GrigliaCondizioni, WidthLimitsAndHighlight) {
    GrigliaCondizioni g;
    const int w = g.LarghezzaW();
    g.setColumnWidth(1, 2 * w);
    EXPECT_FALSE(g.CambiaLarghezzaColonne(-1)) << "one W is not more than one W";
    EXPECT_EQ(g.columnWidth(1), 2 * w);
    g.setColumnWidth(1, 50 * w);
    EXPECT_FALSE(g.CambiaLarghezzaColonne(+1));
    g.setColumnWidth(1, 10 * w);
    EXPECT_TRUE(g.CambiaLarghezzaColonne(+1));
    EXPECT_EQ(g.columnWidth(1), 11 * w);
    EXPECT_EQ(g.columnWidth(200), 11 * w);
    EXPECT_TRUE(g.CambiaLarghezzaColonne(0));  // a step that is not above 0 narrows
    EXPECT_EQ(g.columnWidth(1), 10 * w);

    g.resize(600, 500);
    g.PortaInVista(1);
    EXPECT_EQ(g.item(4, 1)->background().color(), g.ColoreSelezione());
    g.setCurrentCell(1, 1);  // the name row: bringing a column into view moves to row 2
    g.PortaInVista(3);
    EXPECT_EQ(g.ColonnaCorrente(), 3);
    EXPECT_EQ(g.currentRow(), 2);
    EXPECT_NE(g.item(4, 1)->background().color(), g.ColoreSelezione()) << "column 1 is repainted too";
    EXPECT_EQ(g.item(4, 3)->background().color(), g.ColoreSelezione());
    g.PortaInVista(150);
    EXPECT_EQ(g.ColonnaEvidenziata(), 150);
    EXPECT_NE(g.item(4, 3)->background().color(), g.ColoreSelezione()) << "the old column is repainted";
    EXPECT_TRUE(g.ColonnaInteramenteVisibile(150));
    g.PortaInVista(2);
    EXPECT_EQ(g.ColonnaSinistra(), 2) << "a column left of the view becomes the leftmost";
    g.ImpostaColonnaSinistra(40);
    EXPECT_EQ(g.ColonnaSinistra(), 40);
    for (int fuori : {0, -3, 201}) {
        g.ImpostaColonnaSinistra(fuori);
        EXPECT_EQ(g.ColonnaSinistra(), 40) << fuori << " is no column: the view stays";
    }

    // The colour is the background of the panel's hidden label, read anew.
    QLabel fonte;
    QPalette tavolozza = fonte.palette();
    tavolozza.setColor(fonte.backgroundRole(), QColor(250, 200, 60));
    fonte.setPalette(tavolozza);
    g.ImpostaFonteColoreSelezione(&fonte);
    g.PortaInVista(7);
    EXPECT_EQ(g.item(5, 7)->background().color(), QColor(250, 200, 60));
    EXPECT_EQ(g.palette().color(QPalette::Highlight), QColor(250, 200, 60)) << "the current cell too";
}

TEST(GrigliaCondizioni, TextsRoundTripWithLineBreaks) {
    GrigliaCondizioni g;
    QListWidget quadri;
    combi::TestiGriglia testi;
    testi.colonne.push_back({"", "Punti Col.", "01-02-03-04-\r\n05", "0-1", "2", "3"});
    testi.colonne.push_back({"", "LinkOpen", "L\r\ni", "", "", ""});
    testi.quadri = {"1,2,-1", "-1,-1,-0"};
    RiempiGriglia(g, quadri, testi);
    EXPECT_EQ(g.item(2, 1)->text(), "01-02-03-04-\n05") << "shown with Qt line breaks";
    const combi::TestiGriglia letti = LeggiTestiGriglia(g, quadri);
    ASSERT_EQ(letti.colonne.size(), 2u);
    for (int r = 1; r < 6; ++r) EXPECT_EQ(letti.colonne[0][r], testi.colonne[0][r]) << r;
    EXPECT_EQ(letti.colonne[1][2], "L\r\ni");
    EXPECT_EQ(letti.quadri, testi.quadri);
}
