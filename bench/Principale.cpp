// The benchmarks' entry point: Google Benchmark's own report, and after it
// the development's figures side by side, as ratios measured in the same run
// (medians when the benchmarks are repeated, --benchmark_repetitions=N).

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

namespace {

struct Misura {
    double secondi = 0;
    std::map<std::string, double> contatori;
};

class Raccoglitore : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& prove) override {
        ConsoleReporter::ReportRuns(prove);
        for (const Run& p : prove) {
            if (p.error_occurred) continue;
            if (p.run_type == Run::RT_Aggregate && p.aggregate_name != "median") continue;
            Misura m;
            m.secondi = p.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(p.time_unit);
            for (const auto& [nome, c] : p.counters) m.contatori[nome] = c.value;
            misure[p.run_name.function_name + "/" + p.run_name.args] = m;
        }
    }
    const Misura* Trova(const std::string& nome) const {
        for (const auto& [chiave, m] : misure)
            if (chiave.rfind(nome, 0) == 0) return &m;
        return nullptr;
    }
    std::map<std::string, Misura> misure;
};

void TabellaSviluppo(const Raccoglitore& r) {
    bool intestazione = false;
    for (int n : {50, 90}) {
        for (int ampio : {0, 1}) {
            const std::string sistema = std::to_string(n) + "/" + std::to_string(ampio);
            const Misura* rif = r.Trova("BM_Riferimento/" + sistema);
            const Misura* uno = r.Trova("BM_Veloce/" + sistema + "/1");
            const Misura* due = r.Trova("BM_Veloce/" + sistema + "/2");
            const Misura* conta = r.Trova("BM_Conta/" + sistema + "/2/6");
            const Misura* pavimento = r.Trova("BM_Pavimento/" + sistema);
            if (!due) continue;
            if (!intestazione) {
                std::printf("\nSviluppo, classe 6 (secondi; rapporti misurati in questo stesso giro)\n");
                std::printf("%-12s %12s %11s %9s %9s %8s %10s %9s %9s %10s\n", "sistema", "tenute", "riferimento",
                            "1 thread", "2 thread", "rif/2th", "pavimento", "2th/pav", "conta", "col/s 2th");
                intestazione = true;
            }
            // The reference runs on a sample of the big systems: its time is scaled to the whole.
            const double tRif = rif ? rif->secondi / rif->contatori.at("quota") : 0;
            const double tenute = due->contatori.at("tenute");
            std::printf("%-12s %12.0f %11.2f %9.3f %9.3f %8.0f %10.3f %9.2f %9.3f %10.3g\n",
                        ((ampio ? "ampio " : "selettivo ") + std::to_string(n)).c_str(), tenute, tRif,
                        uno ? uno->secondi : 0.0, due->secondi, rif ? tRif / due->secondi : 0.0,
                        pavimento ? pavimento->secondi : 0.0, pavimento ? due->secondi / pavimento->secondi : 0.0,
                        conta ? conta->secondi : 0.0, due->contatori.at("colonne/s"));
        }
    }
    if (const Misura* c7 = r.Trova("BM_Classe7")) {
        std::printf("classe 7 su 90 numeri, conteggio su 2 thread: %.2f s, %.3g colonne/s\n", c7->secondi,
                    c7->contatori.at("colonne/s"));
    }
}

void TabellaOttimizzazione(const Raccoglitore& r) {
    const char* nomi[] = {"1..20, 3 punti", "1..18, 4 punti", "condizionato 30, 4 punti"};
    const char* noti[] = {"10", "<=42", "n/d"};
    bool intestazione = false;
    for (int s = 0; s < 3; ++s) {
        const Misura* m = r.Trova("BM_Ottimizzazione/" + std::to_string(s));
        if (!m) continue;
        if (!intestazione) {
            std::printf("\nRiduzione ottimizzata, classe 6 (colonne; mediane quando ripetuta)\n");
            std::printf("%-26s %9s %8s %12s %9s %8s %14s\n", "sistema", "colonne", "avida", "ottimizzata",
                        "riduzione", "nota", "s al migliore");
            intestazione = true;
        }
        const double avide = m->contatori.at("avide"), ottime = m->contatori.at("ottimizzate");
        std::printf("%-26s %9.0f %8.0f %12.0f %8.0f%% %8s %14.1f\n", nomi[s], m->contatori.at("colonne"), avide,
                    ottime, 100 * (1 - ottime / avide), noti[s], m->contatori.at("s al migliore"));
    }
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    Raccoglitore raccoglitore;
    benchmark::RunSpecifiedBenchmarks(&raccoglitore);
    TabellaSviluppo(raccoglitore);
    TabellaOttimizzazione(raccoglitore);
    benchmark::Shutdown();
    return 0;
}
