#pragma once
// The conditions of the grid as a tree for the system navigator: each link
// group ("LinkOpen" ... "LinkClose") becomes a branch, so a long system reads
// by its structure.

#include <string>
#include <vector>

#include "TestiGriglia.h"

namespace combi {

inline const std::string kChiaveRadice = "sistema";

struct NodoSistema {
    std::string chiave;    // "sistema" for the root, "Cond" + grid column otherwise
    std::string testo;     // shown text
    int colonna{};         // grid column the node stands for; 0 for the root
    std::string genitore;  // key of the parent node; empty for the root
};

// The root "Sistema" first, then one node per grid column from 1 up to the
// first column with an empty "Condizione", in grid order (a parent always
// comes before its children). A column goes under the innermost open group;
// a "LinkOpen" opens a group, a "LinkClose" closes it and shows its accepted
// counts as "LinkClose (0-1)". A "LinkClose" with no group open stays under
// the root: the grid's own checks keep groups balanced, so this only guards
// against a hand-written file.
std::vector<NodoSistema> CostruisciAlberoSistema(const std::vector<TestiCondizione>& colonne);

}  // namespace combi
