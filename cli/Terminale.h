#pragma once
// Progress shown on a terminal, and Ctrl-C as a stop request.

#include <chrono>
#include <iosfwd>
#include <string>

#include "Sviluppo.h"

namespace combi::cli {

// True when the stream is the process's standard output or error and that
// is a terminal: only then is a progress line worth redrawing.
bool SuTerminale(const std::ostream& s);

// The first Ctrl-C asks the running operation to stop at its next check.
void InstallaStopDaTastiera();
bool StopDaTastiera();

// The development's observer of the command line: a redrawn progress line on
// a terminal, and Ctrl-C as the stop request.
class OsservatoreTerminale : public OsservatoreSviluppo {
public:
    explicit OsservatoreTerminale(std::ostream& err) : err_(err), attivo_(SuTerminale(err)) {}
    void Progresso(uint64_t testate, uint64_t tenute) override;
    bool RichiestaStop() override { return StopDaTastiera(); }
    void Chiudi();  // ends the progress line

private:
    std::ostream& err_;
    bool attivo_;
    bool scritto_ = false;
};

// Seconds since a start, for the elapsed-time line.
class Cronometro {
public:
    int32_t Secondi() const;

private:
    std::chrono::steady_clock::time_point inizio_ = std::chrono::steady_clock::now();
};

}  // namespace combi::cli
