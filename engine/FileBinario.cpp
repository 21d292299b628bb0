#include "FileBinario.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "Errore.h"

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

namespace {

bool ScriviTutto(int fd, const std::vector<uint8_t>& dati) {
    size_t scritti = 0;
    while (scritti < dati.size()) {
        const ssize_t n = ::write(fd, dati.data() + scritti, dati.size() - scritti);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        scritti += size_t(n);
    }
    return ::fsync(fd) == 0;
}

}  // namespace

void ScriviFileSicuro(const std::string& percorso, const std::vector<uint8_t>& dati) {
    std::string temporaneo = percorso + ".tmpXXXXXX";
    const int fd = ::mkstemp(temporaneo.data());
    if (fd < 0)
        throw Errore(kErroreAccessoFile, "Impossibile creare il file: " + percorso + " (" +
                                             std::strerror(errno) + ")");
    const bool ok = ScriviTutto(fd, dati);
    const int erroreScrittura = errno;
    ::fchmod(fd, 0644);
    const bool chiuso = ::close(fd) == 0;
    if (!ok || !chiuso || std::rename(temporaneo.c_str(), percorso.c_str()) != 0) {
        const int e = ok && chiuso ? errno : erroreScrittura;
        std::remove(temporaneo.c_str());
        throw Errore(kErroreAccessoFile, "Impossibile scrivere il file: " + percorso + " (" +
                                             std::strerror(e) + ")");
    }
}

}  // namespace combi
