#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QCheckBox>
#include <QLabel>
#include <QLineSeries>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <array>
#include <functional>

#include "../control/Banco.h"
#include "../engine/ColonnaDiProva.h"
#include "../engine/OsservatoriDiProva.h"
#include "AiutiStrumenti.h"
#include "CollegaStrumenti.h"
#include "F_Riduzione.h"
#include "Garanzia.h"
#include "Riduzione.h"
#include "RiduzioneOttimizzata.h"
#include "UtilitaSchermo.h"
#include "Screenshot.h"

namespace {

using combi::Colonna;
using combi::test::Col, combi::test::ColonneCasuali, combi::test::Comuni, combi::test::DaA, combi::test::Registro;

// What the control must hold after the run: element 0 empty, then the columns
// left, as the plain all-pairs reduction keeps them (the window runs the
// indexed one).
std::vector<Colonna> Attese(const std::vector<Colonna>& colonne, int punti, int stopAlPasso = 0) {
    Registro fermata(stopAlPasso);
    std::vector<Colonna> v = combi::RiduciColonneRiferimento(colonne, punti, fermata).colonne;
    v.insert(v.begin(), Colonna{});
    return v;
}

std::vector<Colonna> Tenute(const CombiFiltroA& c, bool senzaZero = false) {
    std::vector<Colonna> v;
    c.GetColonneSviluppo(v);
    if (senzaZero && !v.empty()) v.erase(v.begin());
    return v;
}

// The guarantee checked by brute force: every input column shares at least
// `punti` numbers with a kept one, and every kept column is an input column.
void ControllaGaranzia(const std::vector<Colonna>& tenute, const std::vector<Colonna>& ingresso, int punti,
                       int classe) {
    for (const Colonna& t : tenute)
        EXPECT_NE(std::find(ingresso.begin(), ingresso.end(), t), ingresso.end()) << "a kept column not in the file";
    EXPECT_TRUE(combi::test::BuchiAForzaBruta(tenute, ingresso, punti, classe).empty()) << "a column is not covered";
}

struct BancoRiduzione {
    Banco b;
    QTemporaryDir cartella;
    F_Riduzione f{b.c, b.dialoghi};

