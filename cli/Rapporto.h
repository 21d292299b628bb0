#pragma once
// The report of a development worker to whoever started it: one line per
// progress step and one at the end, on standard output, flushed at once so
// that the starter sees them while the worker runs.
//
//   testate 120000        columns tested so far
//   tenute 345            columns kept so far
//   fine /tmp/SistCond2.col   the columns file is complete

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
