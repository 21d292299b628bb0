#include "CatalogoEditori.h"

#include "Condizione.h"

namespace {

using combi::TipoCondizione;
constexpr std::array<const char*, 5> kNessuna{};

const std::array<VoceCatalogo, 16> kCatalogo{{
    {combi::kPuntiColonna, "F_PuntisuColonna", "Punti su colonna", 12, nullptr, kNessuna, "", 0,
     "Punti", "Quadro Rec.", false},
    {combi::kPariDispari, "F_PuntiSuPariDisp", "Punti su pari dispari", 8, nullptr,
     {"Pari", "Dispari"}, "", 0, "Punti", "Quadro Rec.", false},
    {combi::kPeso, "F_PuntiSuPeso", "Punti su peso", 9, nullptr, kNessuna, "", 0, "Punti",
     "Quadro Rec.", false},
    {combi::kResto, "F_PuntiSuResto", "Punti su resto", 14, nullptr, {"2", "3", "4", "5"},
     "Resto a : ", 0, "Punti", "Quadro Rec.", false},
    {combi::kAmpiezza, "F_PuntiSuAmpiezza", "Ampiezza", 1, "Ampiezza", kNessuna, "", 0, "Punti",
     "Quadro", true},
    {combi::kVortice, "F_PuntiSuVortice", "Vortice", 16, nullptr, {"Diretto", "Inverso"}, "", 1,
     "Punti", "Quadro Rec.", false},
    {combi::kSimmetrie, "F_PuntiSuSimmetrie", "Punti su simmetrie", 15, nullptr,
     {"Dirette", "Inverse"}, "", 0, "Punti", "Quadro Rec.", false},
    {combi::kConsecutivi, "F_PuntiSuConsecutivi", "Punti su consecutivi", 3, "Consecutivi",
     kNessuna, "", 0, "Punti", "Quadro Rec.", false},
    {combi::kInterruzioni, "F_PuntiSuInterruzioni", "Punti su interruzioni", 6, "Interruzioni",
     kNessuna, "", 0, "Punti", "Quadro Rec.", false},
    {combi::kBaricentro, "F_PuntiSuBaricentro", "Baricentro", 2, "Baricentro", kNessuna, "", 0,
     "Punti", "Quadro", false},
    {combi::kDistanzaMinima, "F_PuntiSudistanzaMinima", "Distanza minima", 5, "DistanzaMin",
     kNessuna, "", 0, "Punti", "Quadro", false},
    {combi::kDistanzaMassima, "F_PuntiSudistanzaMassima", "Distanza massima", 4, "DistanzaMax",
     kNessuna, "", 0, "Punti", "Quadro", false},
    {combi::kPosizioni, "F_PuntiSuPosizione", "Punti su posizione", 11, nullptr, kNessuna, "", 0,
     "Numeri", "Quadro Rec.", false},
    {combi::kPonte, "F_PuntiSuPonte", "Punti su ponte", 10, "Ponte", kNessuna, "", 0, "Punti",
     "Quadro Rec.", false},
    {combi::kSequenze, "F_PuntiSuSequenze", "Punti su sequenze", 13, nullptr, kNessuna, "", 0,
     "Punti", "Quadro Rec.", false},
    {combi::kParalleli, "F_PuntiSuParalleli", "Punti su paralleli", 7, nullptr,
     {"Diretti", "Inversi"}, "", 0, "Punti", "Quadro Rec.", false},
}};

}  // namespace

const std::array<VoceCatalogo, 16>& Catalogo() { return kCatalogo; }

const VoceCatalogo* VoceDelTipo(int tipo) {
    // The table is in type-code order from 3 on.
    const int indice = tipo - combi::kPuntiColonna;
    if (indice < 0 || indice >= static_cast<int>(kCatalogo.size())) return nullptr;
    return &kCatalogo[indice];
}
