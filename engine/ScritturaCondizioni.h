#pragma once
// The grid texts of a condition record, exactly as the editors write them:
// used when a system file is opened and by the command line's listing.

#include "Condizione.h"
#include "TestiGriglia.h"

namespace combi {

// Rows 1..5 of the grid column of `c`; row 5 is empty when the condition has
// no recovery panel. A record of type 0 gives an empty column.
TestiCondizione TestiDaCondizione(const Condizione& c);

// The recovery-list line of a panel record: "Minimo,Massimo,Attivo".
std::string RigaQuadro(const QuadroRecupero& q);

// The texts of a whole system: grid columns from the records (in order) and
// the 20 recovery-list lines from panels 1..20.
TestiGriglia TestiDaSistema(const TabellaCondizioni& condizioni, const TabellaQuadri& quadri);

// The numbers of a "Punti Col." set as the editor lists them: two digits
// each, joined by "-", four numbers to a line.
std::string TestoNumeriColonna(const std::array<int16_t, 91>& numeri);

}  // namespace combi
