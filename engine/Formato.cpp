#include "Formato.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <optional>

#include <langinfo.h>
#include <locale.h>

#include "Errore.h"
#include "LetturaNumero.h"
#include "Testo.h"

namespace combi {

namespace {

// The "00" display format: at least two digits, the sign in front.
std::string DueCifre(long long numero) {
    std::string cifre = std::to_string(numero < 0 ? -numero : numero);
    if (cifre.size() < 2) cifre.insert(0, 1, '0');
    return numero < 0 ? "-" + cifre : cifre;
}

std::string TestoIndice(long long numero, bool dueCifre) {
    return dueCifre ? DueCifre(numero) : std::to_string(numero);
}

// Joins the indices of the true (non-zero) elements, each followed by the separator,
// and drops the last separator.
template <typename Sequenza>
std::string UnisciIndici(const Sequenza& valori, int limiteInferiore, std::string_view separatore,
                         bool dueCifre) {
    std::string testo;
    for (size_t i = 0; i < valori.size(); ++i) {
        if (!valori[i]) continue;
        testo += TestoIndice(static_cast<long long>(limiteInferiore) + static_cast<long long>(i), dueCifre);
        testo += separatore;
    }
    if (!testo.empty()) testo.resize(testo.size() - separatore.size());
    return testo;
}

}  // namespace

std::string FormatNumero(double valore, std::string_view separatore) {
    if (!std::isfinite(valore)) throw Errore(kErroreArgomento, "Numero non rappresentabile");
    const double arrotondato = std::round(valore);  // half away from zero, as a display format
    if (arrotondato == 0) return "0";
    char buffer[400];  // the largest double has 309 digits
    const auto fine = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(arrotondato),
                                    std::chars_format::fixed, 0).ptr;
    const std::string_view cifre(buffer, size_t(fine - buffer));
    std::string testo = arrotondato < 0 ? "-" : "";
    for (size_t i = 0; i < cifre.size(); ++i) {
        if (i > 0 && (cifre.size() - i) % 3 == 0) testo += separatore;
        testo += cifre[i];
    }
    return testo;
}

std::string FormatNumero(double valore) { return FormatNumero(valore, SeparatoreMigliaia()); }

std::string FormatDecimale(double valore, int cifre) {
    if (!std::isfinite(valore)) throw Errore(kErroreArgomento, "Numero non rappresentabile");
    if (cifre <= 0) return FormatNumero(valore);
    const double scala = std::pow(10.0, cifre);
    const double scalato = std::round(std::fabs(valore) * scala);
    const double intera = std::floor(scalato / scala);
    std::string frazione = std::to_string(static_cast<long long>(scalato - intera * scala));
    frazione.insert(0, size_t(cifre) - std::min(frazione.size(), size_t(cifre)), '0');
    const std::string segno = valore < 0 && scalato != 0 ? "-" : "";
    return segno + FormatNumero(intera) + SeparatoriUtente().decimali + frazione;
}

namespace {

bool LocaleClassico(std::string_view nome) {
    return nome.empty() || nome == "C" || nome == "POSIX" || nome.substr(0, 2) == "C.";
}

// The separators a named locale writes; nullopt when this machine lacks it.
std::optional<SeparatoriNumeri> SeparatoriDelLocale(const std::string& nome) {
    locale_t locale = newlocale(LC_NUMERIC_MASK, nome.c_str(), locale_t(0));
    if (locale == locale_t(0)) return std::nullopt;
    SeparatoriNumeri s{nl_langinfo_l(THOUSEP, locale), nl_langinfo_l(RADIXCHAR, locale)};
    freelocale(locale);
    return s;
}

}  // namespace

SeparatoriNumeri SeparatoriDaAmbiente(const char* lcAll, const char* lcNumeric, const char* lang) {
    const SeparatoriNumeri italiani{".", ","};
    std::string nome;
    for (const char* valore : {lcAll, lcNumeric, lang}) {
        if (valore != nullptr && *valore != '\0') {
            nome = valore;
            break;
        }
    }
    if (LocaleClassico(nome)) return italiani;
    return SeparatoriDelLocale(nome).value_or(italiani);
}

