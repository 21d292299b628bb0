#include "RicercaLocale.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace combi::riduzione {

RicercaLocale::RicercaLocale(const std::vector<Colonna>& colonne, int classe, int punti,
                             const std::vector<uint32_t>& iniziali, uint64_t seme)
    : indice_(colonne, classe, punti),
      punti_(punti),
      maschere_(colonne.size(), {0, 0}),
      coperture_(colonne.size(), 0),
      sommaCoprenti_(colonne.size(), 0),
      peso_(colonne.size(), 1),
      perdita_(colonne.size(), 0),
      posTenuta_(colonne.size(), -1),
      posScoperta_(colonne.size(), -1),
      timbro_(colonne.size(), 0),
      stato_(seme * 0x9E3779B97F4A7C15ull + 0x2545F4914F6CDD1Dull) {
    for (size_t i = 0; i < colonne.size(); ++i)
        for (int pos = 1; pos <= classe; ++pos) {
            const int n = colonne[i][pos];
            maschere_[i][size_t(n >> 6)] |= uint64_t(1) << (n & 63);
        }
    for (uint32_t i = 0; i < uint32_t(colonne.size()); ++i) Scopri(i);
    for (uint32_t c : iniziali) Aggiungi(c);
    // Redundant columns first: every column they cover is covered twice.
    for (bool tolta = true; tolta;) {
        tolta = false;
        for (size_t p = 0; p < tenute_.size(); ++p)
            if (perdita_[tenute_[p]] == 0) {
                Togli(tenute_[p]);
                tolta = true;
                break;
            }
    }
    migliore_ = tenute_;
    std::sort(migliore_.begin(), migliore_.end());
}

