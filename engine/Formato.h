#pragma once
// The exact text formats shown to the user: counters, elapsed time, vertical
// grid texts, number lists and column texts. Lengths of user texts count
// UTF-8 characters, not bytes, so an accented letter is never cut in half.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Colonna.h"

namespace combi {

// Value rounded half away from zero, thousands grouped by `separatore`, no
// decimals; "0" for anything that rounds to zero. Throws Errore on NaN/inf.
std::string FormatNumero(double valore, std::string_view separatore);

// As above with the user's separator (SeparatoreMigliaia): the one format of
// every count shown on screen, in reports and on the command line.
std::string FormatNumero(double valore);

// `valore` with `cifre` decimals after the user's decimal separator and its
// thousands grouped as FormatNumero does ("12,50" in Italian).
std::string FormatDecimale(double valore, int cifre);

// The separators of the numbers the user reads.
struct SeparatoriNumeri {
    std::string migliaia;
    std::string decimali;
    bool operator==(const SeparatoriNumeri&) const = default;
};

// The separators of the locale the environment names for numbers: the first
// non-empty of LC_ALL, LC_NUMERIC and LANG (null pointers count as unset).
// A desktop that names none, or only the plain "C"/"POSIX" one (also
// "C.UTF-8"), gets the Italian ones, "." and ","; so does a name that this
// machine does not know.
SeparatoriNumeri SeparatoriDaAmbiente(const char* lcAll, const char* lcNumeric, const char* lang);

// The process's separators, read from the environment on first use.
const SeparatoriNumeri& SeparatoriUtente();
inline const std::string& SeparatoreMigliaia() { return SeparatoriUtente().migliaia; }

// "hh:mm:ss", each part at least two digits, hours unbounded (360000 -> "100:00:00").
std::string TempoTrascorso(int32_t secondi);

// `testo` cut into pieces of `lunghezza` characters joined by CR LF (none after
// the last piece). Throws Errore when `lunghezza` < 1.
std::string TestoVerticale(std::string_view testo, int lunghezza);

// Indices (limiteInferiore + i) of the true elements, each followed by
// `separatore`, the final one removed; "00" format when `dueCifre`.
std::string ElencoIndici(const std::vector<bool>& valori, int limiteInferiore,
                         std::string_view separatore, bool dueCifre);

// As above for 16-bit flags, where any non-zero element (usually -1) is true.
std::string ElencoIndici(std::span<const int16_t> valori, int limiteInferiore,
                         std::string_view separatore, bool dueCifre);

// Fixed-size flag tables as the engine stores them: indices 0..N-1.
template <std::size_t N>
std::string ElencoIndici(const std::array<int16_t, N>& valori, std::string_view separatore,
                         bool dueCifre) {
    return ElencoIndici(std::span<const int16_t>(valori), 0, separatore, dueCifre);
}

// The odd (or even) numbers da..a, joined by `separatore`.
std::string ElencoPariDispari(bool dispari, int da, int a, std::string_view separatore);

// One "00" number every three characters (column 1, 4, 7, ...), trailing blanks
// trimmed. numeri[0] is position 1. Numbers <= 0 take no slot unless `mostraZeri`.
std::string TestoColonna(std::span<const int16_t> numeri, bool mostraZeri);

// The same for a column record: all 20 positions, 0 beyond the class.
std::string TestoColonna(const Colonna& colonna, bool mostraZeri);

// The trimmed text aligned inside `riempimento` (right or left), keeping the
// padding's length; the padding alone for a blank text, the trimmed text
// alone when it does not fit.
std::string Allinea(std::string_view testo, std::string_view riempimento, bool destra);

// Integer part of conta * 100 / totale, at most 100; 0 for a total of 0 or a
// result that is not a finite 16-bit value.
int16_t Percentuale(double conta, double totale);

// A decimal typed with "." thousands and "," decimals ("1.234,5" -> 1234.5);
// 0 when the text does not start with a number.
double ValoreDecimale(std::string_view testo);

// True when `numero` is odd (negative numbers too).
bool Dispari(int numero);

}  // namespace combi