const SeparatoriNumeri& SeparatoriUtente() {
    static const SeparatoriNumeri separatori =
        SeparatoriDaAmbiente(std::getenv("LC_ALL"), std::getenv("LC_NUMERIC"), std::getenv("LANG"));
    return separatori;
}

// Division truncates like the original's, so a negative count (a clock that
// passed midnight) shows each part with its own sign rather than failing.
std::string TempoTrascorso(int32_t secondi) {
    return DueCifre(secondi / 3600) + ":" + DueCifre(secondi % 3600 / 60) + ":" + DueCifre(secondi % 60);
}

std::string TestoVerticale(std::string_view testo, int lunghezza) {
    if (lunghezza < 1) throw Errore(kErroreArgomento, "Lunghezza delle righe non valida");
    std::string risultato;
    for (size_t inizio = 0; inizio < testo.size();) {
        const size_t fine = inizio + InizioCarattereUtf8(testo.substr(inizio), size_t(lunghezza));
        if (inizio > 0) risultato += "\r\n";
        risultato += testo.substr(inizio, fine - inizio);
        inizio = fine;
    }
    return risultato;
}

std::string ElencoIndici(const std::vector<bool>& valori, int limiteInferiore,
                         std::string_view separatore, bool dueCifre) {
    return UnisciIndici(valori, limiteInferiore, separatore, dueCifre);
}

std::string ElencoIndici(std::span<const int16_t> valori, int limiteInferiore,
                         std::string_view separatore, bool dueCifre) {
    return UnisciIndici(valori, limiteInferiore, separatore, dueCifre);
}

std::string ElencoPariDispari(bool dispari, int da, int a, std::string_view separatore) {
    std::string testo;
    for (long long n = da; n <= a; ++n) {
        if (Dispari(int(n)) != dispari) continue;
        testo += std::to_string(n);
        testo += separatore;
    }
    if (!testo.empty()) testo.resize(testo.size() - separatore.size());
    return testo;
}

// Each number overwrites its slot without growing the text: a number wider
// than two characters spills into the following blank (or is cut at the end).
std::string TestoColonna(std::span<const int16_t> numeri, bool mostraZeri) {
    if (numeri.empty()) return {};
    std::string testo(3 * numeri.size() - 1, ' ');
    size_t posizione = 0;
    for (int16_t numero : numeri) {
        if (numero <= 0 && !mostraZeri) continue;
        const std::string cifre = DueCifre(numero);
        for (size_t i = 0; i < cifre.size() && posizione + i < testo.size(); ++i)
            testo[posizione + i] = cifre[i];
        posizione += 3;
    }
    testo.erase(testo.find_last_not_of(' ') + 1);
    return testo;
}

std::string TestoColonna(const Colonna& colonna, bool mostraZeri) {
    std::array<int16_t, kMaxClasse> numeri{};
    for (size_t i = 0; i < numeri.size(); ++i) numeri[i] = colonna.Numeri[i];
    return TestoColonna(numeri, mostraZeri);
}

std::string Allinea(std::string_view testo, std::string_view riempimento, bool destra) {
    const std::string pulito = Trim(testo);
    if (pulito.empty()) return std::string(riempimento);
    const size_t lunghezzaTesto = CaratteriUtf8(pulito), lunghezzaRiempimento = CaratteriUtf8(riempimento);
    if (lunghezzaRiempimento <= lunghezzaTesto) return pulito;
    if (destra)
        return std::string(riempimento.substr(
                   0, InizioCarattereUtf8(riempimento, lunghezzaRiempimento - lunghezzaTesto))) + pulito;
    return pulito + std::string(riempimento.substr(InizioCarattereUtf8(riempimento, lunghezzaTesto)));
}

int16_t Percentuale(double conta, double totale) {
    if (totale == 0) return 0;
    const double quota = std::trunc(conta * 100 / totale);
    if (!std::isfinite(quota) || quota < std::numeric_limits<int16_t>::min()) return 0;
    return quota > 100 ? int16_t(100) : static_cast<int16_t>(quota);
}

double ValoreDecimale(std::string_view testo) {
    return LeggiNumero(Sostituisci(Sostituisci(testo, ".", ""), ",", "."));
}

bool Dispari(int numero) { return numero % 2 != 0; }

}  // namespace combi
