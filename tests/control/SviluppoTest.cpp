#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QTimer>
#include <QToolButton>

#include "Banco.h"

TEST(SviluppoPannello, RefusedWhenTheClassExceedsThePicks) {
    Banco b;
    b.NumeriDa1A(5, 6);
    b.c.GestSviluppo();
    EXPECT_EQ(b.dialoghi.Tipi(), QStringList{"esclamazione"});
    EXPECT_EQ(b.dialoghi.Testi(), QStringList{"Impostare il pronostico"});
    EXPECT_EQ(b.c.MotoreSviluppo(), 0);
    EXPECT_EQ(b.c.QuantitaColonne(), 0);
}

TEST(SviluppoPannello, DevelopsAndReportsTheElapsedTime) {
    Banco b;
    double adesso = 1000;
    b.c.ImpostaOrologio([&] { return adesso += 65.2; });  // two readings: 65.2 s apart
    b.c.setClasse(4);
    b.Numeri({88, 3, 45, 17});
    std::vector<combi::Colonna> fuori(3);
    b.c.GetColonneSviluppo(fuori);
    EXPECT_EQ(fuori.size(), 3u) << "no columns: the caller's array is left alone";
    EXPECT_EQ(b.c.GetColonnaSviluppo(1), "");

    b.c.EseguiComando("SviluppaCond");
    EXPECT_EQ(b.c.MotoreSviluppo(), interno);
    ASSERT_EQ(b.c.QuantitaColonne(), 1) << "class equal to the picks: one column";
    EXPECT_EQ(b.c.GetColonnaSviluppo(1), "03 17 45 88");
    EXPECT_EQ(b.c.GetColonnaSviluppo(2), "");
    EXPECT_EQ(b.dialoghi.Tipi(), QStringList{"informazione"});
    EXPECT_EQ(b.dialoghi.Testi(), QStringList{"Fine sviluppo \r\n00:01:05"});
    b.c.GetColonneSviluppo(fuori);
    ASSERT_EQ(fuori.size(), 2u);
    EXPECT_EQ(fuori[1][2], 17);
    EXPECT_TRUE(b.c.Pulsante("VisualizzaColonne")->isEnabled());
    EXPECT_TRUE(b.c.VoceMenu("SalvaColonne")->isEnabled());
    EXPECT_FALSE(b.c.Pulsante("Stop")->isEnabled());

    QStringList stampe;
    QObject::connect(&b.c, &CombiFiltroA::StampaSk, [&](QString& gioco) { stampe << gioco; });
    b.c.EseguiComando("StampaSk");
    EXPECT_EQ(stampe, QStringList{"Lotto"});
}

TEST(SviluppoPannello, ConditionsAndLinkGroupsFromTheGrid) {
    struct Caso {
        const char* nome;
        std::function<void(Banco&)> condizioni;
        int attese;
    } casi[] = {
        // 5 of 1..10 with no two neighbours: C(6, 5).
        {"no consecutive numbers", [](Banco& b) { b.Condizione(1, "Consecutivi", "C", "0"); }, 6},
        {"nothing can pass", [](Banco& b) { b.Condizione(1, "Consecutivi", "C", "9"); }, 0},
        // Exactly one of "no neighbours" / "contains 1": 6 + 126 - 2 * 5.
        {"link group of two, one satisfied",
         [](Banco& b) {
             b.Condizione(1, "LinkOpen");
             b.Condizione(2, "Consecutivi", "C", "0");
             b.Condizione(3, "Punti Col.", "01", "1");
             b.Condizione(4, "LinkClose", "L", "1");
         },
         122},
    };
    for (const Caso& caso : casi) {
        Banco b;
        b.NumeriDa1A(10);
        caso.condizioni(b);
        b.c.GestSviluppo();
        EXPECT_EQ(b.c.QuantitaColonne(), caso.attese) << caso.nome;
        EXPECT_EQ(Cifre(b.c.LabSviluppate()->text()), "252") << caso.nome;
        EXPECT_EQ(b.c.Pulsante("VisualizzaColonne")->isEnabled(), caso.attese > 0) << caso.nome;
        EXPECT_EQ(b.c.VoceMenu("SalvaColonne")->isEnabled(), caso.attese > 0) << caso.nome;
    }
}

