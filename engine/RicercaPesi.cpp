#include "RicercaPesi.h"

#include <algorithm>

namespace combi::riduzione {

RicercaPesi::RicercaPesi(std::shared_ptr<const Vicinato> vicinato, int ordine, uint64_t seme,
                         uint64_t massimeVicine)
    : vicinato_(std::move(vicinato)),
      v_(*vicinato_),
      caso_(seme) {
    valida_ = CostruisciOrbite(ordine, massimeVicine);
    if (!valida_) return;
    coperture_.assign(unita_, {});
    xorTenute_.assign(unita_, {});
    peso_.assign(unita_, 1);
    punteggio_.assign(unita_, {});
    ultimoCambio_.assign(unita_, {});
    puoEntrare_.assign(unita_, true);
    tenute_ = InsiemeIndicizzato(unita_);
    scoperte_ = InsiemeIndicizzato(unita_);
    for (uint32_t i = 0; i < unita_; ++i) {
        scoperte_.Inserisci(i);
        punteggio_[i] += int64_t(Vicine(i).size());
    }
    // Greedy start: a whole orbit of most score covering a random hole.
    while (!scoperte_.empty()) {
        const uint32_t u = scoperte_[size_t(Caso() % scoperte_.size())];
        uint32_t scelta = UINT32_MAX;
        for (uint32_t j : Vicine(u))
            if (piena_[j] && (scelta == UINT32_MAX || punteggio_[j] > punteggio_[scelta])) scelta = j;
        if (scelta == UINT32_MAX) {
            valida_ = false;
            return;
        }
        Aggiungi(scelta);
    }
    Registra();
}

// The orbits of the rotation by m / ordine places of the m numbers in use.
bool RicercaPesi::CostruisciOrbite(int ordine, uint64_t massimeVicine) {
    std::vector<int> numeri;
    PerOgniNumero(v_.NumeriUsati(), [&](int n) { numeri.push_back(n); });
    const int m = int(numeri.size());
    if (ordine < 2 || m % ordine != 0) return false;
    std::vector<int> immagine(128, -1);
    for (int p = 0; p < m; ++p) immagine[size_t(numeri[size_t(p)])] = numeri[size_t((p + m / ordine) % m)];
    const auto ruota = [&](const Maschera& x) {
        Maschera y{0, 0};
        PerOgniNumero(x, [&](int n) { Metti(y, immagine[size_t(n)]); });
        return y;
    };
    std::vector<uint32_t> orbita(v_.Quante(), UINT32_MAX);
    inizioOrbita_.push_back(0);
    for (uint32_t i = 0; i < v_.Quante(); ++i) {
        if (orbita[i] != UINT32_MAX) continue;
        // The rotation has order `ordine`: the walk is back at column i
        // after at most that many turns, sooner when i is symmetric.
        Maschera x = v_.Numeri(i);
        do {
            const auto j = v_.Cerca(x);
            if (!j) return false;  // the input is not closed under the rotation
            orbita[*j] = unita_;
            colonneOrbita_.push_back(*j);
            x = ruota(x);
        } while (x != v_.Numeri(i));
        inizioOrbita_.push_back(colonneOrbita_.size());
        piena_.push_back(inizioOrbita_.back() - inizioOrbita_[inizioOrbita_.size() - 2] == uint64_t(ordine));
        ++unita_;
    }
    // An orbit covers another when its first column covers a column of it.
    std::vector<uint32_t> segno(unita_, UINT32_MAX);
    Timbri timbri;
    inizioVicine_.push_back(0);
    for (uint32_t o = 0; o < unita_; ++o) {
        v_.PerVicini(colonneOrbita_[inizioOrbita_[o]], timbri, [&](uint32_t j) {
            const uint32_t p = orbita[j];
            if (segno[p] == o) return;
            segno[p] = o;
            vicine_.push_back(p);
        });
        if (vicine_.size() > massimeVicine) return false;
        inizioVicine_.push_back(vicine_.size());
    }
    return true;
}

// The kept set as columns, ascending.
void RicercaPesi::Registra() {
    migliore_.clear();
    for (uint32_t k : tenute_) {
        if (inizioOrbita_.empty()) {
            migliore_.push_back(k);
            continue;
        }
        for (uint64_t m = inizioOrbita_[k]; m < inizioOrbita_[size_t(k) + 1]; ++m) migliore_.push_back(colonneOrbita_[m]);
    }
    std::sort(migliore_.begin(), migliore_.end());
}

void RicercaPesi::Aggiungi(uint32_t c) {
    tenute_.Inserisci(c);
    ultimoCambio_[c] = passo_;
    for (uint32_t e : Vicine(c)) {
        const int64_t w = peso_[e];
        if (coperture_[e] == 0) {
            // Covered now: nobody gains it any more, c alone covers it.
            scoperte_.Togli(e);
            for (uint32_t j : Vicine(e)) {
                punteggio_[j] -= w;
                puoEntrare_[j] = true;
            }
            punteggio_[c] -= w;
        } else if (coperture_[e] == 1) {
            punteggio_[xorTenute_[e]] += w;  // its single coverer no longer alone
        }
        ++coperture_[e];
        xorTenute_[e] ^= c;
    }
}

void RicercaPesi::Togli(uint32_t c) {
    tenute_.Togli(c);
    ultimoCambio_[c] = passo_;
    for (uint32_t e : Vicine(c)) {
        const int64_t w = peso_[e];
        xorTenute_[e] ^= c;
        --coperture_[e];
        if (coperture_[e] == 0) {
            scoperte_.Inserisci(e);
            punteggio_[c] += w;  // c no longer its single coverer
            for (uint32_t j : Vicine(e)) {
                punteggio_[j] += w;
                puoEntrare_[j] = true;
            }
        } else if (coperture_[e] == 1) {
            punteggio_[xorTenute_[e]] -= w;  // the one left covers it alone
        }
    }
    puoEntrare_[c] = false;
}

// The kept orbit of highest score, not the one just added; ties to the oldest.
// The search ends at two kept orbits, so another one is always there.
uint32_t RicercaPesi::DaTogliere() const {
    uint32_t scelta = UINT32_MAX;
    for (uint32_t k : tenute_) {
        if (k == ultimaAggiunta_) continue;
        if (scelta == UINT32_MAX || Meglio(MeritoDi(k), MeritoDi(scelta))) scelta = k;
    }
    return scelta;
}

// Among the whole orbits covering u, the allowed one of highest score, ties to the oldest.
uint32_t RicercaPesi::DaAggiungere(uint32_t u) {
    uint32_t scelta = UINT32_MAX, ripiego = UINT32_MAX;
    for (uint32_t j : Vicine(u)) {
        if (!piena_[j]) continue;
        if (ripiego == UINT32_MAX || punteggio_[j] > punteggio_[ripiego]) ripiego = j;
        if (!puoEntrare_[j]) continue;
        if (scelta == UINT32_MAX || Meglio(MeritoDi(j), MeritoDi(scelta))) scelta = j;
    }
    return scelta != UINT32_MAX ? scelta : ripiego;
}

// Every uncovered orbit gains one unit: so does the score of all that would cover it.
void RicercaPesi::Pesa() {
    for (uint32_t e : scoperte_) {
        ++peso_[e];
        for (uint32_t j : Vicine(e)) ++punteggio_[j];
    }
}

bool RicercaPesi::Passo() {
    if (finita_) return false;
    ++passo_;
    bool meglio = false;
    if (scoperte_.empty()) {
        const size_t prima = migliore_.size();
        if (tenute_.size() < dimensioneMigliore_) {
            dimensioneMigliore_ = tenute_.size();
            Registra();
            meglio = migliore_.size() < prima;
        }
        // One orbit fewer than two would leave most of the input uncovered
        // at every step, each step a walk of nearly all the orbits: the
        // search ends here.
        if (tenute_.size() <= 2) finita_ = true;
        if (finita_) return meglio;
        ultimaAggiunta_ = UINT32_MAX;
        Togli(DaTogliere());
        return meglio;
    }
    Togli(DaTogliere());
    const uint32_t u = scoperte_[size_t(Caso() % scoperte_.size())];
    const uint32_t c = DaAggiungere(u);
    Aggiungi(c);
    ultimaAggiunta_ = c;
    Pesa();
    return meglio;
}

bool RicercaPesi::Coerente() const {
    std::vector<uint32_t> coperture(unita_, 0), xorTenute(unita_, 0);
    for (uint32_t k : tenute_)
        for (uint32_t e : Vicine(k)) ++coperture[e], xorTenute[e] ^= k;
    for (uint32_t o = 0; o < unita_; ++o) {
        if (coperture[o] != coperture_[o] || xorTenute[o] != xorTenute_[o]) return false;
        if (scoperte_.Contiene(o) != (coperture[o] == 0)) return false;
        int64_t punteggio = 0;
        for (uint32_t e : Vicine(o)) {
            if (tenute_.Contiene(o) && coperture[e] == 1) punteggio -= peso_[e];
            if (!tenute_.Contiene(o) && coperture[e] == 0) punteggio += peso_[e];
        }
        if (punteggio != punteggio_[o]) return false;
    }
    return true;
}

}  // namespace combi::riduzione
