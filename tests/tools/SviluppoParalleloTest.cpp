// The parallel development with real worker processes: the merged result
// equals the development inside the control, and a failing or stopped
// worker ends the run without a result. A slot more for the workers' file
// names stays unused.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>
#include <QListWidget>
#include <QTest>
#include <QToolButton>

#include "../control/Banco.h"
#include "../control/CartellaTempProvvisoria.h"
#include "SviluppoParallelo.h"

namespace {

// With `lavoratori` workers, or as many as the store says.
void SistemaDiProva(Banco& b, int lavoratori = 0) {
    if (lavoratori > 0) b.c.setNumeroThreadsSviluppo(int16_t(lavoratori));
    b.NumeriDa1A(18, 5);  // 8568 columns
    b.Condizione(1, "Consecutivi", "C", "0,1");
    b.Condizione(2, "Punti Col.", "01.02.03.04.05.06", "1,2", "0", "1");
    b.c.GetLbQuadroRec()->addItem("1,1,-1");  // panel 1: one failed condition may be recovered
}

// A worker program that behaves like the real one except as `caso` says for worker 2.
QString LavoratoreDifettoso(const CartellaTempProvvisoria& temp, const QString& caso) {
    const QString percorso = temp.Percorso("lavoratore.sh");
    QFile f(percorso);
    f.open(QIODevice::WriteOnly);
    f.write(QString("#!/bin/sh\ncase \"$*\" in *\"--quota 2/\"*) %1 ;; esac\nexec \"%2\" \"$@\"\n")
                .arg(caso, CF_PROGRAMMA_CLI)
                .toUtf8());
    f.close();
    f.setPermissions(f.permissions() | QFileDevice::ExeOwner);
    return percorso;
}

bool AttendiFine(const SviluppoParallelo& s) {
    return QTest::qWaitFor([&] { return !s.InCorso(); }, 120000);
}

}  // namespace

// With "Riduzione N-K" too: the workers develop without it and the merge
// applies it over the whole enumeration, as one development does.
TEST(SviluppoParallelo, MergedWorkersEqualTheInternalDevelopment) {
    CartellaTempProvvisoria temp;
    for (int riduzione : {0, 2}) {
        Banco b;
        SistemaDiProva(b);
        b.c.CmbRid()->setCurrentIndex(riduzione);  // " ", "1", "2", ...
        b.c.GestSviluppo();
        std::vector<combi::Colonna> interne;
        b.c.GetColonneSviluppo(interne);
        const combi::TabellaCondizioni contatoriInterni = b.c.CondizioniUltimoSviluppo();
        ASSERT_GT(interne.size(), 100u);
        ASSERT_LT(interne.size(), 8569u);
        ASSERT_GT(contatoriInterni.at(1).ContaRecuperabili, 0) << "the panel must recover some columns";

        for (int lavoratori : {1, 3}) {
            b.dialoghi.boxes.clear();
            b.c.setNumeroThreadsSviluppo(static_cast<int16_t>(lavoratori));
            SviluppoParallelo parallelo(b.c, b.dialoghi, CF_PROGRAMMA_CLI);
            parallelo.Avvia();
            EXPECT_TRUE(b.c.InSviluppo());
            EXPECT_FALSE(b.c.Pulsante("SviluppaCond")->isEnabled());
            ASSERT_TRUE(AttendiFine(parallelo));

            EXPECT_FALSE(b.c.InSviluppo());
            EXPECT_EQ(b.c.MotoreSviluppo(), esterno);
            std::vector<combi::Colonna> esterne;
            b.c.GetColonneSviluppo(esterne);
            EXPECT_TRUE(esterne == interne) << lavoratori << " workers, reduction " << riduzione;
            EXPECT_EQ(Cifre(b.c.LabSviluppate()->text()), "8568");
            EXPECT_EQ(Cifre(b.c.LabCondizionate()->text()), QString::number(interne.size() - 1));
            ASSERT_EQ(b.dialoghi.boxes.size(), 1u) << b.dialoghi.Testi().join("|").toStdString();
            EXPECT_EQ(b.dialoghi.boxes[0].tipo, "informazione");

            combi::TabellaCondizioni sommati;
            b.c.RaccogliCondizioni(sommati);
            ASSERT_EQ(sommati.size(), contatoriInterni.size());
            for (size_t j = 0; j < sommati.size(); ++j) {
                EXPECT_EQ(sommati[j].ContaFallite, contatoriInterni[j].ContaFallite) << j;
                EXPECT_EQ(sommati[j].ContaSuperate, contatoriInterni[j].ContaSuperate) << j;
                EXPECT_EQ(sommati[j].ContaRecuperabili, contatoriInterni[j].ContaRecuperabili) << j;
            }
        }
    }
}

