#include "FileProvvisorio.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <random>

#include "Errore.h"

namespace combi {

namespace {

// A name no other writer of this or another process is using: the process
// id, a counter and a random part.
std::string NomeUnico(const std::string& destinazione) {
    static std::atomic<unsigned> contatore{};
    static thread_local std::mt19937 caso{std::random_device{}()};
    return destinazione + ".tmp" + std::to_string(::getpid()) + "-" + std::to_string(contatore++) + "-" +
           std::to_string(caso() % 1000000);
}

bool SpazioEsaurito(int errore) { return errore == ENOSPC || errore == EFBIG || errore == EDQUOT; }

}  // namespace

FileProvvisorio::FileProvvisorio(std::string destinazione) : destinazione_(std::move(destinazione)) {
    for (int tentativo = 0; tentativo < 100 && !Aperto(); ++tentativo) {
        temporaneo_ = NomeUnico(destinazione_);
        // 0666 and no fchmod afterwards: the umask decides, as for any new file.
        fd_ = ::open(temporaneo_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (!Aperto() && errno != EEXIST) break;
    }
    if (!Aperto())
        throw Errore(kErroreAccessoFile,
                     "Impossibile creare il file: " + destinazione_ + " (" + std::strerror(errno) + ")");
}

FileProvvisorio::~FileProvvisorio() {
    if (!Aperto()) return;
    ::close(fd_);
    std::remove(temporaneo_.c_str());
}

void FileProvvisorio::Fallisci(int errore, const char* operazione) {
    if (Aperto()) ::close(fd_);
    fd_ = kChiuso;
    std::remove(temporaneo_.c_str());
    if (SpazioEsaurito(errore))
        throw Errore(kErroreDiscoPieno, "Spazio su disco esaurito: impossibile scrivere il file " + destinazione_ +
                                            ". Il file precedente non è stato toccato");
    throw Errore(kErroreAccessoFile, std::string("Impossibile ") + operazione + " il file: " + destinazione_ +
                                         " (" + std::strerror(errore) + ")");
}

void FileProvvisorio::Scrivi(const uint8_t* dati, size_t lunghezza) {
    while (lunghezza > 0) {
        const ssize_t n = ::write(fd_, dati, lunghezza);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) Fallisci(n == 0 ? ENOSPC : errno, "scrivere");
        dati += n;
        lunghezza -= size_t(n);
    }
}

void FileProvvisorio::Concludi() {
    if (::fsync(fd_) != 0) Fallisci(errno, "scrivere");
    const int chiuso = ::close(fd_);
    fd_ = kChiuso;
    if (chiuso != 0) Fallisci(errno, "scrivere");
    if (std::rename(temporaneo_.c_str(), destinazione_.c_str()) != 0) Fallisci(errno, "scrivere");
}

}  // namespace combi
