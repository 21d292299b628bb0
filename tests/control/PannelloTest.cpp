#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QSignalSpy>
#include <QToolBar>
#include <QToolButton>
#include <stdexcept>

#include "Banco.h"
#include "ComandiPannello.h"
#include "EditoreCondizione.h"
#include "Errore.h"
#include "RegistroControllo.h"

namespace {

QStringList Voci(const QComboBox* combo) {
    QStringList voci;
    for (int i = 0; i < combo->count(); ++i) voci << combo->itemText(i);
    return voci;
}

// An editor of a range type answering from a script.
class EditoreFinto : public EditoreCondizione {
public:
    QString risposta;  // tag after Mostra
    bool fallisci = false;
    int* mostrato;
    explicit EditoreFinto(int* contatore) : mostrato(contatore) {}
    void LeggiPunti(const GrigliaCondizioni& g) override { letto = g.Testo(3, g.ColonnaCorrente()); }
    void RiempiDaParametri(const QString& testo) override {
        if (fallisci) throw combi::Errore(9, "Indice non compreso nell'intervallo");
        letto = QString(testo).replace(',', '-');
        tag = "ttt";
    }
    void Mostra() override {
        ++*mostrato;
        tag = risposta;
    }
    QString Tag() const override { return tag; }
    TestiEditore GetParametri() const override { return {"Caselle :\r\n1-2", letto, "-", " "}; }
    QString tag, letto = "3-7";
};

class FabbricaFinta : public FabbricaEditori {
public:
    QString risposta = "ooo";
    bool fallisci = false;
    int mostrati = 0;
    std::unique_ptr<EditoreCondizione> CreaEditore(int tipo, QWidget*) override {
        if (tipo != 5) return nullptr;
        auto e = std::make_unique<EditoreFinto>(&mostrati);
        e->risposta = risposta;
        e->fallisci = fallisci;
        return e;
    }
};

}  // namespace

TEST(Pannello, GameClassAndReductionDriveTheCounters) {
    Banco b;
    EXPECT_EQ(b.c.CmbClasse()->currentText(), "5");
    EXPECT_EQ(b.c.LabGaranzia()->text(), "A condizioni superate garanzia 5");

    b.c.CmbTipoGioco()->setCurrentText("SuperEnalotto");
    EXPECT_EQ(b.c.CmbClasse()->currentText(), "6");
    EXPECT_EQ(Voci(b.c.CmbRid()), (QStringList{" ", "1", "2", "3", "4", "5"}));
    EXPECT_EQ(b.c.CmbRid()->currentIndex(), -1) << "no reduction chosen after a game change";
    EXPECT_EQ(b.c.GetIdCmbTipoGioco(), 3);
    EXPECT_EQ(b.c.GetIdCmbTipoGiocoString(), "SuperEnalotto");
    b.c.CmbRid()->setCurrentText("2");
    EXPECT_EQ(b.c.LabGaranzia()->text(), "A condizioni superate garanzia 4");
    EXPECT_EQ(b.archivio.LeggiIntero("Classe", 0), 6) << "a class chosen in the combo is persisted";

    b.c.CmbTipoGioco()->setCurrentText("10ELotto");
    EXPECT_EQ(b.c.CmbClasse()->currentText(), "10");

    b.c.CmbTipoGioco()->setCurrentIndex(0);
    b.NumeriDa1A(10);
    EXPECT_EQ(b.c.LabNumSel()->text(), "10");
    EXPECT_EQ(Cifre(b.c.LabIntegrale()->text()), "252");
    EXPECT_DOUBLE_EQ(b.c.ColonneIntegrali(), 252.0);
    b.c.SelezionaNumero(90, true);
    std::array<int16_t, 91> sel{};
    sel.fill(7);
    b.c.GetNumeriSel(sel);
    EXPECT_EQ(sel[1], 1);
    EXPECT_EQ(sel[11], 90);
    EXPECT_EQ(sel[12], 0);
    EXPECT_EQ(sel[90], 0);
    EXPECT_EQ(b.c.ContaNumeriSel(), 11);
}

