#pragma once
// Whole-file reading and safe writing for the binary formats.

#include <cstdint>
#include <string>
#include <vector>

namespace combi {

// The whole file. Throws Errore: 53 when it does not exist, 75 when it cannot
// be read, 7 when it is longer than `massimo` bytes (checked before reading).
std::vector<uint8_t> LeggiFileBinario(const std::string& percorso, uint64_t massimo);

// Length in bytes of an existing file; throws Errore 53 when it does not exist.
uint64_t LunghezzaFile(const std::string& percorso);

// Writes the bytes to a temporary file beside the target, flushes it and
// renames it over the target, so an existing file is replaced whole or left
// as it was. Throws Errore 61 on a full disk, 75 on any other failure (the
// temporary file is removed).
void ScriviFileSicuro(const std::string& percorso, const std::vector<uint8_t>& dati);

}  // namespace combi
