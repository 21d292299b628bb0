#include "ScritturaColonne.h"

#include <cstring>

#include "FileColonne.h"

namespace combi {

namespace {

// Large enough that a write costs little next to the bytes it moves.
constexpr size_t kMemoria = size_t(1) << 20;

}  // namespace

ScritturaColonne::ScritturaColonne(const std::string& percorso) : file_(percorso) { memoria_.reserve(kMemoria); }

void ScritturaColonne::Accoda(std::span<const Colonna> colonne) {
    const size_t byte = colonne.size() * kLunghezzaColonna;
    const auto* dati = reinterpret_cast<const uint8_t*>(colonne.data());
    static_assert(sizeof(Colonna) == kLunghezzaColonna, "a column is written as it lies in memory");
    if (memoria_.size() + byte > kMemoria) Svuota();
    if (byte >= kMemoria) {
        file_.Scrivi(dati, byte);  // a large batch goes straight to the file
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
