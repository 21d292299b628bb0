#include "FileBinario.h"

#include <filesystem>
#include <fstream>

#include "Errore.h"
#include "FileProvvisorio.h"

namespace combi {

namespace fs = std::filesystem;

uint64_t LunghezzaFile(const std::string& percorso) {
    std::error_code ec;
    if (!fs::is_regular_file(percorso, ec))
        throw Errore(kErroreFileNonTrovato, "File non trovato: " + percorso);
    const uint64_t n = fs::file_size(percorso, ec);
    if (ec) throw Errore(kErroreAccessoFile, "Impossibile leggere il file: " + percorso);
    return n;
}

std::vector<uint8_t> LeggiFileBinario(const std::string& percorso, uint64_t massimo) {
    const uint64_t n = LunghezzaFile(percorso);
    if (n > massimo)
        throw Errore(kErroreMemoria, "File troppo grande: " + percorso + " (" + std::to_string(n) +
                                         " byte, al massimo " + std::to_string(massimo) + ")");
    std::ifstream in(percorso, std::ios::binary);
    std::vector<uint8_t> dati(n);
    if (!in || !in.read(reinterpret_cast<char*>(dati.data()), std::streamsize(n)))
        throw Errore(kErroreAccessoFile, "Impossibile leggere il file: " + percorso);
    return dati;
}

void ScriviFileSicuro(const std::string& percorso, const std::vector<uint8_t>& dati) {
    FileProvvisorio file(percorso);
    file.Scrivi(dati.data(), dati.size());
    file.Concludi();
}

}  // namespace combi
