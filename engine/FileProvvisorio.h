#pragma once
// A file written beside its target and renamed over it only when complete,
// so an existing file is replaced whole or left as it was, and a failed write
// leaves nothing behind. The file takes the permissions the user's umask
// gives a new file.

#include <cstddef>
#include <cstdint>
#include <string>

namespace combi {

class FileProvvisorio {
public:
    // Creates the temporary file; throws Errore 75 when it cannot.
    explicit FileProvvisorio(std::string destinazione);
    // Removes the temporary file unless Concludi succeeded.
    ~FileProvvisorio();
    FileProvvisorio(const FileProvvisorio&) = delete;
    FileProvvisorio& operator=(const FileProvvisorio&) = delete;

    // Throws Errore 61 when the disk is full (or the file would pass the
    // size the system allows), 75 on any other failure; the temporary file
    // is removed then, and the target is untouched.
    void Scrivi(const uint8_t* dati, size_t lunghezza);

    // Flushes the file to the disk and renames it over the target.
    void Concludi();

    const std::string& Percorso() const { return temporaneo_; }

private:
    static constexpr int kChiuso = -1;  // what open() gives on failure
    bool Aperto() const { return fd_ != kChiuso; }
    [[noreturn]] void Fallisci(int errore, const char* operazione);

    std::string destinazione_;
    std::string temporaneo_;
    int fd_ = kChiuso;
};

}  // namespace combi