TEST(Pannello, ClassPropertyAndPersistence) {
    ArchivioMemoria archivio;
    archivio.ScriviIntero("Classe", 7);
    archivio.ScriviIntero("NumeroThreadsSviluppo", 3);
    FakeDialoghi d;
    CombiFiltroA c(&archivio, &d);
    EXPECT_EQ(c.classe(), 7) << "restored from the store";
    EXPECT_EQ(c.NumeroThreadsSviluppo(), 3);
    EXPECT_NE(c.TxtPMin(3), nullptr);
    EXPECT_EQ(c.TxtPMin(4), nullptr);

    c.setClasse(6);
    EXPECT_EQ(c.CmbClasse()->currentText(), "6");
    EXPECT_EQ(archivio.LeggiIntero("Classe", 0), 6);
    c.setClasse(11);
    EXPECT_EQ(c.CmbClasse()->currentIndex(), -1) << "no entry begins with 11";
    EXPECT_EQ(archivio.LeggiIntero("Classe", 0), 6) << "Classe unchanged";
    c.setClasse(1);
    EXPECT_EQ(c.CmbClasse()->currentText(), "10");
    EXPECT_EQ(archivio.LeggiIntero("Classe", 0), 1);

    c.setNumeroThreadsSviluppo(2);
    EXPECT_EQ(archivio.LeggiIntero("NumeroThreadsSviluppo", 0), 2);
    c.TxtPMin(1)->setText("12000");
    c.TxtPMin(2)->setText("3000");
    c.TxtPMax(2)->setText("41");
    EXPECT_EQ(Cifre(c.LabSviluppate()->text()), "15000");
    EXPECT_EQ(c.LabCondizionate()->text(), "41");

    EXPECT_THROW(c.SetNum(0, true), combi::Errore);
    EXPECT_THROW(c.SetNum(91, true), combi::Errore);
    EXPECT_NO_THROW(c.SetNum(90, true));
}

TEST(Pannello, ToolbarOrderStatesAndEvents) {
    Banco b;
    const QToolBar* barra = b.c.findChild<QToolBar*>("Toolbar2");
    QStringList chiavi;
    for (QAction* a : barra->actions()) chiavi << barra->widgetForAction(a)->objectName();
    EXPECT_EQ(chiavi.size(), 21);
    EXPECT_EQ(chiavi.first(), "Open");
    EXPECT_EQ(chiavi.indexOf("SviluppaCond") + 1, chiavi.indexOf("Stop"));
    EXPECT_EQ(chiavi.last(), "StampaSk");
    EXPECT_EQ(b.c.Pulsante("stampask")->toolTip(), "Stampa schedine") << "keys ignore letter case";
    EXPECT_EQ(b.c.Pulsante("Save")->menu()->actions().size(), 3);
    EXPECT_EQ(b.c.VoceMenu("SalvaConNome")->text(), "Salva con nome");
    EXPECT_EQ(b.c.Pulsante("Condizioni")->menu()->actions().size(), 16);

    EXPECT_FALSE(b.c.Pulsante("Stop")->isEnabled());
    EXPECT_FALSE(b.c.Pulsante("VisualizzaColonne")->isEnabled());
    EXPECT_FALSE(b.c.VoceMenu("SalvaColonne")->isEnabled());
    EXPECT_TRUE(b.c.Pulsante("SviluppaCond")->isEnabled());

    QSignalSpy condizioni(&b.c, &CombiFiltroA::CondizioniPressed);
    int stampe = 0;
    QObject::connect(&b.c, &CombiFiltroA::StampaSk, [&](QString&) { ++stampe; });
    b.c.Pulsante("Condizioni")->click();
    EXPECT_EQ(condizioni.count(), 1);
    b.c.EseguiComando("StampaSk");
    EXPECT_EQ(stampe, 0) << "nothing to print";

    b.c.Pulsante("SelNumeri")->click();
    EXPECT_TRUE(b.c.Numeri()->isVisible());
    b.c.Numeri()->close();
    EXPECT_FALSE(b.c.Pulsante("SelNumeri")->isChecked());
    EXPECT_TRUE(b.c.SistemaModificato()) << "closing the numbers marks the system modified";

    EXPECT_EQ(ControlloRegistrato(), &b.c);
    b.c.Deinit();
    EXPECT_EQ(ControlloRegistrato(), nullptr);
}

