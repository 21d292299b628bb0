// Validation, the click rule, the values each type offers, the limits of
// Ampiezza/Baricentro and the filling from a host's parameter text.
// Mutation testing leaves unchecked a pick copied from number 0, which never
// exists.
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QTest>

#include <functional>
#include <map>
#include <set>

#include "AiutiEditori.h"
#include "Condizione.h"
#include "Errore.h"
#include "F_PuntiSuElenco.h"
#include "F_PuntiSuLimiti.h"
#include "Formato.h"

namespace {

QCheckBox* Chk(F_PuntiSuBase& e, const char* nome, int v) {
    auto& elenco = static_cast<F_PuntiSuElenco&>(e);
    return QString(nome) == "P" ? elenco.ChkPunti(v) : elenco.ChkRecupero(v);
}

}  // namespace

TEST(VerificaCoerenza, MostraIlMessaggioDellUltimoControlloFallito) {
    struct Caso {
        const char* nome;
        int tipo;
        std::function<void(F_PuntiSuBase&)> azione;
        const char* messaggio;  // nullptr: confirmed
    };
    const auto minmax = [](const char* a, const char* b, const char* q, const char* ra, const char* rb) {
        return [=](F_PuntiSuBase& e) {
            Scrivi(e, "TxtPunti_0", a), Scrivi(e, "TxtPunti_1", b), Quadro(e, q);
            Scrivi(e, "TxtPuntiRec_0", ra), Scrivi(e, "TxtPuntiRec_1", rb);
        };
    };
    const std::vector<Caso> casi = {
        {"elenco vuoto", combi::kPonte, [](F_PuntiSuBase&) {}, "Impostare i punti da realizzare"},
        {"quadro senza recupero", combi::kPonte, [](F_PuntiSuBase& e) { Clic(e, "ChkPunti_2"), Quadro(e, "3"); },
         "Impostare i punti di recupero"},
        {"vuoto con quadro", combi::kPonte, [](F_PuntiSuBase& e) { Quadro(e, "3"); }, "Impostare i punti di recupero"},
        {"elenco completo", combi::kPonte,
         [](F_PuntiSuBase& e) { Clic(e, "ChkPunti_2"), Quadro(e, "3"), Clic(e, "ChkRecupero_1"); }, nullptr},
        {"min oltre max", combi::kPeso, minmax("5", "3", " ", "", ""), "Range punti non valido"},
        {"zero zero", combi::kPeso, minmax("0", "0", " ", "", ""), "Impostare i punti da realizzare"},
        {"vuoti", combi::kDistanzaMinima, minmax("", "", " ", "", ""), "Impostare i punti da realizzare"},
        {"non numerici", combi::kDistanzaMinima, minmax("a", "b", " ", "", ""), "Impostare i punti da realizzare"},
        {"ultimo vince", combi::kBaricentro, minmax("5", "3", "2", "", ""), "Impostare i punti di recupero"},
        {"recupero rovesciato", combi::kAmpiezza, minmax("1", "3", "2", "9", "4"), "Range punti recupero non valido"},
        {"minimo uguale al massimo", combi::kPeso, minmax("4", "4", " ", "", ""), nullptr},
        {"recupero di un solo valore", combi::kAmpiezza, minmax("1", "3", "2", "5", "5"), nullptr},
        {"un solo valore, zero", combi::kDistanzaMinima, minmax("0", "0", " ", "", ""),
         "Impostare i punti da realizzare"},
        {"intervallo completo", combi::kAmpiezza, minmax("1", "3", "2", "4", "9"), nullptr},
        {"sequenza vuota", combi::kSequenze, [](F_PuntiSuBase& e) { Clic(e, "ChkPunti_0"); }, "Impostare la sequenza"},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.nome);
        FakeDialoghi dialoghi;
        auto e = Editore(caso.tipo, dialoghi);
        caso.azione(*e);
        Clic(*e, "XPButton1_0");
        if (caso.messaggio == nullptr) {
            EXPECT_TRUE(Messaggi(dialoghi).isEmpty());
            EXPECT_EQ(e->Tag(), "ooo");
        } else {
            EXPECT_EQ(Messaggi(dialoghi), QStringList{caso.messaggio});
            EXPECT_TRUE(e->Tag().isEmpty());
        }
    }
}

