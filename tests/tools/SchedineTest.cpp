// "Stampa schedine": the game grids, the pages, the marks, the PDF file and
// the "P" button with nothing to print.
// Mutation testing leaves the exact shades of the slips' colours (one unit
// of red or blue more or less) unchecked: no reader of a slip could tell.
// Nor can the grid's vertical centring be seen: on every slip the grid is
// as tall as its area, so there is no room above or below to share out.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QPrintPreviewDialog>
#include <QTimer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <set>

#include "../engine/ColonnaDiProva.h"
#include "../control/Banco.h"
#include "AnteprimaSchedine.h"
#include "GrigliaSchedina.h"
#include "ImpaginaSchedine.h"
#include "Screenshot.h"

namespace {

using combi::test::Col;

// `quante` class-5 columns: column i holds i, i+10, i+20, i+30, i+40.
DatiSchedine Dati(const QString& gioco, int quante) {
    DatiSchedine d{"Esempio.sic", gioco, 5, QDate(2025, 11, 23), {}};
    for (int i = 1; i <= quante; ++i) d.colonne.push_back(Col({i, i + 10, i + 20, i + 30, i + 40}));
    return d;
}

const QSizeF kA4(1240, 1754);  // 150 dpi portrait

QImage Pagina(const ImpaginaSchedine& stampa, int indice) {
    QImage immagine(kA4.toSize(), QImage::Format_RGB32);
    immagine.fill(Qt::white);
    QPainter pittore(&immagine);
    stampa.DisegnaPagina(pittore, QRectF(QPointF(0, 0), kA4), indice);
    return immagine;
}

// The colour of a box away from the number written in its middle.
int Luminosita(const QImage& immagine, const QRectF& casella) {
    const QPoint p = (casella.topLeft() + QPointF(casella.width() * 0.22, casella.height() * 0.22)).toPoint();
    return qGray(immagine.pixel(p));
}

}  // namespace

TEST(Schedine, EachGameHasItsGrid) {
    struct Caso { const char* gioco; int numero, riga, colonna; };
    const Caso casi[] = {
        {"Lotto", 1, 0, 0}, {"Lotto", 10, 0, 9}, {"Lotto", 11, 1, 0}, {"Lotto", 90, 8, 9}, {"Lotto", 45, 4, 4},
        {"10ELotto", 23, 2, 2}, {"10ELotto5M", 90, 8, 9},
        {"SuperEnalotto", 1, 0, 0}, {"SuperEnalotto", 2, 1, 0}, {"SuperEnalotto", 10, 9, 0},
        {"SuperEnalotto", 11, 0, 1}, {"SuperEnalotto", 90, 9, 8}, {"SuperEnalotto", 45, 4, 4},
    };
    for (const Caso& c : casi) {
        const GrigliaSchedina g = GrigliaDelGioco(c.gioco);
        EXPECT_EQ(g.Riga(c.numero), c.riga) << c.gioco << " " << c.numero;
        EXPECT_EQ(g.Colonna(c.numero), c.colonna) << c.gioco << " " << c.numero;
    }
    for (const char* gioco : {"Lotto", "SuperEnalotto"}) {
        const GrigliaSchedina g = GrigliaDelGioco(gioco);
        std::set<std::pair<int, int>> caselle;
        for (int n = 1; n <= 90; ++n) {
            caselle.insert({g.Riga(n), g.Colonna(n)});
            EXPECT_EQ(g.Numero(g.Riga(n), g.Colonna(n)), n) << gioco;
        }
        EXPECT_EQ(caselle.size(), 90u) << gioco << ": one box per number";
    }
}

