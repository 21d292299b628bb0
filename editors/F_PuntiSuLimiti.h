#pragma once
// "Ampiezza" and "Baricentro": range editors that show, in LabMin and
// LabMax, the smallest and largest value a column of the system can have.
// The user's range is not checked against them.

#include <utility>
#include <vector>

#include "F_PuntiSuIntervallo.h"

class QLabel;

class F_PuntiSuLimiti : public F_PuntiSuIntervallo {
    Q_OBJECT
public:
    F_PuntiSuLimiti(const VoceCatalogo& voce, const ContestoEditore& contesto, QWidget* genitore);

    // Fills LabMin/LabMax from the system's numbers; empty labels when the
    // numbers are fewer than the class, and a message when no class is set.
    void CalcolaLimiti();

protected:
    void CaricaCampiPropri() override { CalcolaLimiti(); }

private:
    QLabel* labMin_ = nullptr;
    QLabel* labMax_ = nullptr;
};

// The candidate table of the development: row c holds the picked numbers
// c..c+k-1 (ascending), so the first row has the k smallest numbers and the
// last row the k largest.
using TabellaCandidati = std::vector<std::vector<int>>;

// {min, max} over the integral columns of class k, from a candidate table
// with at least one row. Baricentro: integer part of the mean of the k
// smallest and of the k largest numbers.
std::pair<int, int> LimitiBaricentro(const TabellaCandidati& tabella, int classe);
// Ampiezza: max = largest - smallest number; min = k-th smallest minus the
// j-th smallest, j the last candidate starting below the k-th number. A
// single-number column has no such candidate: class 1 shows the span of the
// picked numbers in both labels.
std::pair<int, int> LimitiAmpiezza(const TabellaCandidati& tabella, int classe);
