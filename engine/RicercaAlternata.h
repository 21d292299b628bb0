#pragma once
// Several searches on one thread, a step each in turn: the weighted local
// search (RicercaLocale.h) and, when the input is closed under rotations of
// its numbers, a search over the orbits of each rotation (RicercaPesi.h).
// Not part of the public interface.
//
// Designs with a symmetry are far easier to find among the symmetric sets:
// every column of 1..18 at 4 points is covered by 42 columns, 7 orbits of the
// rotation by three places, which no search over single columns reaches in a
// minute. When the input has no such symmetry (a conditioned system) only the
// weighted search runs, exactly as it would alone.

#include <cstdint>
#include <memory>
#include <vector>

#include "RicercaLocale.h"
#include "Vicinato.h"

namespace combi::riduzione {

class RicercaAlternata : public Ricerca {
public:
    RicercaAlternata(std::shared_ptr<const Vicinato> vicinato, const std::vector<uint32_t>& iniziali, uint64_t seme);

    bool Passo() override;
    const std::vector<uint32_t>& Migliore() const override { return ricerche_[migliore_]->Migliore(); }
    size_t Ricerche() const { return ricerche_.size(); }  // the weighted one and one per rotation

private:
    std::vector<std::unique_ptr<Ricerca>> ricerche_;
    size_t turno_{};
    size_t migliore_{};      // the search holding the smallest set, ties to the first found
    size_t dimensione_{};    // its size when last reported: a search also shrinks its own best
};

}  // namespace combi::riduzione
