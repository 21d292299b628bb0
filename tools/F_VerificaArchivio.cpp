#include "F_VerificaArchivio.h"

#include <QChartView>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>

#include <cmath>

#include "ClsOrdinaLv.h"
#include "CombiFiltroA.h"
#include "F_Spoglio.h"
#include "GraficoStorico.h"
#include "OrdinaLv.h"
#include "SegnalazioneErrori.h"
#include "ServizioDialoghi.h"
#include "UtilitaSchermo.h"

namespace {

using namespace combi;

constexpr int kRigheScartateMostrate = 15;

QDate DataQt(DataEstrazione d) { return QDate(d / 10000, d / 100 % 100, d % 100); }
DataEstrazione DataMotore(const QDate& d) { return d.year() * 10000 + d.month() * 100 + d.day(); }
QString TestoDataQt(DataEstrazione d) { return DataQt(d).toString("dd/MM/yyyy"); }

// Money as an Italian user reads it ("1.234,50"), which is also what the list
// sorter reads as a number.
QString Euro(double valore) { return QLocale(QLocale::Italian).toString(valore, 'f', 2); }

// A prize as typed: "250", "11,23", "1.500,50" or "11.23"; empty is 0.
std::optional<double> LeggiPremio(QString testo) {
    testo.remove(' ');
    if (testo.isEmpty()) return 0.0;
    if (testo.contains(',')) testo.remove('.').replace(',', '.');
    bool ok = false;
    const double valore = testo.toDouble(&ok);
    if (!ok || !std::isfinite(valore) || valore < 0) return std::nullopt;
    return valore;
}

QString NumeriDueCifre(const Estrazione& e) {
    QStringList numeri;
    for (size_t k = 0; k < e.quanti; ++k) numeri << QString("%1").arg(e.numeri[k], 2, 10, QChar('0'));
    return numeri.join(' ');
}

// "Data", "Ruota" and "Numeri" sort as text (the dates as yyyy-mm-dd); the
// rest are numbers.
int32_t TipoDellaColonna(int colonna) { return colonna <= 3 ? kOrdinaTesto : kOrdinaNumeroBis; }

// Progress on the bar, the window's events between groups of draws, and the
// stop the user confirmed.
class OsservatoreFinestra : public OsservatoreStorico {
public:
    OsservatoreFinestra(QProgressBar* barra, const bool& stop) : barra_(barra), stop_(stop) {}
    void Progresso(size_t controllate, size_t totale) override {
        if (barra_ && totale) barra_->setValue(int(controllate * 100 / totale));
    }
    void ElaboraMessaggi() override { QCoreApplication::processEvents(); }
    bool RichiestaStop() override { return stop_; }

private:
    QPointer<QProgressBar> barra_;
    const bool& stop_;
};

}  // namespace

F_VerificaArchivio::F_VerificaArchivio(CombiFiltroA& controllo, ServizioDialoghi& dialoghi, QSettings& impostazioni,
                                       QWidget* genitore)
    : DialogoConLavoro(genitore), controllo_(controllo), dialoghi_(dialoghi), impostazioni_(impostazioni) {
    setObjectName("F_VerificaArchivio");
    setWindowTitle("Verifica su archivio");
    CostruisciFinestra();
    // The control's games "10ELotto" and "10ELotto5M" both draw twenty numbers.
    static constexpr int kGiocoDelControllo[4] = {0, 1, 1, 2};
    const int16_t giocoControllo = controllo_.GetIdCmbTipoGioco();
    cmbGioco_->setCurrentIndex(giocoControllo >= 0 && giocoControllo < 4 ? kGiocoDelControllo[giocoControllo] : 0);
    txtPosta_->setValue(impostazioni_.Posta());
    GiocoCambiato();
    connect(cmbGioco_, &QComboBox::currentIndexChanged, this, [this] { GiocoCambiato(); });
    connect(cmdArchivio_, &QPushButton::clicked, this, [this] { ScegliArchivio(); });
    connect(pulsanti_[0], &QPushButton::clicked, this, [this] { Verifica(); });
    connect(pulsanti_[1], &QPushButton::clicked, this, [this] { ChiudiOFerma(); });
    connect(grdPremi_, &QTableWidget::cellChanged, this, [this](int riga, int) { PremioCambiato(riga); });
    connect(lvEstrazioni_->header(), &QHeaderView::sectionClicked, this,
            [this](int sezione) { OrdinaEstrazioni(sezione + 1); });
    connect(lvEstrazioni_, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* riga) { ApriSpoglio(riga); });
    const QString ricordato = impostazioni_.Archivio();
    if (!ricordato.isEmpty() && QFileInfo::exists(ricordato)) CaricaArchivio(ricordato);
}

