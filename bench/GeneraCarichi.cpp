// Writes the development's measured workloads as system files, for the
// command line and the measuring scripts:
//   genera_carichi CARTELLA  ->  selettivo-50.sic ampio-50.sic selettivo-90.sic ampio-90.sic
#include <iostream>

#include "CarichiSviluppo.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Uso: genera_carichi CARTELLA\n";
        return 2;
    }
    const std::string cartella = argv[1];
    for (int n : {50, 90}) {
        using namespace combi;
        ScriviFileSistema(cartella + "/selettivo-" + std::to_string(n) + ".sic",
                          bench::FileDelCarico(bench::Carico(bench::GrigliaSelettiva(n), n)));
        ScriviFileSistema(cartella + "/ampio-" + std::to_string(n) + ".sic",
                          bench::FileDelCarico(bench::Carico(bench::GrigliaAmpia(n), n)));
    }
    return 0;
}
