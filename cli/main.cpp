// combifiltro-cli: the engine without a screen.
#include <iostream>

#include "Comandi.h"

int main(int argc, char** argv) {
    // Counts are grouped by the separator of the locale the environment names
    // for numbers, the Italian "." when it names none (FormatNumero).
    return combi::cli::Esegui(combi::cli::Parole(argv + 1, argv + argc), std::cout, std::cerr);
}