GiocoArchivio F_VerificaArchivio::Gioco() const { return GiocoArchivio(std::max(0, cmbGioco_->currentIndex())); }

void F_VerificaArchivio::ImpostaDivisione(int thread, size_t estrazioniPerGruppo) {
    thread_ = thread;
    estrazioniPerGruppo_ = estrazioniPerGruppo;
}

void F_VerificaArchivio::ScegliArchivio() {
    QString cartella = percorsoArchivio_.isEmpty() ? CartellaProgramma() : QFileInfo(percorsoArchivio_).absolutePath();
    const QString file = DialogoApri(dialoghi_, cartella, "Archivio estrazioni",
                                     "Archivio estrazioni (*.txt *.csv)|*.txt;*.csv|Tutti i file (*)|*", "", ".txt");
    if (file.isEmpty()) return;
    CaricaArchivio(file);
}

void F_VerificaArchivio::CaricaArchivio(const QString& percorso) {
    EseguiProtetta(dialoghi_, "F_VerificaArchivio.LeggiArchivio", [&] {
        archivio_ = LeggiFileArchivio(percorso.toStdString());
        percorsoArchivio_ = percorso;
        modificaArchivio_ = QFileInfo(percorso).lastModified();
        labArchivio_->setText(percorso);
        impostazioni_.SetArchivio(percorso);
        labInfo_->setText(QString("Estrazioni lette: %1, righe scartate: %2")
                              .arg(archivio_.estrazioni.size())
                              .arg(archivio_.scartate.size()));
        DateDelGioco();
        SegnalaScartate();
    });
}

// The user keeps the archive up to date: a file changed since it was read is read again.
void F_VerificaArchivio::AggiornaArchivioSeCambiato() {
    if (percorsoArchivio_.isEmpty() || QFileInfo(percorsoArchivio_).lastModified() == modificaArchivio_) return;
    CaricaArchivio(percorsoArchivio_);
}

void F_VerificaArchivio::SegnalaScartate() {
    if (archivio_.scartate.empty()) return;
    QString testo = QString("L'archivio ha %1 righe che non sono estrazioni valide:").arg(archivio_.scartate.size());
    for (size_t i = 0; i < archivio_.scartate.size() && i < size_t(kRigheScartateMostrate); ++i)
        testo += "\n" + QString::fromStdString(archivio_.scartate[i].messaggio);
    if (archivio_.scartate.size() > size_t(kRigheScartateMostrate)) testo += "\n...";
    dialoghi_.Esclamazione("Verifica su archivio", testo);
}

// As the winnings check: two points already pay at Lotto, three elsewhere.
void F_VerificaArchivio::GiocoCambiato() {
    const bool lotto = Gioco() == GiocoArchivio::kLotto;
    cmbRuota_->setEnabled(lotto);
    if (!lotto) cmbRuota_->setCurrentIndex(0);
    cmbPuntiMin_->setCurrentIndex(lotto ? 1 : 2);
    DateDelGioco();
    RiempiPremi();
}

// The dates run over the game's draws in the archive.
void F_VerificaArchivio::DateDelGioco() {
    DataEstrazione prima = 0, ultima = 0;
    for (const Estrazione& e : archivio_.estrazioni) {
        if (GiocoDellaRuota(e.ruota) != Gioco()) continue;
        if (!prima || e.data < prima) prima = e.data;
        ultima = std::max(ultima, e.data);
    }
    if (!prima) return;
    txtDal_->setDate(DataQt(prima));
    txtAl_->setDate(DataQt(ultima));
}

// One row per number of points a column of the control's class can score in
// the game, from the top down to 0.
void F_VerificaArchivio::RiempiPremi() {
    giocoPremi_ = Gioco();
    premi_ = impostazioni_.Premi(giocoPremi_, controllo_.classe());
    const int massimo = std::min<int>(controllo_.classe(), NumeriEstratti(giocoPremi_));
    riempiendoPremi_ = true;
    grdPremi_->setRowCount(std::max(0, massimo + 1));
    for (int riga = 0; riga <= massimo; ++riga) {
        const int punti = massimo - riga;
        auto* voce = new QTableWidgetItem(QString::number(punti));
        voce->setFlags(voce->flags() & ~Qt::ItemIsEditable);
        grdPremi_->setItem(riga, 0, voce);
        const double premio = premi_[size_t(punti)];
        grdPremi_->setItem(riga, 1, new QTableWidgetItem(premio > 0 ? Euro(premio) : QString()));
    }
    riempiendoPremi_ = false;
}

