#pragma once
// combifiltro-cli sviluppa ... --mpi: the development shared among the
// processes of an MPI job, on one machine or several. Process 0 gathers the
// shares and alone writes the files and prints; the columns file and the
// counters are byte for byte those of the single-process development.

#include <iosfwd>

#include "Argomenti.h"

namespace combi::cli {

// Runs on every process of the job with the same arguments. Returns the exit
// code; on process 0 a failure (of any process) is thrown as ErroreUso or
// Errore, reported by the caller; the other processes print nothing.
// Built without MPI, it throws ErroreUso saying so.
int SviluppaConMpi(const Argomenti& a, std::ostream& out, std::ostream& err);

}  // namespace combi::cli
