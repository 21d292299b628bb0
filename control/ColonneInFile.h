#pragma once
// The number of columns in a columns file, as the windows show it.

#include <QString>

#include <optional>

class ServizioDialoghi;

// File length / 20 (fractional when the length is not a multiple of 20);
// nothing when no such path exists. A path that exists but cannot be opened
// for reading (a folder, a file without read permission) is reported in a
// critical box titled "Mod_Sviluppo.GetNumeroColonneInFile" and gives nothing.
std::optional<double> GetNumeroColonneInFile(const QString& file, ServizioDialoghi& dialoghi);
