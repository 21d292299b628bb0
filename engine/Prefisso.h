#pragma once
// The first numbers of a column with their running measures. The fast
// development fixes the first k-1 numbers (the prefix) and judges every
// candidate for the last position at once; what the conditions need to know
// of the prefix is kept here, extended one number at a time, so that moving
// to the next prefix costs one step, not a new column.

#include <array>
#include <cstdint>

#include "Colonna.h"
#include "Maschera.h"

namespace combi {

struct Prefisso {
    static constexpr int32_t kNessunaDistanza = INT32_MAX;

    int lunghezza = 0;           // how many numbers, 0..19
    int32_t somma = 0;
    int primo = 0, ultimo = 0;   // 0 while empty
    uint32_t parita = 0;         // bit i-1 set when position i holds an odd number
    Maschera128 numeri;
    int32_t distanzaMinima = kNessunaDistanza;  // smallest gap; none below two numbers
    int32_t distanzaMassima = 0;                // largest gap; 0 below two numbers
    int32_t consecutivi = 0;     // gaps of 1
    int32_t ponti = 0;           // gaps of 2
    int32_t interruzioni = 0;    // neighbours of different parity
    Colonna colonna;             // the numbers in positions 1..lunghezza, 0 beyond

    // The prefix one number longer; n must exceed the last number.
    Prefisso Con(int n) const {
        Prefisso p = *this;
        p.colonna.Numeri[lunghezza] = uint8_t(n);
        p.lunghezza = lunghezza + 1;
        p.somma += n;
        p.parita |= uint32_t(n & 1) << lunghezza;
        p.numeri.Imposta(n);
        if (lunghezza == 0) {
            p.primo = n;
        } else {
            const int32_t gap = n - ultimo;
            if (gap < p.distanzaMinima) p.distanzaMinima = gap;
            if (gap > p.distanzaMassima) p.distanzaMassima = gap;
            p.consecutivi += gap == 1;
            p.ponti += gap == 2;
            p.interruzioni += (n & 1) != (ultimo & 1);
        }
        p.ultimo = n;
        return p;
    }
};

}  // namespace combi