// splitmix64: the same sequence on every platform for the same seed.
uint64_t RicercaLocale::Caso() {
    uint64_t z = (stato_ += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}

template <typename F>
void RicercaLocale::PerVicini(uint32_t i, F&& f) {
    if (++giro_ == 0) {
        std::fill(timbro_.begin(), timbro_.end(), 0);
        giro_ = 1;
    }
    indice_.PerVicini(i, [&](uint32_t j) {
        if (timbro_[j] == giro_) return;
        timbro_[j] = giro_;
        f(j);
    });
}

void RicercaLocale::Scopri(uint32_t i) {
    posScoperta_[i] = int32_t(scoperte_.size());
    scoperte_.push_back(i);
}

void RicercaLocale::Copri(uint32_t i) {
    const int32_t p = posScoperta_[i];
    const uint32_t ultima = scoperte_.back();
    scoperte_[size_t(p)] = ultima;
    posScoperta_[ultima] = p;
    scoperte_.pop_back();
    posScoperta_[i] = -1;
}

void RicercaLocale::Aggiungi(uint32_t c) {
    posTenuta_[c] = int32_t(tenute_.size());
    tenute_.push_back(c);
    perdita_[c] = 0;
    PerVicini(c, [&](uint32_t i) {
        if (coperture_[i] == 0) {
            perdita_[c] += peso_[i];
            Copri(i);
        } else if (coperture_[i] == 1) {
            perdita_[sommaCoprenti_[i]] -= peso_[i];  // its only coverer shares it now
        }
        ++coperture_[i];
        sommaCoprenti_[i] += c;
    });
}

void RicercaLocale::Togli(uint32_t c) {
    const int32_t p = posTenuta_[c];
    const uint32_t ultima = tenute_.back();
    tenute_[size_t(p)] = ultima;
    posTenuta_[ultima] = p;
    tenute_.pop_back();
    posTenuta_[c] = -1;
    PerVicini(c, [&](uint32_t i) {
        --coperture_[i];
        sommaCoprenti_[i] -= c;
        if (coperture_[i] == 0)
            Scopri(i);
        else if (coperture_[i] == 1)
            perdita_[sommaCoprenti_[i]] += peso_[i];  // left to one coverer
    });
}

// The kept column whose removal uncovers the least weight, ties at random.
uint32_t RicercaLocale::MenoPerdita() {
    uint32_t scelta = tenute_[0];
    uint64_t pari = 0;
    for (uint32_t k : tenute_) {
        if (perdita_[k] < perdita_[scelta]) {
            scelta = k;
            pari = 1;
        } else if (perdita_[k] == perdita_[scelta] && Caso() % ++pari == 0) {
            scelta = k;
        }
    }
    return scelta;
}

int RicercaLocale::Comuni(uint32_t a, uint32_t b) const {
    return std::popcount(maschere_[a][0] & maschere_[b][0]) + std::popcount(maschere_[a][1] & maschere_[b][1]);
}

uint32_t RicercaLocale::PiuVicinaTenuta(uint32_t u) {
    uint32_t scelta = tenute_[0];
    int vicinanza = -1;
    uint64_t pari = 0;
    for (uint32_t k : tenute_) {
        const int v = Comuni(k, u);
        if (v > vicinanza) {
            scelta = k, vicinanza = v, pari = 1;
        } else if (v == vicinanza && Caso() % ++pari == 0) {
            scelta = k;
        }
    }
    return scelta;
}

// Among the columns covering u nearest to `tolta` (a sample of them), the one
// whose exchange with `tolta` leaves the least uncovered weight: what only
// `tolta` covers and the newcomer does not, less the uncovered it covers.
uint32_t RicercaLocale::MigliorSostituta(uint32_t u, uint32_t tolta, int64_t& variazione) {
    soloDaTolta_.clear();
    PerVicini(tolta, [&](uint32_t i) {
        if (coperture_[i] == 1) soloDaTolta_.push_back(i);
    });
    vicini_.clear();
    int vicinanza = -1;
    PerVicini(u, [&](uint32_t c) {
        if (posTenuta_[c] >= 0) return;
        const int v = Comuni(c, tolta);
        if (v > vicinanza) vicinanza = v, vicini_.clear();
        if (v == vicinanza) vicini_.push_back(c);
    });
    if (vicini_.empty()) vicini_.push_back(u);  // u is not kept: it covers itself
    const size_t provati = std::min(vicini_.size(), kCandidatiProvati);
    uint32_t scelta = vicini_[0];
    variazione = INT64_MAX;
    uint64_t pari = 0;
    for (size_t p = 0; p < provati; ++p) {
        std::swap(vicini_[p], vicini_[p + Caso() % (vicini_.size() - p)]);
        const uint32_t c = vicini_[p];
        int64_t d = 0;
        for (uint32_t i : soloDaTolta_)
            if (!Copre(c, i)) d += peso_[i];
        for (uint32_t i : scoperte_)
            if (Copre(c, i)) d -= peso_[i];
        if (d < variazione) {
            scelta = c, variazione = d, pari = 1;
        } else if (d == variazione && Caso() % ++pari == 0) {
            scelta = c;
        }
    }
    return scelta;
}

bool RicercaLocale::Accetta(int64_t variazione) {
    if (variazione <= 0) return true;
    const double caso = double(Caso() >> 11) * 0x1.0p-53;
    const bool accettata = caso < std::exp(-double(variazione) / temperatura_);
    ++peggioriProposte_;
    peggioriAccettate_ += accettata;
    if (peggioriProposte_ == kPassiTaratura) {
        temperatura_ *= peggioriAccettate_ < kQuotaPeggiori * kPassiTaratura ? 1.1 : 1 / 1.1;
        peggioriProposte_ = peggioriAccettate_ = 0;
    }
    return accettata;
}

bool RicercaLocale::Passo() {
    if (scoperte_.empty()) {
        // A covering set: record it if it is a new best, then try one column fewer.
        const bool nuovo = tenute_.size() < migliore_.size();
        if (nuovo) {
            migliore_ = tenute_;
            std::sort(migliore_.begin(), migliore_.end());
        }
        if (tenute_.size() > 1) Togli(MenoPerdita());
        return nuovo;
    }
    const uint32_t u = scoperte_[Caso() % scoperte_.size()];
    const uint32_t tolta = PiuVicinaTenuta(u);
    int64_t variazione = 0;
    const uint32_t aggiunta = MigliorSostituta(u, tolta, variazione);
    if (Accetta(variazione)) {
        Togli(tolta);
        Aggiungi(aggiunta);
    } else {
        for (uint32_t i : scoperte_) ++peso_[i];
    }
    return false;
}

}  // namespace combi::riduzione
