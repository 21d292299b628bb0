#pragma once
// How many of a set of masks hold each candidate, bit-sliced: plane b holds
// bit b of every candidate's count, so adding a mask and testing a count
// cost a few word operations whatever the number of candidates.

#include <algorithm>
#include <array>

#include "Maschera.h"

namespace combi {

class ConteggioMaschere {
public:
    static constexpr int kPiani = 16;  // counts up to 65535

    // `membri`: how many masks will be added at most.
    explicit ConteggioMaschere(size_t membri) : usati_(membri < 2 ? 1 : int(std::bit_width(membri))) {
        for (int b = 0; b < usati_; ++b) piani_[size_t(b)] = {};
    }

    void Aggiungi(Maschera128 riporto) {
        for (int b = 0; b < usati_; ++b) {
            const Maschera128 nuovo = piani_[size_t(b)] & riporto;
            piani_[size_t(b)] = piani_[size_t(b)] ^ riporto;
            riporto = nuovo;
        }
    }

    // The candidates whose count equals v, for v in 0..membri.
    Maschera128 Uguale(int v) const {
        Maschera128 m = Maschera128::Tutti();
        for (int b = 0; b < usati_; ++b) m &= piani_[size_t(b)] ^ TuttiSe(((v >> b) & 1) == 0);
        return m;
    }

private:
    int usati_;
    std::array<Maschera128, kPiani> piani_;
};

}  // namespace combi

namespace combi {

// The candidates held by exactly v of the n masks, for the v whose bit is set
// in `valori` (counts 0..63; a larger count is never wanted). Up to three
// masks, the counts are written out as the few word operations they are; the
// panels and link groups of most systems have two or three members.
inline Maschera128 ConteggioInInsieme(const Maschera128* m, size_t n, uint64_t valori) {
    const auto se = [valori](int v) { return TuttiSe((valori >> v) & 1); };
    switch (n) {
    case 0: return se(0);
    case 1: return (se(0) & ~m[0]) | (se(1) & m[0]);
    case 2: return (se(0) & ~(m[0] | m[1])) | (se(1) & (m[0] ^ m[1])) | (se(2) & m[0] & m[1]);
    case 3: {
        const Maschera128 tre = m[0] & m[1] & m[2];
        const Maschera128 almenoDue = (m[0] & m[1]) | (m[0] & m[2]) | (m[1] & m[2]);
        return (se(0) & ~(m[0] | m[1] | m[2])) | (se(1) & (m[0] ^ m[1] ^ m[2]) & ~tre) |
               (se(2) & almenoDue & ~tre) | (se(3) & tre);
    }
    default: {
        ConteggioMaschere conteggio(n);
        for (size_t i = 0; i < n; ++i) conteggio.Aggiungi(m[i]);
        Maschera128 esito;
        for (int v = 0; v <= int(n) && v < 64; ++v)
            if ((valori >> v) & 1) esito |= conteggio.Uguale(v);
        return esito;
    }
    }
}

// The values da..a (clamped to 0..63) as the bits of ConteggioInInsieme.
inline uint64_t ValoriTra(int64_t da, int64_t a) {
    da = std::max<int64_t>(da, 0);
    a = std::min<int64_t>(a, 63);
    if (da > a) return 0;
    const uint64_t finoA = a == 63 ? ~uint64_t{0} : (uint64_t{1} << (a + 1)) - 1;
    return finoA & ~((uint64_t{1} << da) - 1);
}

}  // namespace combi
