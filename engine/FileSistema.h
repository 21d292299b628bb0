#pragma once
// The system file (".sic"): a header of 191 bytes, 21 recovery-panel records
// of 6 bytes and N condition records of 270 bytes, N following from the file
// length. All integers little-endian, written and read field by field.
// The workers of a parallel development leave their counters in the same layout.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "Condizione.h"
#include "Sviluppo.h"

namespace combi {

inline constexpr size_t kLunghezzaIntestazione = 191;
inline constexpr size_t kInizioCondizioni = kLunghezzaIntestazione + (kNumeroQuadri + 1) * kLunghezzaQuadro;  // 317
inline constexpr size_t kLunghezzaMinimaSistema = kInizioCondizioni + kLunghezzaCondizione;            // 587
// The grid holds 200 conditions; a file with more cannot be shown or saved back.
inline constexpr size_t kMassimoCondizioniFile = 200;

struct IntestazioneSistema {
    std::string firma = "SISTOCX";         // 7 bytes, read but never checked
    int16_t classe{};
    int16_t riduzione{};                   // 0 for the blank "Riduzione N-K" entry
    std::array<int16_t, 91> numeri{};      // 1..90: -1 picked, 0 not picked
};

struct FileSistema {
    IntestazioneSistema intestazione;
    TabellaQuadri quadri{};
    TabellaCondizioni condizioni;          // at least one record
};

// The number of condition records a file of this length holds:
// (length - 317) / 270 rounded to the nearest integer, halves to even.
int64_t NumeroCondizioniInFile(uint64_t lunghezza);

// The refusal of a file by its length alone, before anything is allocated:
// Errore 62 below 587 bytes (no room for one condition), Errore 321 when the
// length means more than 200 conditions (a file of 10 GB is refused here).
void ControllaLunghezzaSistema(uint64_t lunghezza);

std::vector<uint8_t> CodificaSistema(const FileSistema& s);
// Throws Errore: 62 for a file too short for one condition or cut inside
// the records it should hold, 321 for more than 200 conditions.
FileSistema DecodificaSistema(const uint8_t* dati, size_t lunghezza);

FileSistema LeggiFileSistema(const std::string& percorso);
void ScriviFileSistema(const std::string& percorso, const FileSistema& s);

// The development the file describes: numbers whose flag is non-zero, class
// and "Riduzione N-K" from the header, conditions and panels from the records.
ParametriSviluppo ParametriDalFile(const FileSistema& s);

}  // namespace combi
