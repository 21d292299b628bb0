#include "Condizione.h"

#include <array>
#include <string_view>

namespace combi {

namespace {

constexpr std::array<std::string_view, 19> kNomi = {
    "",           "LinkOpen",     "LinkClose",  "Punti Col.",      "Pari-Dispari",
    "Peso",       "Resto",        "Ampiezza",   "Vortice",         "Simmetrie",
    "Consecutivi", "Interruzioni", "Baricentro", "Distanza Minima", "Distanza Massima",
    "Posizioni",  "Ponte",        "Sequenze",   "Paralleli",
};

}  // namespace

std::string NomeTipoCondizione(int codice) {
    if (codice < 1 || codice >= static_cast<int>(kNomi.size())) return {};
    return std::string(kNomi[codice]);
}

int CodiceTipoCondizione(const std::string& nome) {
    for (int codice = 1; codice < static_cast<int>(kNomi.size()); ++codice)
        if (kNomi[codice] == nome) return codice;
    return kNessuna;
}

bool GiudicataSuElenco(int tipo) {
    switch (tipo) {
    case kPuntiColonna: case kPariDispari: case kResto: case kVortice: case kSimmetrie:
    case kConsecutivi: case kInterruzioni: case kPonte: case kSequenze: case kParalleli:
        return true;
    default:
        return false;
    }
}

bool GiudicataSuIntervallo(int tipo) {
    switch (tipo) {
    case kPeso: case kAmpiezza: case kBaricentro: case kDistanzaMinima:
    case kDistanzaMassima: case kPosizioni:
        return true;
    default:
        return false;
    }
}

}  // namespace combi
