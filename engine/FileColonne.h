#pragma once
// The columns file (".col"): a bare sequence of 20-byte column records, no
// header, no count. The number of columns is the file length divided by 20.

#include <optional>
#include <string>
#include <vector>

#include "Colonna.h"

namespace combi {

inline constexpr uint64_t kLunghezzaColonna = 20;
// The largest columns file read into memory: 250 million columns (5 GB).
inline constexpr uint64_t kMassimoFileColonne = kMassimoColonneInMemoria * kLunghezzaColonna;

// The columns of the file. Trailing bytes that do not make a whole record
// (a file cut short by a full disk) are left out.
std::vector<Colonna> LeggiFileColonne(const std::string& percorso);
std::vector<Colonna> DecodificaColonne(const uint8_t* dati, size_t lunghezza);

// Writes the columns afresh (temporary file and rename): a shorter set never
// leaves old records behind, and a failed save keeps the previous file.
void ScriviFileColonne(const std::string& percorso, const std::vector<Colonna>& colonne);
std::vector<uint8_t> CodificaColonne(const std::vector<Colonna>& colonne);

// File length / 20 (fractional when the length is not a multiple of 20);
// nothing when the file does not exist.
std::optional<double> GetNumeroColonneInFile(const std::string& percorso);

// The first column (0-based) whose numbers are not strictly ascending in
// 1..90 followed by zeros, or whose class differs from `classe` when given;
// nothing when every column is well formed.
std::optional<size_t> PrimaColonnaNonValida(const std::vector<Colonna>& colonne, int classe = 0);

}  // namespace combi
