#pragma once
// Deleting files, one by name or several by a name pattern.

#include <functional>
#include <string>

namespace combi {

// Receives a deletion failure: source title, error number, description.
using SegnalaErrore =
    std::function<void(const std::string& titolo, int numero, const std::string& descrizione)>;

// Deletes a file, or every file of the folder matching a name pattern when the
// name holds "*" ("*" any run, "?" one character; folders never match). A
// read-only file is made writable first. No file of that name (nothing there,
// or a folder, which is left alone) -> true, silently.
// Any other failure -> false, reported once to `segnala` (if given) with the
// title "ModFunzGeneriche.KillFile".
bool KillFile(const std::string& percorso, const SegnalaErrore& segnala = {});

}  // namespace combi
