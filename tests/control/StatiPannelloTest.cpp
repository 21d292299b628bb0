// The panel as a player meets it during a run and around unsaved work: what
// a run disables, a game chosen while a system develops, a column left empty
// between conditions, the questions before something is dropped.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>

#include "Banco.h"
#include "Riduzione.h"

namespace {

// The game combo stays usable during a run, but the panel keeps showing the
// system that runs: the class list refills only when the run has ended.
TEST(StatiPannello, AGameChosenDuringARunIsAppliedWhenItEnds) {
    // The first game of the list (index 0) waits as well as any other.
    struct Caso { const char* prima; const char* scelto; const char* classe; } casi[] = {
        {"Lotto", "10ELotto", "10"}, {"SuperEnalotto", "Lotto", "5"}};
    for (const Caso& caso : casi) {
        Banco b;
        b.c.CmbTipoGioco()->setCurrentText(caso.prima);
        b.NumeriDa1A(25, 6);  // 177100 columns, all kept
        QSignalSpy occupato(&b.c, &CombiFiltroA::OccupatoCambiato);
        QString classeDurante, giocoDurante;
        bool giocoAbilitato = false;
        QTimer::singleShot(0, &b.c, [&] {
            giocoAbilitato = b.c.CmbTipoGioco()->isEnabled();
            b.c.CmbTipoGioco()->setCurrentText(caso.scelto);  // the user picks another game
            classeDurante = b.c.CmbClasse()->currentText();
            giocoDurante = b.c.CmbTipoGioco()->currentText();
        });
        b.c.GestSviluppo();
        EXPECT_TRUE(giocoAbilitato);
        EXPECT_EQ(classeDurante, "6");
        EXPECT_EQ(giocoDurante, caso.prima);
        EXPECT_EQ(b.c.QuantitaColonne(), 177100);
        EXPECT_EQ(b.c.CmbTipoGioco()->currentText(), caso.scelto);
        EXPECT_EQ(b.c.CmbClasse()->currentText(), caso.classe) << "the game's own class once the run ended";
        ASSERT_EQ(occupato.size(), 2);
        EXPECT_TRUE(occupato[0][0].toBool());
        EXPECT_FALSE(occupato[1][0].toBool());
        // Applied once: the end of a later run leaves the game alone.
        b.c.CmbTipoGioco()->setCurrentText("10ELotto");
        b.c.GestSviluppo();
        EXPECT_EQ(b.c.CmbTipoGioco()->currentText(), "10ELotto");
    }
}

// A column left empty stops the development's reading there: it is marked,
// and developing asks first ("No" is the default and changes nothing).
TEST(StatiPannello, AnEmptyColumnBetweenConditionsIsMarkedAndAskedAbout) {
    Banco b;
    b.NumeriDa1A(10, 5);
    GrigliaCondizioni* g = b.c.GetGridCond();
    b.Condizione(1, "Consecutivi", "C", "0");
    b.Condizione(3, "Ampiezza", "A", "4-6");
    EXPECT_EQ(g->ColonnaVuotaInterna(), 2);
    EXPECT_EQ(g->item(1, 2)->background().color(), GrigliaCondizioni::ColoreColonnaVuota());
    EXPECT_FALSE(g->item(1, 2)->toolTip().isEmpty());

    b.dialoghi.risposte = {false};
    b.c.GestSviluppo();
    EXPECT_EQ(b.dialoghi.Testi(),
              QStringList{"Le condizioni dopo una colonna vuota non vengono considerate. Continuare ?"});
    EXPECT_EQ(b.c.QuantitaColonne(), 0) << "No: nothing developed";

    b.dialoghi.risposte = {true};
    b.c.GestSviluppo();
    // Only column 1 counts: 5 of 1..10 with no consecutive pair (C(6,5) = 6).
    EXPECT_EQ(b.c.QuantitaColonne(), 6);

    b.Condizione(2, "Ponte", "P", "0-1-2-3-4");  // the gap filled: no mark, no question
    EXPECT_EQ(g->ColonnaVuotaInterna(), 0);
    EXPECT_EQ(g->item(1, 2)->background().style(), Qt::NoBrush);
    b.dialoghi.boxes.clear();
    b.c.GestSviluppo();
    ASSERT_EQ(b.dialoghi.boxes.size(), 1u);
    EXPECT_TRUE(b.dialoghi.boxes[0].testo.startsWith("Fine sviluppo"));
    // The name alone cleared: the column is empty again, and marked.
    g->ImpostaTesto(1, 2, "");
    EXPECT_EQ(g->item(1, 2)->background().color(), GrigliaCondizioni::ColoreColonnaVuota());
}

// Closing with unsaved changes: "Salva" saves and lets the window close,
// "Non salvare" closes, "Annulla" (also the answer of a dismissed box) stays.
TEST(StatiPannello, ClosingAsksToSaveAndTheDefaultLosesNothing) {
    QTemporaryDir cartella;
    Banco b;
    QSignalSpy modificato(&b.c, &CombiFiltroA::ModificatoCambiato);
    QSignalSpy salvato(&b.c, &CombiFiltroA::Salvato);
    EXPECT_TRUE(b.c.ConsentiChiusura()) << "nothing to save: no question";
    EXPECT_TRUE(b.dialoghi.boxes.empty());
    b.Numeri({1, 2, 3});
    ASSERT_TRUE(b.c.SistemaModificato());
    ASSERT_EQ(modificato.size(), 1);

    EXPECT_FALSE(b.c.ConsentiChiusura());  // no answer given: Annulla
    EXPECT_EQ(b.dialoghi.boxes.back().testo, "Salvare le modifiche?");
    b.dialoghi.salvataggi = {ServizioDialoghi::Salvataggio::NonSalvare};
    EXPECT_TRUE(b.c.ConsentiChiusura());
    EXPECT_TRUE(b.c.SistemaModificato());

    // "Salva" with the file dialog cancelled: still unsaved, the window stays.
    b.dialoghi.salvataggi = {ServizioDialoghi::Salvataggio::Salva};
    EXPECT_FALSE(b.c.ConsentiChiusura());
    const QString file = cartella.filePath("s.sic");
    b.dialoghi.salvataggi = {ServizioDialoghi::Salvataggio::Salva};
    b.dialoghi.fileScelti = {file};
    EXPECT_TRUE(b.c.ConsentiChiusura());
    EXPECT_FALSE(b.c.SistemaModificato());
    EXPECT_TRUE(QFile::exists(file));
    ASSERT_EQ(modificato.size(), 2);
    EXPECT_FALSE(modificato[1][0].toBool());
    ASSERT_EQ(salvato.size(), 1);
    EXPECT_EQ(salvato[0][0].toString(), "Sistema salvato in " + file);
}

// A reduction is a run too: the panel's commands wait for it.
TEST(StatiPannello, NothingStartsWhileAReductionRuns) {
    QTemporaryDir cartella;
    Banco b;
    b.NumeriDa1A(12, 6);
    b.c.GestSviluppo();
    const QString file = cartella.filePath("c.col");
    b.dialoghi.fileScelti = {file};
    b.c.SalvaFileColonne();
    bool pulsanteAbilitato = true, sviluppoAbilitato = true;
    QSignalSpy occupato(&b.c, &CombiFiltroA::OccupatoCambiato);
    b.c.RegistraVistaRiduzione([&]() -> std::unique_ptr<combi::OsservatoreOttimizzazione> {
        pulsanteAbilitato = b.c.Pulsante("Open")->isEnabled();
        sviluppoAbilitato = b.c.Pulsante("SviluppaCond")->isEnabled();
        EXPECT_TRUE(b.c.Occupato());
        return nullptr;
    });
    b.c.RiduciColonne(file, 4);
    EXPECT_FALSE(pulsanteAbilitato);
    EXPECT_FALSE(sviluppoAbilitato);
    EXPECT_FALSE(b.c.Occupato());
    EXPECT_TRUE(b.c.Pulsante("Open")->isEnabled());
    ASSERT_EQ(occupato.size(), 2);
    // What went in and what was kept: the C(12,6) = 924 columns developed.
    EXPECT_TRUE(b.c.UltimaRiduzione().eseguita);
    EXPECT_FALSE(b.c.UltimaRiduzione().interrotta);
    EXPECT_EQ(b.c.UltimaRiduzione().ingresso, 924);
    EXPECT_EQ(b.c.UltimaRiduzione().tenute, b.c.QuantitaColonne());
    EXPECT_LT(b.c.QuantitaColonne(), 924);
    b.c.RiduciColonne(cartella.filePath("manca.col"), 4);
    EXPECT_FALSE(b.c.UltimaRiduzione().eseguita) << "a missing file reduces nothing";
}

}  // namespace
