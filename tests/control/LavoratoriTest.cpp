// The reporting protocol of external development workers: progress sums,
// completion when every field is filled, appending in field order, and the
// counters gathered from the workers' system files.
// The workers' counts start from whatever the fields are set to when a run
// begins: they are emptied then, so the starting value of the counts (and
// one spare slot) changes nothing a user sees.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>

#include "../engine/ColonnaDiProva.h"
#include "Banco.h"
#include "CartellaTempProvvisoria.h"
#include "FileColonne.h"
#include "FileSistema.h"
#include "Formato.h"
#include "Percorsi.h"

namespace {

// Worker i's columns file: i columns whose first number is 10 * i + j.
QString FileLavoratore(const QTemporaryDir& cartella, int i) {
    std::vector<combi::Colonna> colonne;
    for (int j = 1; j <= i; ++j) colonne.push_back(combi::test::Col({10 * i + j, 80, 90}));
    const QString percorso = cartella.filePath(QString("lavoratore%1.col").arg(i));
    combi::ScriviFileColonne(percorso.toStdString(), colonne);
    return percorso;
}

struct BancoLavoratori : Banco {
    double adesso = 100;
    BancoLavoratori() {
        c.setNumeroThreadsSviluppo(3);
        c.ImpostaOrologio([this] { return adesso; });
    }
};

}  // namespace

TEST(Lavoratori, CompletionWaitsForEveryFieldWhateverTheOrder) {
    QTemporaryDir cartella;
    std::array<int, 3> ordine{1, 2, 3};
    do {
        BancoLavoratori b;
        b.c.IniziaSviluppoEsterno();
        ASSERT_TRUE(b.c.InSviluppo());
        b.adesso = 100 + 3725;  // 1 h 2 min 5 s later
        b.c.txtMsgFromDll(ordine[0])->setText(FileLavoratore(cartella, ordine[0]));
        b.c.txtMsgFromDll(ordine[1])->setText(FileLavoratore(cartella, ordine[1]));
        EXPECT_EQ(b.c.QuantitaColonne(), 0) << "merged before the third worker ended";
        EXPECT_TRUE(b.c.InSviluppo());
        EXPECT_TRUE(b.dialoghi.boxes.empty());

        b.c.txtMsgFromDll(ordine[2])->setText(FileLavoratore(cartella, ordine[2]));
        // Field order, not completion order: 11 | 21 22 | 31 32 33.
        ASSERT_EQ(b.c.QuantitaColonne(), 6);
        const std::array<int, 7> primi{0, 11, 21, 22, 31, 32, 33};
        for (int id = 1; id <= 6; ++id) EXPECT_EQ(b.c.GetColonnaSviluppo(id).left(2), QString::number(primi[id]));
        for (int i = 1; i <= 3; ++i) EXPECT_TRUE(b.c.txtMsgFromDll(i)->text().isEmpty());
        EXPECT_FALSE(b.c.InSviluppo());
        EXPECT_EQ(b.dialoghi.Tipi(), QStringList{"informazione"}) << "clearing the fields must not merge again";
        EXPECT_EQ(b.dialoghi.Testi(), QStringList{"01:02:05"});
    } while (std::next_permutation(ordine.begin(), ordine.end()));
}

