#include "Rapporto.h"

#include <ostream>

#include "Terminale.h"

namespace combi::cli {

void OsservatoreRapporto::Progresso(uint64_t testate, uint64_t tenute) {
    out_ << "testate " << testate << "\ntenute " << tenute << std::endl;
}

bool OsservatoreRapporto::RichiestaStop() { return StopDaTastiera(); }

void OsservatoreRapporto::Fine(uint64_t testate, uint64_t tenute, const std::string& fileColonne) {
    Progresso(testate, tenute);
    out_ << "fine " << fileColonne << std::endl;
}

}  // namespace combi::cli
