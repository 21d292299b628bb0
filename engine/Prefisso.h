#pragma once
// The first numbers of a column with their running measures. The fast
// development fixes the first k-1 numbers (the prefix) and judges every
// candidate for the last position at once; what the conditions need to know
// of the prefix is kept here, extended one number at a time, so that moving
// to the next prefix costs one step, not a new column.

#include <algorithm>
#include <array>
#include <cstdint>

#include "Colonna.h"
#include "Maschera.h"

namespace combi {

struct Prefisso {
    static constexpr int32_t kNessunaDistanza = INT32_MAX;

    int lunghezza{};             // how many numbers, 0..19
    int32_t somma{};
    int primo{}, ultimo{};       // 0 while empty
    uint32_t parita{};           // bit i-1 set when position i holds an odd number
    Maschera128 numeri;
    int32_t distanzaMinima = kNessunaDistanza;  // smallest gap; none below two numbers
    int32_t distanzaMassima{};                  // largest gap; 0 below two numbers
    int32_t consecutivi{};       // gaps of 1
    int32_t ponti{};             // gaps of 2
    int32_t interruzioni{};      // neighbours of different parity
    Colonna colonna;             // the numbers in positions 1..lunghezza, 0 beyond

    // Becomes the prefix p followed by n (n above p's last number). Written
    // without branches: it runs once per block of the development.
    void Estendi(const Prefisso& p, int n) {
        const bool vuoto = p.lunghezza == 0;
        const int32_t gap = n - p.ultimo;
        colonna = p.colonna;
        colonna.Numeri[size_t(p.lunghezza)] = uint8_t(n);
        lunghezza = p.lunghezza + 1;
        somma = p.somma + n;
        parita = p.parita | uint32_t(n & 1) << p.lunghezza;
        numeri = p.numeri;
        numeri.Imposta(n);
        primo = vuoto ? n : p.primo;
        ultimo = n;
        distanzaMinima = vuoto ? kNessunaDistanza : std::min(p.distanzaMinima, gap);
        distanzaMassima = vuoto ? 0 : std::max(p.distanzaMassima, gap);
        consecutivi = p.consecutivi + (!vuoto && gap == 1);
        ponti = p.ponti + (!vuoto && gap == 2);
        interruzioni = p.interruzioni + (!vuoto && ((n ^ p.ultimo) & 1));
    }
};

}  // namespace combi
