// The system-file reader on arbitrary bytes: a file either loads or is
// refused with a message; a loaded one round-trips and develops when small.
#include <cstdint>

#include "Errore.h"
#include "FileSistema.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t lunghezza) {
    using namespace combi;
    try {
        const FileSistema s = DecodificaSistema(dati, lunghezza);
        const std::vector<uint8_t> riscritto = CodificaSistema(s);
        if (DecodificaSistema(riscritto.data(), riscritto.size()).condizioni != s.condizioni) __builtin_trap();
        ParametriSviluppo p = ParametriDalFile(s);
        if (p.numeri.size() > 12) p.numeri.resize(12);
        OsservatoreSviluppo o;
        SviluppaSistema(p, o, {.thread = 1, .quota = {}});
    } catch (const Errore&) {
    }
    return 0;
}
