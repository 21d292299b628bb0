// The live count while the user edits: exact when it shows a number, only the
// last request's result shown, never in the window's way, out of the way of
// a development.

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "Banco.h"
#include "ConteggioDalVivo.h"

namespace {

// Waits for the label to read "Colonne previste: " and then `atteso`: the
// digits of a count (whatever the thousands separator), or a text.
bool Mostra(const Banco& b, const QString& atteso) {
    return QTest::qWaitFor([&] {
        const QString testo = b.c.LabPreviste()->text();
        if (!testo.startsWith("Colonne previste: ")) return false;
        const QString resto = testo.mid(18);
        return resto == atteso || (!resto.contains(QChar(0x2026)) && Cifre(resto) == atteso && !atteso.isEmpty());
    }, 20000);
}

// 18 numbers in class 5 without consecutive numbers: C(14, 5) = 2002 columns
// (the usual count of k-subsets of n with no two neighbours, C(n-k+1, k)).
TEST(ConteggioDalVivo, TheCountEqualsTheDevelopmentAndFollowsEveryChange) {
    Banco b;
    b.NumeriDa1A(18, 5);
    b.Condizione(1, "Consecutivi", "C", "0");
    ASSERT_TRUE(Mostra(b, "2002")) << b.c.LabPreviste()->text().toStdString();
    b.c.GestSviluppo();
    EXPECT_EQ(b.c.QuantitaColonne(), 2002);
    // One more number: C(15, 5) = 3003; a class above the picks: no count.
    b.Numeri({19});
    EXPECT_TRUE(Mostra(b, "3003"));
    b.c.setClasse(10);
    b.c.SelezionaNumero(19, false);
    for (int n = 10; n <= 18; ++n) b.c.SelezionaNumero(int16_t(n), false);
    EXPECT_TRUE(Mostra(b, "–"));
}

// A large count replaced by a small one: the small one's result alone shows.
TEST(ConteggioDalVivo, ANewRequestCancelsTheOneRunning) {
    ConteggioDalVivo conteggio;
    QSignalSpy risultati(&conteggio, &ConteggioDalVivo::Risultato);
    combi::ParametriSviluppo grande;
    for (int n = 1; n <= 90; ++n) grande.numeri.push_back(n);
    grande.classe = 8;  // 77 billion columns: minutes
    grande.condizioni.resize(1);
    conteggio.Richiedi(grande, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return conteggio.InCorso(); }, 5000));
    // The window's events keep running while it counts.
    QElapsedTimer orologio;
    orologio.start();
    bool scattato = false;
    QTimer::singleShot(10, [&] { scattato = true; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return scattato; }, 2000));
    EXPECT_LT(orologio.elapsed(), 1000);

    combi::ParametriSviluppo piccolo = grande;
    piccolo.numeri.resize(10);
    piccolo.classe = 3;  // C(10, 3) = 120
    conteggio.Richiedi(piccolo, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return risultati.size() == 1; }, 20000));
    QTest::qWait(50);
    ASSERT_EQ(risultati.size(), 1);
    EXPECT_EQ(risultati[0][0].toULongLong(), 120u);
}

// A development needs the cores: the count stops and starts again after it.
TEST(ConteggioDalVivo, ADevelopmentCancelsTheCountAndRestartsIt) {
    Banco b;
    b.NumeriDa1A(60, 7);  // 386 million columns: a count of a few seconds
    ConteggioDalVivo* conteggio = b.c.findChild<ConteggioDalVivo*>();
    ASSERT_NE(conteggio, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return conteggio->InCorso(); }, 5000));
    b.c.setClasse(3);  // a quick development: C(60, 3) = 34220
    bool contavaDurante = true;
    QTimer::singleShot(0, &b.c, [&] { contavaDurante = conteggio->InCorso(); });
    b.c.GestSviluppo();
    EXPECT_FALSE(contavaDurante);
    EXPECT_TRUE(Mostra(b, "34220"));
}

}  // namespace
