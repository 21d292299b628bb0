#include "AnteprimaSchedine.h"

#include <QAction>
#include <QComboBox>
#include <QFileInfo>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QToolBar>

#include "CombiFiltroA.h"
#include "ServizioDialoghi.h"

DatiSchedine DatiDelControllo(const CombiFiltroA& controllo, const QString& gioco) {
    DatiSchedine dati;
    dati.sistema = controllo.FileSistema().isEmpty() ? QString() : QFileInfo(controllo.FileSistema()).fileName();
    dati.gioco = gioco;
    const std::span<const combi::Colonna> colonne = controllo.ColonneSviluppo();
    dati.colonne.assign(colonne.begin(), colonne.end());
    dati.classe = dati.colonne.empty() ? 0 : combi::ClasseDellaColonna(dati.colonne.front());
    dati.data = QDate::currentDate();
    return dati;
}

bool EsportaPdf(const DatiSchedine& dati, Impaginazione modo, const QString& file) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(file);
    stampante.setPageSize(QPageSize(QPageSize::A4));
    stampante.setDocName("Schedine");
    ImpaginaSchedine(dati, modo).Stampa(stampante);
    return QFileInfo(file).size() > 0;
}

namespace {

// The layout combo and the PDF button go on the preview's own toolbar.
void AggiungiComandi(QPrintPreviewDialog& anteprima, Impaginazione& modo, const DatiSchedine& dati,
                     ServizioDialoghi& dialoghi, const QString& cartella) {
    auto* barra = anteprima.findChild<QToolBar*>();
    auto* vista = anteprima.findChild<QPrintPreviewWidget*>();
    if (barra == nullptr || vista == nullptr) return;
    barra->addSeparator();
    auto* scelta = new QComboBox(barra);
    scelta->setObjectName("CmbImpaginazione");
    scelta->addItems({"Schedine", "Elenco compatto"});
    scelta->setToolTip("Impaginazione");
    barra->addWidget(scelta);
    QObject::connect(scelta, &QComboBox::currentIndexChanged, vista, [&modo, vista](int indice) {
        modo = indice == 0 ? Impaginazione::Schedine : Impaginazione::Elenco;
        vista->updatePreview();
    });
    QAction* pdf = barra->addAction("Esporta PDF\u2026");
    pdf->setObjectName("EsportaPdf");
    QObject::connect(pdf, &QAction::triggered, &anteprima, [&modo, &dati, &dialoghi, cartella] {
        const QString nome = dati.sistema.isEmpty() ? QString("Schedine") : QFileInfo(dati.sistema).completeBaseName();
        const QString file = dialoghi.FileDaSalvare(cartella, "Esporta PDF", "Documenti PDF (*.pdf)|*.pdf",
                                                    nome + ".pdf", ".pdf");
        if (file.isEmpty()) return;
        if (!EsportaPdf(dati, modo, file)) dialoghi.Critico("Esporta PDF", "Impossibile scrivere il file " + file);
    });
}

}  // namespace

void MostraAnteprimaSchedine(QWidget* genitore, const DatiSchedine& dati, ServizioDialoghi& dialoghi,
                             const QString& cartella) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setPageSize(QPageSize(QPageSize::A4));
    Impaginazione modo = Impaginazione::Schedine;
    QPrintPreviewDialog anteprima(&stampante, genitore);
    anteprima.setWindowTitle("Stampa schedine - " + dati.gioco);
    QObject::connect(&anteprima, &QPrintPreviewDialog::paintRequested, &anteprima,
                     [&](QPrinter* p) { ImpaginaSchedine(dati, modo).Stampa(*p); });
    AggiungiComandi(anteprima, modo, dati, dialoghi, cartella);
    anteprima.resize(1000, 800);
    anteprima.exec();
}
