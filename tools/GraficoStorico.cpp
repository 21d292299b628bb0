#include "GraficoStorico.h"

#include <QChart>
#include <QDateTimeAxis>
#include <QLineSeries>
#include <QValueAxis>

#include <algorithm>

std::vector<std::pair<QDate, int64_t>> VincitePerData(const combi::EsitoStorico& esito) {
    std::vector<std::pair<QDate, int64_t>> punti;
    for (const combi::EsitoEstrazione& e : esito.estrazioni) {
        const combi::DataEstrazione d = e.estrazione.data;
        const QDate data(d / 10000, d / 100 % 100, d % 100);
        if (punti.empty() || punti.back().first != data) punti.emplace_back(data, 0);
        punti.back().second += e.Vincenti(esito.puntiMinimi);
    }
    return punti;
}

QChart* CreaGraficoVincite(const combi::EsitoStorico& esito) {
    auto* grafico = new QChart;
    grafico->legend()->hide();
    grafico->setTitle(QString("Colonne con almeno %1 punti per estrazione").arg(esito.puntiMinimi));
    auto* serie = new QLineSeries(grafico);
    int64_t massimo = 1;
    const auto punti = VincitePerData(esito);
    for (const auto& [data, vincenti] : punti) {
        serie->append(double(data.startOfDay().toMSecsSinceEpoch()), double(vincenti));
        massimo = std::max(massimo, vincenti);
    }
    grafico->addSeries(serie);
    auto* asseDate = new QDateTimeAxis(grafico);
    asseDate->setFormat("dd/MM/yyyy");
    asseDate->setTitleText("Data");
    if (!punti.empty()) {
        // One date alone would make an empty range.
        asseDate->setRange(punti.front().first.startOfDay(), punti.back().first.addDays(1).startOfDay());
    }
    grafico->addAxis(asseDate, Qt::AlignBottom);
    serie->attachAxis(asseDate);
    auto* asseColonne = new QValueAxis(grafico);
    asseColonne->setLabelFormat("%d");
    asseColonne->setTitleText("Colonne vincenti");
    asseColonne->setRange(0, double(massimo));
    grafico->addAxis(asseColonne, Qt::AlignLeft);
    serie->attachAxis(asseColonne);
    return grafico;
}
