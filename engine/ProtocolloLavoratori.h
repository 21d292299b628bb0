#pragma once
// How a development worker (combifiltro-cli sviluppa --rapporto) reports to
// whoever started it, one line at a time on its standard output, and the
// names of the files of a parallel run. Both sides use this module, so the
// report that one writes is the report that the other reads.
//
//   testate 120000              columns tested so far
//   tenute 345                  columns kept so far
//   fine /tmp/x/SistCond2.col   the columns file is complete

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace combi {

struct RigaRapporto {
    enum class Tipo { Testate, Tenute, Fine };
    Tipo tipo;
    uint64_t numero{};     // Testate, Tenute
    std::string file;      // Fine
};

std::string RigaTestate(uint64_t testate);
std::string RigaTenute(uint64_t tenute);
std::string RigaFine(const std::string& fileColonne);

// The line read back (without its line break); nothing for any other text.
std::optional<RigaRapporto> LeggiRigaRapporto(std::string_view riga);

// The files of a parallel run in the run's folder (with a trailing
// separator): the system every worker develops, and worker i's counters
// and columns (the base name followed by i).
std::string FileSistemaDellaCorsa(const std::string& cartella);
std::string FileContatoriLavoratore(const std::string& cartella, int i);
std::string FileColonneLavoratore(const std::string& cartella, int i);

}  // namespace combi
