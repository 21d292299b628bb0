#include "ScalaGrafico.h"

#include <algorithm>
#include <cmath>

namespace scala {

namespace {

// The smallest of 1, 2, 5, 10 times a power of ten that is at least `x` (> 0).
double PassoRotondo(double x) {
    const double potenza = std::pow(10.0, std::floor(std::log10(x)));
    const double frazione = x / potenza;
    // A hair of tolerance, so that 2.0000000001 from a division stays 2.
    for (double f : {1.0, 2.0, 5.0})
        if (frazione <= f * (1 + 1e-9)) return f * potenza;
    return 10 * potenza;
}

}  // namespace

Scala ScalaRotonda(double minimo, double massimo, int tacche, bool interi) {
    Scala s;
    const double ampiezza = massimo - minimo;
    s.passo = ampiezza > 0 ? PassoRotondo(ampiezza / std::max(1, tacche - 1)) : 1.0;
    if (interi) s.passo = std::max(1.0, std::round(s.passo));
    s.primo = std::floor(minimo / s.passo) * s.passo;
    s.ultimo = std::ceil(massimo / s.passo) * s.passo;
    if (s.ultimo <= s.primo) s.ultimo = s.primo + s.passo;
    return s;
}

}  // namespace scala
