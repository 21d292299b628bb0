#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <functional>
#include <numeric>
#include <random>

#include "../control/Banco.h"
#include "../engine/ColonnaDiProva.h"
#include "../engine/OsservatoriDiProva.h"
#include "CollegaStrumenti.h"
#include "F_Riduzione.h"
#include "FileColonne.h"
#include "Riduzione.h"
#include "UtilitaSchermo.h"
#include "Screenshot.h"

namespace {

using combi::Colonna;

using combi::test::ColonneCasuali;

using combi::test::Registro;

// What the control must hold after the run: element 0 empty, then the columns
// left, as the plain all-pairs reduction keeps them (the window runs the
// indexed one).
std::vector<Colonna> Attese(const std::vector<Colonna>& colonne, int punti, int stopAlPasso = 0) {
    Registro fermata(stopAlPasso);
    std::vector<Colonna> v = combi::RiduciColonneRiferimento(colonne, punti, fermata).colonne;
    v.insert(v.begin(), Colonna{});
    return v;
}

std::vector<Colonna> Tenute(const CombiFiltroA& c) {
    std::vector<Colonna> v;
    c.GetColonneSviluppo(v);
    return v;
}

// A control with scripted dialogs, a reduction window on it and a folder
// for the columns files.
struct BancoRiduzione {
    Banco b;
    QTemporaryDir cartella;
    F_Riduzione f{b.c, b.dialoghi};