// "Riduzione N-K" picked on the panel reaches the development. Class 5 of
// 1..7: any two of the 21 columns share 3 or 4 numbers. With K = 1 a column
// sharing 4 with the last one kept is dropped; walked by hand in order that
// keeps 12345, 12367, 12456, 13457, 23456. With K = 2 sharing 3 is enough to
// drop, so only the first column stays.
TEST(SviluppoPannello, RiduzioneNKChosenOnThePanel) {
    struct Caso { const char* riduzione; const char* garanzia; QStringList colonne; } casi[] = {
        {"1", "4", {"01 02 03 04 05", "01 02 03 06 07", "01 02 04 05 06", "01 03 04 05 07", "02 03 04 05 06"}},
        {"2", "3", {"01 02 03 04 05"}},
        {" ", "5", {}},
    };
    for (const Caso& caso : casi) {
        Banco b;
        b.NumeriDa1A(7);
        b.c.CmbRid()->setCurrentText(caso.riduzione);
        EXPECT_EQ(b.c.LabGaranzia()->text(),
                  QString("A condizioni superate garanzia ") + caso.garanzia);
        b.c.GestSviluppo();
        EXPECT_EQ(Cifre(b.c.LabSviluppate()->text()), "21") << caso.riduzione;
        QStringList tenute;
        for (int i = 1; i <= b.c.QuantitaColonne(); ++i) tenute << b.c.GetColonnaSviluppo(i);
        if (caso.colonne.isEmpty()) EXPECT_EQ(tenute.size(), 21);
        else EXPECT_EQ(tenute, caso.colonne) << caso.riduzione;
    }
}

TEST(SviluppoPannello, StopAskedDuringTheDevelopment) {
    for (bool interrompi : {true, false}) {
        Banco b;
        b.NumeriDa1A(25);  // 53130 columns, all kept
        b.Condizione(1, "Ponte", "P", "0-1-2-3-4");  // every column passes
        b.c.SetColonnaGrid(1);
        b.dialoghi.risposte = {interrompi};
        int stopLavoratori = 0;  // the workers' stop is not this development's
        b.c.RegistraComando("StopLavoratori", [&] { ++stopLavoratori; });
        bool statoVerificato = false;
        QTimer::singleShot(0, &b.c, [&] {
            // The first event pump of the running development.
            EXPECT_TRUE(b.c.InSviluppo());
            EXPECT_TRUE(b.c.Pulsante("Stop")->isEnabled());
            EXPECT_FALSE(b.c.Pulsante("New")->isEnabled());
            EXPECT_FALSE(b.c.Pulsante("SviluppaCond")->isEnabled());
            EXPECT_FALSE(b.c.CmbClasse()->isEnabled());
            EXPECT_FALSE(b.c.CmbRid()->isEnabled());
            EXPECT_TRUE(b.c.CmbTipoGioco()->isEnabled());
            b.c.GestSviluppo();  // re-entry is ignored
            b.c.EseguiComando("New");
            // Nothing that would open a dialog behind the running development.
            emit b.c.GetGridCond()->cellDoubleClicked(2, 1);
            b.c.EseguiComando("SalvaConNome");
            b.c.EseguiComando("PuntiSuPonte");
            b.c.Pulsante("Stop")->click();
            statoVerificato = true;
        });
        b.c.GestSviluppo();
        EXPECT_TRUE(statoVerificato);
        EXPECT_EQ(stopLavoratori, 0);
        const QStringList testi = b.dialoghi.Testi();
        ASSERT_EQ(testi.size(), 2) << "only Stop reacted while developing: " << testi.join(" | ").toStdString();
        EXPECT_TRUE(b.dialoghi.dialoghiFile.empty());
        EXPECT_EQ(testi[0], "Interrompere ?");
        EXPECT_TRUE(testi[1].startsWith("Fine sviluppo \r\n"));
        // A stopped run says so, and where it stopped; a whole one does not.
        const qsizetype stop = testi[1].indexOf("\r\nSviluppo interrotto dopo ");
        EXPECT_EQ(stop >= 0, interrompi);
        if (interrompi) { EXPECT_EQ(Cifre(testi[1].mid(stop)), "20000"); }
        const int attese = interrompi ? 20000 : 53130;
        EXPECT_EQ(b.c.QuantitaColonne(), attese);
        EXPECT_EQ(Cifre(b.c.LabSviluppate()->text()), QString::number(attese));
        EXPECT_TRUE(b.c.Pulsante("New")->isEnabled());
        EXPECT_FALSE(b.c.Pulsante("Stop")->isEnabled());
        EXPECT_TRUE(b.c.CmbClasse()->isEnabled());
    }
}
