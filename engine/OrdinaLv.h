#pragma once
// Sorting the rows of a report list by one of its columns, with the list
// quicksort (OrdinamentoQuicksort.h), so that rows with equal keys keep the
// order users have always seen.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace combi {

// One row of a report list: its main text and sub-item texts, key and tag.
struct RigaLista {
    std::vector<std::string> testi;  // testi[0] is the main text, testi[k] sub-item k
    std::string chiave;
    std::string tag;
    bool operator==(const RigaLista&) const = default;
};

enum TipoOrdinamento : int {
    kOrdinaTesto = 1,     // by byte value, case-sensitive
    kOrdinaNumero = 2,    // by the decimal value of the text
    kOrdinaNumeroBis = 3, // the same as 2; the winnings list uses this code
};

enum VersoOrdinamento : int {
    kCrescente = 0,
    kDecrescente = 1,
};

// The rows sorted by column `colonna` (1 = main text, c > 1 = sub-item c - 1;
// a row without that text sorts as an empty one). Numeric kinds read the text
// as "1.234,5" (ValoreDecimale) rounded to 4 decimals in signed 64-bit fixed
// point, clamped to its range. Every row keeps its texts, key and tag; fewer
// than 2 rows come back unchanged. Throws Errore for an unknown kind or order.
std::vector<RigaLista> OrdinaRighe(std::vector<RigaLista> righe, int colonna, int tipo, int ordine);

// The header icons after a sort of a list with `colonne` columns: 0 for every
// header but the sorted one, which gets 2 for descending and 1 for ascending.
// Empty (headers untouched) for fewer than 2 rows.
std::vector<int> IconeIntestazioni(int colonne, size_t righe, int colonna, int ordine);

// The fixed-point key of a numeric column: value x 10000, half to even.
int64_t ChiaveNumerica(std::string_view testo);

}  // namespace combi
