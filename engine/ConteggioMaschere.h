#pragma once
// How many of a set of masks hold each candidate, bit-sliced: plane b holds
// bit b of every candidate's count, so adding a mask and testing a count
// cost a few word operations whatever the number of candidates.

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
