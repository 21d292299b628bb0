#pragma once
// The rows of the condition effect report: for every condition of the last
// development, how many columns of the integral system it let pass, discarded
// and recovered, each with its share of the integral system.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "Condizione.h"

namespace combi {

// Columns of the report, in order: "Id", "Condizione", then count and
// percentage of the passed, the discarded and the recovered columns.
enum ColonnaEffetto : int {
    kEffettoId = 0,
    kEffettoCondizione,
    kEffettoSuperate,
    kEffettoPercSuperate,
    kEffettoScartate,
    kEffettoPercScartate,
    kEffettoRecuperate,
    kEffettoPercRecuperate,
};
inline constexpr int kColonneEffetto = 8;

struct RigaEffetto {
    int id{};    // the condition's grid column (table index + 1)
    // Texts of the report's columns; a link row ("LinkOpen", "LinkClose")
    // has no counters of its own, so only "Id" and "Condizione" are filled.
    std::array<std::string, kColonneEffetto> testi;
};

// One row per record from the first, up to the first record of type 0: an
// empty system is a lone type-0 record, and a grid column whose name no type
// knows ends the report there too.
// Counts are grouped by `separatore`; percentages are of `colonneIntegrali`,
// at most 100, and 0 when it is 0.
std::vector<RigaEffetto> RigheEffetto(const TabellaCondizioni& tabella, double colonneIntegrali,
                                      std::string_view separatore);

// As above with the user's thousands separator (SeparatoreMigliaia).
std::vector<RigaEffetto> RigheEffetto(const TabellaCondizioni& tabella, double colonneIntegrali);

}  // namespace combi