TEST(RegolaClic, UnValoreNonEMaiAccettatoERecuperabile) {
    FakeDialoghi dialoghi;
    auto e = Editore(combi::kInterruzioni, dialoghi);
    Clic(*e, "ChkPunti_2");  // no panel: recovery stays off
    EXPECT_FALSE(Chk(*e, "R", 2)->isEnabled());
    Quadro(*e, "3");
    EXPECT_FALSE(Chk(*e, "R", 2)->isEnabled());
    EXPECT_TRUE(Chk(*e, "R", 1)->isEnabled());
    Clic(*e, "ChkRecupero_1");
    Clic(*e, "ChkPunti_1");
    EXPECT_FALSE(Chk(*e, "R", 1)->isChecked());
    EXPECT_FALSE(Chk(*e, "R", 1)->isEnabled());
    Clic(*e, "ChkPunti_1");
    EXPECT_TRUE(Chk(*e, "R", 1)->isEnabled());
    Clic(*e, "ChkRecupero_4");
    Quadro(*e, " ");
    for (int v = 0; v <= 5; ++v) EXPECT_FALSE(Chk(*e, "R", v)->isChecked() || Chk(*e, "R", v)->isEnabled()) << v;
    EXPECT_EQ(e->GetParametri().recupero, "");
    // A range editor without a panel: recovery boxes empty and off.
    auto r = Editore(combi::kPeso, dialoghi);
    Quadro(*r, "1"), Scrivi(*r, "TxtPuntiRec_0", "4"), Quadro(*r, " ");
    EXPECT_FALSE(W<QLineEdit>(*r, "TxtPuntiRec_0")->isEnabled());
    EXPECT_EQ(r->GetParametri().recupero, "-");
}

TEST(ValoriOfferti, DipendonoDaClasseDivisoreESequenza) {
    struct Caso {
        const char* nome;
        int tipo, classe;
        std::function<void(F_PuntiSuBase&)> azione;
        int primo, ultimo;
    };
    const auto sequenza = [](int lettere) {
        return [lettere](F_PuntiSuBase& e) {
            for (int i = 0; i < lettere; ++i) Clic(e, i % 2 ? "Command1_1" : "Command1_0");
        };
    };
    const auto nulla = [](F_PuntiSuBase&) {};
    const std::vector<Caso> casi = {
        {"vortice", combi::kVortice, 4, nulla, 1, 4},
        {"classe 1", combi::kConsecutivi, 1, nulla, 0, 1},
        {"classe 20", combi::kParalleli, 20, nulla, 0, 20},
        {"resto aperto", combi::kResto, 20, nulla, 0, 1},
        {"resto 4", combi::kResto, 5, [](F_PuntiSuBase& e) { Scegli(e, "Combo1", "4"); }, 0, 3},
        {"sequenza vuota", combi::kSequenze, 5, nulla, 0, 5},
        {"sequenza PDP", combi::kSequenze, 5, sequenza(3), 0, 3},
        {"sequenza troppo lunga", combi::kSequenze, 5, sequenza(7), 0, 0},
        {"sequenza svuotata", combi::kSequenze, 5, [&](F_PuntiSuBase& e) { sequenza(4)(e), Clic(e, "Command1_2"); }, 0, 5},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(caso.nome);
        FakeDialoghi dialoghi;
        auto e = Editore(caso.tipo, dialoghi, caso.classe);
        caso.azione(*e);
        EXPECT_EQ(Chk(*e, "P", caso.primo - 1), nullptr);
        EXPECT_EQ(Chk(*e, "P", caso.ultimo + 1), nullptr);
        // The first value offered opens the first row of boxes.
        for (QGridLayout* griglia : e->findChildren<QGridLayout*>()) {
            const int indice = griglia->indexOf(Chk(*e, "P", caso.primo));
            if (indice < 0) continue;
            int riga = -1, colonna = -1, righe = 0, colonne = 0;
            griglia->getItemPosition(indice, &riga, &colonna, &righe, &colonne);
            EXPECT_EQ(riga * 100 + colonna, 0) << "row " << riga << " column " << colonna;
        }
        for (int v = caso.primo; v <= caso.ultimo; ++v) {
            ASSERT_NE(Chk(*e, "P", v), nullptr) << v;
            EXPECT_EQ(Chk(*e, "P", v)->text(), QString::number(v));
            EXPECT_NE(Chk(*e, "R", v), nullptr);
        }
    }
    // A new divisor clears the values above 0 and hides the extra boxes.
    FakeDialoghi dialoghi;
    auto resto = Editore(combi::kResto, dialoghi);
    Scegli(*resto, "Combo1", "4");
    Clic(*resto, "ChkPunti_0"), Clic(*resto, "ChkPunti_1"), Clic(*resto, "ChkPunti_3");
    Scegli(*resto, "Combo1", "2");
    EXPECT_EQ(resto->GetParametri().punti, "0");
    EXPECT_TRUE(W<QCheckBox>(*resto, "ChkPunti_3")->isHidden());
    Scegli(*resto, "Combo1", "4");
    EXPECT_EQ(resto->GetParametri().punti, "0");
}