    QString Scrivi(const QString& nome, const std::vector<Colonna>& c) { return ScriviColonne(cartella, nome, c); }
    void Scegli(const QString& percorso) {
        b.dialoghi.fileScelti.push_back(percorso);
        f.Command1()->click();
    }
    void Garanzia(int indice) { f.cmbRiduzione()->setCurrentIndex(indice); }
    void Avvia() { f.XPButton1(0)->click(); }
};

// Runs `azione` at the first message pump of the reduction.
struct DuranteLaRiduzione : Spia {
    DuranteLaRiduzione(const F_Riduzione& f, std::function<void()> azione)
        : Spia([&f, azione = std::move(azione), prima = true]() mutable {
              if (f.Occupato() && std::exchange(prima, false)) azione();
          }) {}
};

TEST(F_Riduzione, OpensWithThreeGuaranteesAndTheSecondsOnlyWhenOttimizzaIsTicked) {
    BancoRiduzione r;
    EXPECT_EQ(r.f.windowTitle(), "Riduzione colonne");
    QComboBox* cmb = r.f.cmbRiduzione();
    ASSERT_EQ(cmb->count(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(cmb->itemText(i), QString("N - %1").arg(i + 1));
        EXPECT_EQ(cmb->itemData(i).toInt(), i + 1);
    }
    EXPECT_EQ(cmb->currentIndex(), 0);
    EXPECT_TRUE(r.f.XPButton1(0)->isEnabled());

    QSpinBox* secondi = r.f.TxtSecondi();
    EXPECT_EQ(r.f.ChkOttimizza()->text(), "Ottimizza");
    EXPECT_FALSE(r.f.ChkOttimizza()->isChecked());
    EXPECT_EQ((std::array{secondi->minimum(), secondi->value(), secondi->maximum()}), (std::array{1, 60, 3600}));
    for (const bool spunta : {false, true, false}) {  // as it opens, ticked, unticked again
        r.f.ChkOttimizza()->setChecked(spunta);
        EXPECT_EQ(secondi->isEnabled(), spunta) << spunta;
        EXPECT_EQ(r.f.GraficoMigliori()->isVisibleTo(&r.f), spunta) << spunta;
    }
}

// Files chosen one after another on one window. A file cut inside a record
// shows the fraction its length says; a name that vanished before the dialog
// returned keeps the file chosen before, and so do columns of a class outside
// 2..10, of mixed classes or with a number twice, with a box that says why.
TEST(F_Riduzione, ReadsTheChosenFileAndRefusesOneOfAnotherClassOrOfMixedClasses) {
    BancoRiduzione r;
    // Cancelled: nothing shown. The dialog starts in the systems folder, or
    // in the program's when the control names none that exists.
    r.f.Command1()->click();
    r.b.c.setDirSistemi(r.cartella.path());
    r.f.Command1()->click();
    ASSERT_EQ(r.b.dialoghi.dialoghiFile.size(), 2u);
    const DialogoFile& d = r.b.dialoghi.dialoghiFile[1];
    EXPECT_EQ((QStringList{d.titolo, d.filtro, d.nome, d.estensione}),
              (QStringList{"Apri file", "File colonne (*.col)|*.col", "*.col", ".col"}));
    EXPECT_EQ(QDir(r.b.dialoghi.dialoghiFile[0].cartella), QDir(CartellaProgramma()));
    EXPECT_EQ(QDir(d.cartella), QDir(r.cartella.path()));
    EXPECT_TRUE(r.f.labFile()->text().isEmpty());

    const QString sette = r.Scrivi("Sette.col", ColonneCasuali(1, 7, 20)), troncato = r.cartella.filePath("T.col");
    ASSERT_TRUE(QFile::copy(sette, troncato) && QFile::resize(troncato, 50));
    const QString buono = r.Scrivi("Buono.col", ColonneCasuali(3, 5, 30, 4));
    std::vector<Colonna> misto = ColonneCasuali(3, 4, 30, 6);
    misto[2][6] = 0;  // a class-5 column among class-6 ones
    std::vector<Colonna> doppione = ColonneCasuali(3, 4, 30);
    doppione[2][4] = doppione[2][3];
    // Each file, why it is refused (empty: taken), and the file, count and class shown after it.
    struct Caso { const char* nome; QString file, motivo, mostrato, colonne; int classe; };
    const QString fuori = "la classe delle colonne deve essere da 2 a 10: la colonna 1 ha ";
    const Caso casi[] = {
        {"sette", sette, "", sette, "7", 6},
        {"troncato", troncato, "", troncato, "2.5", 6},
        {"sparito", r.cartella.filePath("Sparito.col"), "", troncato, "2.5", 6},
        {"classe 4", buono, "", buono, "5", 4},
        {"classe 11", r.Scrivi("C11.col", ColonneCasuali(4, 3, 40, 11)), fuori + "11 numeri", buono, "5", 4},
        {"classe 1", r.Scrivi("C1.col", ColonneCasuali(4, 3, 40, 1)), fuori + "1 numeri", buono, "5", 4},
        {"classi diverse", r.Scrivi("Misto.col", misto), "la colonna 3 non ha", buono, "5", 4},
        {"numero ripetuto", r.Scrivi("Doppione.col", doppione), "la colonna 3 non ha", buono, "5", 4},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE(c.nome);
        r.b.dialoghi.boxes.clear();
        r.Scegli(c.file);
        ASSERT_EQ(r.b.dialoghi.boxes.size(), c.motivo.isEmpty() ? 0u : 1u);
        if (!c.motivo.isEmpty()) {
            const BoxMostrato& box = r.b.dialoghi.boxes[0];
            EXPECT_EQ((QStringList{box.tipo, box.titolo}), (QStringList{"esclamazione", "Riduzione colonne"}));
            EXPECT_TRUE(box.testo.startsWith("Le colonne di questo file non si possono ridurre: " + c.motivo))
                << box.testo.toStdString();
            EXPECT_TRUE(box.testo.endsWith("Si riducono file con colonne tutte della stessa classe, da 2 a 10."));
        }
        EXPECT_EQ(r.f.labFile()->text(), c.mostrato);
        EXPECT_EQ(r.f.LabColonne()->text(), c.colonne);
        EXPECT_EQ(r.f.LabClasse()->text(), QString::number(c.classe));
        EXPECT_EQ(r.f.Classe(), c.classe);
    }

    // A name that exists but cannot be read as a file: reported, no count.
    const QString cartella = r.cartella.filePath("Cartella.col");
    ASSERT_TRUE(QDir().mkdir(cartella));
    r.b.dialoghi.boxes.clear();
    r.Scegli(cartella);
    ASSERT_EQ(r.b.dialoghi.boxes.size(), 1u);
    EXPECT_EQ(r.b.dialoghi.boxes[0].tipo, "critico");
    EXPECT_EQ(r.b.dialoghi.boxes[0].titolo, "Mod_Sviluppo.GetNumeroColonneInFile");
    EXPECT_EQ(r.b.dialoghi.boxes[0].testo, "75- Impossibile leggere il file: " + cartella);
    EXPECT_TRUE(r.f.LabColonne()->text().isEmpty());
}

// A file of class N reduced with "N - k" keeps what the engine keeps with
// N - k shared numbers: a cover of the file (checked one column against
// another) in which no kept column covers another, smaller for fewer shared
// numbers, of the size worked out by hand on the small files. The entry chosen
// before the file falls back to "N - 1" when the class turns it off; the
// entries run one after another on one window.
TEST(F_Riduzione, ReducesColumnsOfAnyClassWithNMinusTheEntry) {
    struct Voce { int voce, punti, tenuteAMano; };  // tenuteAMano -1: not worked out
    struct Caso { const char* nome; std::vector<Colonna> colonne; int classe; std::vector<Voce> voci; };
    // Class 3, two shared numbers: {1,2,3}, {1,2,4} and {1,2,5} cover one
    // another, {6,7,8} only itself: two columns.
    const std::vector<Colonna> tre = {Col({1, 2, 3}), Col({1, 2, 4}), Col({1, 2, 5}), Col({6, 7, 8})};
    // Class 5: {1,2,3,4,5} and {1,2,3,4,6} share four numbers, {1,2,3,7,8}
    // three with each, {10..14} none: three columns with four shared
    // numbers, two with three.
    const std::vector<Colonna> cinque = {Col({1, 2, 3, 4, 5}), Col({1, 2, 3, 4, 6}), Col({1, 2, 3, 7, 8}),
                                         Col({10, 11, 12, 13, 14})};
    const Caso casi[] = {
        // {1,2} and {1,3} share one number: one of them and {4,5}.
        {"classe 2 a mano", {Col({1, 2}), Col({1, 3}), Col({4, 5})}, 2, {{0, 1, 2}}},
        {"classe 3 a mano", tre, 3, {{0, 2, 2}}},
        {"classe 5 a mano", cinque, 5, {{0, 4, 3}, {1, 3, 2}}},
        {"classe 6", ColonneCasuali(7, 400, 14), 6, {{0, 5, -1}, {1, 4, -1}, {2, 3, -1}}},
        {"classe 5", ColonneCasuali(21, 300, 12, 5), 5, {{1, 3, -1}}},
        {"classe 3", ColonneCasuali(24, 200, 10, 3), 3, {{1, 1, -1}}},
        {"classe 2", ColonneCasuali(25, 60, 14, 2), 2, {{0, 1, -1}}},
        {"classe 10", ColonneCasuali(26, 120, 14, 10), 10, {{2, 7, -1}}},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE(c.nome);
        BancoRiduzione r;
        r.Garanzia(2);
        r.Scegli(r.Scrivi("Classe.col", c.colonne));
        ASSERT_TRUE(r.b.dialoghi.boxes.empty());
        EXPECT_EQ(r.f.cmbRiduzione()->currentIndex(), c.classe >= 4 ? 2 : 0);
        EXPECT_EQ(r.f.LabClasse()->text(), QString::number(c.classe));
        auto* voci = qobject_cast<QStandardItemModel*>(r.f.cmbRiduzione()->model());
        ASSERT_NE(voci, nullptr);
        for (int k = 1; k <= 3; ++k) EXPECT_EQ(voci->item(k - 1)->isEnabled(), c.classe - k >= 1) << k;
        r.f.show();
        size_t precedenti = c.colonne.size();
        for (const Voce& v : c.voci) {
            SCOPED_TRACE(v.voce);
            r.b.c.ImpostaColonneSviluppo({});
            r.f.LabColonneRid()->setText("vecchio");
            r.Garanzia((v.voce + 1) % 3), r.Garanzia(v.voce);
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
            ASSERT_TRUE(r.b.dialoghi.boxes.empty()) << r.b.dialoghi.boxes[0].testo.toStdString();
            EXPECT_EQ(fase, combi::kFaseAnalisi);
            EXPECT_TRUE(ridotte.isEmpty());
            EXPECT_FALSE(abilitati) << "start, guarantee and file locked during the run";

            const std::vector<Colonna> attese = Attese(c.colonne, v.punti), senzaZero = Tenute(r.b.c, true);
            EXPECT_EQ(Tenute(r.b.c), attese);
            ControllaGaranzia(senzaZero, c.colonne, v.punti, c.classe);
            for (size_t i = 0; i < senzaZero.size(); ++i)
                for (size_t j = i + 1; j < senzaZero.size(); ++j)
                    EXPECT_LT(Comuni(senzaZero[i], senzaZero[j], c.classe), v.punti) << "kept " << i << " and " << j;
            if (v.tenuteAMano >= 0) {
                EXPECT_EQ(int(senzaZero.size()), v.tenuteAMano);
            }
            EXPECT_LT(attese.size() - 1, precedenti) << "fewer shared numbers, fewer columns";
            precedenti = attese.size() - 1;
            EXPECT_EQ(r.f.LabColonneRid()->text(), QString::number(attese.size() - 1));
            EXPECT_EQ(r.f.LabInfo()->text(), QString("Riduzione terminata: %1 colonne in ingresso, %2 tenute")
                                                 .arg(c.colonne.size())
                                                 .arg(senzaZero.size()));
            EXPECT_EQ(r.f.PanPerc()->value(), 100);
            EXPECT_FALSE(r.f.XPButton1(0)->isEnabled()) << "start waits for another guarantee";
            EXPECT_TRUE(r.f.cmbRiduzione()->isEnabled());
            EXPECT_TRUE(r.f.Command1()->isEnabled());
            EXPECT_TRUE(r.b.c.Pulsante("VisualizzaColonne")->isEnabled());
            EXPECT_TRUE(r.f.isVisible());
        }
    }
}

// Every column of 1..10 in class 6 (210) with three shared numbers, searched
// for one second, or of 1..11 (462) with the search stopped: never more
// columns than the plain reduction, still a cover of the file. A whole search
// showed the best sizes as they came, and the chart ends on the size kept; a
// stopped one keeps the best set found so far, and the window stays open.
TEST(F_Riduzione, OttimizzaKeepsTheGuaranteeWithNoMoreColumnsThanThePlainReduction) {
    for (const bool ferma : {false, true}) {
        SCOPED_TRACE(ferma ? "fermata" : "intera");
        BancoRiduzione r;
        const std::vector<Colonna> colonne = combi::ColonneIntegrali(DaA(1, ferma ? 11 : 10), 6);
        ASSERT_EQ(colonne.size(), ferma ? 462u : 210u);
        r.Scegli(r.Scrivi("Integrale.col", colonne));
        r.f.ChkOttimizza()->setChecked(true);
        r.f.TxtSecondi()->setValue(ferma ? 3600 : 1);
        r.Garanzia(2);  // "N - 3": three shared numbers
        r.f.show();
        r.b.dialoghi.risposte.push_back(true);
        QStringList visti;  // what the line said during the run, each change once
        bool chiesto = false;
        Spia spia([&] {
            const QString info = r.f.LabInfo()->text();
            if (!r.f.Occupato() || (!visti.isEmpty() && visti.last() == info)) return;
            visti << info;
            if (!ferma || chiesto || !(info == combi::kFaseOttimizzazione || info.startsWith("Migliore finora: ")))
                return;
            chiesto = true;
            r.f.XPButton1(1)->click();
        });
        r.Avvia();

        ASSERT_EQ(chiesto, ferma);
        EXPECT_EQ(r.b.dialoghi.Testi(), ferma ? QStringList{"Interrompere il processo di riduzione ? "} : QStringList{});
        const std::vector<Colonna> senzaZero = Tenute(r.b.c, true);
        ControllaGaranzia(senzaZero, colonne, 3, 6);
        EXPECT_LE(senzaZero.size() + 1, Attese(colonne, 3).size());
        EXPECT_EQ(r.f.LabInfo()->text(), QString("Ottimizzazione %1: %2 colonne in ingresso, %3 tenute")
                                             .arg(ferma ? "interrotta" : "terminata")
                                             .arg(colonne.size())
                                             .arg(senzaZero.size()));
        EXPECT_TRUE(r.f.isVisible());
        EXPECT_FALSE(r.f.Occupato());
        if (ferma) continue;
        EXPECT_EQ(r.f.LabColonneRid()->text(), QString::number(senzaZero.size()));
        EXPECT_EQ(r.f.PanPerc()->value(), 100);
        EXPECT_TRUE(std::ranges::any_of(visti, [](const QString& t) { return t.startsWith("Migliore finora: "); }))
            << visti.join(" | ").toStdString();
        const QList<QPointF> punti = r.f.SerieMigliori()->points();
        ASSERT_FALSE(punti.isEmpty());
        EXPECT_EQ(punti.last().y(), double(senzaZero.size()));
        for (int i = 1; i < punti.size(); ++i) {
            EXPECT_LE(punti[i].y(), punti[i - 1].y()) << "the best size never grows";
            EXPECT_GE(punti[i].x(), punti[i - 1].x());
        }
    }
}

TEST(F_Riduzione, StopIsAskedOnlyWhileBusyAndClosesTheWindowOnlyOnYes) {
    const std::vector<Colonna> colonne = ColonneCasuali(11, 300, 13);
    for (const bool si : {false, true}) {
        SCOPED_TRACE(si ? "Sì" : "No");
        BancoRiduzione r;
        r.Scegli(r.Scrivi("Trecento.col", colonne));
        r.Garanzia(2);  // "N - 3": three shared numbers
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
        EXPECT_EQ(r.b.dialoghi.Tipi(), QStringList{"domanda"});
        EXPECT_EQ(r.b.dialoghi.Testi(), QStringList{"Interrompere il processo di riduzione ? "});
        // The stop is seen right after the pump in which it was confirmed.
        EXPECT_EQ(Tenute(r.b.c), si ? Attese(colonne, 3, 1) : Attese(colonne, 3));
        EXPECT_NE(Attese(colonne, 3, 1), Attese(colonne, 3));
        EXPECT_EQ(r.f.isVisible(), !si);
        EXPECT_EQ(r.f.LabColonneRid()->text(), QString::number(r.b.c.QuantitaColonne()));
        EXPECT_EQ(r.b.c.RichiestaStopRiduzione(), si);
        if (si) continue;
        r.f.XPButton1(1)->click();  // idle: closes without asking
        EXPECT_FALSE(r.f.isVisible());
        EXPECT_EQ(r.b.dialoghi.boxes.size(), 1u);
    }
}

TEST(F_Riduzione, ReportsMissingAndEmptyFilesAndKeepsTheColumns) {
    BancoRiduzione r;
    std::vector<Colonna> sviluppate(3);
    sviluppate[1][1] = 1, sviluppate[2][1] = 2;
    r.b.c.ImpostaColonneSviluppo(sviluppate);
    struct Caso { const char* nome; QString file, tipo, testo; };
    const Caso casi[] = {
        {"nessun file scelto", QString(), "critico", "Il file delle colonne non esiste"},
        {"vuoto", r.Scrivi("Vuoto.col", {}), "esclamazione", "Il file delle colonne non contiene colonne"},
    };
    for (const Caso& c : casi) {
        SCOPED_TRACE(c.nome);
        r.b.dialoghi.boxes.clear();
        if (!c.file.isEmpty()) r.Scegli(c.file);
        EXPECT_TRUE(r.b.dialoghi.boxes.empty()) << "accepted when chosen";
        r.Garanzia(1), r.Garanzia(0);
        r.Avvia();
        EXPECT_EQ(r.b.dialoghi.Tipi(), QStringList{c.tipo});
        EXPECT_EQ(r.b.dialoghi.Testi(), QStringList{c.testo});
        EXPECT_EQ(Tenute(r.b.c), sviluppate);
        EXPECT_EQ(r.f.LabColonneRid()->text(), "2") << "the control's columns, unchanged";
        EXPECT_TRUE(r.f.LabInfo()->text().isEmpty()) << "nothing was reduced";
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
    const QString file = ScriviColonne(cartella, "Host.col", colonne);

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
    Spia spia([&] {
        if (finestra || !(finestra = b.c.findChild<F_Riduzione*>())) return;
        fase = finestra->LabInfo()->text();
        QObject::connect(finestra->PanPerc(), &QProgressBar::valueChanged,
                         [&](int valore) { percento = std::max(percento, valore); });
    });
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
    const QString file = ScriviColonne(cartella, "Barra.col", colonne);
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
    r.f.ChkOttimizza()->setChecked(true);
    r.f.TxtSecondi()->setValue(3);
    r.f.show();
    r.Avvia();
    QTest::qWait(200);
    EXPECT_TRUE(r.f.grab().save(cartella + "/riduzione.png"));
}

}  // namespace
