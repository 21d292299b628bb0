#include "Utilita.h"

#include <charconv>
#include <cmath>
#include <filesystem>
#include <limits>
#include <locale>

#include "Errore.h"
#include "LetturaNumero.h"
#include "Testo.h"

namespace combi {

namespace fs = std::filesystem;

namespace {

constexpr const char* kTitoloKillFile = "ModFunzGeneriche.KillFile";

bool IsSeparatore(char ch) { return ch == '/' || ch == '\\'; }

size_t UltimoSeparatore(std::string_view percorso) { return percorso.find_last_of("/\\"); }

std::string ConBarraFinale(std::string percorso) {
    if (!percorso.empty() && !IsSeparatore(percorso.back())) percorso += '/';
    return percorso;
}

// A UTF-8 continuation byte belongs to the character started before it.
bool IsContinuazione(char ch) { return (static_cast<unsigned char>(ch) & 0xC0) == 0x80; }

size_t Caratteri(std::string_view testo) {
    size_t n = 0;
    for (char ch : testo) n += IsContinuazione(ch) ? 0 : 1;
    return n;
}

// Byte offset where character `n` (0-based) starts; the size past the end.
size_t InizioCarattere(std::string_view testo, size_t n) {
    size_t i = 0;
    for (; i < testo.size(); ++i) {
        if (IsContinuazione(testo[i])) continue;
        if (n-- == 0) return i;
    }
    return testo.size();
}

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

// Glob match by characters: "*" any run (even empty), "?" exactly one character.
bool Corrisponde(std::string_view nome, std::string_view modello) {
    size_t n = 0, m = 0, stellaM = std::string_view::npos, stellaN = 0;
    auto prossimo = [&](size_t i) { return InizioCarattere(nome.substr(i), 1) + i; };
    while (n < nome.size()) {
        if (m < modello.size() && modello[m] == '*') {
            stellaM = m++;
            stellaN = n;
        } else if (m < modello.size() && modello[m] == '?') {
            ++m;
            n = prossimo(n);
        } else if (m < modello.size() && modello[m] == nome[n]) {
            ++m;
            ++n;
        } else if (stellaM != std::string_view::npos) {
            m = stellaM + 1;
            n = stellaN = prossimo(stellaN);
        } else {
            return false;
        }
    }
    while (m < modello.size() && modello[m] == '*') ++m;
    return m == modello.size();
}

std::string Descrizione(const std::string& percorso, const std::error_code& ec) {
    return "Impossibile cancellare il file: " + percorso + " (" + ec.message() + ")";
}

// Deletes one file; empty result on success or when there is no such file,
// else the reason. Only what the existence test sees is deleted (a broken
// link, a name too long to exist are not there), and a folder is no file of
// that name: like a missing file ("file not found") both answer success and
// stay as they are.
std::string CancellaSingolo(const fs::path& percorso) {
    if (!FileEsiste(percorso.string()) || IsCartella(percorso.string())) return {};
    std::error_code ec;
    if (fs::is_regular_file(fs::symlink_status(percorso, ec)))  // best effort: Linux deletes read-only files anyway
        fs::permissions(percorso, fs::perms::owner_write, fs::perm_options::add, ec);
    fs::remove(percorso, ec);
    if (!ec || ec == std::errc::no_such_file_or_directory) return {};  // gone meanwhile: not found
    return Descrizione(percorso.string(), ec);
}

// Names of the non-folder entries of `cartella` matching `modello`; a missing
// folder simply has none.
std::vector<fs::path> FileCorrispondenti(const fs::path& cartella, std::string_view modello,
                                         std::string& errore) {
    std::vector<fs::path> trovati;
    std::error_code ec;
    fs::directory_iterator it(cartella, ec);
    if (ec == std::errc::no_such_file_or_directory || ec == std::errc::not_a_directory) return trovati;
    for (; !ec && it != fs::directory_iterator(); it.increment(ec)) {
        std::error_code tipo;
        if (!it->is_directory(tipo) && Corrisponde(it->path().filename().string(), modello))
            trovati.push_back(it->path());
    }
    if (ec) errore = Descrizione(cartella.string(), ec);
    return trovati;
}

// Deletes every matching file, stopping at the first failure.
std::string CancellaModello(const std::string& percorso) {
    const std::string pulito = Trim(percorso);
    const std::string cartella = CartellaDelFile(pulito);
    std::string errore;
    const auto trovati = FileCorrispondenti(cartella.empty() ? "." : cartella, NomeFile(pulito), errore);
    for (const fs::path& file : trovati) {
        if (!errore.empty()) break;
        errore = CancellaSingolo(file);
    }
    return errore;
}

}  // namespace

std::string AggiungiBarra(std::string_view percorso) { return ConBarraFinale(Trim(percorso)); }

std::string CartellaTemp() {
    std::error_code ec;
    const fs::path cartella = fs::temp_directory_path(ec);
    if (ec || !IsCartella(cartella.string())) return "/tmp/";
    return ConBarraFinale(cartella.string());
}

std::string FileSistemaTemp() { return CartellaTemp() + "SistCond.sic"; }

bool IsCartella(const std::string& percorso) {
    std::error_code ec;
    return fs::is_directory(percorso, ec);
}

bool FileEsiste(const std::string& percorso) {
    std::error_code ec;
    return fs::exists(percorso, ec);
}

std::string NomeFile(std::string_view percorso) {
    const size_t barra = UltimoSeparatore(percorso);
    return std::string(barra == std::string_view::npos ? percorso : percorso.substr(barra + 1));
}

std::string CartellaDelFile(std::string_view percorso) {
    const std::string pulito = Trim(percorso);
    const size_t barra = UltimoSeparatore(pulito);
    return barra == std::string::npos ? std::string() : pulito.substr(0, barra + 1);
}

// The whole trimmed path is searched for the last ".", so with a dot in a
// folder name and none in the file name ("/a.b/Colonne") the "extension" is
// "b/Colonne", as it always was.
std::string EstensioneFile(std::string_view percorso) {
    const std::string pulito = Trim(percorso);
    const size_t punto = pulito.rfind('.');
    return punto == std::string::npos ? std::string() : Trim(pulito.substr(punto + 1));
}

std::string NomeSenzaEstensione(std::string_view percorso) {
    const std::string nome = NomeFile(percorso);
    return nome.substr(0, nome.rfind('.'));
}

// The parts are joined as they come: a name without extension ends in ".".
std::string NomeFileNumerato(std::string_view percorso, int numero) {
    return CartellaDelFile(percorso) + NomeSenzaEstensione(percorso) + std::to_string(numero) + "." +
           EstensioneFile(percorso);
}

bool KillFile(const std::string& percorso, const SegnalaErrore& segnala) {
    const std::string errore = percorso.find('*') != std::string::npos ? CancellaModello(percorso)
                                                                       : CancellaSingolo(percorso);
    if (errore.empty()) return true;
    if (segnala) segnala(kTitoloKillFile, kErroreAccessoFile, errore);
    return false;
}

std::string FormatNumero(double valore, char separatore) {
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

std::string FormatNumero(double valore) {
    return FormatNumero(valore, std::use_facet<std::numpunct<char>>(std::locale()).thousands_sep());
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
        const size_t fine = inizio + InizioCarattere(testo.substr(inizio), size_t(lunghezza));
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
    const size_t lunghezzaTesto = Caratteri(pulito), lunghezzaRiempimento = Caratteri(riempimento);
    if (lunghezzaRiempimento <= lunghezzaTesto) return pulito;
    if (destra)
        return std::string(riempimento.substr(
                   0, InizioCarattere(riempimento, lunghezzaRiempimento - lunghezzaTesto))) + pulito;
    return pulito + std::string(riempimento.substr(InizioCarattere(riempimento, lunghezzaTesto)));
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
