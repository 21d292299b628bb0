#include "GraficoBarre.h"

#include <QCursor>
#include <QToolTip>
#include <QtCharts/QAreaSeries>
#include <QtCharts/QCategoryAxis>
#include <QtCharts/QChart>
#include <QtCharts/QLineSeries>

#include <algorithm>
#include <cmath>

#include "Formato.h"
#include "ScalaGrafico.h"

namespace {

// Half the width of a bar, in values: bars of neighbouring values keep a gap.
constexpr double kMezzaBarra = 0.4;

// Counts are grouped as every count of the program; values of a measure are
// written as the editors' boxes take them ("1050", not "1.050").
QString Numero(double valore) { return QString::fromStdString(combi::FormatNumero(valore)); }
QString Valore(double valore) { return QString::number(qint64(std::llround(valore))); }

}  // namespace

// Built on its own chart: the view's default one would be orphaned (and
// leaked) by setChart.
GraficoBarre::GraficoBarre(QWidget* genitore) : QChartView(new QChart, genitore) {
    setObjectName("GraficoBarre");
    setRenderHint(QPainter::Antialiasing);
    setMinimumSize(420, 260);
    QChart* grafico = chart();
    grafico->legend()->hide();
    grafico->setMargins(QMargins(4, 4, 8, 4));
    asseX_ = new QCategoryAxis(grafico);
    asseY_ = new QCategoryAxis(grafico);
    for (QCategoryAxis* asse : {asseX_, asseY_}) asse->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    asseY_->setTitleText("Colonne");
    grafico->addAxis(asseX_, Qt::AlignBottom);
    grafico->addAxis(asseY_, Qt::AlignLeft);
}

void GraficoBarre::ImpostaDati(const combi::Distribuzione& conteggi, const QString& misura,
                               const std::function<bool(int32_t)>& accettato) {
    conteggi_ = conteggi;
    misura_ = misura;
    totale_ = 0;
    uint64_t massimo = 1;
    for (const auto& [valore, quante] : conteggi_) {
        totale_ += quante;
        massimo = std::max(massimo, quante);
    }
    chart()->removeAllSeries();
    asseX_->setTitleText(misura);
    if (conteggi_.empty()) return;
    for (const auto& [accettate, colore] : {std::pair{false, QColor(30, 136, 229)}, {true, QColor(67, 160, 71)}}) {
        QAreaSeries* barre = Barre(accettate, accettato, colore);
        chart()->addSeries(barre);
        barre->attachAxis(asseX_);
        barre->attachAxis(asseY_);
        connect(barre, &QAreaSeries::hovered, this, &GraficoBarre::Indica);
    }
    ImpostaAsseValori();
    ImpostaAsse(asseY_, 0, double(massimo), false, 6);
}

void GraficoBarre::resizeEvent(QResizeEvent* evento) {
    QChartView::resizeEvent(evento);
    ImpostaAsseValori();
}

// As many value labels as fit side by side in the chart's width, 4 to 12.
void GraficoBarre::ImpostaAsseValori() {
    if (conteggi_.empty()) return;
    const double larghezzaEtichetta =
        fontMetrics().horizontalAdvance(Valore(std::max(std::abs(conteggi_.begin()->first), conteggi_.rbegin()->first))) + 28;
    const int tacche = std::clamp(int(width() / larghezzaEtichetta), 4, 12);
    // The outer bars keep a little air from the frame, and a few values do
    // not swell into slabs: the axis spans at least 8 values.
    const double campo = conteggi_.rbegin()->first - conteggi_.begin()->first;
    const double aria = std::max(0.6 + 0.01 * campo, (8 - campo) / 2);
    ImpostaAsse(asseX_, conteggi_.begin()->first - aria, conteggi_.rbegin()->first + aria, true, tacche);
}

// One area of rectangles: the bars of the accepted values, or of the others.
QAreaSeries* GraficoBarre::Barre(bool accettate, const std::function<bool(int32_t)>& accettato, const QColor& colore) {
    auto* alto = new QLineSeries;
    for (const auto& [valore, quante] : conteggi_) {
        if ((accettato && accettato(valore)) != accettate) continue;
        const double altezza = double(quante);
        *alto << QPointF(valore - kMezzaBarra, 0) << QPointF(valore - kMezzaBarra, altezza)
              << QPointF(valore + kMezzaBarra, altezza) << QPointF(valore + kMezzaBarra, 0);
    }
    auto* barre = new QAreaSeries(alto);
    alto->setParent(barre);  // an area does not own its line, and the chart deletes only the area
    barre->setName(accettate ? "Valori accettati" : "Altri valori");
    barre->setColor(colore);
    barre->setBorderColor(colore.darker(130));
    return barre;
}

// The labels sit on round values; QCategoryAxis places each at the end of
// its category, so the first category ends on the first tick. The value axis
// (`interi`) writes plain values, the count axis grouped counts.
void GraficoBarre::ImpostaAsse(QCategoryAxis* asse, double minimo, double massimo, bool interi, int tacche) {
    for (const QString& etichetta : asse->categoriesLabels()) asse->remove(etichetta);
    const scala::Scala s = scala::ScalaRotonda(minimo, massimo, tacche, interi);
    const double da = interi ? minimo : s.primo, a = interi ? massimo : s.ultimo;
    asse->setStartValue(s.primo - s.passo);
    const int quante = int(std::llround((s.ultimo - s.primo) / s.passo));
    for (int i = 0; i <= quante; ++i) {
        const double tacca = s.primo + i * s.passo;
        if (tacca >= da - 1e-9 && tacca <= a + 1e-9) asse->append(interi ? Valore(tacca) : Numero(tacca), tacca);
    }
    asse->setRange(da, a);
}

QString GraficoBarre::TestoValore(int32_t valore) const {
    const auto trovato = conteggi_.find(valore);
    if (trovato == conteggi_.end() || totale_ == 0) return {};
    const double quota = 100.0 * double(trovato->second) / double(totale_);
    return QString("%1 %2: %3 colonne (%4 %)")
        .arg(misura_, Valore(valore), Numero(double(trovato->second)),
             QString::fromStdString(combi::FormatDecimale(quota, 2)));
}

void GraficoBarre::Indica(const QPointF& punto, bool dentro) {
    const QString testo = dentro ? TestoValore(int32_t(std::lround(punto.x()))) : QString();
    if (testo.isEmpty()) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(QCursor::pos(), testo, this);
    }
    emit ValoreIndicato(testo);
}
