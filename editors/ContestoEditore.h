#pragma once
// What an editor needs from the live control for one edit, taken when the
// editor is created: the class, the picked numbers, the game and the message
// boxes. Nothing here is read back later, so an editor never outlives a
// change of the main panel unnoticed.

#include <vector>

class ServizioDialoghi;

struct ContestoEditore {
    int classe = 5;                      // numbers per column, 1..20
    std::vector<int> numeriSelezionati;  // the system's picked numbers, ascending
    int idTipoGioco = 0;                 // 0-based position in the game combo
    ServizioDialoghi* dialoghi = nullptr;  // not owned; must outlive the editor
};
