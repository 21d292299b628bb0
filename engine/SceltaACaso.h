#pragma once
// The candidate of least key among those proposed one by one, ties broken
// uniformly at random: the m-th candidate equal to the best so far takes its
// place with probability 1/m, so each of the tied ones ends up chosen with
// the same chance, without keeping them. A search that always kept the first
// (or the last) of equals would walk the same few changes over and over.

#include <cstdint>

#include "GeneratoreCasuale.h"

namespace combi::riduzione {

template <typename Chiave>
class SceltaACaso {
public:
    explicit SceltaACaso(GeneratoreCasuale& caso) : caso_(caso) {}

    void Proponi(uint32_t candidato, Chiave chiave) {
        if (pari_ == 0 || chiave < chiave_) {
            scelta_ = candidato, chiave_ = chiave, pari_ = 1;
        } else if (chiave == chiave_ && caso_() % ++pari_ == 0) {
            scelta_ = candidato;
        }
    }

    uint32_t Scelta() const { return scelta_; }  // only after a proposal
    Chiave Minima() const { return chiave_; }

private:
    GeneratoreCasuale& caso_;
    uint32_t scelta_{};
    Chiave chiave_{};
    uint64_t pari_{};  // candidates proposed with the least key so far
};

}  // namespace combi::riduzione
