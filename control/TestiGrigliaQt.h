#pragma once
// The bridge between the widgets that hold a system's conditions (the grid
// and the recovery list LbQuadroRec) and the engine's plain texts.

#include "TestiGriglia.h"

class GrigliaCondizioni;
class QListWidget;

// Grid columns 1..last used, rows 0..5 as written, and every line of the
// recovery list: the input of combi::LeggiCondizioni.
combi::TestiGriglia LeggiTestiGriglia(const GrigliaCondizioni& griglia, const QListWidget& quadri);

// Writes rows 1..5 of grid columns 1.. from the texts (at most 200 columns;
// the grid is expected freshly laid out) and replaces the recovery list.
void RiempiGriglia(GrigliaCondizioni& griglia, QListWidget& quadri, const combi::TestiGriglia& testi);
