// Small screen helpers and the report of a caught error. The report's error
// number is set by every kind of exception it catches, so the value it
// starts from is never shown.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>

#include "FakeDialoghi.h"
#include "SegnalazioneErrori.h"
#include "ServizioDialoghiQt.h"
#include "UtilitaSchermo.h"

TEST(SelezionaVoceCombo, PrefixThenExactMatch) {
    QComboBox classi;
    for (int k = 2; k <= 10; ++k) classi.addItem(QString::number(k));
    QComboBox giochi;
    giochi.addItems({"Lotto", "10ELotto", "10ELotto5M", "SuperEnalotto"});
    QComboBox doppi;
    doppi.addItems({"x", "12", "1", "1"});
    struct Caso {
        const char* nome;
        QComboBox* combo;
        QString testo;
        bool trovata;
        int indice;
    } casi[] = {
        {"prefix finds 10", &classi, "1", true, 8},
        {"no entry begins with 11", &classi, "11", false, -1},
        {"exact entry", &classi, "5", true, 3},
        {"case-insensitive", &giochi, "superenalotto", true, 3},
        {"entry 0 is tried last", &giochi, "Lotto", true, 0},
        {"exact among later entries", &giochi, "10ELotto5M", true, 2},
        {"lower case keeps the prefix match", &giochi, "10elotto5m", true, 2},
        {"first exact entry after the prefix match", &doppi, "1", true, 2},
    };
    for (const Caso& caso : casi) {
        caso.combo->setCurrentIndex(1);
        EXPECT_EQ(SelezionaVoceCombo(caso.testo, caso.combo), caso.trovata) << caso.nome;
        EXPECT_EQ(caso.combo->currentIndex(), caso.indice) << caso.nome;
    }
}

TEST(SegnalazioneErrori, GuardedOperationsReportAndSwallow) {
    EXPECT_EQ(TestoErrore(91, "Variabile oggetto non impostata", 40),
              "91- Variabile oggetto non impostata Linea errore 40");
    EXPECT_EQ(TestoErrore(62, "Input oltre la fine del file"), "62- Input oltre la fine del file");

    FakeDialoghi d;
    EXPECT_TRUE(EseguiProtetta(d, "CombiFiltro.Prova", [] {}));
    EXPECT_FALSE(EseguiProtetta(d, "CombiFiltro.Salva", [] { throw combi::Errore(75, "Errore di accesso"); }));
    ASSERT_EQ(d.boxes.size(), 1u);
    EXPECT_EQ(d.boxes[0].tipo, "critico");
    EXPECT_EQ(d.boxes[0].titolo, "CombiFiltro.Salva");
    EXPECT_EQ(d.boxes[0].testo, "75- Errore di accesso");

    int linea = 0;
    EseguiProtetta(d, "CombiFiltro.InsCondizione", [&] {
        linea = __LINE__ + 1;
        throw ErroreControllo(9, "Indice non valido");
    });
    EXPECT_EQ(d.boxes.back().testo, QString("9- Indice non valido Linea errore %1").arg(linea));

    const size_t prima = d.boxes.size();
    EseguiProtetta(d, "CombiFiltro.Prova", [] { throw combi::Errore(0, "nessun errore"); });
    const auto segnala = [&](int numero) {
        try {
            throw combi::Errore(numero, "Errore di accesso");
        } catch (...) {
            SegnalaEccezioneCorrente(d, "CombiFiltro.LayOutGrid", 30017);
        }
    };
    segnala(30017);
    EXPECT_EQ(d.boxes.size(), prima) << "error 0 and an ignored number show nothing";
    segnala(75);
    EXPECT_EQ(d.boxes.size(), prima + 1) << "only the ignored number is ignored";
    EseguiProtetta(d, "CombiFiltro.Prova", [] { throw std::runtime_error("rotto"); });
    EXPECT_EQ(d.boxes.back().testo, "5- rotto");
}

TEST(UtilitaSchermo, KeyFilterAndDialogs) {
    struct {
        int tasto;
        int atteso;
    } tasti[] = {{'0', '0'}, {'9', '9'}, {',', ','}, {13, 13}, {8, 8}, {'.', 0}, {'a', 0}, {'-', 0}, {32, 0}};
    for (auto [tasto, atteso] : tasti) {
        int t = tasto;
        FiltraTastoNumerico(t);
        EXPECT_EQ(t, atteso) << tasto;
    }

    FakeDialoghi d;
    d.fileScelti = {"/tmp/scelto.sic"};
    QString cartella = "/non/esiste/proprio";
    EXPECT_EQ(DialogoSalva(d, cartella, "Salva sistema", "Sistemi condizionati (*.sic)|*.sic", "a.sic", ".sic"),
              "/tmp/scelto.sic");
    EXPECT_EQ(cartella, CartellaProgramma()) << "a missing folder becomes the program's own";
    EXPECT_EQ(d.dialoghiFile.back().cartella, CartellaProgramma());
    QString tmp = QDir::tempPath();
    EXPECT_EQ(DialogoApri(d, tmp, "Apri sistema", "x|*.x", "", ".x"), "") << "cancel gives the empty name";
    EXPECT_EQ(tmp, QDir::tempPath()) << "an existing folder is kept";

    EXPECT_EQ(FiltriQt("Sistemi condizionati (*.sic)|*.sic"), QStringList{"Sistemi condizionati (*.sic)"});
    EXPECT_EQ(FiltriQt("File colonne|*.col|Tutti|*.*"), (QStringList{"File colonne (*.col)", "Tutti (*.*)"}));
}

// -1 keeps a window on top of the others (and shows it), 0 lets it go;
// any other flag, or no window, changes nothing.
TEST(InPrimoPiano, MinusOneKeepsAWindowOnTopAndZeroLetsItGo) {
    QWidget finestra;
    InPrimoPiano(&finestra, -1);
    EXPECT_TRUE(finestra.windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_TRUE(finestra.isVisible());
    InPrimoPiano(&finestra, 5);
    EXPECT_TRUE(finestra.windowFlags() & Qt::WindowStaysOnTopHint);
    InPrimoPiano(&finestra, 0);
    EXPECT_FALSE(finestra.windowFlags() & Qt::WindowStaysOnTopHint);
    InPrimoPiano(nullptr, -1);
}
