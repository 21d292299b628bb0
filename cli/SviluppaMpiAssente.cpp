// --mpi in a build without an MPI library: refused as a usage error, so the
// user learns at once that this binary cannot share the development.

#include "SviluppaMpi.h"

namespace combi::cli {

int SviluppaConMpi(const Argomenti&, std::ostream&, std::ostream&) {
    throw ErroreUso{"combifiltro-cli è stato compilato senza MPI: --mpi non è disponibile"};
}

}  // namespace combi::cli
