#pragma once
// The pending events run from inside a long computation, at most every few
// milliseconds.
//
// The engine asks after every step, and a pump costs more than a step
// (pumping every time made a reduction of 300000 columns three to four times
// slower). The first request always pumps. A stop can only be asked during a
// pump, and the engine reads it right after one, so it is seen at the same
// point as with a pump at every step.

#include <QCoreApplication>
#include <QElapsedTimer>

class PompaEventi {
public:
    void Pompa() {
        if (ultima_.isValid() && ultima_.elapsed() < kMillisecondiTraPompe) return;
        QCoreApplication::processEvents();
        ultima_.start();
    }

private:
    static constexpr qint64 kMillisecondiTraPompe = 15;
    QElapsedTimer ultima_;
};
