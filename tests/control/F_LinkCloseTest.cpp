#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QPushButton>
#include <QTimer>

#include "Banco.h"
#include "F_LinkClose.h"

namespace {

// Answers the next modal LinkClose dialog: records its boxes, ticks some and
// presses a button.
struct RispostaLinkClose {
    int caselle = -1;
    std::vector<int> giaSpuntate;
    void Prepara(std::vector<int> spunta, int pulsante) {
        QTimer::singleShot(0, [this, spunta, pulsante] {
            auto* dialogo = qobject_cast<F_LinkClose*>(QApplication::activeModalWidget());
            ASSERT_NE(dialogo, nullptr);
            caselle = dialogo->NumeroCaselle();
            for (int i = 0; i < caselle; ++i)
                if (dialogo->Casella(i)->isChecked()) giaSpuntate.push_back(i);
            for (int i : spunta) dialogo->Casella(i)->setChecked(true);
            dialogo->Pulsante(pulsante)->click();
        });
    }
};

int Riga(F_LinkClose& d, int casella) {
    auto* griglia = d.Casella(0)->parentWidget()->findChild<QGridLayout*>();
    int riga = 0, colonna = 0, righe = 0, colonne = 0;
    griglia->getItemPosition(griglia->indexOf(d.Casella(casella)), &riga, &colonna, &righe, &colonne);
    return riga;
}

}  // namespace

TEST(F_LinkClose, BoxesPointsAndReadingBack) {
    F_LinkClose d;
    d.LoadchkPunti(25);
    ASSERT_EQ(d.NumeroCaselle(), 26);
    EXPECT_EQ(d.Casella(25)->text(), "25");
    const std::pair<int, int> righe[] = {{10, 0}, {11, 1}, {20, 1}, {21, 2}};  // the first row holds 0..10
    for (auto [casella, riga] : righe) EXPECT_EQ(Riga(d, casella), riga) << casella;
    d.LoadchkPunti(30);
    EXPECT_EQ(d.NumeroCaselle(), 26) << "boxes already there end the layout";

    EXPECT_EQ(d.GetPunti(), "");
    for (int casella : {3, 0, 12}) d.Casella(casella)->setChecked(true);
    EXPECT_EQ(d.GetPunti(), "0-3-12");

    GrigliaCondizioni g;
    g.ImpostaTesto(3, 4, "1-7");
    g.setCurrentCell(2, 4);
    F_LinkClose piccolo;
    piccolo.LoadchkPunti(5);
    piccolo.LeggiPunti(g);
    EXPECT_EQ(piccolo.GetPunti(), "1") << "7 is beyond the shrunken group";
    piccolo.Pulsante(0)->click();
    EXPECT_EQ(piccolo.Tag(), "ooo");
    piccolo.Pulsante(1)->click();
    EXPECT_EQ(piccolo.Tag(), "");
}

TEST(F_LinkClose, InsertedAndEditedFromThePanel) {
    Banco b;
    b.Condizione(2, "LinkOpen");
    for (int c = 3; c <= 5; ++c) b.Condizione(c, "Ponte", "P", "1");
    b.c.SetColonnaGrid(6);

    RispostaLinkClose annulla;
    annulla.Prepara({1}, 1);
    b.c.EseguiComando("LinkClose");
    EXPECT_EQ(annulla.caselle, 4) << "the group of three offers 0..3";
    EXPECT_EQ(b.Cella(1, 6), "");
    EXPECT_FALSE(b.c.SistemaModificato()) << "CHIUDI changes nothing";

    RispostaLinkClose conferma;
    conferma.Prepara({1, 3}, 0);
    b.c.EseguiComando("LinkClose");
    EXPECT_EQ(b.Cella(1, 6), "LinkClose");
    EXPECT_EQ(b.Cella(2, 6), "L\r\ni\r\nn\r\nk\r\nC\r\nl\r\no\r\ns\r\ne");
    EXPECT_EQ(b.Cella(3, 6), "1-3");
    EXPECT_EQ(b.Cella(4, 6), "");
    EXPECT_TRUE(b.c.SistemaModificato());

    RispostaLinkClose modifica;
    modifica.Prepara({}, 0);
    b.c.GetGridCond()->setCurrentCell(3, 6);
    b.c.EseguiComando("Edit");
    EXPECT_EQ(modifica.caselle, 4) << "editing offers the same 0..3 as inserting";
    EXPECT_EQ(modifica.giaSpuntate, (std::vector<int>{1, 3})) << "editing reads the column back";
    EXPECT_EQ(b.Cella(3, 6), "1-3");

    b.c.SetColonnaGrid(3);
    RispostaLinkClose subito;
    subito.Prepara({}, 0);
    b.c.EseguiComando("Inserisci");
    b.c.EseguiComando("LinkClose");
    EXPECT_EQ(subito.caselle, 1) << "right after a LinkOpen the group is empty";
    EXPECT_EQ(b.Cella(3, 3), "") << "confirming with nothing ticked";
}
