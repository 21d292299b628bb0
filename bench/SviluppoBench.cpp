// Development speed, reference loop against the multi-core fast path, on a
// 90-number class-6 system restricted to a stretch of its enumeration, with
// eight typical conditions. Both print the same signature (tested, kept and
// a hash of kept columns and counters), which must agree.

#include <benchmark/benchmark.h>

#include <thread>

#include "DecodificaCondizioni.h"
#include "Sviluppo.h"

namespace combi {
namespace {

ParametriSviluppo SistemaTipico() {
    TestiGriglia g;
    g.colonne = {
        {"", "Punti Col.", "01-02-03-04-\r\n05-06-07-08-\r\n09-10-11-12", "0-1", "2", "1"},
        {"", "Pari-Dispari", "Pari", "2-3-4", "1-5", "1"},
        {"", "Peso", "Caselle :\r\n1-2-3-4-5-6", "200-320", "-", ""},
        {"", "Ampiezza", "", "50-80", "-", ""},
        {"", "Consecutivi", "", "0", "", ""},
        {"", "Distanza Minima", "", "3-12", "-", ""},
        {"", "LinkOpen", "", "", "", ""},
        {"", "Vortice", "Diretto", "2-3-4", "1-5", "2"},
        {"", "Interruzioni", "", "2-3-4", "1-5", "2"},
        {"", "LinkClose", "", "1-2", "", ""},
    };
    g.quadri = {"1,1,-1", "1,2,-1"};
    const SistemaDecodificato s = LeggiCondizioni(g);
    ParametriSviluppo p;
    for (int n = 1; n <= 90; ++n) p.numeri.push_back(n);
    p.classe = 6;
    p.condizioni = s.condizioni;
    p.quadri = s.quadri;
    return p;
}

// One share of 2000 out of 622,614,630 columns: about 311,000 columns.
constexpr Quota kTratto{1000, 2000};

uint64_t Firma(const RisultatoSviluppo& r) {
    uint64_t h = 1469598103934665603ull;
    auto mescola = [&h](uint64_t v) { h = (h ^ v) * 1099511628211ull; };
    mescola(r.testate);
    for (const Colonna& c : r.colonne)
        for (uint8_t n : c.Numeri) mescola(n);
    for (const Condizione& c : r.condizioni) mescola(uint64_t(c.ContaSuperate) << 32 | uint32_t(c.ContaRecuperabili));
    return h;
}

void Riporta(benchmark::State& state, const RisultatoSviluppo& r) {
    state.counters["colonne/s"] = benchmark::Counter(double(r.testate), benchmark::Counter::kIsIterationInvariantRate);
    state.counters["tenute"] = double(r.colonne.size());
    state.counters["firma"] = double(Firma(r) % 1000000007ull);
}

void BM_SviluppoRiferimento(benchmark::State& state) {
    const ParametriSviluppo p = SistemaTipico();
    OsservatoreSviluppo oss;
    RisultatoSviluppo r;
    for (auto _ : state) r = SviluppaSistemaRiferimento(p, oss, kTratto);
    Riporta(state, r);
}

void BM_SviluppoVeloce(benchmark::State& state) {
    const ParametriSviluppo p = SistemaTipico();
    OsservatoreSviluppo oss;
    RisultatoSviluppo r;
    for (auto _ : state) r = SviluppaSistema(p, oss, {.thread = int(state.range(0)), .quota = kTratto});
    Riporta(state, r);
}

BENCHMARK(BM_SviluppoRiferimento)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SviluppoVeloce)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace combi
