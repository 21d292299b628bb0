#pragma once
// The report of a development worker to whoever started it: the lines of
// ProtocolloLavoratori, two per progress step and one at the end, on standard
// output, flushed at once so that the starter sees them while the worker runs.

#include <iosfwd>
#include <string>

#include "Sviluppo.h"

namespace combi::cli {

class OsservatoreRapporto : public OsservatoreSviluppo {
public:
    explicit OsservatoreRapporto(std::ostream& out) : out_(out) {}
    void Progresso(uint64_t testate, uint64_t tenute) override;
    bool RichiestaStop() override;
    void Fine(uint64_t testate, uint64_t tenute, const std::string& fileColonne);

private:
    std::ostream& out_;
};

}  // namespace combi::cli
