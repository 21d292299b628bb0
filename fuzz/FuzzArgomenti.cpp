// combifiltro-cli argument parsing: arbitrary words after a subcommand give
// an exit code and a message, never a crash. Files named in the words do not
// exist, so only the parsing and the error paths run.
#include <cstdint>
#include <sstream>
#include <string>

#include "Comandi.h"
#include "Ingressi.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t lunghezza) {
    combi::cli::Parole parole = fuzz::Pezzi(dati, lunghezza, fuzz::kSeparatoreParole);
    // Never let the fuzzer write files: output options point nowhere writable.
    for (auto& p : parole) {
        if (p.find('/') != std::string::npos) p = "/nonexistent-dir/x";
#ifdef CF_CON_MPI
        // MPI starts once per process and OpenMPI keeps its allocations past
        // the end: with MPI built in, the development across processes is
        // left to its own tests (scripts/fuzz.sh builds without it).
        if (p == "--mpi") p = "--riferimento";
#endif
    }
    std::ostringstream out, err;
    const int codice = combi::cli::Esegui(parole, out, err);
    if (codice != 0 && err.str().empty()) __builtin_trap();
    return 0;
}
