#include "GraficoBarre.h"

#include <QPainter>

#include <algorithm>

GraficoBarre::GraficoBarre(QWidget* genitore) : QWidget(genitore) {
    setObjectName("GraficoBarre");
    setMinimumSize(360, 180);
}

void GraficoBarre::ImpostaDati(const std::map<int32_t, uint64_t>& conteggi) {
    conteggi_ = conteggi;
    update();
}

void GraficoBarre::paintEvent(QPaintEvent*) {
    QPainter pittore(this);
    pittore.fillRect(rect(), palette().base());
    if (conteggi_.empty()) return;
    uint64_t massimo = 1;
    for (const auto& [valore, conta] : conteggi_) massimo = std::max(massimo, conta);
    const int margine = 6;
    const int altezzaTesto = fontMetrics().height();
    const int base = height() - margine - altezzaTesto;
    const double larghezza = double(width() - 2 * margine) / double(conteggi_.size());
    int i = 0;
    for (const auto& [valore, conta] : conteggi_) {
        const int x = margine + int(i * larghezza);
        const int w = std::max(1, int(larghezza) - 2);
        const int h = int(double(base - margine) * double(conta) / double(massimo));
        pittore.fillRect(x + 1, base - h, w, h, QColor(70, 110, 190));
        pittore.setPen(palette().text().color());
        pittore.drawText(QRect(x, base + 1, int(larghezza), altezzaTesto), Qt::AlignCenter,
                         QString::number(valore));
        ++i;
    }
    pittore.drawLine(margine, base, width() - margine, base);
}
