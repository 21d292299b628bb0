// Reduction speed: the all-pairs reference against the indexed path, on
// random class-6 columns at 4 required points ("N - 2"), measured in one run.
//
// The reference is quadratic (the analysis compares every column with every
// other; the selection compares every kept column with every other), so it
// runs on the first 10,000 and 20,000 columns only. Its time on 200,000
// columns is estimated by the square law: T(200,000) ~ T(20,000) x 100.
// Both paths print the same signature (columns left and a hash of them) at
// equal sizes, which must agree.

#include <benchmark/benchmark.h>

#include <random>

#include "Riduzione.h"

namespace combi {
namespace {

constexpr int kPunti = 4;

const std::vector<Colonna>& ColonneCasuali() {
    static const std::vector<Colonna> colonne = [] {
        std::mt19937 rng(20240601);
        std::vector<int> numeri(kMaxNumero);
        for (int n = 0; n < kMaxNumero; ++n) numeri[size_t(n)] = n + 1;
        std::vector<Colonna> v(200'000);
        for (Colonna& c : v) {
            for (int p = 0; p < 6; ++p) std::swap(numeri[size_t(p)], numeri[size_t(p) + rng() % size_t(kMaxNumero - p)]);
            std::vector<int> sei(numeri.begin(), numeri.begin() + 6);
            std::sort(sei.begin(), sei.end());
            for (int p = 1; p <= 6; ++p) c[p] = uint8_t(sei[size_t(p) - 1]);
        }
        return v;
    }();
    return colonne;
}

uint64_t Firma(const std::vector<Colonna>& colonne) {
    uint64_t h = 1469598103934665603ull;
    for (const Colonna& c : colonne)
        for (uint8_t n : c.Numeri) h = (h ^ n) * 1099511628211ull;
    return h;
}

template <RisultatoRiduzione (*Riduci)(const std::vector<Colonna>&, int, OsservatoreRiduzione&)>
void BM_Riduzione(benchmark::State& state) {
    const auto& tutte = ColonneCasuali();
    const std::vector<Colonna> colonne(tutte.begin(), tutte.begin() + state.range(0));
    OsservatoreRiduzione muto;
    RisultatoRiduzione r;
    for (auto _ : state) {
        r = Riduci(colonne, kPunti, muto);
        benchmark::DoNotOptimize(r.colonne.data());
    }
    state.counters["colonne"] = double(colonne.size());
    state.counters["rimaste"] = double(r.colonne.size());
    state.counters["firma"] = double(Firma(r.colonne) % 1000000007ull);
}

BENCHMARK(BM_Riduzione<RiduciColonneRiferimento>)
    ->Name("Riduzione/riferimento")->Arg(10'000)->Arg(20'000)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_Riduzione<RiduciColonne>)
    ->Name("Riduzione/indice")->Arg(10'000)->Arg(20'000)->Arg(200'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace combi
