#pragma once
// The bar chart of a statistics preview: one bar per value of the measure,
// its height the columns that have it. Values the condition accepts are
// green, the others blue. Both axes carry round ticks with thousands
// grouped as every count of the program; pointing at a bar tells its value,
// its columns and their share.

#include <QtCharts/QChartView>

#include <functional>

#include "DistribuzioneMisura.h"

class QAreaSeries;
class QCategoryAxis;

class GraficoBarre : public QChartView {
    Q_OBJECT
public:
    explicit GraficoBarre(QWidget* genitore = nullptr);

    // `misura` names the values ("Peso"); `accettato` tells the green bars.
    void ImpostaDati(const combi::Distribuzione& conteggi, const QString& misura,
                     const std::function<bool(int32_t)>& accettato);

    // "Peso 123: 4.567 colonne (1,23 %)": the words shown when pointing at
    // the bar of `valore`; empty for a value no column has.
    QString TestoValore(int32_t valore) const;
    // Pointing at the chart at `punto` (chart coordinates), as the bars'
    // hover signal reports it: tells the nearest value's text.
    void Indica(const QPointF& punto, bool dentro);

    QCategoryAxis* AsseX() const { return asseX_; }
    QCategoryAxis* AsseY() const { return asseY_; }

signals:
    void ValoreIndicato(const QString& testo);

protected:
    void resizeEvent(QResizeEvent* evento) override;

private:
    void ImpostaAsseValori();
    void ImpostaAsse(QCategoryAxis* asse, double minimo, double massimo, bool interi, int tacche);
    QAreaSeries* Barre(bool accettate, const std::function<bool(int32_t)>& accettato, const QColor& colore);

    combi::Distribuzione conteggi_;
    uint64_t totale_ = 0;
    QString misura_;
    QCategoryAxis* asseX_ = nullptr;
    QCategoryAxis* asseY_ = nullptr;
};
