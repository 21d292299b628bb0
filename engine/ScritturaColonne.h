#pragma once
// The kept columns of a development written to a columns file as the run
// produces them, so that no run is limited by the memory: the columns go to
// a temporary file beside the target, renamed over it when the run ends.
// A failure (a full disk) leaves the old file as it was and no partial file.

#include <string>
#include <vector>

#include "FileProvvisorio.h"
#include "Sviluppo.h"

namespace combi {

class ScritturaColonne : public DestinazioneColonne {
public:
    explicit ScritturaColonne(const std::string& percorso);

    void Accoda(std::span<const Colonna> colonne) override;

    // Writes what is left and puts the file in place.
    void Concludi();

private:
    void Svuota();

    FileProvvisorio file_;
    std::vector<uint8_t> memoria_;  // columns waiting to be written
};

}  // namespace combi
