#include "F_Spoglio.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <initializer_list>
#include <string>
#include <vector>

#include "ClsOrdinaLv.h"
#include "CombiFiltroA.h"
#include "ConfrontoColonna.h"
#include "LetturaNumero.h"
#include "OrdinaLv.h"
#include "SegnalazioneErrori.h"
#include "ServizioDialoghi.h"
#include "TestiGrigliaQt.h"
#include "UtilitaSchermo.h"

namespace {

// Column of the conditions list whose text colour tells the outcome.
constexpr int kColonnaPuntiEffettivi = 3;

QTreeWidget* CreaListaLarga(QWidget* padre, const char* nome, const QStringList& intestazioni,
                            std::initializer_list<int> larghezze) {
    QTreeWidget* lista = CreaLista(padre, nome, intestazioni);
    int c = 0;
    for (int larghezza : larghezze) lista->header()->resizeSection(c++, larghezza);
    return lista;
}


QColor ColoreEsito(combi::EsitoRiga esito) {
    switch (esito) {
        case combi::EsitoRiga::kSuperata: return QColor(0, 255, 0);
        case combi::EsitoRiga::kRecuperabile: return QColor(255, 255, 0);
        case combi::EsitoRiga::kFallita: return QColor(255, 0, 0);
        case combi::EsitoRiga::kNessuno: break;
    }
    return QColor();
}

// A conditions row: "Condizione" names the condition by its number and type
// (several conditions may share a type), the rest follow as the check gives them.
QTreeWidgetItem* RigaCondizione(const combi::RigaConfronto& riga) {
    const auto& c = riga.colonne;
    QStringList testi{QString::fromStdString(c[0] + " - " + c[1])};
    for (size_t i = 2; i < c.size(); ++i) testi << QString::fromStdString(c[i]);
    QTreeWidgetItem* voce = CreaRiga(testi);
    if (riga.esito != combi::EsitoRiga::kNessuno)
        voce->setForeground(kColonnaPuntiEffettivi, ColoreEsito(riga.esito));
    return voce;
}

// "Colonna" and "Punti" hold numbers; "Numeri" sorts as text.
int32_t TipoOrdinamento(const QString& intestazione) {
    return intestazione == "Colonna" || intestazione == "Punti" ? combi::kOrdinaNumeroBis : combi::kOrdinaTesto;
}

}  // namespace

F_Spoglio::F_Spoglio(CombiFiltroA& controllo, ServizioDialoghi& dialoghi, QWidget* genitore)
    : QDialog(genitore), controllo_(controllo), dialoghi_(dialoghi) {
    setObjectName("F_Spoglio");
    setWindowTitle("Spoglio vincite");
    auto* colonna = new QVBoxLayout(this);
    CreaIntestazione(colonna);
    CreaPagine(colonna);
    CreaPulsanti(colonna);
    RiempiPuntiMinimi();
    resize(560, 420);
}

void F_Spoglio::CreaIntestazione(QVBoxLayout* colonna) {
    auto* riga = new QHBoxLayout;
    text1_ = new QLineEdit(this);
    text1_->setObjectName("Text1");
    text1_->setPlaceholderText("per esempio 3 12 24 50 77");
    cmbPuntiMin_ = new QComboBox(this);
    cmbPuntiMin_->setObjectName("CmbPuntiMin");
    riga->addWidget(new QLabel("Numeri estratti", this));
    riga->addWidget(text1_, 1);
    riga->addWidget(new QLabel("Punti minimi", this));
    riga->addWidget(cmbPuntiMin_);
    colonna->addLayout(riga);
    labNumeriLetti_ = new QLabel(this);
    labNumeriLetti_->setObjectName("LabNumeriLetti");
    colonna->addWidget(labNumeriLetti_);
    connect(text1_, &QLineEdit::textChanged, this, &F_Spoglio::MostraNumeriLetti);
    MostraNumeriLetti();
}

// What the check will read, as the user types: a number typed with blanks
// between is seen as it is meant, and an item the check refuses shows as "?"
// with the refusal beside it, before VERIFICA is pressed.
void F_Spoglio::MostraNumeriLetti() {
    const std::string testo = text1_->text().toStdString();
    QStringList letti;
    for (const double numero : combi::NumeriEstrazione(testo))
        letti << (numero > 0 && numero <= combi::kMaxNumero ? QString::number(numero, 'g', 10) : QString("?"));
    QString riga = "Numeri letti: " + (letti.isEmpty() ? QString("nessuno") : letti.join(' '));
    const std::string messaggio = combi::ControllaEstrazione(testo);
    if (!messaggio.empty()) riga += " \u2013 " + QString::fromStdString(messaggio);
    labNumeriLetti_->setText(riga);
    labNumeriLetti_->setStyleSheet(messaggio.empty() ? QString() : QString("color: #b00020;"));
}

