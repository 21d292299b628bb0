#include "F_Statistica.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "DistribuzioneMisura.h"
#include "Errore.h"
#include "GraficoBarre.h"
#include "SegnalazioneErrori.h"
#include "ServizioDialoghi.h"
#include "Formato.h"

QString NomeGioco(int codiceGioco) {
    static const char* giochi[] = {"Lotto", "10ELotto", "10ELotto5M", "SuperEnalotto"};
    return codiceGioco >= 1 && codiceGioco <= 4 ? giochi[codiceGioco - 1] : QString();
}

F_Statistica::F_Statistica(QWidget* genitore) : QDialog(genitore) {
    setObjectName("F_Statistica");
    setWindowTitle("Statistica");
    auto* colonna = new QVBoxLayout(this);
    labIntestazione_ = new QLabel(this);
    labIntestazione_->setObjectName("LabIntestazione");
    labAvanzamento_ = new QLabel(this);
    labAvanzamento_->setObjectName("LabAvanzamento");
    colonna->addWidget(labIntestazione_);
    colonna->addWidget(labAvanzamento_);
    auto* riga = new QHBoxLayout;
    tabella_ = new QTableWidget(0, 3, this);
    tabella_->setObjectName("TabDistribuzione");
    tabella_->setHorizontalHeaderLabels({"Valore", "Colonne", "%"});
    tabella_->verticalHeader()->hide();
    tabella_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    tabella_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabella_->setMinimumWidth(260);
    grafico_ = new GraficoBarre(this);
    riga->addWidget(tabella_);
    riga->addWidget(grafico_, 1);
    colonna->addLayout(riga, 1);
    auto* chiudi = new QPushButton("CHIUDI", this);
    chiudi->setObjectName("XPButton1_1");
    chiudi->setAutoDefault(false);
    connect(chiudi, &QPushButton::clicked, this, &QDialog::close);
    colonna->addWidget(chiudi, 0, Qt::AlignRight);
    resize(700, 360);
}

F_Statistica::~F_Statistica() = default;

bool F_Statistica::Avvia(const VoceCatalogo& voce, const ContestoEditore& contesto,
                         const combi::Condizione& condizione) {
    const int codiceGioco = contesto.idTipoGioco + 1;
    labIntestazione_->setText(QString("%1 - codice statistica %2 - gioco %3 (%4) - classe %5")
                                  .arg(voce.titolo)
                                  .arg(voce.codiceStatistica)
                                  .arg(codiceGioco)
                                  .arg(NomeGioco(codiceGioco))
                                  .arg(contesto.classe));
    try {
        distribuzione_ = std::make_unique<DistribuzioneMisura>(condizione, contesto.numeriSelezionati,
                                                                contesto.classe);
    } catch (const combi::Errore& errore) {
        // Too few picked numbers is missing input, not a fault.
        if (contesto.dialoghi != nullptr) {
            contesto.dialoghi->Esclamazione(QString(), QString::fromStdString(errore.descrizione()));
        }
        return false;
    } catch (...) {
        if (contesto.dialoghi != nullptr) {
            SegnalaEccezioneCorrente(*contesto.dialoghi, QString(voce.nomeDialogo) + ".Statistica");
        }
        return false;
    }
    QTimer::singleShot(0, this, &F_Statistica::Passo);
    Mostra();
    return true;
}

bool F_Statistica::Finita() const { return distribuzione_ && distribuzione_->Finita(); }

void F_Statistica::Passo() {
    // One slice per turn of the event loop; the timer dies with the window.
    const bool altre = distribuzione_->Avanza(kColonnePerPasso);
    Mostra();
    if (altre) {
        QTimer::singleShot(0, this, &F_Statistica::Passo);
    } else {
        emit Completata();
    }
}

void F_Statistica::Mostra() {
    const auto& d = *distribuzione_;
    labAvanzamento_->setText(QString("Colonne esaminate: %1 di %2")
                                 .arg(QString::fromStdString(combi::FormatNumero(double(d.Misurate()))))
                                 .arg(QString::fromStdString(combi::FormatNumero(double(d.Totale())))));
    tabella_->setRowCount(static_cast<int>(d.Conteggi().size()));
    int riga = 0;
    for (const auto& [valore, conta] : d.Conteggi()) {
        const double quota = d.Misurate() == 0 ? 0.0 : 100.0 * double(conta) / double(d.Misurate());
        const QString testi[3] = {QString::number(valore), QString::number(conta),
                                  QString::number(quota, 'f', 2).replace('.', ',')};
        for (int c = 0; c < 3; ++c) {
            auto* cella = new QTableWidgetItem(testi[c]);
            cella->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            tabella_->setItem(riga, c, cella);
        }
        ++riga;
    }
    grafico_->ImpostaDati(d.Conteggi());
}
