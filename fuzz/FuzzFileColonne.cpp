// The columns-file reader and its checks on arbitrary bytes.
#include <cstdint>

#include "FileColonne.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t lunghezza) {
    using namespace combi;
    const std::vector<Colonna> colonne = DecodificaColonne(dati, lunghezza);
    if (colonne.size() != lunghezza / 20) __builtin_trap();
    PrimaColonnaNonValida(colonne);
    PrimaColonnaNonValida(colonne, 6);
    if (CodificaColonne(colonne).size() != colonne.size() * 20) __builtin_trap();
    return 0;
}