// The count of a worker's file is its length / 20 rounded, halves to the even
// neighbour: a record cut after more than half of it counts, its missing
// bytes read as 0. Worked by hand: 9 -> 0.45 -> 0; 19 -> 0.95 -> 1;
// 30 -> 1.5 -> 2; 50 -> 2.5 -> 2; 70 -> 3.5 -> 4. A missing file (-1) is a
// failure: reported, and nothing is kept of the other workers either.
TEST(Lavoratori, AWorkerFileCountsItsLengthOver20RoundedAndMustExist) {
    QTemporaryDir cartella;
    const std::pair<int, int> casi[] = {{-1, 0}, {0, 0}, {9, 0}, {19, 1}, {30, 2}, {50, 2}, {70, 4}};
    for (const auto& [lunghezza, attese] : casi) {
        SCOPED_TRACE(lunghezza);
        QFile file(cartella.filePath(QString("l%1.col").arg(lunghezza)));
        if (lunghezza >= 0) {
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            for (int i = 1; i <= lunghezza; ++i) file.putChar(char(i));  // each record holds the next numbers
            file.close();
        }
        BancoLavoratori b;
        b.c.IniziaSviluppoEsterno();
        b.c.txtMsgFromDll(1)->setText(FileLavoratore(cartella, 1));  // 1 column
        b.c.txtMsgFromDll(2)->setText(file.fileName());
        b.c.txtMsgFromDll(3)->setText(FileLavoratore(cartella, 3));  // 3 columns
        EXPECT_EQ(b.c.QuantitaColonne(), lunghezza < 0 ? 0 : 1 + attese + 3);
        if (lunghezza == 30) { EXPECT_EQ(b.c.GetColonnaSviluppo(3), "21 22 23 24 25 26 27 28 29 30"); }
        ASSERT_EQ(b.dialoghi.boxes.size(), 1u) << "the elapsed time, or the failure alone";
        const BoxMostrato& box = b.dialoghi.boxes[0];
        EXPECT_EQ(box.tipo, lunghezza < 0 ? "critico" : "informazione") << "an empty file is no failure";
        if (lunghezza < 0) {
            EXPECT_EQ(box.titolo, "CombiFiltro.txtMsgFromDll_Change");
            EXPECT_EQ(box.testo, "53- File non trovato: " + file.fileName());
        }
        for (int i = 1; i <= 3; ++i) EXPECT_TRUE(b.c.txtMsgFromDll(i)->text().isEmpty()) << i;
        EXPECT_FALSE(b.c.InSviluppo());
    }
}

TEST(Lavoratori, ProgressIsTheSumOverWorkersAndCancelDropsPartialResults) {
    QTemporaryDir cartella;
    BancoLavoratori b;
    b.c.IniziaSviluppoEsterno();
    b.c.TxtPMin(2)->setText("1500");
    b.c.TxtPMin(1)->setText("2000");
    b.c.TxtPMax(1)->setText("12");
    b.c.TxtPMax(3)->setText("30 colonne");  // leading-number reading
    EXPECT_EQ(Cifre(b.c.LabSviluppate()->text()), "3500");
    EXPECT_NE(b.c.LabSviluppate()->text(), "3500") << "thousands separator expected";
    EXPECT_EQ(b.c.LabCondizionate()->text(), "42");

    b.c.txtMsgFromDll(1)->setText(FileLavoratore(cartella, 1));
    b.c.AnnullaSviluppoEsterno();
    EXPECT_FALSE(b.c.InSviluppo());
    EXPECT_TRUE(b.c.txtMsgFromDll(1)->text().isEmpty());
    b.c.txtMsgFromDll(2)->setText(FileLavoratore(cartella, 2));
    b.c.txtMsgFromDll(3)->setText(FileLavoratore(cartella, 3));
    EXPECT_EQ(b.c.QuantitaColonne(), 0) << "a cancelled worker's report must not count";
}

TEST(Lavoratori, RaccogliCondizioniSumsTheWorkersCounters) {
    CartellaTempProvvisoria temp;
    const std::string base = combi::FileSistemaTemp();
    ASSERT_EQ(combi::CartellaDelFile(base), combi::CartellaDelFile(temp.Percorso("x").toStdString()));
    for (int i = 1; i <= 2; ++i) {
        combi::FileSistema f;
        f.intestazione.classe = 2;
        f.condizioni.resize(i == 1 ? 1 : 2);
        f.condizioni[0].Tipo = combi::kPeso;
        f.condizioni[0].ContaSuperate = i == 1 ? 10 : 7;
        f.condizioni[0].ContaFallite = 1;
        f.condizioni[0].Numeri[5] = 1;  // sets are not copied
        combi::ScriviFileSistema(combi::NomeFileNumerato(base, i), f);
    }
    BancoLavoratori b;  // W = 3: the third file is missing and adds nothing
    combi::TabellaCondizioni tabella;
    b.c.RaccogliCondizioni(tabella);
    ASSERT_EQ(tabella.size(), 2u);
    EXPECT_EQ(tabella[0].ContaSuperate, 17);
    EXPECT_EQ(tabella[0].ContaFallite, 2);
    EXPECT_EQ(tabella[0].Tipo, combi::kPeso);
    EXPECT_EQ(tabella[0].Numeri[5], 0);
}