TEST(Pannello, ModifiedPromptOnNew) {
    Banco b;
    b.c.EseguiComando("New");
    EXPECT_TRUE(b.dialoghi.boxes.empty()) << "an unmodified system asks nothing";
    EXPECT_FALSE(b.c.SistemaModificato()) << "clearing picks and reduction for a new system is no change";
    EXPECT_FALSE(b.c.VoceMenu("Salva")->isEnabled());

    b.c.EseguiComando("LinkOpen");
    EXPECT_EQ(b.Cella(1, 1), "LinkOpen");
    EXPECT_EQ(b.Cella(2, 1), "L\r\ni\r\nn\r\nk\r\nO\r\np\r\ne\r\nn");
    EXPECT_TRUE(b.c.SistemaModificato());
    b.dialoghi.risposte = {false};
    b.c.EseguiComando("New");
    EXPECT_EQ(b.dialoghi.Ultimo()->testo, "Il sistema è stato modificato ma non ancora salvato.Continuare ?");
    EXPECT_EQ(b.Cella(1, 1), "LinkOpen") << "No leaves everything";

    b.dialoghi.risposte = {true};
    b.c.EseguiComando("New");
    EXPECT_EQ(b.c.UltimaColonnaUsata(), 0);
    EXPECT_TRUE(b.c.SistemaModificato()) << "a new system keeps the flag";
}

TEST(Pannello, PicksClassAndReductionMarkTheSystemModified) {
    const struct {
        const char* nome;
        std::function<void(Banco&)> cambia;
    } casi[] = {
        {"a number picked", [](Banco& b) { b.c.Numeri()->ImpostaNumero(7, true); }},
        {"the class", [](Banco& b) { b.c.CmbClasse()->setCurrentText("7"); }},
        {"Riduzione N-K", [](Banco& b) { b.c.CmbRid()->setCurrentText("2"); }},
        {"the game, with its class", [](Banco& b) { b.c.CmbTipoGioco()->setCurrentText("SuperEnalotto"); }},
    };
    for (const auto& caso : casi) {
        SCOPED_TRACE(caso.nome);
        Banco b;
        caso.cambia(b);
        EXPECT_TRUE(b.c.SistemaModificato());
        b.c.EseguiComando("New");  // answered No
        b.c.EseguiComando("Open");
        EXPECT_EQ(b.dialoghi.Testi(), QStringList(2, "Il sistema è stato modificato ma non ancora salvato.Continuare ?"));
        for (const BoxMostrato& box : b.dialoghi.boxes) EXPECT_EQ(box.tipo, "domanda");
        EXPECT_TRUE(b.dialoghi.dialoghiFile.empty()) << "answered No: no open dialog";
    }
}