    QString Scrivi(const QString& nome, const std::vector<Colonna>& colonne) {
        const QString percorso = cartella.filePath(nome);
        combi::ScriviFileColonne(percorso.toStdString(), colonne);
        return percorso;
    }
    void Scegli(const QString& percorso) {
        b.dialoghi.fileScelti.push_back(percorso);
        f.Command1()->click();
    }
    void Garanzia(int indice) { f.cmbRiduzione()->setCurrentIndex(indice); }
    void Avvia() { f.XPButton1(0)->click(); }
};

// Runs `azione` during the reduction's message pumps: `volte` counts the
// pumps seen while the window is busy; the action runs at the first one.
struct DuranteLaRiduzione {
    DuranteLaRiduzione(const F_Riduzione& f, std::function<void()> azione) {
        timer.setInterval(0);
        QObject::connect(&timer, &QTimer::timeout, [this, &f, azione = std::move(azione)] {
            if (!f.Occupato()) return;
            if (volte++ == 0) azione();
        });
        timer.start();
    }
    QTimer timer;
    int volte = 0;
};

TEST(F_Riduzione, OpensWithThreeGuaranteesAndReadsTheChosenFile) {
    BancoRiduzione r;
    EXPECT_EQ(r.f.windowTitle(), "Riduzione colonne");
    QComboBox* cmb = r.f.cmbRiduzione();
    ASSERT_EQ(cmb->count(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(cmb->itemText(i), QString("6 - %1").arg(i + 1));
        EXPECT_EQ(cmb->itemData(i).toInt(), i + 1);
    }
    EXPECT_EQ(cmb->currentIndex(), 0);
    EXPECT_TRUE(r.f.XPButton1(0)->isEnabled());

    // Cancelled: nothing shown. The dialog starts in the program's folder.
    r.f.Command1()->click();
    ASSERT_EQ(r.b.dialoghi.dialoghiFile.size(), 1u);
    const DialogoFile& d = r.b.dialoghi.dialoghiFile[0];
    EXPECT_EQ(d.titolo, "Apri file");
    EXPECT_EQ(d.filtro, "File colonne (*.col)|*.col");
    EXPECT_EQ(d.nome, "*.col");
    EXPECT_EQ(d.estensione, ".col");
    EXPECT_EQ(QDir(d.cartella), QDir(CartellaProgramma()));
    EXPECT_TRUE(r.f.labFile()->text().isEmpty());

    const QString file = r.Scrivi("Sette.col", ColonneCasuali(1, 7, 20));
    r.Scegli(file);
    EXPECT_EQ(r.f.labFile()->text(), file);
    EXPECT_EQ(r.f.LabColonne()->text(), "7");

    // A file cut inside a record shows the fraction, as its length says.
    QFile troncato(r.cartella.filePath("Troncato.col"));
    ASSERT_TRUE(troncato.open(QIODevice::WriteOnly));
    troncato.write(QByteArray(50, '\1'));
    troncato.close();
    r.Scegli(troncato.fileName());
    EXPECT_EQ(r.f.LabColonne()->text(), "2.5");

    // A name that vanished before the dialog returned keeps the previous file.
    r.Scegli(r.cartella.filePath("Sparito.col"));
    EXPECT_EQ(r.f.labFile()->text(), troncato.fileName());
    EXPECT_TRUE(r.b.dialoghi.boxes.empty());

    // A name that exists but cannot be read as a file: reported, no count.
    const QString cartella = r.cartella.filePath("Cartella.col");
    ASSERT_TRUE(QDir().mkdir(cartella));
    r.Scegli(cartella);
    ASSERT_EQ(r.b.dialoghi.boxes.size(), 1u);
    EXPECT_EQ(r.b.dialoghi.boxes[0].tipo, "critico");
    EXPECT_EQ(r.b.dialoghi.boxes[0].titolo, "Mod_Sviluppo.GetNumeroColonneInFile");
    EXPECT_EQ(r.b.dialoghi.boxes[0].testo, "75- Impossibile leggere il file: " + cartella);
    EXPECT_TRUE(r.f.LabColonne()->text().isEmpty());
}

TEST(F_Riduzione, KeepsTheEngineColumnsForEachGuarantee) {
    BancoRiduzione r;
    const std::vector<Colonna> colonne = ColonneCasuali(7, 400, 14);
    r.Scegli(r.Scrivi("Quattrocento.col", colonne));
    r.f.show();
    size_t precedenti = colonne.size() + 1;
    for (int indice : {0, 1, 2}) {
        SCOPED_TRACE(indice);
        const int punti = 5 - indice;
        r.b.c.ImpostaColonneSviluppo({});
        r.f.LabColonneRid()->setText("vecchio");
        r.Garanzia((indice + 1) % 3);
        r.Garanzia(indice);
        EXPECT_TRUE(r.f.LabColonneRid()->text().isEmpty()) << "a new guarantee clears the old result";
        ASSERT_TRUE(r.f.XPButton1(0)->isEnabled());

        QString fase, ridotte = "non letto";
        bool abilitati = true;
        DuranteLaRiduzione durante(r.f, [&] {
            fase = r.f.LabInfo()->text();
            ridotte = r.f.LabColonneRid()->text();
            abilitati = r.f.XPButton1(0)->isEnabled() || r.f.cmbRiduzione()->isEnabled() ||
                        r.f.Command1()->isEnabled();
        });
        r.Avvia();

        const std::vector<Colonna> attese = Attese(colonne, punti);
        EXPECT_EQ(Tenute(r.b.c), attese);
        EXPECT_LT(attese.size(), precedenti) << "fewer shared numbers, fewer columns";
        precedenti = attese.size();
        EXPECT_EQ(r.f.LabColonneRid()->text(), QString::number(attese.size() - 1));
        EXPECT_EQ(fase, combi::kFaseAnalisi);
        EXPECT_TRUE(ridotte.isEmpty());
        EXPECT_FALSE(abilitati) << "start, guarantee and file locked during the run";
        EXPECT_TRUE(r.f.LabInfo()->text().isEmpty());
        EXPECT_EQ(r.f.PanPerc()->value(), 0);
        EXPECT_FALSE(r.f.XPButton1(0)->isEnabled()) << "start waits for another guarantee";
        EXPECT_TRUE(r.f.cmbRiduzione()->isEnabled());
        EXPECT_TRUE(r.f.Command1()->isEnabled());
        EXPECT_TRUE(r.b.c.Pulsante("VisualizzaColonne")->isEnabled());
        EXPECT_TRUE(r.f.isVisible());
    }
    EXPECT_TRUE(r.b.dialoghi.boxes.empty());
}

TEST(F_Riduzione, StopIsAskedAndClosesTheWindowOnlyOnYes) {
    const std::vector<Colonna> colonne = ColonneCasuali(11, 300, 13);
    for (const bool si : {false, true}) {
        SCOPED_TRACE(si ? "Sì" : "No");
        BancoRiduzione r;
        r.Scegli(r.Scrivi("Trecento.col", colonne));
        r.Garanzia(2);  // "6 - 3": three shared numbers
        r.f.show();
        r.b.dialoghi.risposte.push_back(si);
        bool apertaDopoChiusura = false;
        DuranteLaRiduzione durante(r.f, [&] {
            r.f.close();
            r.f.reject();
            apertaDopoChiusura = r.f.isVisible();
            r.f.XPButton1(1)->click();
        });
        r.Avvia();

        EXPECT_TRUE(apertaDopoChiusura) << "the window refuses to close while busy";
        ASSERT_EQ(r.b.dialoghi.boxes.size(), 1u);
        EXPECT_EQ(r.b.dialoghi.boxes[0].tipo, "domanda");
        EXPECT_EQ(r.b.dialoghi.boxes[0].testo, "Interrompere il processo di riduzione ? ");
        // The stop is seen right after the pump in which it was confirmed.
        EXPECT_EQ(Tenute(r.b.c), si ? Attese(colonne, 3, 1) : Attese(colonne, 3));
        EXPECT_NE(Attese(colonne, 3, 1), Attese(colonne, 3));
        EXPECT_EQ(r.f.isVisible(), !si);
        EXPECT_EQ(r.f.LabColonneRid()->text(), QString::number(r.b.c.QuantitaColonne()));
        EXPECT_EQ(r.b.c.RichiestaStopRiduzione(), si);
    }
}

TEST(F_Riduzione, IdleCloseButtonClosesWithoutAsking) {
    BancoRiduzione r;
    r.f.show();
    r.f.XPButton1(1)->click();
    EXPECT_FALSE(r.f.isVisible());
    EXPECT_TRUE(r.b.dialoghi.boxes.empty());
}

TEST(F_Riduzione, ReportsMissingEmptyAndBadFilesAndKeepsTheColumns) {
    BancoRiduzione r;
    std::vector<Colonna> sviluppate(3);
    sviluppate[1][1] = 1, sviluppate[2][1] = 2;
    r.b.c.ImpostaColonneSviluppo(sviluppate);

    std::vector<Colonna> classe5 = ColonneCasuali(3, 4, 30, 5);
    std::vector<Colonna> doppione = ColonneCasuali(3, 4, 30);
    doppione[2][4] = doppione[2][3];  // a number twice in the first six
    struct Caso {
        const char* nome;
        QString file;
        QString tipo, titolo, testo;
    };
    const Caso casi[] = {
        {"nessun file scelto", QString(), "critico", QString(), "Il file delle colonne non esiste"},
        {"vuoto", r.Scrivi("Vuoto.col", {}), "esclamazione", QString(),
         "Il file delle colonne non contiene colonne"},
        {"classe 5", r.Scrivi("Cinque.col", classe5), "critico", "CombiFiltro.RiduciColonne",
         "321- La colonna 1 non ha sei numeri diversi da 1 a 90 nelle prime sei posizioni"},
        {"numero ripetuto", r.Scrivi("Doppio.col", doppione), "critico", "CombiFiltro.RiduciColonne",
         "321- La colonna 3 non ha sei numeri diversi da 1 a 90 nelle prime sei posizioni"},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE(c.nome);
        r.b.dialoghi.boxes.clear();
        if (!c.file.isEmpty()) r.Scegli(c.file);
        r.Garanzia(1), r.Garanzia(0);
        r.Avvia();
        ASSERT_EQ(r.b.dialoghi.boxes.size(), 1u);
        EXPECT_EQ(r.b.dialoghi.boxes[0].tipo, c.tipo);
        EXPECT_EQ(r.b.dialoghi.boxes[0].titolo, c.titolo);
        EXPECT_EQ(r.b.dialoghi.boxes[0].testo, c.testo);
        EXPECT_EQ(Tenute(r.b.c), sviluppate);
        EXPECT_EQ(r.f.LabColonneRid()->text(), "2") << "the control's columns, unchanged";
        EXPECT_FALSE(r.f.Occupato());
        EXPECT_TRUE(r.f.cmbRiduzione()->isEnabled());
    }
}

TEST(F_Riduzione, NothingReactsWhileTheControlDevelops) {
    BancoRiduzione r;
    const std::vector<Colonna> colonne = ColonneCasuali(13, 40, 12);
    const QString file = r.Scrivi("Quaranta.col", colonne);
    r.Scegli(file);
    r.Avvia();
    const QString vecchio = r.f.LabColonneRid()->text();
    ASSERT_EQ(vecchio, QString::number(Attese(colonne, 5).size() - 1));

    r.b.NumeriDa1A(25);  // 53130 columns, all kept
    r.b.dialoghi.fileScelti.push_back(file);  // what a file dialog would answer
    bool provato = false;
    QTimer::singleShot(0, &r.b.c, [&] {
        ASSERT_TRUE(r.b.c.InSviluppo());
        r.f.Avvia();
        r.f.Command1()->click();
        r.b.c.RiduciColonne(file, 3);  // the host's own call
        provato = true;
    });
    r.b.c.GestSviluppo();
    EXPECT_TRUE(provato);
    EXPECT_EQ(r.b.c.QuantitaColonne(), 53130) << "no reduction ran inside the development";
    EXPECT_EQ(r.f.LabColonneRid()->text(), vecchio) << "the refused start keeps the old count";
    EXPECT_EQ(r.b.dialoghi.dialoghiFile.size(), 1u) << "no file dialog while developing";
    ASSERT_EQ(r.b.dialoghi.boxes.size(), 1u);
    EXPECT_TRUE(r.b.dialoghi.boxes[0].testo.startsWith("Fine sviluppo "));
}

TEST(RiduciColonne, AHostCallWithNoWindowOpenGetsOneFromTheTools) {
    Banco b;
    QTemporaryDir cartella;
    const std::vector<Colonna> colonne = ColonneCasuali(5, 250, 12);
    const QString file = cartella.filePath("Host.col");
    combi::ScriviFileColonne(file.toStdString(), colonne);

    // No tools: unseen, after a window that is gone too; an old stop request is cleared.
    delete new F_Riduzione(b.c, b.dialoghi);
    b.c.StopRiduciColonne();
    b.c.RiduciColonne(file, 3);
    EXPECT_EQ(Tenute(b.c), Attese(colonne, 3));
    EXPECT_FALSE(b.c.RichiestaStopRiduzione());

    CollegaStrumenti(b.c, b.dialoghi);
    QPointer<F_Riduzione> finestra;
    QString fase;
    int percento = -1;
    QTimer spia;
    spia.setInterval(0);
    QObject::connect(&spia, &QTimer::timeout, [&] {
        if (finestra || !(finestra = b.c.findChild<F_Riduzione*>())) return;
        fase = finestra->LabInfo()->text();
        QObject::connect(finestra->PanPerc(), &QProgressBar::valueChanged,
                         [&](int valore) { percento = std::max(percento, valore); });
    });
    spia.start();
    b.c.RiduciColonne(file, 4);
    ASSERT_TRUE(finestra) << "no reduction window came up";
    EXPECT_TRUE(finestra->isVisible());
    EXPECT_EQ(fase, combi::kFaseAnalisi);
    EXPECT_EQ(percento, 100);
    EXPECT_TRUE(finestra->LabInfo()->text().isEmpty());
    EXPECT_EQ(Tenute(b.c), Attese(colonne, 4));

    // While it stays open, the next call reports into the same window.
    b.c.RiduciColonne(file, 5);
    EXPECT_EQ(b.c.findChildren<F_Riduzione*>().size(), 1);
    EXPECT_EQ(Tenute(b.c), Attese(colonne, 5));
    EXPECT_TRUE(b.dialoghi.boxes.empty());
    finestra->close();
}

TEST(CollegaStrumenti, RiduzioneOpensTheWindowAndRefreshesTheColumnCommands) {
    Banco b;
    CollegaStrumenti(b.c, b.dialoghi);
    QTemporaryDir cartella;
    const std::vector<Colonna> colonne = ColonneCasuali(9, 60, 10);
    const QString file = cartella.filePath("Barra.col");
    combi::ScriviFileColonne(file.toStdString(), colonne);
    ASSERT_FALSE(b.c.Pulsante("VisualizzaColonne")->isEnabled());

    QString titolo;
    QTimer::singleShot(0, [&] {
        auto* f = qobject_cast<F_Riduzione*>(QApplication::activeModalWidget());
        if (f == nullptr) return;
        titolo = f->windowTitle();
        b.dialoghi.fileScelti.push_back(file);
        f->Command1()->click();
        f->XPButton1(0)->click();
        f->XPButton1(1)->click();
    });
    b.c.EseguiComando("Riduzione");
    EXPECT_EQ(titolo, "Riduzione colonne");
    EXPECT_EQ(Tenute(b.c), Attese(colonne, 5));
    EXPECT_TRUE(b.c.Pulsante("VisualizzaColonne")->isEnabled());
}

// Not a check: with --screenshot (scripts/screenshot-strumenti.sh)
// it saves a picture of the window after a reduction.
SCREENSHOT(Riduzione) {
    BancoRiduzione r;
    r.Scegli(r.Scrivi("Esempio.col", ColonneCasuali(2026, 5000, 24)));
    r.Garanzia(1);
    r.f.show();
    r.Avvia();
    QTest::qWait(200);
    EXPECT_TRUE(r.f.grab().save(cartella + "/riduzione.png"));
}

}  // namespace
