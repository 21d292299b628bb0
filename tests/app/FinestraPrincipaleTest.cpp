// The host's window as a player uses it: the title tells the file and
// whether it is saved, the File menu and its keys work, the recent systems
// come back newest first, and nothing but "Interrompi" can be chosen while a
// system develops.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTableWidget>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include "../control/FakeDialoghi.h"
#include "CombiFiltroA.h"
#include "F_VerificaGaranzia.h"
#include "FileRecenti.h"
#include "FinestraPrincipale.h"

namespace {

// Settings of a folder of their own, so that no test reads another's (or the
// user's) recent files.
class FinestraTest : public ::testing::Test {
protected:
    void SetUp() override { qputenv("XDG_CONFIG_HOME", impostazioni_.path().toUtf8()); }
    QTemporaryDir impostazioni_;
};

QAction* Voce(QMainWindow& f, const QString& testo) {
    for (QAction* menu : f.menuBar()->actions())
        for (QAction* a : menu->menu()->actions())
            if (a->text().remove('&') == testo) return a;
    return nullptr;
}

TEST_F(FinestraTest, TitleShowsTheFileAndTheUnsavedMark) {
    auto dialoghi = std::make_unique<FakeDialoghi>();
    FakeDialoghi& d = *dialoghi;
    FinestraPrincipale f(std::move(dialoghi));
    EXPECT_EQ(f.windowTitle(), "CombiFiltro - Nuovo sistema[*]");
    EXPECT_FALSE(f.isWindowModified());
    f.Controllo().SelezionaNumero(7, true);
    EXPECT_TRUE(f.isWindowModified());
    QTemporaryDir cartella;
    const QString file = cartella.filePath("Lotto6.sic");
    d.fileScelti = {file};
    Voce(f, "Salva con nome...")->trigger();
    EXPECT_EQ(f.windowTitle(), "CombiFiltro - Lotto6.sic[*]");
    EXPECT_FALSE(f.isWindowModified());
    QSettings impostazioni;
    EXPECT_EQ(FileRecenti(impostazioni).Elenco(), QStringList{file});
}

TEST_F(FinestraTest, FileMenuHoldsTheUsualEntriesAndKeys) {
    FinestraPrincipale f(std::make_unique<FakeDialoghi>());
    const struct { const char* voce; QKeySequence tasti; } attese[] = {
        {"Nuovo", QKeySequence::New},          {"Apri...", QKeySequence::Open},
        {"Salva", QKeySequence::Save},         {"Salva con nome...", QKeySequence::SaveAs},
        {"Salva colonne...", QKeySequence()},  {"Stampa schedine...", QKeySequence::Print},
        {"Esci", QKeySequence::Quit},          {"Sviluppa sistema", QKeySequence(Qt::Key_F5)},
        {"Interrompi", QKeySequence(Qt::Key_Escape)},
    };
    for (const auto& a : attese) {
        QAction* voce = Voce(f, a.voce);
        ASSERT_NE(voce, nullptr) << a.voce;
        EXPECT_EQ(voce->shortcut(), a.tasti) << a.voce;
    }
    EXPECT_NE(Voce(f, "File recenti"), nullptr);
}

// Ten systems opened one after the other: the last eight, newest first, each
// once however often it was opened.
TEST_F(FinestraTest, RecentFilesNewestFirstEachOnceAtMostEight) {
    QSettings impostazioni;
    FileRecenti recenti(impostazioni);
    for (const char* nome : {"/s/a.sic", "/s/b.sic", "/s/a.sic", "/s/c.sic", "/s/d.sic", "/s/e.sic", "/s/f.sic",
                             "/s/g.sic", "/s/h.sic", "/s/i.sic"})
        recenti.Aggiungi(nome);
    EXPECT_EQ(recenti.Elenco(), (QStringList{"/s/i.sic", "/s/h.sic", "/s/g.sic", "/s/f.sic", "/s/e.sic", "/s/d.sic",
                                             "/s/c.sic", "/s/a.sic"}));
    recenti.Togli("/s/e.sic");
    EXPECT_EQ(recenti.Elenco().size(), 7);
    EXPECT_FALSE(recenti.Elenco().contains("/s/e.sic"));
}

// F5 develops; while it runs only "Interrompi" (Esc) can be chosen.
TEST_F(FinestraTest, DuringADevelopmentOnlyInterrompiIsEnabled) {
    auto dialoghi = std::make_unique<FakeDialoghi>();
    FakeDialoghi& d = *dialoghi;
    FinestraPrincipale f(std::move(dialoghi));
    for (int n = 1; n <= 25; ++n) f.Controllo().SelezionaNumero(int16_t(n), true);
    f.Controllo().setClasse(6);
    EXPECT_FALSE(Voce(f, "Interrompi")->isEnabled());
    QStringList abilitate;
    QTimer::singleShot(0, &f, [&] {
        for (const char* v : {"Nuovo", "Apri...", "Salva", "Stampa schedine...", "Sviluppo parallelo",
                              "Processi di sviluppo...", "Verifica su archivio...", "Verifica garanzia...",
                              "Interrompi"})
            if (Voce(f, v)->isEnabled()) abilitate << v;
    });
    Voce(f, "Sviluppa sistema")->trigger();
    EXPECT_EQ(abilitate, QStringList{"Interrompi"});
    EXPECT_TRUE(Voce(f, "Nuovo")->isEnabled());
    EXPECT_FALSE(Voce(f, "Interrompi")->isEnabled());
    EXPECT_EQ(f.Controllo().QuantitaColonne(), 177100);
    ASSERT_FALSE(d.boxes.empty());
    EXPECT_TRUE(d.boxes.back().testo.startsWith("Fine sviluppo"));
}

// "Strumenti > Verifica garanzia..." checks the control's columns and picked
// numbers. Picked 1..7, kept {1..6} alone, five drawn (Lotto): 7 drawn with
// m - 1 others of 1..6 is the worst case, so m numbers make m - 1 points.
TEST_F(FinestraTest, VerificaGaranziaChecksTheControlsColumns) {
    FinestraPrincipale f(std::make_unique<FakeDialoghi>());
    for (int n = 1; n <= 7; ++n) f.Controllo().SelezionaNumero(int16_t(n), true);
    combi::Colonna sestina;
    for (int p = 1; p <= 6; ++p) sestina[p] = uint8_t(p);
    f.Controllo().ImpostaColonneSviluppo({combi::Colonna{}, sestina});
    QAction* voce = Voce(f, "Verifica garanzia...");
    ASSERT_NE(voce, nullptr);
    QString colonne;
    QStringList tabella;
    QTimer::singleShot(0, &f, [&] {
        auto* garanzia = qobject_cast<F_VerificaGaranzia*>(QApplication::activeModalWidget());
        if (garanzia == nullptr) return;
        colonne = garanzia->LabColonne()->text();
        garanzia->CmdTabella()->click();
        const QTableWidget* t = garanzia->GrdGaranzia();
        for (int r = 0; r < t->rowCount(); ++r) tabella << t->item(r, 0)->text() + ">" + t->item(r, 1)->text();
        garanzia->close();
    });
    voce->trigger();
    EXPECT_EQ(colonne, "1");
    EXPECT_EQ(tabella, (QStringList{"1>0", "2>1", "3>2", "4>3", "5>4"}));
}

}  // namespace
