#include "ScritturaColonne.h"

#include <cstring>

#include "FileColonne.h"

namespace combi {

namespace {

// Large enough that a write costs little next to the bytes it moves.
constexpr size_t kMemoria = size_t(1) << 20;
// A batch this large goes to the file as it is, without a copy in between:
// a development hands its columns on 10000 at a time (200 KB).
constexpr size_t kDiretto = size_t(1) << 16;

}  // namespace

ScritturaColonne::ScritturaColonne(const std::string& percorso) : file_(percorso) { memoria_.reserve(kMemoria); }

void ScritturaColonne::Accoda(std::span<const Colonna> colonne) {
    const size_t byte = colonne.size() * kLunghezzaColonna;
    const auto* dati = reinterpret_cast<const uint8_t*>(colonne.data());
    static_assert(sizeof(Colonna) == kLunghezzaColonna, "a column is written as it lies in memory");
    if (memoria_.size() + byte > kMemoria || byte >= kDiretto) Svuota();
    if (byte >= kDiretto) {
        file_.Scrivi(dati, byte);
        return;
    }
    memoria_.insert(memoria_.end(), dati, dati + byte);
}

void ScritturaColonne::Svuota() {
    file_.Scrivi(memoria_.data(), memoria_.size());
    memoria_.clear();
}

void ScritturaColonne::Concludi() {
    Svuota();
    file_.Concludi();
}

}  // namespace combi
