#pragma once
// The leading-number reading used for every number typed or stored as text:
// leading blanks are skipped, the longest leading decimal number (optional
// sign, digits, optional "." and digits) is taken, a "," ends it, and a text
// without one reads as 0. Integer targets round halves to the even neighbour.

#include <cstdint>
#include <string_view>

namespace combi {

double LeggiNumero(std::string_view testo);

// Round half to even, saturating at the limits of the target type instead of
// overflowing: a hand-made text with an enormous number cannot stop the program.
int32_t ArrotondaInt32(double valore);
int16_t ArrotondaInt16(double valore);

inline int32_t LeggiInt32(std::string_view testo) { return ArrotondaInt32(LeggiNumero(testo)); }
inline int16_t LeggiInt16(std::string_view testo) { return ArrotondaInt16(LeggiNumero(testo)); }

}  // namespace combi
