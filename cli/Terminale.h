#pragma once
// Progress shown on a terminal, and Ctrl-C as a stop request.

#include <chrono>
#include <cstdint>
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

// The development's observer of the command line: on a terminal, one line
// kept up to date with the percentage done, the columns tested and kept, the
// columns per second and the time left; Ctrl-C as the stop request.
class OsservatoreTerminale : public OsservatoreSviluppo {
public:
    // `totale`: the columns the run will test; `attivo`: whether to draw at all.
    OsservatoreTerminale(std::ostream& err, uint64_t totale, bool attivo);
    void Progresso(uint64_t testate, uint64_t tenute) override;
    bool RichiestaStop() override { return StopDaTastiera(); }
    void Chiudi();  // ends the progress line

    // The line drawn after `secondi` seconds with these counts.
    static std::string Riga(uint64_t testate, uint64_t tenute, uint64_t totale, double secondi);

private:
    using Orologio = std::chrono::steady_clock;
    std::ostream& err_;
    uint64_t totale_;
    bool attivo_;
    bool scritto_ = false;
    Orologio::time_point inizio_ = Orologio::now();
    Orologio::time_point ultimoDisegno_{};
};

// Seconds since a start, for the elapsed-time line.
class Cronometro {
public:
    int32_t Secondi() const;

private:
    std::chrono::steady_clock::time_point inizio_ = std::chrono::steady_clock::now();
};

}  // namespace combi::cli
