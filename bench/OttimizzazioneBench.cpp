// The optimising reduction against the greedy one, on the figures the README
// quotes: every 6-number column of 1..20 at 3 points (best known 10), of
// 1..18 at 4 points (best known 42 or fewer), and a conditioned system of 30
// numbers at 4 points. One run per repetition, each with its own seed; the
// budget is 60 seconds, CF_BENCH_SECONDI=S shortens it (CI runs 2).

#include <benchmark/benchmark.h>

#include <cstdlib>

#include "Garanzia.h"
#include "RiduzioneOttimizzata.h"

namespace combi {
namespace {

double Budget() {
    const char* s = std::getenv("CF_BENCH_SECONDI");
    return s ? std::atof(s) : 60.0;
}

std::vector<Colonna> Integrale(int n) {
    std::vector<int> numeri;
    for (int x = 1; x <= n; ++x) numeri.push_back(x);
    return ColonneIntegrali(numeri, 6);
}

// The development of a conditioned system written as its conditions: 1..30 in
// class 6, sum 88..97, 2..4 even numbers, at most 3 numbers per decade, at most
// one pair of consecutive numbers (68,741 columns).
std::vector<Colonna> Condizionato() {
    std::vector<Colonna> v;
    for (const Colonna& c : Integrale(30)) {
        int somma = 0, pari = 0, decina[3] = {}, consecutivi = 0;
        for (int q = 1; q <= 6; ++q) {
            somma += c[q];
            pari += c[q] % 2 == 0;
            ++decina[(c[q] - 1) / 10];
            consecutivi += q > 1 && c[q] == c[q - 1] + 1;
        }
        if (somma >= 88 && somma <= 97 && pari >= 2 && pari <= 4 && decina[0] <= 3 && decina[1] <= 3 &&
            decina[2] <= 3 && consecutivi <= 1)
            v.push_back(c);
    }
    return v;
}

class Tempi : public OsservatoreOttimizzazione {
public:
    void MigliorTrovato(std::size_t colonne, double secondi) override {
        (void)colonne;
        ultimo = secondi;
    }
    double ultimo = 0;
};

void BM_Ottimizzazione(benchmark::State& state) {
    const int sistema = int(state.range(0));
    static const std::vector<Colonna> venti = Integrale(20), diciotto = Integrale(18), condizionato = Condizionato();
    const std::vector<Colonna>& colonne = sistema == 0 ? venti : sistema == 1 ? diciotto : condizionato;
    const int punti = sistema == 0 ? 3 : 4;
    static uint64_t seme = 0;
    OsservatoreRiduzione muto;
    const size_t avide = RiduciColonne(colonne, punti, muto).colonne.size();
    RisultatoRiduzione r;
    Tempi tempi;
    for (auto _ : state) {
        OpzioniOttimizzazione opzioni;
        opzioni.secondi = Budget();
        opzioni.seme = ++seme;
        r = RiduciColonneOttimizzate(colonne, punti, opzioni, tempi);
    }
    state.counters["colonne"] = double(colonne.size());
    state.counters["avide"] = double(avide);
    state.counters["ottimizzate"] = double(r.colonne.size());
    state.counters["s al migliore"] = tempi.ultimo;
}

// Argument: 0 = 1..20 at 3 points, 1 = 1..18 at 4 points, 2 = the conditioned system.
BENCHMARK(BM_Ottimizzazione)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kSecond)->Iterations(1)->UseRealTime();

}  // namespace
}  // namespace combi
