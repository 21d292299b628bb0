#include "StampaSchedine.h"

#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "CombiFiltroA.h"

namespace {

// Columns drawn on one page: two columns of slips, 30 lines each.
constexpr int kRighePerPagina = 30;
constexpr int kColonnePerPagina = 2 * kRighePerPagina;

void Disegna(QPrinter* stampante, const CombiFiltroA& controllo, const QString& tipoGioco) {
    QPainter pittore(stampante);
    const QRectF pagina = stampante->pageLayout().paintRectPixels(stampante->resolution());
    const int quante = controllo.QuantitaColonne();
    const int pagine = std::max(1, (quante + kColonnePerPagina - 1) / kColonnePerPagina);
    const double riga = pagina.height() / (kRighePerPagina + 3);
    QFont titolo = pittore.font();
    titolo.setBold(true);
    for (int p = 0; p < pagine; ++p) {
        if (p > 0) stampante->newPage();
        pittore.setFont(titolo);
        pittore.drawText(QRectF(0, 0, pagina.width(), riga * 1.5), Qt::AlignLeft | Qt::AlignVCenter,
                         QString("Schedine %1 - %2 colonne - pagina %3 di %4")
                             .arg(tipoGioco).arg(quante).arg(p + 1).arg(pagine));
        pittore.setFont(QFont("Monospace"));
        for (int i = 0; i < kColonnePerPagina; ++i) {
            const int id = p * kColonnePerPagina + i + 1;
            if (id > quante) break;
            const double x = (i / kRighePerPagina) * pagina.width() / 2;
            const double y = riga * (2 + i % kRighePerPagina);
            pittore.drawText(QRectF(x, y, pagina.width() / 2, riga), Qt::AlignLeft | Qt::AlignVCenter,
                             QString("%1)  %2").arg(id, 6).arg(controllo.GetColonnaSviluppo(id)));
        }
    }
}

}  // namespace

void AnteprimaSchedine(QWidget* genitore, const CombiFiltroA& controllo, const QString& tipoGioco) {
    QPrinter stampante(QPrinter::HighResolution);
    QPrintPreviewDialog anteprima(&stampante, genitore);
    anteprima.setWindowTitle("Stampa schedine - " + tipoGioco);
    QObject::connect(&anteprima, &QPrintPreviewDialog::paintRequested, &anteprima,
                     [&](QPrinter* p) { Disegna(p, controllo, tipoGioco); });
    anteprima.exec();
}