TEST(CalcolaLimiti, AmpiezzaEBaricentroDaiNumeriDelSistema) {
    struct Caso {
        int tipo, classe;
        std::vector<int> numeri;
        const char *minimo, *massimo;
    };
    const std::vector<Caso> casi = {
        {combi::kBaricentro, 6, {3, 8, 15, 21, 40, 77}, "27", "27"},
        {combi::kAmpiezza, 6, {3, 8, 15, 21, 40, 77}, "74", "74"},
        {combi::kBaricentro, 2, {1, 2, 10, 20}, "1", "15"},
        {combi::kAmpiezza, 2, {1, 2, 10, 20}, "1", "19"},
        {combi::kAmpiezza, 3, {1, 5, 9, 13, 30}, "4", "29"},
        {combi::kAmpiezza, 1, {4, 9, 30}, "26", "26"},
        {combi::kBaricentro, 1, {4, 9, 30}, "4", "30"},
        {combi::kAmpiezza, 5, {1, 2, 3}, "", ""},
        // No class chosen (the class list without a selection reads 0).
        {combi::kAmpiezza, 0, {4, 9, 30}, "", ""},
        {combi::kBaricentro, 0, {4, 9, 30}, "", ""},
        {combi::kBaricentro, 0, {}, "", ""},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(std::to_string(caso.tipo) + " classe " + std::to_string(caso.classe));
        FakeDialoghi dialoghi;
        auto e = Editore(caso.tipo, dialoghi, caso.classe, caso.numeri);
        EXPECT_EQ(W<QLabel>(*e, "LabMin")->text(), caso.minimo);
        EXPECT_EQ(W<QLabel>(*e, "LabMax")->text(), caso.massimo);
        // Critical box with the application's title (an empty title here).
        const std::string atteso =
            caso.classe < 1 ? ": Impostare il numero di elementi per ciascuna combinazione" : "";
        EXPECT_EQ(Messaggi(dialoghi).join("\n").toStdString(), atteso);
    }
}

// The statistics code each editor hands to the preview: the outside
// component's own numbering, not the condition types'.
TEST(Catalogo, CodiciStatisticaDegliEditori) {
    const std::map<std::string, int> codici = {
        {"F_PuntiSuAmpiezza", 1},        {"F_PuntiSuBaricentro", 2},      {"F_PuntiSuConsecutivi", 3},
        {"F_PuntiSudistanzaMassima", 4}, {"F_PuntiSudistanzaMinima", 5}, {"F_PuntiSuInterruzioni", 6},
        {"F_PuntiSuParalleli", 7},       {"F_PuntiSuPariDisp", 8},        {"F_PuntiSuPeso", 9},
        {"F_PuntiSuPonte", 10},          {"F_PuntiSuPosizione", 11},      {"F_PuntisuColonna", 12},
        {"F_PuntiSuSequenze", 13},       {"F_PuntiSuResto", 14},          {"F_PuntiSuSimmetrie", 15},
        {"F_PuntiSuVortice", 16}};
    std::set<std::string> visti;
    for (int tipo = 0; tipo <= 20; ++tipo) {
        const VoceCatalogo* voce = VoceDelTipo(tipo);
        if (voce == nullptr) continue;
        ASSERT_EQ(codici.count(voce->nomeDialogo), 1u) << voce->nomeDialogo;
        EXPECT_EQ(voce->codiceStatistica, codici.at(voce->nomeDialogo)) << voce->nomeDialogo;
        visti.insert(voce->nomeDialogo);
    }
    EXPECT_EQ(visti.size(), codici.size());
}

TEST(FiltroTasti, AmpiezzaAccettaSoloCifreEVirgolaEInvioPassaOltre) {
    FakeDialoghi dialoghi;
    auto e = Editore(combi::kAmpiezza, dialoghi);
    e->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(e.get()));
    auto* minimo = W<QLineEdit>(*e, "TxtPunti_0");
    minimo->setFocus();
    QTest::keyClicks(minimo, "1a2,-3 ");
    EXPECT_EQ(minimo->text(), "12,3");
    QTest::keyClick(minimo, Qt::Key_Backspace);
    EXPECT_EQ(minimo->text(), "12,");
    QTest::keyClick(minimo, Qt::Key_Return);
    EXPECT_EQ(minimo->text(), "12,");
    auto* massimo = W<QLineEdit>(*e, "TxtPunti_1");
    EXPECT_TRUE(massimo->hasFocus());
    QTest::keyClicks(massimo, "4x5");
    EXPECT_EQ(massimo->text(), "45") << "the second box is filtered too";
    EXPECT_TRUE(e->isVisible());  // Enter never confirms the dialog
    // Other range editors take any key.
    auto d = Editore(combi::kDistanzaMassima, dialoghi);
    QTest::keyClicks(W<QLineEdit>(*d, "TxtPunti_0"), "1a");
    EXPECT_EQ(W<QLineEdit>(*d, "TxtPunti_0")->text(), "1a");
}

