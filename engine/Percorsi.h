#pragma once
// Folders and file names.
//
// Paths: the program was born on Windows, and stored names may still carry
// "\" separators, so both "\" and "/" split a path. We run on Linux, so a
// separator that has to be appended is always "/".

#include <string>
#include <string_view>

namespace combi {

// Trimmed path with a trailing separator; an empty (or blank) path stays empty.
std::string AggiungiBarra(std::string_view percorso);

// The temporary folder with a trailing separator; "/tmp/" when the system one
// is missing or not a folder.
std::string CartellaTemp();

// Path of the system file written for external development workers.
std::string FileSistemaTemp();

// True when `percorso` is an existing folder (symbolic links followed).
bool IsCartella(const std::string& percorso);

// True when `percorso` exists, as a file or as a folder.
bool FileEsiste(const std::string& percorso);

// Text after the last separator; the whole path when there is none.
std::string NomeFile(std::string_view percorso);

// Trimmed path up to and including its last separator; empty when there is none.
std::string CartellaDelFile(std::string_view percorso);

// Trimmed text after the last "." of the trimmed path (a "." in a folder name
// counts); empty when the path has no ".".
std::string EstensioneFile(std::string_view percorso);

// NomeFile without the part from its last "." on (NomeFile itself if it has no ".").
std::string NomeSenzaEstensione(std::string_view percorso);

// CartellaDelFile + NomeSenzaEstensione + `numero` + "." + EstensioneFile:
// ("/x/Colonne.col", 3) -> "/x/Colonne3.col"; ("Colonne", 3) -> "Colonne3.".
std::string NomeFileNumerato(std::string_view percorso, int numero);

}  // namespace combi
