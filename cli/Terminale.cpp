#include "Terminale.h"

#include <unistd.h>

#include <atomic>
#include <cmath>
#include <csignal>
#include <iostream>

#include "Utilita.h"

namespace combi::cli {

namespace {
std::atomic<bool> stopRichiesto{false};
extern "C" void SuInterruzione(int) { stopRichiesto = true; }
}  // namespace

bool SuTerminale(const std::ostream& s) {
    if (&s == &std::cerr) return ::isatty(STDERR_FILENO);
    if (&s == &std::cout) return ::isatty(STDOUT_FILENO);
    return false;
}

void InstallaStopDaTastiera() { std::signal(SIGINT, SuInterruzione); }
bool StopDaTastiera() { return stopRichiesto; }

void OsservatoreTerminale::Progresso(uint64_t testate, uint64_t tenute) {
    if (!attivo_) return;
    err_ << "\rSviluppate : " << FormatNumero(double(testate)) << "   Condizionate : "
         << FormatNumero(double(tenute)) << "   " << std::flush;
    scritto_ = true;
}

void OsservatoreTerminale::Chiudi() {
    if (scritto_) err_ << "\n";
    scritto_ = false;
}

int32_t Cronometro::Secondi() const {
    const std::chrono::duration<double> d = std::chrono::steady_clock::now() - inizio_;
    return int32_t(std::lround(d.count()));
}

}  // namespace combi::cli