// A prize typed by the user is kept at once; one that is not an amount is refused.
void F_VerificaArchivio::PremioCambiato(int riga) {
    if (riempiendoPremi_ || !grdPremi_->item(riga, 0) || !grdPremi_->item(riga, 1)) return;
    const int punti = grdPremi_->item(riga, 0)->text().toInt();
    const std::optional<double> premio = LeggiPremio(grdPremi_->item(riga, 1)->text());
    riempiendoPremi_ = true;
    if (!premio) {
        dialoghi_.Esclamazione("Verifica su archivio",
                               QString("Premio non valido per %1 punti: \"%2\"").arg(punti).arg(grdPremi_->item(riga, 1)->text()));
        grdPremi_->item(riga, 1)->setText(premi_[size_t(punti)] > 0 ? Euro(premi_[size_t(punti)]) : QString());
    } else {
        premi_[size_t(punti)] = *premio;
        impostazioni_.SetPremi(giocoPremi_, controllo_.classe(), premi_);
    }
    riempiendoPremi_ = false;
}

ParametriStorico F_VerificaArchivio::Parametri() const {
    ParametriStorico p;
    p.gioco = Gioco();
    if (p.gioco == GiocoArchivio::kLotto && cmbRuota_->currentIndex() > 0) p.ruota = cmbRuota_->currentIndex() - 1;
    p.dal = DataMotore(txtDal_->date());
    p.al = DataMotore(txtAl_->date());
    p.puntiMinimi = cmbPuntiMin_->currentText().toInt();
    p.classe = controllo_.classe();
    p.thread = thread_;
    p.estrazioniPerGruppo = estrazioniPerGruppo_;
    return p;
}

bool F_VerificaArchivio::Controlla() {
    QString messaggio;
    if (percorsoArchivio_.isEmpty()) messaggio = "Scegliere l'archivio delle estrazioni";
    else if (controllo_.QuantitaColonne() == 0) messaggio = "Nessuna colonna da verificare: sviluppare prima il sistema";
    else if (txtDal_->date() > txtAl_->date()) messaggio = "La data iniziale viene dopo quella finale";
    if (!messaggio.isEmpty()) dialoghi_.Esclamazione("Verifica su archivio", messaggio);
    return messaggio.isEmpty();
}

void F_VerificaArchivio::Verifica() {
    if (Occupato()) return;
    AggiornaArchivioSeCambiato();
    if (!Controlla()) return;
    impostazioni_.SetPosta(txtPosta_->value());
    const QPointer<F_VerificaArchivio> finestra(this);
    Occupa(true);
    EseguiProtetta(dialoghi_, "F_VerificaArchivio.Verifica", [this] { Esegui(); });
    if (!finestra) return;  // the host dropped the window during the run
    Occupa(false);
}

void F_VerificaArchivio::Esegui() {
    std::vector<Colonna> colonne;
    controllo_.GetColonneSviluppo(colonne);
    if (!colonne.empty()) colonne.erase(colonne.begin());  // element 0 is always empty
    OsservatoreFinestra osservatore(panPerc_, stopRichiesto_);
    esito_ = VerificaStorico(colonne, archivio_.estrazioni, Parametri(), osservatore);
    colonneVerificate_ = int64_t(colonne.size());
    MostraRiepilogo();
    MostraEstrazioni();
    MostraBilancio();
    // The view owns the new chart and lets go of the old one without deleting it.
    QChart* vecchio = grafico_->chart();
    grafico_->setChart(CreaGraficoVincite(esito_));
    delete vecchio;
    labInfo_->setText(esito_.interrotto ? QString("Interrotta dopo %1 estrazioni su %2")
                                              .arg(esito_.estrazioni.size())
                                              .arg(esito_.daControllare)
                                        : QString("Estrazioni controllate: %1").arg(esito_.estrazioni.size()));
}

void F_VerificaArchivio::MostraRiepilogo() {
    lvRiepilogo_->clear();
    auto riga = [this](const QString& vincita, const QString& colonne) {
        lvRiepilogo_->addTopLevelItem(CreaRiga({vincita, colonne}));
    };
    for (const RigaRiepilogo& r : esito_.Riepilogo())
        riga(QString::fromStdString(r.vincita), QString::number(r.colonne));
    riga("Estrazioni controllate", QString::number(esito_.estrazioni.size()));
    riga("Estrazioni con vincite", QString::number(esito_.estrazioniConVincite));
    if (esito_.migliore) {
        const EsitoEstrazione& m = esito_.estrazioni[*esito_.migliore];
        const int punti = m.PuntiMassimi();
        const int64_t colonne = m.conte[size_t(punti)];
        riga("Migliore estrazione", QString("%1 %2 %3 (%4 punti: %5 %6)")
                                        .arg(TestoDataQt(m.estrazione.data), kNomiRuote[m.estrazione.ruota],
                                             NumeriDueCifre(m.estrazione))
                                        .arg(punti)
                                        .arg(colonne)
                                        .arg(colonne == 1 ? "colonna" : "colonne"));
    }
    const Digiuno& d = esito_.digiuno;
    riga("Ritardo massimo", d.concorsi ? QString("%1 estrazioni (dal %2 al %3)")
                                             .arg(d.concorsi)
                                             .arg(TestoDataQt(d.dal), TestoDataQt(d.al))
                                       : QString("0 estrazioni"));
}