TEST(RiempiDaParametri, TestiBuoniRiempionoETestiMalformatiSonoErrori) {
    struct Caso {
        int tipo;
        const char* testo;
        int errore;  // 0: filled
        const char* parametri = nullptr;
        const char* punti = "";
        const char* recupero = "";
        const char* quadro = "";
    };
    const std::vector<Caso> casi = {
        {combi::kPariDispari, "Dispari\r\n1,3|0", 0, "Dispari", "1-3", "0", "1"},
        {combi::kSimmetrie, "Inverse\r\n2", 0, "Inverse", "2", "", " "},
        {combi::kParalleli, "Diretti\r\n0,5|", 0, "Diretti", "0-5", "", " "},
        {combi::kResto, "4\r\n0,3", 0, "Resto a : 4", "0-3", "", " "},
        {combi::kVortice, "Inverso\r\n2,4|1,5", 0, "Inverso", "2-4", "1-5", "1"},
        {combi::kSequenze, "PD\r\n0,4", 0, "P\r\nD", "0-4", "", " "},
        {combi::kConsecutivi, "0,2|1", 0, nullptr, "0-2", "1", "1"},
        {combi::kInterruzioni, "1,2|2,3", 0, nullptr, "1-2", "3", "1"},  // 2 stays accepted only
        {combi::kPonte, "3", 0, nullptr, "3", "", " "},
        {combi::kAmpiezza, "10,40|5,9", 0, nullptr, "10-40", "5-9", "1"},
        {combi::kPeso, " 3 , 7", 0, "Caselle :\r\n", "3-7", "-", " "},
        {combi::kPosizioni, "1,90", 0, "Casella :\r\n", "1-90", "-", " "},
        {combi::kDistanzaMinima, "1,2|3", combi::kErroreIndice},
        {combi::kPariDispari, "Pippo\r\n1", combi::kErroreArgomento},
        {combi::kResto, "7\r\n1", combi::kErroreArgomento},
        {combi::kResto, "3\r\n3", combi::kErroreIndice},
        {combi::kConsecutivi, "0,7", combi::kErroreIndice},
        {combi::kVortice, "Diretto\r\n0", combi::kErroreIndice},
        {combi::kSequenze, "PDPDPD\r\n1", combi::kErroreIndice},
        {combi::kPonte, "1|9", combi::kErroreIndice},
    };
    for (const Caso& caso : casi) {
        SCOPED_TRACE(std::string(combi::NomeTipoCondizione(caso.tipo)) + " " + caso.testo);
        FakeDialoghi dialoghi;
        auto e = Editore(caso.tipo, dialoghi);
        if (caso.errore != 0) {
            try {
                e->RiempiDaParametri(caso.testo);
                ADD_FAILURE() << "nessun errore";
            } catch (const combi::Errore& errore) {
                EXPECT_EQ(errore.numero(), caso.errore);
                EXPECT_FALSE(errore.descrizione().empty());
            }
            EXPECT_TRUE(e->Tag().isEmpty());
            continue;
        }
        e->RiempiDaParametri(caso.testo);
        EXPECT_EQ(e->Tag(), "ttt");
        EXPECT_FALSE(e->isVisible());
        const auto t = e->GetParametri();
        const std::string parametri = caso.parametri ? caso.parametri
                                                     : combi::TestoVerticale(VoceDelTipo(caso.tipo)->parolaChiave, 1);
        EXPECT_EQ(t.parametri.toStdString(), parametri);
        EXPECT_EQ(t.punti, caso.punti);
        EXPECT_EQ(t.recupero, caso.recupero);
        EXPECT_EQ(t.quadro, caso.quadro);
    }
    // An empty text leaves the editor as loaded; Punti su colonna is never filled.
    FakeDialoghi dialoghi;
    for (int tipo : {combi::kPonte, combi::kPuntiColonna}) {
        auto e = Editore(tipo, dialoghi);
        e->RiempiDaParametri(tipo == combi::kPonte ? "" : "01-02");
        EXPECT_TRUE(e->Tag().isEmpty());
    }
}