TEST(Schedine, PagesHeadersAndMarks) {
    const ImpaginaSchedine lotto(Dati("Lotto", 15), Impaginazione::Schedine);
    EXPECT_EQ(lotto.PerPagina(kA4), 6);
    EXPECT_EQ(lotto.Pagine(kA4), 3);
    EXPECT_EQ(lotto.PerPagina(kA4.transposed()), 6);
    EXPECT_EQ(ImpaginaSchedine(Dati("Lotto", 6), Impaginazione::Schedine).Pagine(kA4), 1);
    EXPECT_EQ(ImpaginaSchedine(Dati("Lotto", 7), Impaginazione::Schedine).Pagine(kA4), 2);
    EXPECT_EQ(lotto.IntestazioneSinistra(), "Sistema: Esempio.sic \u2013 Lotto, classe 5");
    EXPECT_EQ(lotto.IntestazioneDestra(2, 3), "23/11/2025 \u2013 pagina 2 di 3");
    DatiSchedine nuovo = Dati("SuperEnalotto", 1);
    nuovo.sistema.clear();
    nuovo.classe = 6;
    EXPECT_EQ(ImpaginaSchedine(nuovo, Impaginazione::Schedine).IntestazioneSinistra(),
              "Sistema: sistema non salvato \u2013 SuperEnalotto, classe 6");
    const ImpaginaSchedine elenco(Dati("Lotto", 200), Impaginazione::Elenco);
    EXPECT_GE(elenco.PerPagina(kA4), 60) << "a list is the compact layout";
    EXPECT_EQ(elenco.Pagine(kA4), (200 + elenco.PerPagina(kA4) - 1) / elenco.PerPagina(kA4));
    // The list runs in two columns: below the heading both halves of the first
    // page carry text.
    const QImage listaPagina = Pagina(elenco, 0);
    const auto inchiostro = [&](double x0, double x1, double y0, double y1) {
        for (int y = int(kA4.height() * y0); y < int(kA4.height() * y1); y += 2)
            for (int x = int(kA4.width() * x0); x < int(kA4.width() * x1); x += 2)
                if (qGray(listaPagina.pixel(x, y)) < 128) return true;
        return false;
    };
    EXPECT_TRUE(inchiostro(0, 0.5, 0.2, 0.9));
    EXPECT_TRUE(inchiostro(0.5, 1, 0.2, 0.9)) << "the second column of the list";

    // The boxes lie side by side, none over its neighbour in the row or below.
    const QRectF prima = lotto.RettangoloSchedina(QRectF(QPointF(0, 0), kA4), 0);
    for (int n = 1; n < 10; ++n) {
        EXPECT_FALSE(lotto.RettangoloCasella(prima, n).intersects(lotto.RettangoloCasella(prima, n + 1))) << n;
        EXPECT_FALSE(lotto.RettangoloCasella(prima, n).intersects(lotto.RettangoloCasella(prima, n + 10))) << n;
    }
    // The grid stands in the middle of the slip across, and down between the
    // title (the top 12 % and 0.6 of the 5 % side margin) and the foot (the
    // bottom 11 %), for the wide Lotto grid and the tall SuperEnalotto one.
    for (const char* gioco : {"Lotto", "SuperEnalotto"}) {
        const ImpaginaSchedine stampa(Dati(gioco, 1), Impaginazione::Schedine);
        const QRectF s = stampa.RettangoloSchedina(QRectF(QPointF(0, 0), kA4), 1);
        QRectF caselle = stampa.RettangoloCasella(s, 1);
        for (int n = 2; n <= 90; ++n) caselle |= stampa.RettangoloCasella(s, n);
        const double sopra = s.top() + s.height() * 0.12 + s.width() * 0.03, sotto = s.bottom() - s.height() * 0.11;
        EXPECT_NEAR(caselle.center().x(), s.center().x(), 0.01) << gioco;
        EXPECT_NEAR(caselle.center().y(), (sopra + sotto) / 2, 0.01) << gioco;
    }
    // Page 2 starts at column 7: 7 17 27 37 47 marked, the rest not.
    const QImage seconda = Pagina(lotto, 1);
    const QRectF schedina = lotto.RettangoloSchedina(QRectF(QPointF(0, 0), kA4), 0);
    for (int n = 1; n <= 90; ++n) {
        const bool segnato = n % 10 == 7 && n <= 47;
        const int luce = Luminosita(seconda, lotto.RettangoloCasella(schedina, n));
        if (segnato) EXPECT_LT(luce, 80) << n << " should be marked";
        else EXPECT_GT(luce, 200) << n << " should be blank";
    }
    // The last slip of page 3 is column 15; its neighbour on the page is empty.
    const QImage terza = Pagina(lotto, 2);
    const QRectF ultima = lotto.RettangoloSchedina(QRectF(QPointF(0, 0), kA4), 2);
    EXPECT_LT(Luminosita(terza, lotto.RettangoloCasella(ultima, 55)), 80);
    const QRectF vuota = lotto.RettangoloSchedina(QRectF(QPointF(0, 0), kA4), 3);
    EXPECT_GT(Luminosita(terza, lotto.RettangoloCasella(vuota, 55)), 250) << "no slip past the last column";
}

// The PDF has one page per page of the preview.
TEST(Schedine, PdfHasEveryPage) {
    QTemporaryDir cartella;
    const struct { Impaginazione modo; int colonne, pagine; } casi[] = {
        {Impaginazione::Schedine, 15, 3}, {Impaginazione::Schedine, 6, 1}, {Impaginazione::Elenco, 15, 1}};
    for (const auto& c : casi) {
        const QString file = cartella.filePath(QString("s%1-%2.pdf").arg(int(c.modo)).arg(c.colonne));
        ASSERT_TRUE(EsportaPdf(Dati("10ELotto", c.colonne), c.modo, file));
        QFile pdf(file);
        ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
        const QByteArray byte = pdf.readAll();
        EXPECT_TRUE(byte.startsWith("%PDF-"));
        EXPECT_EQ(QString::fromLatin1(byte).count(QRegularExpression("/Type\\s*/Page(?!s)")), c.pagine) << c.colonne;
        // Every page drawn, the first included: a file of blank pages is a
        // fraction of the size (no fonts, no drawing).
        EXPECT_GT(byte.size(), 8000 * c.pagine) << c.colonne;
    }
    EXPECT_FALSE(EsportaPdf(Dati("Lotto", 3), Impaginazione::Schedine, cartella.filePath("manca/x.pdf")));
}