// The draws with a column at the minimum or above; the key of a row is the
// draw's place in the result, which a sort keeps.
void F_VerificaArchivio::MostraEstrazioni() {
    lvEstrazioni_->clear();
    QList<QTreeWidgetItem*> righe;
    for (size_t i = 0; i < esito_.estrazioni.size(); ++i) {
        const EsitoEstrazione& e = esito_.estrazioni[i];
        const int64_t vincenti = e.Vincenti(esito_.puntiMinimi);
        if (vincenti == 0) continue;
        righe << CreaRiga({QString::fromStdString(TestoData(e.estrazione.data)), kNomiRuote[e.estrazione.ruota],
                           NumeriDueCifre(e.estrazione), QString::number(e.PuntiMassimi()),
                           QString::number(vincenti), Euro(VintoEstrazione(e, txtPosta_->value(), premi_))},
                          QString::number(i));
    }
    lvEstrazioni_->addTopLevelItems(righe);
    RiordinaEstrazioni();
}

void F_VerificaArchivio::MostraBilancio() {
    lvBilancio_->clear();
    const StimaDenaro stima = StimaBilancio(esito_, colonneVerificate_, txtPosta_->value(), premi_);
    auto riga = [this](const QString& nome, const Bilancio& b) {
        lvBilancio_->addTopLevelItem(CreaRiga({nome, Euro(b.giocato), Euro(b.vinto), Euro(b.Saldo())}));
    };
    for (const BilancioAnno& a : stima.perAnno) riga(QString::number(a.anno), a.bilancio);
    riga("Totale", stima.totale);
}

void F_VerificaArchivio::OrdinaEstrazioni(int colonna) {
    if (colonna < 1 || colonna > lvEstrazioni_->columnCount()) return;
    ordineOrdinamento_ = colonna == colonnaOrdinamento_ ? 1 - ordineOrdinamento_ : kDecrescente;
    colonnaOrdinamento_ = int16_t(colonna);
    RiordinaEstrazioni();
}

void F_VerificaArchivio::RiordinaEstrazioni() {
    if (colonnaOrdinamento_ == 0) return;
    ClsOrdinaLv().Ordina(*lvEstrazioni_, colonnaOrdinamento_, TipoDellaColonna(colonnaOrdinamento_), ordineOrdinamento_);
}

// The winnings check on the draw of the row, as if the user had typed its numbers.
void F_VerificaArchivio::ApriSpoglio(QTreeWidgetItem* riga) {
    if (!riga || Occupato()) return;
    bool ok = false;
    const size_t i = riga->data(0, kRuoloChiave).toString().toULongLong(&ok);
    if (!ok || i >= esito_.estrazioni.size()) return;
    F_Spoglio spoglio(controllo_, dialoghi_, this);
    spoglio.Text1()->setText(QString::fromStdString(NumeriComeTesto(esito_.estrazioni[i].estrazione)));
    const int indice = spoglio.CmbPuntiMin()->findText(QString::number(esito_.puntiMinimi));
    if (indice >= 0) spoglio.CmbPuntiMin()->setCurrentIndex(indice);
    spoglio.Verifica();
    spoglio.exec();
}

void F_VerificaArchivio::Occupa(bool occupato) {
    ImpostaOccupato(occupato);
    stopRichiesto_ = false;
    for (QWidget* w : std::initializer_list<QWidget*>{cmdArchivio_, cmbGioco_, txtDal_, txtAl_, cmbPuntiMin_,
                                                      txtPosta_, grdPremi_, pulsanti_[0]})
        w->setEnabled(!occupato);
    cmbRuota_->setEnabled(!occupato && Gioco() == GiocoArchivio::kLotto);
    pulsanti_[1]->setText(occupato ? "STOP" : "CHIUDI");
    if (occupato) panPerc_->setValue(0);
}

void F_VerificaArchivio::ChiudiOFerma() {
    if (!Occupato()) {
        reject();
        return;
    }
    if (dialoghi_.Domanda(QString(), "Interrompere ?")) stopRichiesto_ = true;
}

