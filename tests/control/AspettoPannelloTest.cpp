// What the player sees of the panel: picked numbers that stand out, counts
// grouped the user's way, and as many development workers as cores.

#include <gtest/gtest.h>

#include <QGridLayout>
#include <QSignalSpy>

#include <QImage>
#include <QToolButton>

#include <algorithm>
#include <cmath>
#include <map>
#include <thread>

#include "Banco.h"
#include "Formato.h"

namespace {

// Relative luminance and contrast ratio as the web's accessibility
// guidelines define them: 4.5 is their threshold for normal text.
double Luminanza(QRgb c) {
    auto canale = [](int v) {
        const double s = v / 255.0;
        return s <= 0.03928 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * canale(qRed(c)) + 0.7152 * canale(qGreen(c)) + 0.0722 * canale(qBlue(c));
}

double Contrasto(QRgb a, QRgb b) {
    const double la = Luminanza(a), lb = Luminanza(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

struct Colori {
    QRgb sfondo;  // the commonest colour inside the border
    QRgb testo;   // the colour that stands out most from it
};

// The colours of a button as drawn on screen.
Colori ColoriDisegnati(QWidget* pulsante) {
    const QImage immagine = pulsante->grab().toImage().convertToFormat(QImage::Format_RGB32);
    std::map<QRgb, int> quanti;
    for (int y = 3; y < immagine.height() - 3; ++y)
        for (int x = 3; x < immagine.width() - 3; ++x) ++quanti[immagine.pixel(x, y)];
    Colori c{};
    c.sfondo = std::max_element(quanti.begin(), quanti.end(),
                                [](const auto& a, const auto& b) { return a.second < b.second; })->first;
    c.testo = c.sfondo;
    for (const auto& [colore, n] : quanti)
        if (Contrasto(colore, c.sfondo) > Contrasto(c.testo, c.sfondo)) c.testo = colore;
    return c;
}

}  // namespace

TEST(AspettoPannello, PickedNumbersStandOutFromTheFreeOnes) {
    GrigliaNumeri griglia;
    griglia.resize(420, 300);
    griglia.show();
    griglia.ImpostaNumero(7, true);
    auto* scelto = griglia.findChild<QToolButton*>("Numero7");
    auto* libero = griglia.findChild<QToolButton*>("Numero8");
    const Colori s = ColoriDisegnati(scelto), l = ColoriDisegnati(libero);
    EXPECT_GE(Contrasto(s.sfondo, l.sfondo), 4.5) << "picked and free look different";
    EXPECT_GE(Contrasto(s.testo, s.sfondo), 4.5) << "a picked number is readable";
    EXPECT_GE(Contrasto(l.testo, l.sfondo), 4.5) << "a free number is readable";
    // A number an editor switched off is not taken for a picked one.
    griglia.ImpostaDisponibile(9, false);
    const Colori spento = ColoriDisegnati(griglia.findChild<QToolButton*>("Numero9"));
    EXPECT_GE(Contrasto(s.sfondo, spento.sfondo), 3.0);
}

// Ten numbers a row, 1..10 on the first; the count follows the picks, the
// first and the last number included, and clearing clears them.
TEST(AspettoPannello, NumbersTenARowAndTheirCount) {
    GrigliaNumeri griglia;
    auto* layout = griglia.findChild<QGridLayout*>();
    ASSERT_NE(layout, nullptr);
    struct Caso { int numero, riga, colonna; } casi[] = {{1, 0, 0}, {9, 0, 8}, {10, 0, 9}, {11, 1, 0}, {90, 8, 9}};
    for (const Caso& c : casi) {
        int riga = -1, colonna = -1, righe = 0, colonne = 0;
        const int indice = layout->indexOf(griglia.findChild<QToolButton*>(QString("Numero%1").arg(c.numero)));
        layout->getItemPosition(indice, &riga, &colonna, &righe, &colonne);
        EXPECT_EQ(riga, c.riga) << c.numero;
        EXPECT_EQ(colonna, c.colonna) << c.numero;
        EXPECT_EQ(griglia.findChild<QToolButton*>(QString("Numero%1").arg(c.numero))->text(),
                  QString::asprintf("%02d", c.numero));
    }
    QSignalSpy cambi(&griglia, &GrigliaNumeri::SelezioneCambiata);
    griglia.ImpostaNumero(1, true);
    EXPECT_EQ(griglia.Conta(), 1);
    griglia.ImpostaNumero(90, true);
    griglia.ImpostaNumero(91, true);
    EXPECT_EQ(griglia.Conta(), 2);
    EXPECT_TRUE(griglia.Selezionato(90));
    EXPECT_FALSE(griglia.Selezionato(91));
    cambi.clear();
    griglia.ImpostaNumero(90, false);
    griglia.Pulisci();
    EXPECT_EQ(griglia.Conta(), 0) << "the only pick, number 1, cleared";
    EXPECT_EQ(cambi.count(), 2) << "one for the unpick, one for the whole clearing";
    griglia.ImpostaDisponibile(9, false);
    EXPECT_FALSE(griglia.Disponibile(9));
    EXPECT_TRUE(griglia.Disponibile(10));
    EXPECT_FALSE(griglia.Disponibile(91));
}

TEST(AspettoPannello, WorkersDefaultToTheCoresWhenNothingIsStored) {
    ArchivioMemoria vuoto;
    FakeDialoghi d;
    CombiFiltroA c(&vuoto, &d);
    const int core = int(std::max(1u, std::thread::hardware_concurrency()));
    EXPECT_EQ(c.NumeroThreadsSviluppo(), std::min(core, 64));
    EXPECT_NE(c.TxtPMin(c.NumeroThreadsSviluppo()), nullptr) << "one progress field per worker";
}

// Run by ctest under chosen environments too (CF_SEPARATORE_ATTESO then
// names the separator that environment must give).
TEST(FormatoNumeri, PanelCountsUseTheUsersSeparator) {
    const QByteArray atteso = qgetenv("CF_SEPARATORE_ATTESO");
    if (!atteso.isEmpty()) { EXPECT_EQ(combi::SeparatoreMigliaia(), atteso.toStdString()); }
    const QString sep = QString::fromStdString(combi::SeparatoreMigliaia());
    Banco b;
    b.NumeriDa1A(20, 5);
    EXPECT_EQ(b.c.LabIntegrale()->text(), "15" + sep + "504");  // C(20,5)
    b.NumeriDa1A(90, 6);
    EXPECT_EQ(b.c.LabIntegrale()->text(), "622" + sep + "614" + sep + "630");  // C(90,6)
}
