#include "Terminale.h"

#include <unistd.h>

#include <atomic>
#include <cmath>
#include <csignal>
#include <iostream>

#include "Formato.h"

namespace combi::cli {

namespace {
std::atomic<bool> stopRichiesto{false};
extern "C" void SuInterruzione(int) { stopRichiesto = true; }

// A terminal redrawn more often than this only flickers.
constexpr std::chrono::milliseconds kIntervalloDisegno{200};
}  // namespace

bool SuTerminale(const std::ostream& s) {
    if (&s == &std::cerr) return ::isatty(STDERR_FILENO);
    if (&s == &std::cout) return ::isatty(STDOUT_FILENO);
    return false;
}

void InstallaStopDaTastiera() { std::signal(SIGINT, SuInterruzione); }
bool StopDaTastiera() { return stopRichiesto; }

OsservatoreTerminale::OsservatoreTerminale(std::ostream& err, uint64_t totale, bool attivo)
    : err_(err), totale_(totale), attivo_(attivo) {}

std::string OsservatoreTerminale::Riga(uint64_t testate, uint64_t tenute, uint64_t totale, double secondi) {
    const double frazione = totale == 0 ? 1.0 : double(testate) / double(totale);
    const double velocita = secondi > 0 ? double(testate) / secondi : 0.0;
    std::string riga = FormatNumero(std::floor(frazione * 100.0)) + " %   Sviluppate : " +
                       FormatNumero(double(testate)) + "   Condizionate : " + FormatNumero(double(tenute));
    if (velocita > 0) {
        const double mancano = double(totale - std::min(testate, totale)) / velocita;
        riga += "   " + FormatNumero(velocita) + " colonne/s   mancano " +
                TempoTrascorso(int32_t(std::min(std::ceil(mancano), 3.6e8)));
    }
    return riga;
}

void OsservatoreTerminale::Progresso(uint64_t testate, uint64_t tenute) {
    if (!attivo_) return;
    const auto adesso = Orologio::now();
    if (testate < totale_ && adesso - ultimoDisegno_ < kIntervalloDisegno) return;
    ultimoDisegno_ = adesso;
    const double secondi = std::chrono::duration<double>(adesso - inizio_).count();
    // The trailing blanks clear what a longer previous line left.
    err_ << "\r" << Riga(testate, tenute, totale_, secondi) << "     " << std::flush;
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
