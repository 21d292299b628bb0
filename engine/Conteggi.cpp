#include "Conteggi.h"

#include <stdexcept>

namespace combi {

namespace {
__extension__ typedef unsigned __int128 Uint128;
}  // namespace

double Fattoriale(int n) {
    double prodotto = 1.0;
    for (double m = 1.0; m <= n - 1; m += 1.0) prodotto *= m;
    return n * prodotto;
}

double CalcolaIntegrali(int n, int k) {
    if (n < k) return 0.0;
    const double f = n == k ? 1.0 : Fattoriale(n - k);  // Fattoriale(0) is 0
    return Fattoriale(n) / (Fattoriale(k) * f);
}

uint64_t Combinazioni(int n, int k) {
    if (k < 0 || n < 0 || k > n) return 0;
    if (k > n - k) k = n - k;
    // r * (n - k + i) / i stays exact: r holds C(n - k + i - 1, i - 1). The
    // product is taken in 128 bits; a count beyond 64 bits (90 numbers in
    // class 20) saturates, and no development of that size can be run anyway.
    Uint128 r = 1;
    const Uint128 limite = UINT64_MAX;
    for (int i = 1; i <= k; ++i) {
        r = r * static_cast<unsigned>(n - k + i) / static_cast<unsigned>(i);
        if (r > limite) return UINT64_MAX;
    }
    return static_cast<uint64_t>(r);
}

Enumerazione::Enumerazione(const std::vector<int>& sel, int k)
    : sel_(sel), k_(k), n_(static_cast<int>(sel.size())), totale_(Combinazioni(n_, k)), pos_(k) {
    if (k < 1 || k > kMaxClasse) throw std::invalid_argument("classe fuori dai limiti");
    Posiziona(0);
}

void Enumerazione::Posiziona(uint64_t rango) {
    // Unranking in lexicographic order: at each position skip the blocks of
    // columns that start with a smaller number.
    int prossimo = 0;
    for (int r = 0; r < k_; ++r) {
        const int restanti = k_ - r - 1;
        int i = prossimo;
        while (i < n_) {
            const uint64_t blocco = Combinazioni(n_ - i - 1, restanti);
            if (rango < blocco) break;
            rango -= blocco;
            ++i;
        }
        pos_[r] = i;
        prossimo = i + 1;
    }
    colonna_ = Colonna{};
    for (int r = 0; r < k_; ++r) colonna_.Numeri[r] = static_cast<uint8_t>(sel_[pos_[r]]);
}

bool Enumerazione::Avanza() {
    int r = k_ - 1;
    while (r >= 0 && pos_[r] >= n_ - k_ + r) --r;
    if (r < 0) return false;
    ++pos_[r];
    colonna_.Numeri[r] = static_cast<uint8_t>(sel_[pos_[r]]);
    for (int j = r + 1; j < k_; ++j) {
        pos_[j] = pos_[j - 1] + 1;
        colonna_.Numeri[j] = static_cast<uint8_t>(sel_[pos_[j]]);
    }
    return true;
}

}  // namespace combi
