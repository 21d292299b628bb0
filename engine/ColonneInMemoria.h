#pragma once
// The kept columns of a development held in memory.

#include <span>
#include <vector>

#include "Sviluppo.h"

namespace combi {

class ColonneInMemoria : public DestinazioneColonne {
public:
    void Accoda(std::span<const Colonna> nuove) override { colonne.insert(colonne.end(), nuove.begin(), nuove.end()); }
    std::vector<Colonna> colonne;
};

}  // namespace combi
