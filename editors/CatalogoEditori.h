#pragma once
// The sixteen editors as data: what distinguishes one type from another when
// nothing but its texts and captions differ. Types with fields of their own
// (Resto, Sequenze, Punti su colonna, Ampiezza/Baricentro, Peso/Posizioni)
// still take their captions and codes from here. Whether a type is judged on
// a point list or a range is the engine's to say (TipiCondizione).

#include <array>

struct VoceCatalogo {
    int tipo;                 // condition type code (combi::TipoCondizione)
    const char* nomeDialogo;  // objectName of the dialog
    const char* titolo;
    int codiceStatistica;     // handed to the statistics preview
    // Parameters text of the types that only mark themselves: the keyword
    // written vertically. nullptr for the types whose text carries data.
    const char* parolaChiave;
    // Items of Combo1, first one selected on load; nullptr-terminated.
    std::array<const char*, 5> varianti;
    const char* prefissoParametri;  // "Resto a : " before the combo text
    int primoValore;                // first point value: Vortice starts at 1
    const char* didascaliaPunti;    // caption of the accepted-values frame
    const char* didascaliaQuadro;   // caption of CmbRecupero
    bool filtroTasti;               // range boxes take digits, "," and Enter only
};

// The entry of a type code (3..18); nullptr for the link marks and unknown codes.
const VoceCatalogo* VoceDelTipo(int tipo);

// Every entry, in type-code order.
const std::array<VoceCatalogo, 16>& Catalogo();
