#pragma once
// The condition counters that the workers of a parallel development leave in
// their system files, summed into one table for the condition effect report.

#include <string>

#include "Condizione.h"
#include "FileSistema.h"

namespace combi {

// Reads one worker's system file and adds its counters into `tabella`: the
// table grows to the file's condition count; for every condition the
// definition fields are copied and ContaFallite, ContaSuperate and
// ContaRecuperabili are added. The sets Numeri, Punti and Recupero are not
// copied. An empty name reads nothing. Throws Errore when the file cannot be
// read or decoded; `tabella` is then unchanged.
void LeggiFileCondizioniThread(const std::string& percorso, IntestazioneSistema& intestazione,
                               TabellaCondizioni& tabella, TabellaQuadri& quadri);

// The counters of workers 1..W whose files are named after `fileSistema`
// (worker i: the base name followed by i). A file that is missing or broken
// is skipped: the table keeps what was read so far. Starts from one zeroed record.
TabellaCondizioni SommaContatoriLavoratori(const std::string& fileSistema, int lavoratori);

}  // namespace combi