void F_Spoglio::CreaPagine(QVBoxLayout* colonna) {
    tabStrip1_ = new QTabWidget(this);
    tabStrip1_->setObjectName("TabStrip1");
    listView1_ = CreaListaLarga(tabStrip1_, "ListView1", {"Colonna", "Numeri", "Punti"}, {80, 220, 60});
    listView2_ = CreaListaLarga(tabStrip1_, "ListView2",
                           {"Condizione", "Punti", "Recupero", "Punti effettivi", "Esito"},
                           {170, 90, 90, 110, 50});
    listView3_ = CreaListaLarga(tabStrip1_, "ListView3", {"Vincita", "Colonne"}, {200, 80});
    ImpostaFrecceIntestazioni(*listView1_);
    tabStrip1_->addTab(listView1_, "Vincite");
    tabStrip1_->addTab(listView2_, "Confronto condizioni");
    tabStrip1_->addTab(listView3_, "Riepilogo");
    connect(listView1_->header(), &QHeaderView::sectionClicked, this,
            [this](int sezione) { OrdinaVincite(sezione + 1); });
    colonna->addWidget(tabStrip1_, 1);
}

void F_Spoglio::CreaPulsanti(QVBoxLayout* colonna) {
    auto* riga = new QHBoxLayout;
    riga->addStretch(1);
    const char* testi[2] = {"VERIFICA", "CHIUDI"};
    for (int i = 0; i < 2; ++i) {
        // Not default buttons: Enter in the draw box must not close the dialog.
        pulsanti_[i] = new QPushButton(testi[i], this);
        pulsanti_[i]->setObjectName(QString("XPButton1_%1").arg(i));
        pulsanti_[i]->setAutoDefault(false);
        riga->addWidget(pulsanti_[i]);
    }
    connect(pulsanti_[0], &QPushButton::clicked, this, &F_Spoglio::Verifica);
    connect(pulsanti_[1], &QPushButton::clicked, this, &QDialog::close);
    colonna->addLayout(riga);
}

// Lotto draws five numbers, where two already pay; the other games start at three.
void F_Spoglio::RiempiPuntiMinimi() {
    for (int p = 1; p <= 10; ++p) cmbPuntiMin_->addItem(QString::number(p));
    cmbPuntiMin_->setCurrentIndex(controllo_.GetIdCmbTipoGioco() == 0 ? 1 : 2);
}

void F_Spoglio::Verifica() {
    const std::string messaggio = combi::ControllaEstrazione(text1_->text().toStdString());
    if (!messaggio.empty()) {
        dialoghi_.Esclamazione(QString(), QString::fromStdString(messaggio));
        return;
    }
    EseguiProtetta(dialoghi_, "F_Spoglio.VerificaVincite", [this] { VerificaVincite(); });
    EseguiProtetta(dialoghi_, "Mod_Sviluppo.ConfrontaCondizioniSuColonna", [this] { ConfrontaCondizioni(); });
}

void F_Spoglio::VerificaVincite() {
    const std::span<const combi::Colonna> colonne = controllo_.ColonneSviluppo();
    const int classe = controllo_.classe();
    const int puntiMinimi = combi::LeggiInt16(cmbPuntiMin_->currentText().toStdString());
    // Cleared first: after a failure the winning list shows nothing stale.
    listView1_->clear();
    const combi::EsitoSpoglio esito =
        combi::VerificaVincite(colonne, classe, text1_->text().toStdString(), puntiMinimi);
    MostraVincite(esito);
    MostraRiepilogo(esito);
    RiordinaVincite();
}

void F_Spoglio::MostraVincite(const combi::EsitoSpoglio& esito) {
    QList<QTreeWidgetItem*> voci;
    voci.reserve(qsizetype(esito.vincite.size()));
    for (const combi::RigaVincita& v : esito.vincite)
        voci << CreaRiga({QString::number(v.colonna), QString::fromStdString(v.numeri), QString::number(v.punti)});
    listView1_->addTopLevelItems(voci);
}

void F_Spoglio::MostraRiepilogo(const combi::EsitoSpoglio& esito) {
    listView3_->clear();
    for (const combi::RigaRiepilogo& r : esito.riepilogo)
        listView3_->addTopLevelItem(CreaRiga({QString::fromStdString(r.vincita), TestoContatore(double(r.colonne))}));
}

void F_Spoglio::RiordinaVincite() {
    if (colonnaOrdinamento_ == 0) return;
    const QString intestazione = listView1_->headerItem()->text(colonnaOrdinamento_ - 1);
    ClsOrdinaLv().Ordina(*listView1_, colonnaOrdinamento_, TipoOrdinamento(intestazione), ordineOrdinamento_);
}

void F_Spoglio::ConfrontaCondizioni() {
    listView2_->clear();
    const combi::Colonna estratti = combi::EstrazioneComeColonna(text1_->text().toStdString());
    const combi::Confronto confronto = combi::ConfrontaCondizioniSuColonna(
        estratti, LeggiTestiGriglia(*controllo_.GetGridCond(), *controllo_.GetLbQuadroRec()));
    for (const combi::RigaConfronto& riga : confronto.righe) listView2_->addTopLevelItem(RigaCondizione(riga));
}

void F_Spoglio::OrdinaVincite(int colonna) {
    if (colonna < 1 || colonna > listView1_->columnCount()) return;
    ordineOrdinamento_ = colonna == colonnaOrdinamento_ ? 1 - ordineOrdinamento_ : combi::kDecrescente;
    colonnaOrdinamento_ = int16_t(colonna);
    RiordinaVincite();
}
