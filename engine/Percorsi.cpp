#include "Percorsi.h"

#include <filesystem>

#include "Testo.h"

namespace combi {

namespace fs = std::filesystem;

namespace {

bool IsSeparatore(char ch) { return ch == '/' || ch == '\\'; }

size_t UltimoSeparatore(std::string_view percorso) { return percorso.find_last_of("/\\"); }

std::string ConBarraFinale(std::string percorso) {
    if (!percorso.empty() && !IsSeparatore(percorso.back())) percorso += '/';
    return percorso;
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

}  // namespace combi
