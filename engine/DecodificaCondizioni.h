#pragma once
// Reading the grid texts and the recovery list into the condition table and
// the panel table.
//
// Texts beyond the limits of the data never reach outside an array:
//  - a list value outside the target array (a point above 10, a number above
//    90) is ignored;
//  - a recovery line with fewer than three fields reads the missing ones as 0;
//    lines after the twentieth are ignored;
//  - a panel number outside 0..20 is stored as read, and the development
//    treats such a condition as belonging to no panel;
//  - a parity pattern longer than 90 elements keeps its first 90.

#include <string>
#include <string_view>

#include "Condizione.h"
#include "TestiGriglia.h"
#include "Testo.h"

namespace combi {

struct SistemaDecodificato {
    TabellaCondizioni condizioni;  // at least one record (a zeroed type-0 record when empty)
    TabellaQuadri quadri{};
};

SistemaDecodificato LeggiCondizioni(const TestiGriglia& griglia);

// List text "0-1-2": every line break removed, split at "-", element
// (leading-number of the piece) set to -1. An empty text sets nothing.
void DecodificaElenco(std::string_view testo, int16_t* elementi, int quanti);

template <size_t N>
void DecodificaElenco(std::string_view testo, std::array<int16_t, N>& elementi) {
    DecodificaElenco(testo, elementi.data(), static_cast<int>(N));
}

// Range text "10-25": both bounds only when there are exactly two pieces.
void DecodificaIntervallo(std::string_view testo, int32_t& minimo, int32_t& massimo);

// Parity tokens "P" CR LF "D" ...: element t = 0 (P) or 1 (D), the element
// after the pattern -1; returns the pattern length.
int DecodificaPariDispari(std::string_view testo, std::array<int16_t, 91>& elementi);

// "D" for every 1, "P" for every 0, stopping at the first other value.
std::string CodificaPariDispari(const std::array<int16_t, 91>& elementi);

// A recovery-list line "min,max,attivo".
QuadroRecupero DecodificaQuadro(std::string_view riga);

}  // namespace combi