// The preview offers both layouts and writes the PDF of the one shown.
TEST(Schedine, ThePreviewSwitchesLayoutAndExportsThePdf) {
    QTemporaryDir cartella;
    FakeDialoghi dialoghi;
    dialoghi.fileScelti.push_back(cartella.filePath("elenco.pdf"));
    QStringList voci;
    QTimer::singleShot(0, [&] {
        auto* anteprima = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(anteprima, nullptr);
        auto* scelta = anteprima->findChild<QComboBox*>("CmbImpaginazione");
        auto* pdf = anteprima->findChild<QAction*>("EsportaPdf");
        ASSERT_NE(scelta, nullptr);
        ASSERT_NE(pdf, nullptr);
        for (int i = 0; i < scelta->count(); ++i) voci << scelta->itemText(i);
        scelta->setCurrentIndex(1);
        pdf->trigger();
        anteprima->reject();
    });
    MostraAnteprimaSchedine(nullptr, Dati("Lotto", 15), dialoghi, cartella.path());
    EXPECT_EQ(voci, (QStringList{"Schedine", "Elenco compatto"}));
    ASSERT_EQ(dialoghi.dialoghiFile.size(), 1u);
    EXPECT_EQ(dialoghi.dialoghiFile[0].nome, "Esempio.pdf");
    QFile pdf(cartella.filePath("elenco.pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromLatin1(pdf.readAll()).count(QRegularExpression("/Type\\s*/Page(?!s)")), 1)
        << "the compact list of 15 columns is one page";
    EXPECT_TRUE(dialoghi.boxes.empty());
}

TEST(Schedine, PrintingWithNoColumnsSaysWhy) {
    Banco b;
    QSignalSpy stampe(&b.c, &CombiFiltroA::StampaSk);
    b.c.EseguiComando("StampaSk");
    EXPECT_EQ(stampe.count(), 0);
    ASSERT_NE(b.dialoghi.Ultimo(), nullptr);
    EXPECT_EQ(b.dialoghi.Ultimo()->tipo, "esclamazione");
    EXPECT_EQ(b.dialoghi.Ultimo()->titolo, "Stampa schedine");
    EXPECT_EQ(b.dialoghi.Ultimo()->testo, "Nessuna colonna da stampare: sviluppare prima il sistema.");
    // With columns, the data handed to the printing are the control's.
    b.c.ImpostaColonneSviluppo({combi::Colonna{}, Col({3, 8, 15, 21, 40, 77}), Col({1, 2, 3, 4, 5, 6})});
    const DatiSchedine d = DatiDelControllo(b.c, "SuperEnalotto");
    EXPECT_EQ(d.classe, 6);
    EXPECT_EQ(d.colonne.size(), 2u);
    EXPECT_EQ(d.colonne[0], Col({3, 8, 15, 21, 40, 77}));
    EXPECT_TRUE(d.sistema.isEmpty());
}

// A printed A4 sheet as a picture at 100 dpi: the page inside the margins a
// printer keeps.
QImage Foglio(const ImpaginaSchedine& stampa) {
    const QSizeF pagina(747, 1089);
    const double margine = 40;
    QImage foglio((pagina + QSizeF(2 * margine, 2 * margine)).toSize(), QImage::Format_RGB32);
    foglio.fill(Qt::white);
    QPainter pittore(&foglio);
    stampa.DisegnaPagina(pittore, QRectF(QPointF(margine, margine), pagina), 0);
    return foglio;
}

// Not a check: with --screenshot (scripts/screenshot-strumenti.sh)
// it saves the first page of the slips of a Lotto and a SuperEnalotto system.
SCREENSHOT(Schedine) {
    DatiSchedine lotto{"Esempio.sic", "Lotto", 5, QDate::currentDate(), {}};
    for (const auto& c : {Col({3, 17, 45, 62, 88}), Col({5, 12, 29, 51, 73}), Col({1, 22, 38, 64, 90}),
                          Col({8, 19, 33, 47, 56}), Col({11, 24, 40, 69, 81}), Col({6, 14, 52, 75, 87}),
                          Col({2, 30, 44, 58, 70})})
        lotto.colonne.push_back(c);
    EXPECT_TRUE(Foglio(ImpaginaSchedine(lotto, Impaginazione::Schedine)).save(cartella + "/schedine.png"));
    EXPECT_TRUE(Foglio(ImpaginaSchedine(lotto, Impaginazione::Elenco)).save(cartella + "/schedine-elenco.png"));
    DatiSchedine superenalotto{"Esempio.sic", "SuperEnalotto", 6, QDate::currentDate(),
                               {Col({4, 18, 27, 49, 63, 85}), Col({7, 13, 36, 50, 71, 90})}};
    EXPECT_TRUE(Foglio(ImpaginaSchedine(superenalotto, Impaginazione::Schedine)).save(cartella + "/schedine-superenalotto.png"));
}
