#include "LetturaNumero.h"

#include <algorithm>
#include <cmath>
#include <charconv>
#include <limits>
#include <string>

namespace combi {

namespace {

bool IsBlank(char ch) { return ch == ' ' || ch == '\t' || ch == '\r' || ch == '\n'; }
bool IsDigit(char ch) { return ch >= '0' && ch <= '9'; }

template <typename T>
T Arrotonda(double valore) {
    if (std::isnan(valore)) return 0;
    const double r = std::nearbyint(valore);  // default rounding mode: half to even
    // Both ends are exact doubles for the 16- and 32-bit types read here.
    static_assert(sizeof(T) <= 4);
    return static_cast<T>(std::clamp(r, static_cast<double>(std::numeric_limits<T>::min()),
                                     static_cast<double>(std::numeric_limits<T>::max())));
}

}  // namespace

double LeggiNumero(std::string_view testo) {
    size_t i = 0;
    while (i < testo.size() && IsBlank(testo[i])) ++i;
    const size_t inizio = i;
    if (i < testo.size() && (testo[i] == '-' || testo[i] == '+')) ++i;
    const size_t cifre = i;
    while (i < testo.size() && IsDigit(testo[i])) ++i;
    bool haCifre = i > cifre;
    // A point with no digit on either side reads as nothing, wherever it ends.
    if (i < testo.size() && testo[i] == '.') {
        const size_t dopoPunto = ++i;
        while (i < testo.size() && IsDigit(testo[i])) ++i;
        haCifre = haCifre || i > dopoPunto;
    }
    if (!haCifre) return 0.0;
    // from_chars reads "." as the decimal point whatever the locale, where
    // strtod would follow the desktop's (a "," on an Italian one). It takes
    // neither a "+" nor a bare trailing ".", so both are left out.
    std::string_view numero = testo.substr(inizio, i - inizio);
    if (numero.front() == '+') numero.remove_prefix(1);
    if (numero.back() == '.') numero.remove_suffix(1);
    double valore = 0.0;
    std::from_chars(numero.data(), numero.data() + numero.size(), valore);
    return valore;
}

int32_t ArrotondaInt32(double valore) { return Arrotonda<int32_t>(valore); }
int16_t ArrotondaInt16(double valore) { return Arrotonda<int16_t>(valore); }

}  // namespace combi
