// Development speed on the two measured workloads (selective and broad, over
// 50 and 90 numbers, class 6), all in one run:
//  - Riferimento: the plain loop. Over 90 numbers it would take minutes, so
//    it runs on 16 shares of 1/1600 spread over the enumeration and its
//    time is scaled to the whole system (the loop's cost per column does not
//    depend on where the column lies);
//  - Veloce: the fast path writing the kept columns to a columns file, on 1
//    and 2 threads;
//  - Conta: the fast path counting only;
//  - Pavimento: the floor, writing the same number of bytes to the same
//    folder (CF_CARTELLA_BENCH, else /dev/shm, else /tmp).
// Classe7 reports the counting rate over 90 numbers in class 7 (7.5 billion
// columns). Firma prints the signature (tested, kept, a hash of the kept
// columns and the counters) of both paths on 36 numbers: they must agree.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <map>

#include "CarichiSviluppo.h"
#include "ColonneInMemoria.h"
#include "Conteggi.h"
#include "ScritturaColonne.h"
#include "Sviluppo.h"

namespace combi::bench {
namespace {

std::string Cartella() {
    if (const char* c = std::getenv("CF_CARTELLA_BENCH")) return c;
    return std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "/tmp";
}

const ParametriSviluppo& CaricoDi(int n, bool ampio, int classe = 6) {
    static std::map<std::tuple<int, bool, int>, ParametriSviluppo> carichi;
    auto [it, nuovo] = carichi.try_emplace({n, ampio, classe});
    if (nuovo) it->second = Carico(ampio ? GrigliaAmpia(n, classe) : GrigliaSelettiva(n, classe), n, classe);
    return it->second;
}

// Kept columns of a workload, counted once.
uint64_t TenuteDi(int n, bool ampio) {
    static std::map<std::pair<int, bool>, uint64_t> tenute;
    auto [it, nuovo] = tenute.try_emplace({n, ampio});
    OsservatoreSviluppo muto;
    if (nuovo) it->second = ContaSistema(CaricoDi(n, ampio), muto).tenute;
    return it->second;
}

std::string FileColonne(const char* nome) { return Cartella() + "/cf-bench-" + nome + ".col"; }

void Riporta(benchmark::State& state, uint64_t testate, uint64_t tenute) {
    state.counters["colonne/s"] = benchmark::Counter(double(testate), benchmark::Counter::kIsIterationInvariantRate);
    state.counters["tenute"] = double(tenute);
}

constexpr int kCampioni = 16;
constexpr int kQuoteCampione = 1600;

void BM_Riferimento(benchmark::State& state) {
    const ParametriSviluppo& p = CaricoDi(int(state.range(0)), state.range(1) != 0);
    const bool campione = p.numeri.size() > 50;
    OsservatoreSviluppo muto;
    uint64_t testate = 0, tenute = 0;
    for (auto _ : state) {
        testate = tenute = 0;
        for (int i = 0; i < (campione ? kCampioni : 1); ++i) {
            const Quota q = campione ? Quota{1 + i * (kQuoteCampione / kCampioni), kQuoteCampione} : Quota{};
            const RisultatoSviluppo r = SviluppaSistemaRiferimento(p, muto, q);
            testate += r.testate;
            tenute += r.colonne.size();
        }
    }
    Riporta(state, testate, tenute);
    // The time of the whole system, by the share of it tested.
    state.counters["quota"] = double(testate) / double(Combinazioni(int(p.numeri.size()), p.classe));
}

void BM_Veloce(benchmark::State& state) {
    const ParametriSviluppo& p = CaricoDi(int(state.range(0)), state.range(1) != 0);
    OsservatoreSviluppo muto;
    EsitoSviluppo r;
    for (auto _ : state) {
        ScritturaColonne scrittura(FileColonne("veloce"));
        r = SviluppaSistema(p, muto, &scrittura, {.thread = int(state.range(2)), .quota = {}});
        scrittura.Concludi();
    }
    Riporta(state, r.testate, r.tenute);
    std::filesystem::remove(FileColonne("veloce"));
}

void BM_Conta(benchmark::State& state) {
    const ParametriSviluppo& p = CaricoDi(int(state.range(0)), state.range(1) != 0, int(state.range(3)));
    OsservatoreSviluppo muto;
    EsitoSviluppo r;
    for (auto _ : state) r = ContaSistema(p, muto, {.thread = int(state.range(2)), .quota = {}});
    Riporta(state, r.testate, r.tenute);
}

// The same number of bytes as the kept columns, written the same way to the
// same folder: what the hardware needs at least.
void BM_Pavimento(benchmark::State& state) {
    const uint64_t tenute = TenuteDi(int(state.range(0)), state.range(1) != 0);
    const std::vector<Colonna> blocco(kPassoProgresso);
    for (auto _ : state) {
        ScritturaColonne scrittura(FileColonne("pavimento"));
        for (uint64_t scritte = 0; scritte < tenute; scritte += blocco.size())
            scrittura.Accoda(std::span(blocco).first(std::min<uint64_t>(blocco.size(), tenute - scritte)));
        scrittura.Concludi();
    }
    state.counters["tenute"] = double(tenute);
    std::filesystem::remove(FileColonne("pavimento"));
}

uint64_t Firma(uint64_t testate, const std::vector<Colonna>& colonne, const TabellaCondizioni& condizioni) {
    uint64_t h = 1469598103934665603ull;
    auto mescola = [&h](uint64_t v) { h = (h ^ v) * 1099511628211ull; };
    mescola(testate);
    for (const Colonna& c : colonne)
        for (uint8_t n : c.Numeri) mescola(n);
    for (const Condizione& c : condizioni) {
        mescola(uint64_t(uint32_t(c.ContaFallite)));
        mescola(uint64_t(c.ContaSuperate) << 32 | uint32_t(c.ContaRecuperabili));
    }
    return h;
}

void BM_Firma(benchmark::State& state) {
    const ParametriSviluppo& p = CaricoDi(36, state.range(0) != 0);
    OsservatoreSviluppo muto;
    RisultatoSviluppo r;
    for (auto _ : state)
        r = state.range(1) != 0 ? SviluppaSistemaRiferimento(p, muto) : SviluppaSistema(p, muto, {.thread = 2, .quota = {}});
    Riporta(state, r.testate, r.colonne.size());
    state.SetLabel("firma " + std::to_string(Firma(r.testate, r.colonne, r.condizioni)));
}

// Arguments: numbers, broad (0 or 1), threads, class.
BENCHMARK(BM_Riferimento)->Args({50, 0})->Args({50, 1})->Args({90, 0})->Args({90, 1})
    ->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_Veloce)->Args({50, 0, 1})->Args({50, 0, 2})->Args({50, 1, 1})->Args({50, 1, 2})
    ->Args({90, 0, 2})->Args({90, 1, 2})->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Conta)->Args({50, 0, 2, 6})->Args({50, 1, 2, 6})->Args({90, 0, 2, 6})->Args({90, 1, 2, 6})
    ->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Conta)->Name("BM_Classe7")->Args({90, 0, 2, 7})->Unit(benchmark::kMillisecond)->UseRealTime()
    ->Iterations(1);
BENCHMARK(BM_Pavimento)->Args({50, 0})->Args({50, 1})->Args({90, 0})->Args({90, 1})
    ->Unit(benchmark::kMillisecond)->UseRealTime();
// Arguments: broad (0 or 1), reference (0 or 1).
BENCHMARK(BM_Firma)->Args({0, 1})->Args({0, 0})->Args({1, 1})->Args({1, 0})->Unit(benchmark::kMillisecond)
    ->Iterations(1);

}  // namespace
}  // namespace combi::bench
