#pragma once
// The developed columns a window holds: in memory up to a threshold, then in
// a temporary columns file that is mapped into memory, so that a system of
// hundreds of millions of columns is kept without running out of memory.
// Whoever reads them sees one array of columns either way.

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "Sviluppo.h"

namespace combi {

class ColonneSviluppate : public DestinazioneColonne {
public:
    // Above this many columns they move to a file (400 MB in memory).
    static constexpr uint64_t kSogliaPredefinita = 20'000'000;

    // `cartella`: where the temporary file goes (with a trailing separator).
    explicit ColonneSviluppate(uint64_t soglia = kSogliaPredefinita, std::string cartella = {});
    ~ColonneSviluppate() override;
    ColonneSviluppate(const ColonneSviluppate&) = delete;
    ColonneSviluppate& operator=(const ColonneSviluppate&) = delete;
    ColonneSviluppate(ColonneSviluppate&&) noexcept;
    ColonneSviluppate& operator=(ColonneSviluppate&&) noexcept;

    // Adds columns at the end. Throws Errore 61 when the disk is full: the
    // columns added before are kept.
    void Accoda(std::span<const Colonna> colonne) override;

    // Forgets every column (and removes the temporary file).
    void Svuota();
    void Sostituisci(std::vector<Colonna> colonne);

    // The columns in order. The array stays valid until the next change.
    std::span<const Colonna> Colonne() const;
    uint64_t Quante() const { return quante_; }
    bool SuFile() const { return file_ != nullptr; }

private:
    struct FileMappato;

    void PassaSuFile();

    uint64_t soglia_;
    std::string cartella_;
    uint64_t quante_{};
    std::vector<Colonna> memoria_;
    std::unique_ptr<FileMappato> file_;
};

}  // namespace combi
