#include "RiduzioneIndice.h"

#include "Riduzione.h"

namespace combi::riduzione {

namespace {

// Binomial coefficients C(n, k), n 0..90, k 0..6; C(90,6) = 622,614,630.
struct Binomiali {
    uint32_t c[kMaxNumero + 1][kNumeriRiduzione + 1] = {};
    constexpr Binomiali() {
        for (int n = 0; n <= kMaxNumero; ++n) {
            c[n][0] = 1;
            for (int k = 1; k <= kNumeriRiduzione && k <= n; ++k)
                c[n][k] = c[n - 1][k - 1] + (k <= n - 1 ? c[n - 1][k] : 0);
        }
    }
};
constexpr Binomiali kBinomiali;

uint32_t C(int n, int k) { return kBinomiali.c[n][k]; }

// Key spaces up to this size may be counted in a plain array (C(90,4) fits,
// C(90,5) does not) ...
constexpr uint32_t kMassimoDenso = 3'000'000;
// ... when the columns fill it at least twice over. Below that the sorted
// pairs win: the array's random increments miss the cache on every access
// (measured: 200,000 columns at 4 points reduce in 218 ms sorted, 267 ms
// dense), but the pairs take 16 bytes per subset, too much for a million
// columns at 3 points, where the array wins.
constexpr uint64_t kRiempimentoDenso = 2;

// Below this many pairs a comparison sort beats the counting passes, whose
// two tables of 65537 counters cost more to clear than a small file to sort.
constexpr size_t kMinimoConteggio = 4096;

// The pairs sorted by their upper 32 bits (the subset rank), two stable
// 16-bit counting passes. Ranks below 2^30 make the second pass short.
void OrdinaPerRango(std::vector<uint64_t>& v) {
    if (v.size() < kMinimoConteggio) {
        std::stable_sort(v.begin(), v.end(), [](uint64_t a, uint64_t b) { return (a >> 32) < (b >> 32); });
        return;
    }
    std::vector<uint64_t> appoggio(v.size());
    for (int shift = 32; shift < 64; shift += 16) {
        std::vector<size_t> posizione(65537, 0);
        for (uint64_t x : v) ++posizione[((x >> shift) & 0xFFFF) + 1];
        for (size_t d = 1; d < posizione.size(); ++d) posizione[d] += posizione[d - 1];
        for (uint64_t x : v) appoggio[posizione[(x >> shift) & 0xFFFF]++] = x;
        v.swap(appoggio);
    }
}

}  // namespace

IndiceCoperture::IndiceCoperture(const std::vector<Colonna>& colonne, int punti)
    : sestine_(colonne.size()), punti_(punti), conte_(colonne.size()), somme_(colonne.size(), 0) {
    for (size_t i = 0; i < colonne.size(); ++i) {
        // Insertion into ascending order: the numbers of a file need not be sorted.
        Sestina& s = sestine_[i];
        for (int pos = 0; pos < kNumeriRiduzione; ++pos) {
            const uint8_t numero = uint8_t(colonne[i][pos + 1] - 1);
            int q = pos;
            for (; q > 0 && s[size_t(q) - 1] > numero; --q) s[size_t(q)] = s[size_t(q) - 1];
            s[size_t(q)] = numero;
        }
    }
    auto denso = [&](int k) {
        const uint64_t voci = colonne.size() * C(kNumeriRiduzione, k);
        return C(kMaxNumero, k) <= kMassimoDenso && C(kMaxNumero, k) <= kRiempimentoDenso * voci &&
               voci < (uint64_t(1) << 32);  // list offsets are 32-bit
    };
    denso_ = denso(punti);
    for (int k = punti; k <= kNumeriRiduzione; ++k) {
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

int IndiceCoperture::Sottoinsiemi(uint32_t i, int k, uint32_t* ranghi) const {
    const Sestina& a = sestine_[i];
    int quanti = 0;
    // Positions p1 < ... < pk of 0..5 in lexicographic order, by hand-rolled
    // odometer: k is at most 6, so this is at most 20 subsets.
    int p[kNumeriRiduzione];
    for (int m = 0; m < k; ++m) p[m] = m;
    for (;;) {
        uint32_t r = 0;
        for (int m = 0; m < k; ++m) r += C(a[size_t(p[m])], m + 1);
        ranghi[quanti++] = r;
        int m = k - 1;
        while (m >= 0 && p[m] == kNumeriRiduzione - k + m) --m;
        if (m < 0) return quanti;
        ++p[m];
        for (int q = m + 1; q < k; ++q) p[q] = p[q - 1] + 1;
    }
}

void IndiceCoperture::ContaDenso(int k, int64_t coefficiente) {
    const uint32_t chiavi = C(kMaxNumero, k);
    std::vector<uint32_t> quante(chiavi, 0);
    uint32_t ranghi[20];
    const uint32_t n = uint32_t(sestine_.size());
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
    inizio_.resize(size_t(chiavi) + 1);
    inizio_[0] = 0;
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
    std::vector<uint64_t> coppie;
    coppie.reserve(sestine_.size() * C(kNumeriRiduzione, k));
    uint32_t ranghi[20];
    for (uint32_t i = 0; i < uint32_t(sestine_.size()); ++i) {
        const int q = Sottoinsiemi(i, k, ranghi);
        for (int s = 0; s < q; ++s) coppie.push_back(uint64_t(ranghi[s]) << 32 | i);
    }
    OrdinaPerRango(coppie);
    for (size_t a = 0; a < coppie.size();) {
        size_t b = a;
        while (b < coppie.size() && (coppie[b] >> 32) == (coppie[a] >> 32)) ++b;
        for (size_t m = a; m < b; ++m) somme_[uint32_t(coppie[m])] += coefficiente * int64_t(b - a);
        a = b;
    }
    if (k == punti_) coppie_ = std::move(coppie);
}

}  // namespace combi::riduzione
