#pragma once
// The toolbar of the panel as data: every button in display order with its
// key, tooltip and image key, and the entries of the two drop-down menus.
// Keys are compared without regard to letter case.

#include <QString>

#include <vector>

struct VoceMenuComando {
    const char* chiave;
    const char* didascalia;
    int tipoCondizione;  // the condition created by the entry; 0 for none
};

struct ComandoPannello {
    const char* chiave;
    const char* suggerimento;
    const char* immagine;
    std::vector<VoceMenuComando> menu;
    bool interruttore = false;  // a check button ("SelNumeri")
};

const std::vector<ComandoPannello>& ComandiPannello();

// The menu entry of that key (either menu), or nullptr.
const VoceMenuComando* VoceMenu(const QString& chiave);

// True when two keys name the same command.
inline bool StessaChiave(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}
