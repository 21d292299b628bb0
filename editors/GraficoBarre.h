#pragma once
// A plain bar chart: one bar per value, heights proportional to the counts.

#include <QWidget>

#include <cstdint>
#include <map>

class GraficoBarre : public QWidget {
    Q_OBJECT
public:
    explicit GraficoBarre(QWidget* genitore = nullptr);
    void ImpostaDati(const std::map<int32_t, uint64_t>& conteggi);

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    std::map<int32_t, uint64_t> conteggi_;
};
