// Back-test speed: 10,000 draws against 1,000,000 columns, the bit planes on
// one and on two threads, against the plain per-column loop measured in the
// same run on the first 50 draws (its time grows linearly with the draws, so
// 10,000 draws take 200 times as long).
//
// Lotto: class-6 columns and five-number draws, eleven wheels a date.
// 10ELotto: class-10 columns and twenty-number draws, the heaviest case.
// Both paths print the same signature on the same draws: draws, draws with a
// hit at 3 points and a hash of every per-draw count.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

#include "VerificaStorico.h"

namespace combi {
namespace {

constexpr size_t kColonne = 1'000'000;
constexpr size_t kEstrazioni = 10'000;
constexpr int kMinimo = 3;

// `quanti` different numbers 1..90, ascending when `ordina`.
std::vector<int> Sorteggio(std::mt19937& rng, int quanti, bool ordina) {
    std::vector<int> numeri(kMaxNumero);
    for (int n = 0; n < kMaxNumero; ++n) numeri[size_t(n)] = n + 1;
    for (int p = 0; p < quanti; ++p) std::swap(numeri[size_t(p)], numeri[size_t(p) + rng() % size_t(kMaxNumero - p)]);
    numeri.resize(size_t(quanti));
    if (ordina) std::sort(numeri.begin(), numeri.end());
    return numeri;
}

std::vector<Colonna> Colonne(int classe) {
    std::mt19937 rng(20240616 + unsigned(classe));
    std::vector<Colonna> v(kColonne);
    for (Colonna& c : v) {
        const std::vector<int> numeri = Sorteggio(rng, classe, true);
        for (int p = 1; p <= classe; ++p) c[p] = uint8_t(numeri[size_t(p) - 1]);
    }
    return v;
}

std::vector<Estrazione> Estrazioni(GiocoArchivio gioco) {
    std::mt19937 rng(16);
    std::vector<Estrazione> v(kEstrazioni);
    for (size_t i = 0; i < v.size(); ++i) {
        Estrazione& e = v[i];
        const bool lotto = gioco == GiocoArchivio::kLotto;
        const size_t concorso = lotto ? i / kRuoteLotto : i;
        e.ruota = uint8_t(lotto ? i % kRuoteLotto : kRuotaDieciELotto);
        e.data = int32_t(2000 + concorso / 300) * 10000 + int32_t(concorso % 300 / 25 + 1) * 100 +
                 int32_t(concorso % 25 + 1);
        e.quanti = uint8_t(NumeriEstratti(gioco));
        const std::vector<int> numeri = Sorteggio(rng, e.quanti, false);
        for (size_t k = 0; k < e.quanti; ++k) e.numeri[k] = uint8_t(numeri[k]);
    }
    return v;
}

struct Caso {
    GiocoArchivio gioco;
    std::vector<Colonna> colonne;
    std::vector<Estrazione> estrazioni;
};

const Caso& Lotto() {
    static const Caso c{GiocoArchivio::kLotto, Colonne(6), Estrazioni(GiocoArchivio::kLotto)};
    return c;
}
const Caso& DieciELotto() {
    static const Caso c{GiocoArchivio::kDieciELotto, Colonne(10), Estrazioni(GiocoArchivio::kDieciELotto)};
    return c;
}

uint64_t Firma(const EsitoStorico& e) {
    uint64_t h = 1469598103934665603ull;
    for (const EsitoEstrazione& d : e.estrazioni)
        for (int64_t n : d.conte) h = (h ^ uint64_t(n)) * 1099511628211ull;
    return h;
}

// state.range(0): draws; state.range(1): threads (0 for the plain loop).
template <const Caso& (*Dati)()>
void BM_Storico(benchmark::State& state) {
    const Caso& caso = Dati();
    const std::vector<Estrazione> estrazioni(caso.estrazioni.begin(), caso.estrazioni.begin() + state.range(0));
    ParametriStorico p;
    p.gioco = caso.gioco;
    p.puntiMinimi = kMinimo;
    p.thread = int(state.range(1));
    OsservatoreStorico muto;
    EsitoStorico e;
    for (auto _ : state) {
        e = p.thread == 0 ? VerificaStoricoRiferimento(caso.colonne, estrazioni, p, muto)
                          : VerificaStorico(caso.colonne, estrazioni, p, muto);
        benchmark::DoNotOptimize(e.totali.data());
    }
    state.counters["colonne"] = double(caso.colonne.size());
    state.counters["estrazioni"] = double(e.estrazioni.size());
    state.counters["con3punti"] = double(e.estrazioniConVincite);
    state.counters["firma"] = double(Firma(e) % 1000000007ull);
}

void Configura(benchmark::internal::Benchmark* b) {
    b->Args({50, 0})->Args({50, 2})->Args({kEstrazioni, 1})->Args({kEstrazioni, 2});
    b->ArgNames({"estrazioni", "thread"})->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(3);
    b->DisplayAggregatesOnly(true)->UseRealTime();
}

BENCHMARK(BM_Storico<Lotto>)->Name("Storico/Lotto")->Apply(Configura);
BENCHMARK(BM_Storico<DieciELotto>)->Name("Storico/10ELotto")->Apply(Configura);

}  // namespace
}  // namespace combi
