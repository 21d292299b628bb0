#pragma once
// "Ampiezza" and "Baricentro": range editors that show, in LabMin and
// LabMax, the smallest and largest value a column of the system can have.
// The user's range is not checked against them.

#include <optional>
#include <utility>
#include <vector>

#include "F_PuntiSuIntervallo.h"

class QLabel;

class F_PuntiSuLimiti : public F_PuntiSuIntervallo {
    Q_OBJECT
public:
    F_PuntiSuLimiti(const VoceCatalogo& voce, const ContestoEditore& contesto, QWidget* genitore);

    // Fills LabMin/LabMax from the system's numbers; empty labels when the
    // numbers are fewer than the class.
    void CalcolaLimiti();

protected:
    void CaricaCampiPropri() override { CalcolaLimiti(); }

private:
    QLabel* labMin_ = nullptr;
    QLabel* labMax_ = nullptr;
};

// {min, max} over the integral columns of `numeri` (ascending) in class k;
// nothing when fewer than k numbers. Baricentro: integer part of the mean of
// the k smallest and of the k largest numbers.
std::optional<std::pair<int, int>> LimitiBaricentro(const std::vector<int>& numeri, int classe);
// Ampiezza: max = largest - smallest number; min = k-th smallest minus the
// j-th smallest, j the last candidate starting below the k-th number. A
// single-number column has no such candidate: class 1 shows the span of the
// picked numbers in both labels.
std::optional<std::pair<int, int>> LimitiAmpiezza(const std::vector<int>& numeri, int classe);
