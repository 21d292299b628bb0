#include "FileColonne.h"

#include <cstring>

#include "Errore.h"
#include "FileBinario.h"

namespace combi {

std::vector<Colonna> DecodificaColonne(const uint8_t* dati, size_t lunghezza) {
    std::vector<Colonna> colonne(lunghezza / kLunghezzaColonna);
    for (size_t i = 0; i < colonne.size(); ++i)
        std::memcpy(colonne[i].Numeri.data(), dati + i * kLunghezzaColonna, kLunghezzaColonna);
    return colonne;
}

std::vector<Colonna> LeggiFileColonne(const std::string& percorso) {
    const std::vector<uint8_t> dati = LeggiFileBinario(percorso, kMassimoFileColonne);
    return DecodificaColonne(dati.data(), dati.size());
}

std::vector<uint8_t> CodificaColonne(const std::vector<Colonna>& colonne) {
    std::vector<uint8_t> dati(colonne.size() * kLunghezzaColonna);
    for (size_t i = 0; i < colonne.size(); ++i)
        std::memcpy(dati.data() + i * kLunghezzaColonna, colonne[i].Numeri.data(), kLunghezzaColonna);
    return dati;
}

void ScriviFileColonne(const std::string& percorso, const std::vector<Colonna>& colonne) {
    ScriviFileSicuro(percorso, CodificaColonne(colonne));
}

std::optional<double> GetNumeroColonneInFile(const std::string& percorso) {
    try {
        return double(LunghezzaFile(percorso)) / double(kLunghezzaColonna);
    } catch (const Errore&) {
        return std::nullopt;
    }
}

std::optional<size_t> PrimaColonnaNonValida(const std::vector<Colonna>& colonne, int classe) {
    for (size_t i = 0; i < colonne.size(); ++i) {
        const Colonna& c = colonne[i];
        const int k = ClasseDellaColonna(c);
        bool valida = k >= 1 && (classe == 0 || k == classe);
        for (int pos = 1; valida && pos <= k; ++pos)
            valida = c[pos] >= 1 && c[pos] <= kMaxNumero && (pos == 1 || c[pos] > c[pos - 1]);
        if (!valida) return i;
    }
    return std::nullopt;
}

}  // namespace combi