TEST(Pannello, ConditionEntryThroughEditors) {
    Banco b;
    b.c.EseguiComando("PuntisuPeso");
    EXPECT_EQ(b.dialoghi.Ultimo()->tipo, "esclamazione");
    EXPECT_TRUE(b.dialoghi.Ultimo()->testo.contains("non è ancora disponibile"));
    EXPECT_EQ(b.c.UltimaColonnaUsata(), 0);

    FabbricaFinta fabbrica;
    b.c.ImpostaFabbricaEditori(&fabbrica);
    combi::Condizione peso;
    peso.Tipo = combi::kPeso;
    b.c.InsCondizione(peso, "3,9");
    EXPECT_EQ(fabbrica.mostrati, 0) << "a parameter text fills the editor unseen";
    EXPECT_EQ(b.Cella(1, 1), "Peso");
    EXPECT_EQ(b.Cella(3, 1), "3-9");
    EXPECT_EQ(b.c.GetGridCond()->ColonnaCorrente(), 1);

    fabbrica.fallisci = true;
    b.c.InsCondizione(peso, "3");
    EXPECT_EQ(b.dialoghi.Ultimo()->titolo, "CombiFiltro.setPuntiSuFrm");
    EXPECT_EQ(b.dialoghi.Ultimo()->testo, "9- Indice non compreso nell'intervallo");
    EXPECT_EQ(b.c.UltimaColonnaUsata(), 1);

    fabbrica.fallisci = false;
    fabbrica.risposta = "";  // CHIUDI
    b.c.EseguiComando("Edit");
    EXPECT_EQ(fabbrica.mostrati, 1);
    EXPECT_EQ(b.Cella(3, 1), "3-9") << "a cancelled editor changes nothing";
    fabbrica.risposta = "ooo";
    b.c.GetGridCond()->ImpostaTesto(3, 1, "4-5");
    b.c.EseguiComando("Edit");
    EXPECT_EQ(b.Cella(3, 1), "4-5") << "the editor read the column back and confirmed it";
    EXPECT_EQ(b.Cella(2, 1), "Caselle :\r\n1-2");
    b.c.GetGridCond()->ImpostaTesto(4, 1, "x");
    b.c.GetGridCond()->ImpostaTesto(5, 1, "y");
    b.c.EseguiComando("Edit");
    EXPECT_EQ(b.Cella(4, 1), "-") << "the recovery row as the editor gives it";
    EXPECT_EQ(b.Cella(5, 1), " ") << "the panel row as the editor gives it";

    for (int c = 2; c <= 200; ++c) b.Condizione(c, "Ponte");
    b.c.EseguiComando("LinkOpen");
    EXPECT_EQ(b.dialoghi.Ultimo()->testo, "Tutte le 200 colonne delle condizioni sono occupate");
    EXPECT_EQ(b.Cella(1, 0), "Condizione") << "the headings are never written";

    b.c.SetColonnaGrid(2);
    b.c.EseguiComando("Delete");
    EXPECT_EQ(b.c.UltimaColonnaUsata(), 199);
    b.c.EseguiComando("Inserisci");
    EXPECT_EQ(b.Cella(1, 2), "");
    EXPECT_EQ(b.c.PrimaColonnaLibera(), 2);
}

TEST(Pannello, CommandsOfOtherWindowsAndRecoveryPanels) {
    Banco b;
    b.c.EseguiComando("Naviga");
    EXPECT_EQ(b.dialoghi.Ultimo()->testo, "Funzione non ancora disponibile");

    int riduzioni = 0;
    b.c.RegistraComando("Riduzione", [&] {
        ++riduzioni;
        std::vector<combi::Colonna> ridotte(2);
        ridotte[1][1] = 7;
        b.c.ImpostaColonneSviluppo(ridotte);
    });
    b.c.EseguiComando("riduzione");
    EXPECT_EQ(riduzioni, 1);
    EXPECT_EQ(b.c.QuantitaColonne(), 1);
    // A misspelt key fails when it is registered, not later as "Funzione non
    // ancora disponibile" when the user presses the button.
    EXPECT_THROW(b.c.RegistraComando("Riduzion", [] {}), std::invalid_argument);
    EXPECT_TRUE(b.c.Pulsante("VisualizzaColonne")->isEnabled()) << "column commands refreshed";

    b.c.RiduciColonne("/non/esiste.col", 3);
    EXPECT_EQ(b.dialoghi.Ultimo()->tipo, "critico");
    EXPECT_EQ(b.dialoghi.Ultimo()->testo, "Il file delle colonne non esiste");
    EXPECT_EQ(riduzioni, 1);

    std::array<std::array<QString, 2>, 21> minMax;
    minMax[1] = {"2", "3"};
    minMax[2] = {"1", " "};
    minMax[20] = {"0", "4,5"};
    b.c.RicostruisciQuadri(minMax);
    QListWidget* quadri = b.c.GetLbQuadroRec();
    ASSERT_EQ(quadri->count(), 20);
    EXPECT_EQ(quadri->item(0)->text(), "2,3,-1");
    EXPECT_EQ(quadri->item(1)->text(), "-1,-1,-0") << "a blank bound leaves the panel unused";
    EXPECT_EQ(quadri->item(19)->text(), "0,4,-1");
    EXPECT_TRUE(b.c.SistemaModificato());
}
