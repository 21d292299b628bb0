#include "GrigliaSchedina.h"

GrigliaSchedina GrigliaDelGioco(std::string_view gioco) {
    if (gioco == "SuperEnalotto") return GrigliaSchedina{10, 9, true};
    return GrigliaSchedina{};
}
