#include "ColonneSviluppate.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "Errore.h"
#include "Percorsi.h"

namespace combi {

namespace {

// A file in `cartella` that has no name: the open descriptor keeps it alive
// until it is closed, and a crash leaves nothing behind.
int CreaSenzaNome(const std::string& cartella) {
    std::string modello = cartella + "CombiFiltroColonne.XXXXXX";
    const int fd = ::mkstemp(modello.data());
    if (fd == -1)
        throw Errore(kErroreAccessoFile, "Impossibile creare il file temporaneo delle colonne in " + cartella + " (" +
                                             std::strerror(errno) + ")");
    std::remove(modello.c_str());
    return fd;
}

}  // namespace

// The temporary file: written by appending, read through a read-only mapping
// of its current length, remapped only when it has grown since.
struct ColonneSviluppate::FileMappato {
    const int fd;
    uint64_t lunghezza = 0;        // bytes written
    mutable void* mappa = nullptr;
    mutable uint64_t mappata = 0;  // bytes the mapping covers

    explicit FileMappato(const std::string& cartella) : fd(CreaSenzaNome(cartella)) {}
    ~FileMappato() {
        Smappa();
        ::close(fd);
    }
    void Smappa() const {
        if (mappa != nullptr) ::munmap(mappa, mappata);
        mappa = nullptr;
        mappata = 0;
    }
    void Scrivi(const void* dati, uint64_t byte) {
        const auto* p = static_cast<const uint8_t*>(dati);
        uint64_t scritti = 0;
        while (scritti < byte) {
            const ssize_t n = ::pwrite(fd, p + scritti, byte - scritti, off_t(lunghezza + scritti));
            if (n < 0 && errno == EINTR) continue;
            if (n <= 0) {
                // What was written before stays: the file is cut back to it.
                const int errore = n == 0 ? ENOSPC : errno;
                if (::ftruncate(fd, off_t(lunghezza)) != 0) {}
                if (errore == ENOSPC || errore == EFBIG || errore == EDQUOT)
                    throw Errore(kErroreDiscoPieno, "Spazio su disco esaurito: le colonne non entrano nella cartella "
                                                    "temporanea");
                throw Errore(kErroreAccessoFile, std::string("Impossibile scrivere le colonne: ") + std::strerror(errore));
            }
            scritti += uint64_t(n);
        }
        lunghezza += byte;
    }
    const Colonna* Dati() const {
        if (lunghezza == 0) return nullptr;
        if (mappata != lunghezza) {
            Smappa();
            void* m = ::mmap(nullptr, lunghezza, PROT_READ, MAP_SHARED, fd, 0);
            if (m == MAP_FAILED)
                throw Errore(kErroreMemoria, std::string("Impossibile leggere le colonne: ") + std::strerror(errno));
            mappa = m;
            mappata = lunghezza;
        }
        return static_cast<const Colonna*>(mappa);
    }
};

ColonneSviluppate::ColonneSviluppate(uint64_t soglia, std::string cartella)
    : soglia_(soglia), cartella_(cartella.empty() ? CartellaTemp() : std::move(cartella)) {}

ColonneSviluppate::~ColonneSviluppate() = default;
ColonneSviluppate::ColonneSviluppate(ColonneSviluppate&&) noexcept = default;
ColonneSviluppate& ColonneSviluppate::operator=(ColonneSviluppate&&) noexcept = default;

void ColonneSviluppate::PassaSuFile() {
    auto file = std::make_unique<FileMappato>(cartella_);
    file->Scrivi(memoria_.data(), memoria_.size() * sizeof(Colonna));
    file_ = std::move(file);
    memoria_ = {};
}

void ColonneSviluppate::Accoda(std::span<const Colonna> colonne) {
    static_assert(sizeof(Colonna) == 20, "the file holds the columns as they lie in memory");
    if (!file_ && quante_ + colonne.size() > soglia_) PassaSuFile();
    if (file_) file_->Scrivi(colonne.data(), colonne.size() * sizeof(Colonna));
    else memoria_.insert(memoria_.end(), colonne.begin(), colonne.end());
    quante_ += colonne.size();
}

void ColonneSviluppate::Svuota() {
    file_.reset();
    memoria_ = {};
    quante_ = 0;
}

void ColonneSviluppate::Sostituisci(std::vector<Colonna> colonne) {
    Svuota();
    if (colonne.size() > soglia_) {
        Accoda(colonne);
        return;
    }
    quante_ = colonne.size();
    memoria_ = std::move(colonne);
}

std::span<const Colonna> ColonneSviluppate::Colonne() const {
    if (file_) return {file_->Dati(), quante_};
    return memoria_;
}

}  // namespace combi
