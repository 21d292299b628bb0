#pragma once
// The chart of "Verifica su archivio": for every draw date the columns that
// reached the minimum points, summed over the wheels drawn that day, as a
// line over a date axis.

#include <QDate>

#include <cstdint>
#include <utility>
#include <vector>

#include "VerificaStorico.h"

class QChart;

// One point per date in date order: (date, columns at the minimum or above).
std::vector<std::pair<QDate, int64_t>> VincitePerData(const combi::EsitoStorico& esito);

// A new chart of those points; the caller owns it (a QChartView takes it).
QChart* CreaGraficoVincite(const combi::EsitoStorico& esito);
