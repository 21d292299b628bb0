#pragma once
// The result of one share of a development as bytes, so that a process can
// hand it to another one (over MPI, across machines). Every field is written
// little-endian and the condition table in the system file's record layout,
// so the hosts need not share byte order or structure padding.

#include <cstdint>
#include <vector>

#include "Sviluppo.h"

namespace combi {

// Layout: tested count (64-bit), stop flag (1 byte), length L of the table
// block (32-bit), the table as a system file with a blank header (L bytes),
// then the kept columns, 20 bytes each, up to the end.
std::vector<uint8_t> CodificaQuota(const RisultatoSviluppo& quota);

// The share back. Throws Errore when the bytes are cut short, the table block
// is not a readable system file or the columns do not fill whole records.
RisultatoSviluppo DecodificaQuota(const uint8_t* dati, size_t lunghezza);

}  // namespace combi