// Two windows developing at once, each in a folder of its own: neither reads
// the other's files, and each gets its own system's result.
TEST(SviluppoParallelo, TwoRunsAtOnceKeepToTheirOwnFolders) {
    Banco a, b;
    SistemaDiProva(a);
    SistemaDiProva(b);
    b.c.setClasse(4);  // another system: 3060 columns
    std::vector<combi::Colonna> attese[2];
    a.c.GestSviluppo();
    a.c.GetColonneSviluppo(attese[0]);
    b.c.GestSviluppo();
    b.c.GetColonneSviluppo(attese[1]);
    ASSERT_NE(attese[0].size(), attese[1].size());
    a.c.setNumeroThreadsSviluppo(2);
    b.c.setNumeroThreadsSviluppo(2);
    SviluppoParallelo pa(a.c, a.dialoghi, CF_PROGRAMMA_CLI), pb(b.c, b.dialoghi, CF_PROGRAMMA_CLI);
    pa.Avvia();
    pb.Avvia();
    EXPECT_NE(pa.CartellaCorsa(), pb.CartellaCorsa());
    EXPECT_TRUE(QFile::exists(pa.CartellaCorsa() + "SistCond.sic"));
    ASSERT_TRUE(AttendiFine(pa));
    ASSERT_TRUE(AttendiFine(pb));
    std::vector<combi::Colonna> esterne[2];
    a.c.GetColonneSviluppo(esterne[0]);
    b.c.GetColonneSviluppo(esterne[1]);
    EXPECT_TRUE(esterne[0] == attese[0]);
    EXPECT_TRUE(esterne[1] == attese[1]);
    const QString primaCartella = pa.CartellaCorsa();
    pa.Avvia();  // the next run gets a new folder; the last one goes
    ASSERT_TRUE(AttendiFine(pa));
    EXPECT_NE(pa.CartellaCorsa(), primaCartella);
    EXPECT_FALSE(QFile::exists(primaCartella + "SistCond.sic"));
}

// A failing worker is named and nothing is kept. Lines a worker prints that
// are no report (a library's warning) are passed over, however many come
// together before the report.
TEST(SviluppoParallelo, AFailingWorkerIsNamedAndStrayLinesArePassedOver) {
    const struct {
        QString caso;
        const char* tipo;
        const char* detto;  // how the box begins
    } casi[] = {
        {"kill -9 $$", "critico", "Il processo di sviluppo 2 si è interrotto in modo anomalo"},
        {"echo 'disco pieno' >&2; exit 3", "critico", "Il processo di sviluppo 2 è terminato con il codice 3"},
        {QString("r=$(\"%1\" \"$@\"); printf 'avviso\\nrumore\\n%s\\n' \"$r\"; exit 0").arg(CF_PROGRAMMA_CLI),
         "informazione", ""},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.caso.toStdString());
        CartellaTempProvvisoria temp;
        Banco b;
        SistemaDiProva(b, 3);
        SviluppoParallelo parallelo(b.c, b.dialoghi, LavoratoreDifettoso(temp, caso.caso));
        parallelo.Avvia();
        ASSERT_TRUE(AttendiFine(parallelo));
        QTest::qWait(50);  // late reports of the other workers must change nothing
        EXPECT_FALSE(b.c.InSviluppo());
        EXPECT_EQ(b.c.QuantitaColonne() > 0, caso.tipo == QString("informazione"));
        ASSERT_EQ(b.dialoghi.boxes.size(), 1u) << b.dialoghi.Testi().join("|").toStdString();
        EXPECT_EQ(b.dialoghi.boxes[0].tipo, caso.tipo);
        EXPECT_TRUE(b.dialoghi.boxes[0].testo.startsWith(caso.detto)) << b.dialoghi.boxes[0].testo.toStdString();
        for (int i = 1; i <= 3; ++i) EXPECT_TRUE(b.c.txtMsgFromDll(i)->text().isEmpty());
    }
}

TEST(SviluppoParallelo, StopEndsEveryWorker) {
    CartellaTempProvvisoria temp;
    Banco b;
    SistemaDiProva(b, 3);
    SviluppoParallelo parallelo(b.c, b.dialoghi, LavoratoreDifettoso(temp, "sleep 60"));
    b.c.RegistraComando("StopLavoratori", [&] { parallelo.Ferma(); });
    parallelo.Avvia();
    QTest::qWait(300);
    ASSERT_TRUE(parallelo.InCorso());
    b.dialoghi.risposte = {true};
    b.c.EseguiComando("Stop");
    EXPECT_FALSE(parallelo.InCorso());
    EXPECT_FALSE(b.c.InSviluppo());
    EXPECT_EQ(parallelo.Lavoratore(2)->state(), QProcess::NotRunning);
    EXPECT_EQ(b.c.QuantitaColonne(), 0);
    EXPECT_EQ(b.dialoghi.Testi().last(), "Sviluppo interrotto: nessuna colonna è stata tenuta.");
}
