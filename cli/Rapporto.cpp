#include "Rapporto.h"

#include <ostream>

#include "ProtocolloLavoratori.h"
#include "Terminale.h"

namespace combi::cli {

void OsservatoreRapporto::Progresso(uint64_t testate, uint64_t tenute) {
    out_ << RigaTestate(testate) << "\n" << RigaTenute(tenute) << std::endl;
}

bool OsservatoreRapporto::RichiestaStop() { return StopDaTastiera(); }

void OsservatoreRapporto::Fine(uint64_t testate, uint64_t tenute, const std::string& fileColonne) {
    Progresso(testate, tenute);
    out_ << RigaFine(fileColonne) << std::endl;
}

}  // namespace combi::cli
