#pragma once
// The ticks of a chart axis: round steps (1, 2 or 5 times a power of ten)
// whatever the range, so that Peso's hundreds and a count's billions read as
// easily as Ampiezza's units. Plain C++: no widgets.

namespace scala {

// Ticks primo, primo + passo, ..., ultimo: about `tacche` of them covering
// minimo..massimo (primo <= minimo, ultimo >= massimo). With `interi` the
// step is a whole number, at least 1. An empty range gets one step above it.
struct Scala {
    double passo = 1;
    double primo = 0;
    double ultimo = 1;
};

Scala ScalaRotonda(double minimo, double massimo, int tacche, bool interi);

}  // namespace scala
