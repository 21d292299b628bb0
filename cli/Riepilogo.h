#pragma once
// What "sviluppa" and "conta" share: the options of a development read from
// the command line and the summary printed at the end.

#include <cstdint>
#include <iosfwd>
#include <string>

#include "Argomenti.h"
#include "Sviluppo.h"

namespace combi::cli {

// --thread N and --quota I/W.
OpzioniSviluppo LeggiOpzioni(const Argomenti& a);

// "Sviluppate :", "Condizionate :", "Tempo :" and, after a stop, what was kept.
void StampaRiepilogo(std::ostream& out, uint64_t testate, uint64_t tenute, int32_t secondi, bool interrotto);

}  // namespace combi::cli
