#pragma once
// How the fuzz targets cut their bytes into pieces, shared with the seed
// generator so that the seeds it writes read back as the inputs it meant.

#include <cstdint>
#include <string>
#include <vector>

namespace fuzz {

inline constexpr char kSeparatoreCampi = 0x1F;  // grid texts: fields of the grid columns
inline constexpr char kSeparatoreParole = 0;    // command-line words; drawn text and columns

inline std::vector<std::string> Pezzi(const uint8_t* dati, size_t lunghezza, char separatore) {
    std::vector<std::string> pezzi(1);
    for (size_t i = 0; i < lunghezza; ++i) {
        if (char(dati[i]) == separatore) pezzi.emplace_back();
        else pezzi.back() += char(dati[i]);
    }
    return pezzi;
}

}  // namespace fuzz
