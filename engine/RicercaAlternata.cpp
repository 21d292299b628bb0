#include "RicercaAlternata.h"

#include "RicercaPesi.h"

namespace combi::riduzione {

RicercaAlternata::RicercaAlternata(std::shared_ptr<const Vicinato> vicinato, const std::vector<uint32_t>& iniziali,
                                   uint64_t seme) {
    ricerche_.push_back(std::make_unique<RicercaLocale>(vicinato, iniziali, seme, true));
    const int m = QuantiNumeri(vicinato->NumeriUsati());
    for (int ordine = 2; ordine <= m; ++ordine) {
        if (m % ordine != 0) continue;
        auto orbite = std::make_unique<RicercaPesi>(vicinato, ordine, seme);
        if (!orbite->Valida()) continue;
        if (orbite->Migliore().size() < Migliore().size()) migliore_ = ricerche_.size();
        ricerche_.push_back(std::move(orbite));
    }
    dimensione_ = Migliore().size();
}

bool RicercaAlternata::Passo() {
    const size_t r = turno_++ % ricerche_.size();
    ricerche_[r]->Passo();
    if (ricerche_[r]->Migliore().size() >= dimensione_) return false;
    migliore_ = r;
    dimensione_ = Migliore().size();
    return true;
}

}  // namespace combi::riduzione
