#pragma once
// The conditions grid as plain texts: one entry per grid column 1, 2, ...
// with the rows "Condizione", "Parametri", "Punti", "Recupero", "Quadro Rec.".
// The control fills it from its grid widget; the engine never sees a widget.

#include <array>
#include <string>
#include <vector>

namespace combi {

enum RigaGriglia : int {
    kRigaNumero = 0,
    kRigaCondizione = 1,
    kRigaParametri = 2,
    kRigaPunti = 3,
    kRigaRecupero = 4,
    kRigaQuadroRec = 5,
};

inline constexpr int kRigheGriglia = 6;
inline constexpr int kColonneCondizioni = 200;  // grid columns 1..200 hold conditions

// Texts of one grid column, indexed by RigaGriglia (row 0 is never read).
using TestiCondizione = std::array<std::string, kRigheGriglia>;

struct TestiGriglia {
    std::vector<TestiCondizione> colonne;  // colonne[c - 1] is grid column c
    std::vector<std::string> quadri;       // the recovery list, item p - 1 for panel p
};

inline const std::string kACapo = "\r\n";  // the line break of grid texts

}  // namespace combi
