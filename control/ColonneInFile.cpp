#include "ColonneInFile.h"

#include <filesystem>
#include <fstream>

#include "Errore.h"
#include "FileBinario.h"
#include "FileColonne.h"
#include "SegnalazioneErrori.h"
#include "Percorsi.h"

std::optional<double> GetNumeroColonneInFile(const QString& file, ServizioDialoghi& dialoghi) {
    const std::string percorso = file.toStdString();
    if (!combi::FileEsiste(percorso)) return std::nullopt;
    std::optional<double> quante;
    EseguiProtetta(dialoghi, "Mod_Sviluppo.GetNumeroColonneInFile", [&] {
        // Opened as for reading it: a folder or an unreadable file fails here,
        // where its mere length would still be known.
        std::error_code ec;
        std::ifstream in(percorso, std::ios::binary);
        if (!std::filesystem::is_regular_file(percorso, ec) || !in)
            throw combi::Errore(combi::kErroreAccessoFile, "Impossibile leggere il file: " + percorso);
        quante = double(combi::LunghezzaFile(percorso)) / double(combi::kLunghezzaColonna);
    });
    return quante;
}
