#include "Fotografia.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QListWidget>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTextStream>
#include <QThread>

#include "CombiFiltroA.h"
#include "FinestraPrincipale.h"
#include "GrigliaCondizioni.h"
#include "ServizioDialoghiSilenzioso.h"
#include "Formato.h"

namespace {

QString Verticale(const char* testo) { return QString::fromStdString(combi::TestoVerticale(testo, 1)); }

// The conditions as their editors write them into the grid.
void PreparaSistemaEsempio(CombiFiltroA& c) {
    for (int n = 1; n <= 30; ++n) c.SelezionaNumero(static_cast<int16_t>(n), true);
    c.setClasse(5);
    struct {
        const char* nome;
        QString parametri, punti, recupero, quadro;
    } condizioni[] = {
        {"Pari-Dispari", "Pari", "2-3", "1", "1"},
        {"Consecutivi", Verticale("Consecutivi"), "0-1", "", " "},
        {"LinkOpen", Verticale("LinkOpen"), "", "", ""},
        {"Ampiezza", Verticale("Ampiezza"), "15-27", "10-14", "1"},
        {"Ponte", Verticale("Ponte"), "0-1", "", " "},
        {"Interruzioni", Verticale("Interruzioni"), "2-3", "", " "},
        {"LinkClose", Verticale("LinkClose"), "2-3", "", ""},
    };
    GrigliaCondizioni* griglia = c.GetGridCond();
    int colonna = 1;
    for (const auto& cond : condizioni) {
        griglia->ImpostaTesto(1, colonna, cond.nome);
        griglia->ImpostaTesto(2, colonna, cond.parametri);
        griglia->ImpostaTesto(3, colonna, cond.punti);
        griglia->ImpostaTesto(4, colonna, cond.recupero);
        griglia->ImpostaTesto(5, colonna, cond.quadro);
        ++colonna;
    }
    QListWidget* quadri = c.GetLbQuadroRec();
    quadri->clear();
    quadri->addItem("1,1,-1");
    for (int p = 2; p <= 20; ++p) quadri->addItem("-1,-1,-0");
}

// The live count restarts after a development; the picture shows its
// number, not the dots of a count still running (a few seconds at most).
void AttendiConteggio(CombiFiltroA& c) {
    QElapsedTimer attesa;
    attesa.start();
    do {
        QApplication::processEvents();
        QThread::msleep(20);
    } while (c.LabPreviste()->text().contains(QChar(0x2026)) && attesa.elapsed() < 5000);
    QApplication::processEvents();
}

}  // namespace

int EseguiFotografia(const QString& fileImmagine) {
    FinestraPrincipale finestra(std::make_unique<ServizioDialoghiSilenzioso>());
    CombiFiltroA& c = finestra.Controllo();
    finestra.show();
    QApplication::processEvents();

    QTemporaryDir cartella;
    QString sistema = cartella.filePath("Esempio.sic");
    PreparaSistemaEsempio(c);
    c.Salva(sistema);
    if (!c.CaricaSistema(sistema)) return 2;
    c.GestSviluppo();
    c.SetColonnaGrid(4);
    AttendiConteggio(c);

    if (!finestra.grab().save(fileImmagine, "PNG")) {
        QTextStream(stderr) << "Impossibile salvare " << fileImmagine << "\n";
        return 1;
    }
    QTextStream(stdout) << fileImmagine << ": " << c.QuantitaColonne() << " colonne condizionate\n";
    return 0;
}
