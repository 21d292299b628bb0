#include "RiduzioneIndice.h"

#include <bit>
#include <string>

#include "Errore.h"
#include "Riduzione.h"
#include "Sottoinsiemi.h"

namespace combi::riduzione {

namespace {

using sottoinsiemi::C;

// Key spaces up to this size may be counted in a plain array (C(90,4) fits,
// C(90,5) does not) ...
constexpr uint64_t kMassimoDenso = 3'000'000;
// ... when the columns fill it at least twice over. Below that the sorted
// pairs win: the array's random increments miss the cache on every access
// (measured: 200,000 columns at 4 points reduce in 218 ms sorted, 267 ms
// dense), but the pairs take 16 bytes per subset, too much for a million
// columns at 3 points, where the array wins.
constexpr uint64_t kRiempimentoDenso = 2;

// Below this many pairs a comparison sort beats the counting passes, whose
// two tables of 65537 counters cost more to clear than a small file to sort.
constexpr size_t kMinimoConteggio = 4096;

// The pairs sorted by their rank (the bits from `spostamento` up), stable
// 16-bit counting passes. Ranks of 6-subsets, below 2^30, make the second pass short.
void OrdinaPerRango(std::vector<uint64_t>& v, int spostamento) {
    if (v.size() < kMinimoConteggio) {
        std::stable_sort(v.begin(), v.end(),
                         [spostamento](uint64_t a, uint64_t b) { return (a >> spostamento) < (b >> spostamento); });
        return;
    }
    std::vector<uint64_t> appoggio(v.size());
    for (int shift = spostamento; shift < 64; shift += 16) {
        std::vector<size_t> posizione(65537, 0);
        for (uint64_t x : v) ++posizione[((x >> shift) & 0xFFFF) + 1];
        for (size_t d = 1; d < posizione.size(); ++d) posizione[d] += posizione[d - 1];
        for (uint64_t x : v) appoggio[posizione[(x >> shift) & 0xFFFF]++] = x;
        v.swap(appoggio);
    }
}

}  // namespace

int SpostamentoCoppie(int m) {
    return m <= kNumeriRiduzione ? 32 : 64 - int(std::bit_width(C(kMaxNumero, m) - 1));
}

IndiceCoperture::IndiceCoperture(const std::vector<Colonna>& colonne, int classe, int punti)
    : numeri_(colonne.size()), classe_(classe), punti_(punti), conte_(colonne.size()), somme_(colonne.size(), 0) {
    // Insertion into ascending order: the numbers of a file need not be sorted.
    for (size_t i = 0; i < colonne.size(); ++i) sottoinsiemi::NumeriOrdinati(colonne[i], classe, numeri_[i].data());
    if (colonne.size() >= (uint64_t(1) << SpostamentoCoppie(classe)))
        throw Errore(kErroreMemoria, "Troppe colonne da ridurre in classe " + std::to_string(classe) + ": " +
                                         std::to_string(colonne.size()));
    auto denso = [&](int k) {
        const uint64_t voci = colonne.size() * C(classe, k);
        return C(kMaxNumero, k) <= kMassimoDenso && C(kMaxNumero, k) <= kRiempimentoDenso * voci &&
               voci < (uint64_t(1) << 32);  // list offsets are 32-bit
    };
    denso_ = denso(punti);
    spostamento_ = SpostamentoCoppie(punti);
    for (int k = punti; k <= classe; ++k) {
        // (-1)^(k-t) C(k-1, t-1)
        const int64_t coefficiente = ((k - punti) % 2 ? -1 : 1) * int64_t(C(k - 1, punti - 1));
        if (denso(k))
            ContaDenso(k, coefficiente);
        else
            ContaSparso(k, coefficiente);
    }
    for (size_t i = 0; i < conte_.size(); ++i) conte_[i] = int32_t(somme_[i] - 1);  // not itself
    somme_ = {};
}

int IndiceCoperture::Sottoinsiemi(uint32_t i, int k, uint64_t* ranghi) const {
    int quanti = 0;
    sottoinsiemi::PerSottoinsiemi(numeri_[i].data(), classe_, k, [&](uint64_t r) { ranghi[quanti++] = r; });
    return quanti;
}

void IndiceCoperture::ContaDenso(int k, int64_t coefficiente) {
    const uint32_t chiavi = uint32_t(C(kMaxNumero, k));
    std::vector<uint32_t> quante(chiavi, 0);
    uint64_t ranghi[kMassimiSottoinsiemi];
    const uint32_t n = uint32_t(numeri_.size());
    for (uint32_t i = 0; i < n; ++i) {
        const int q = Sottoinsiemi(i, k, ranghi);
        for (int s = 0; s < q; ++s) ++quante[ranghi[s]];
    }
    for (uint32_t i = 0; i < n; ++i) {
        const int q = Sottoinsiemi(i, k, ranghi);
        int64_t a = 0;
        for (int s = 0; s < q; ++s) a += quante[ranghi[s]];
        somme_[i] += coefficiente * a;
    }
    if (k != punti_) return;
    // The lists of the t-subsets, for the selection; the counts become the
    // fill cursors, so no second array of the key space is touched.
    inizio_.assign(size_t(chiavi) + 1, 0);
    for (uint32_t r = 0; r < chiavi; ++r) {
        inizio_[r + 1] = inizio_[r] + quante[r];
        quante[r] = inizio_[r];
    }
    membri_.resize(inizio_[chiavi]);
    for (uint32_t i = 0; i < n; ++i) {
        const int q = Sottoinsiemi(i, k, ranghi);
        for (int s = 0; s < q; ++s) membri_[quante[ranghi[s]]++] = i;
    }
}

void IndiceCoperture::ContaSparso(int k, int64_t coefficiente) {
    const int spostamento = SpostamentoCoppie(k);
    std::vector<uint64_t> coppie;
    coppie.reserve(numeri_.size() * C(classe_, k));
    uint64_t ranghi[kMassimiSottoinsiemi];
    for (uint32_t i = 0; i < uint32_t(numeri_.size()); ++i) {
        const int q = Sottoinsiemi(i, k, ranghi);
        for (int s = 0; s < q; ++s) coppie.push_back(ranghi[s] << spostamento | i);
    }
    OrdinaPerRango(coppie, spostamento);
    const uint64_t maschera = (uint64_t(1) << spostamento) - 1;
    for (size_t a = 0; a < coppie.size();) {
        size_t b = a;
        while (b < coppie.size() && (coppie[b] >> spostamento) == (coppie[a] >> spostamento)) ++b;
        for (size_t m = a; m < b; ++m) somme_[coppie[m] & maschera] += coefficiente * int64_t(b - a);
        a = b;
    }
    if (k == punti_) coppie_ = std::move(coppie);
}

}  // namespace combi::riduzione
