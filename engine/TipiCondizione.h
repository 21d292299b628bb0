#pragma once
// What the program knows about each condition type, in one table: its code
// (stored in system files), the name the conditions grid shows, how its
// value is judged and whether it reads the column's parities alone. The
// decoder, the development, the editors' catalogue, the panel's menus and
// the navigator all read it from here.

#include <array>
#include <cstdint>
#include <string_view>

#include "Condizione.h"

namespace combi {

enum class Giudizio : uint8_t {
    Nessuno,     // never judged: the link marks, and code 0 which always passes
    Elenco,      // the value indexes the point lists Punti and Recupero
    Intervallo,  // the value lies in MinPunti..MaxPunti, MinRecupero..MaxRecupero
};

struct DescrizioneTipo {
    TipoCondizione codice;
    std::string_view nome;  // the "Condizione" row of the grid
    Giudizio giudizio;
    bool soloParita;        // measured on the parities of the column's numbers
};

inline constexpr std::array<DescrizioneTipo, 19> kTipiCondizione{{
    {kNessuna, "", Giudizio::Nessuno, false},
    {kLinkOpen, "LinkOpen", Giudizio::Nessuno, false},
    {kLinkClose, "LinkClose", Giudizio::Nessuno, false},
    {kPuntiColonna, "Punti Col.", Giudizio::Elenco, false},
    {kPariDispari, "Pari-Dispari", Giudizio::Elenco, false},
    {kPeso, "Peso", Giudizio::Intervallo, false},
    {kResto, "Resto", Giudizio::Elenco, false},
    {kAmpiezza, "Ampiezza", Giudizio::Intervallo, false},
    {kVortice, "Vortice", Giudizio::Elenco, true},
    {kSimmetrie, "Simmetrie", Giudizio::Elenco, true},
    {kConsecutivi, "Consecutivi", Giudizio::Elenco, false},
    {kInterruzioni, "Interruzioni", Giudizio::Elenco, true},
    {kBaricentro, "Baricentro", Giudizio::Intervallo, false},
    {kDistanzaMinima, "Distanza Minima", Giudizio::Intervallo, false},
    {kDistanzaMassima, "Distanza Massima", Giudizio::Intervallo, false},
    {kPosizioni, "Posizioni", Giudizio::Intervallo, false},
    {kPonte, "Ponte", Giudizio::Elenco, false},
    {kSequenze, "Sequenze", Giudizio::Elenco, true},
    {kParalleli, "Paralleli", Giudizio::Elenco, true},
}};

// The row of a code; nullptr for a code outside 0..18.
constexpr const DescrizioneTipo* DescrizioneDelTipo(int codice) {
    return codice >= 0 && codice < int(kTipiCondizione.size()) ? &kTipiCondizione[size_t(codice)] : nullptr;
}

// How a condition of this code is judged; Nessuno for an unknown code.
constexpr Giudizio GiudizioDelTipo(int codice) {
    const DescrizioneTipo* d = DescrizioneDelTipo(codice);
    return d ? d->giudizio : Giudizio::Nessuno;
}

static_assert([] {
    for (size_t i = 0; i < kTipiCondizione.size(); ++i)
        if (kTipiCondizione[i].codice != int(i)) return false;
    return true;
}(), "the table is in code order");

}  // namespace combi
