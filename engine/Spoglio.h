#pragma once
// The winnings check: the drawn numbers typed by the user against the current
// columns, as data for the three lists of the dialog and for the command line.

#include <array>
#include <cstdint>
#include <string>
#include <span>
#include <string_view>
#include <vector>

#include "Colonna.h"

namespace combi {

inline constexpr const char* kMsgNumeriDa1a90 = "Inserire numeri da 1 a 90";
inline constexpr const char* kMsgMassimo20Numeri = "La colonna vincente deve contenere massimo 20 numeri";

// The items of a typed draw. A ",", a ";" or a run of blanks separates two
// numbers, and blanks around a "," or ";" belong to it: "3 12 24", "3,12,24",
// "3; 12 ;24" all give three items. Two marks with nothing between them
// ("5,,7", "5,") leave an empty item, which the check refuses. A text of
// blanks only has no item.
std::vector<std::string_view> VociEstrazione(std::string_view testo);

// The value each item reads as (leading-number reading), in the order typed:
// what the user is shown under the box. An empty item reads 0.
std::vector<double> NumeriEstrazione(std::string_view testo);

// The message that refuses the typed text, or "" when it can be checked.
// Every item must read (leading-number reading) as a value above 0 and at
// most 90, so an empty or non-numeric item fails; 21 or more items give the
// second message, which wins over the first. An empty text has no item, so
// nothing refuses it: every column then scores 0.
std::string ControllaEstrazione(std::string_view testo);

// One row of the "Vincite" list.
struct RigaVincita {
    int64_t colonna{};     // 1-based position in the column list
    std::string numeri;    // "05 12 33 41 90": the non-zero numbers, two digits each
    int punti{};
    bool operator==(const RigaVincita&) const = default;
};

// One row of the "Riepilogo" list.
struct RigaRiepilogo {
    std::string vincita;   // "Vincite con 5 punti " (the trailing blank is part of it)
    int64_t colonne{};
    bool operator==(const RigaRiepilogo&) const = default;
};

struct EsitoSpoglio {
    std::vector<RigaVincita> vincite;               // columns with points >= the minimum, in list order
    std::array<int64_t, kMaxClasse + 1> contatori{}; // contatori[p]: columns scoring p points
    std::vector<RigaRiepilogo> riepilogo;           // from the class down to the minimum
};

// `colonne` are the columns 1..N of the list (element 0 is column 1). A
// column scores one point for each of its positions 1..classe whose number
// equals the value of some drawn number: a number typed twice counts once.
// Throws Errore when the text is refused (its message), or when the class is
// outside 1..20 or the minimum below 1.
EsitoSpoglio VerificaVincite(std::span<const Colonna> colonne, int classe, std::string_view estrazione,
                             int puntiMinimi);

// The drawn numbers as a column record in the order typed, for the check of
// the conditions: position i holds the i-th number, the rest 0. Throws Errore
// when the text is refused.
Colonna EstrazioneComeColonna(std::string_view estrazione);

}  // namespace combi
