// combifiltro-cli: the engine without a screen.
#include <iostream>
#include <locale>
#include <stdexcept>

#include "Comandi.h"

int main(int argc, char** argv) {
    // Counts are grouped by the thousands separator of the user's locale
    // ("." under an Italian one); an unknown locale keeps the classic one.
    try {
        std::locale::global(std::locale(""));
    } catch (const std::runtime_error&) {
    }
    return combi::cli::Esegui(combi::cli::Parole(argv + 1, argv + argc), std::cout, std::cerr);
}
