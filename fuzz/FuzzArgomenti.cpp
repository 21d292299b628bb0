// combifiltro-cli argument parsing: arbitrary words after a subcommand give
// an exit code and a message, never a crash. Files named in the words do not
// exist, so only the parsing and the error paths run.
#include <cstdint>
#include <sstream>
#include <string>

#include "Comandi.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t lunghezza) {
    combi::cli::Parole parole(1);
    for (size_t i = 0; i < lunghezza; ++i) {
        if (dati[i] == 0) parole.emplace_back();
        else parole.back() += char(dati[i]);
    }
    // Never let the fuzzer write files: output options point nowhere writable.
    for (auto& p : parole)
        if (p.find('/') != std::string::npos) p = "/nonexistent-dir/x";
    std::ostringstream out, err;
    const int codice = combi::cli::Esegui(parole, out, err);
    if (codice != 0 && err.str().empty()) __builtin_trap();
    return 0;
}
