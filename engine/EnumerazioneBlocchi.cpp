#include "EnumerazioneBlocchi.h"

#include <stdexcept>

#include "Conteggi.h"

namespace combi {

EnumerazioneBlocchi::EnumerazioneBlocchi(const std::vector<int>& sel, int k)
    : sel_(sel), k_(k), n_(int(sel.size())) {
    if (k < 1 || k > kMaxClasse || k > n_) throw std::invalid_argument("classe fuori dai limiti");
    for (int n : sel_) scelti_.Imposta(n);
    Posiziona(0);
}

void EnumerazioneBlocchi::Posiziona(uint64_t rango) {
    finita_ = rango >= Combinazioni(n_, k_);
    if (finita_) return;
    // Unranking in lexicographic order: at each position skip the blocks of
    // columns that start with a smaller number.
    int i = 0;
    for (int r = 0; r < k_; ++r) {
        const int restanti = k_ - r - 1;
        for (;; ++i) {
            const uint64_t blocco = Combinazioni(n_ - i - 1, restanti);
            if (rango < blocco) break;
            rango -= blocco;
        }
        if (r < k_ - 1) pos_[size_t(r)] = i;
        else prossimo_ = i;
        ++i;
    }
    Ricostruisci(0);
}

void EnumerazioneBlocchi::Ricostruisci(int da) {
    for (int r = da; r < k_ - 1; ++r)
        stati_[size_t(r + 1)].Estendi(stati_[size_t(r)], sel_[size_t(pos_[size_t(r)])]);
}

void EnumerazioneBlocchi::AvanzaPrefisso() {
    // Position r (0-based) of the prefix can reach index n - k + r: the
    // positions after it, the last one included, still need room.
    int r = k_ - 2;
    while (r >= 0 && pos_[size_t(r)] >= n_ - k_ + r) --r;
    if (r < 0) {
        finita_ = true;
        return;
    }
    ++pos_[size_t(r)];
    for (int q = r + 1; q < k_ - 1; ++q) pos_[size_t(q)] = pos_[size_t(q - 1)] + 1;
    Ricostruisci(r);
    prossimo_ = PrimoCandidato();
}

}  // namespace combi
