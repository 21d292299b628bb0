#include "Vicinato.h"

#include <bit>

namespace combi::riduzione {

Vicinato::Vicinato(const std::vector<Colonna>& colonne, int classe, int punti, uint64_t massimiVicini)
    : indice_(colonne, classe, punti), classe_(classe), punti_(punti), maschere_(colonne.size(), {0, 0}) {
    for (size_t i = 0; i < colonne.size(); ++i)
        for (int pos = 1; pos <= classe; ++pos) Metti(maschere_[i], colonne[i][pos]);
    CostruisciElenchi(massimiVicini);
    CostruisciTabella();
}

Maschera Vicinato::NumeriUsati() const {
    Maschera tutti{0, 0};
    for (const Maschera& m : maschere_) tutti[0] |= m[0], tutti[1] |= m[1];
    return tutti;
}

int Vicinato::Comuni(uint32_t a, uint32_t b) const {
    return std::popcount(maschere_[a][0] & maschere_[b][0]) + std::popcount(maschere_[a][1] & maschere_[b][1]);
}

// The index already knows how many columns each one covers: the flat lists
// are sized exactly before they are filled.
void Vicinato::CostruisciElenchi(uint64_t massimiVicini) {
    const std::vector<int32_t>& conte = indice_.Conte();
    uint64_t totale = 0;
    for (int32_t c : conte) totale += uint64_t(c) + 1;
    if (totale > massimiVicini) return;
    inizio_.assign(maschere_.size() + 1, 0);
    membri_.reserve(totale);
    Timbri timbri;
    for (uint32_t i = 0; i < Quante(); ++i) {
        PerVicini(i, timbri, [&](uint32_t j) { membri_.push_back(j); });
        inizio_[size_t(i) + 1] = membri_.size();
    }
    piatto_ = true;
}

uint64_t Vicinato::Hash(const Maschera& m) {
    uint64_t z = m[0] * 0x9E3779B97F4A7C15ull ^ m[1] * 0xBF58476D1CE4E5B9ull;
    return z ^ (z >> 29);
}

void Vicinato::CostruisciTabella() {
    const size_t dimensione = std::bit_ceil(2 * maschere_.size() + 2);
    tabella_.assign(dimensione, 0);
    for (uint32_t i = 0; i < Quante(); ++i) {
        size_t p = Hash(maschere_[i]) & (dimensione - 1);
        while (tabella_[p] != 0) p = (p + 1) & (dimensione - 1);
        tabella_[p] = i + 1;
    }
}

std::optional<uint32_t> Vicinato::Cerca(const Maschera& m) const {
    const size_t dimensione = tabella_.size();
    for (size_t p = Hash(m) & (dimensione - 1); tabella_[p] != 0; p = (p + 1) & (dimensione - 1))
        if (maschere_[tabella_[p] - 1] == m) return tabella_[p] - 1;
    return std::nullopt;
}

}  // namespace combi::riduzione
