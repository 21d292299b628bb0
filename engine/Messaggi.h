#pragma once
// The Italian texts that several layers show for the same condition, written
// once: the engine throws them, the windows and the command line show them.

#include <string_view>

namespace combi {

// More numbers per column than numbers picked.
inline constexpr std::string_view kImpostarePronostico = "Impostare il pronostico";

}  // namespace combi
