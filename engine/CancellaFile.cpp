#include "CancellaFile.h"

#include <filesystem>
#include <system_error>
#include <vector>

#include "Errore.h"
#include "Percorsi.h"
#include "Testo.h"

namespace combi {

namespace fs = std::filesystem;

namespace {

constexpr const char* kTitoloKillFile = "ModFunzGeneriche.KillFile";

// Glob match by characters: "*" any run (even empty), "?" exactly one character.
bool Corrisponde(std::string_view nome, std::string_view modello) {
    size_t n = 0, m = 0, stellaM = std::string_view::npos, stellaN = 0;
    auto prossimo = [&](size_t i) { return InizioCarattereUtf8(nome.substr(i), 1) + i; };
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

bool KillFile(const std::string& percorso, const SegnalaErrore& segnala) {
    const std::string errore = percorso.find('*') != std::string::npos ? CancellaModello(percorso)
                                                                       : CancellaSingolo(percorso);
    if (errore.empty()) return true;
    if (segnala) segnala(kTitoloKillFile, kErroreAccessoFile, errore);
    return false;
}

}  // namespace combi
