#pragma once
// The development's two measured workloads, over every number 1..N in class
// 6 with one recovery panel "1,1,-1":
//  - selective: keeps about one column in twenty (90 numbers: 38 million of
//    622 million);
//  - broad: keeps about half of them.
// Written as grid texts, as the control would hand them to the engine.

#include <string>

#include "DecodificaCondizioni.h"
#include "FileSistema.h"
#include "Sviluppo.h"

namespace combi::bench {

inline std::string OgniTerzo(int n) {
    std::string s;
    for (int x = 1; x <= n; x += 3) s += (s.empty() ? "" : "-") + std::to_string(x);
    return s;
}

// The mean sum of a column of 1..n, widened by a fraction each way and cut
// to whole numbers (245-300 for 90 numbers, class 6 and 10 %).
inline std::string PesoIntorno(int n, int classe, double frazione) {
    const double media = classe * (n + 1) / 2.0;
    return std::to_string(int(media * (1 - frazione))) + "-" + std::to_string(int(media * (1 + frazione)));
}

inline std::string Caselle(int classe) {
    std::string s = "Caselle :\r\n";
    for (int i = 1; i <= classe; ++i) s += (i > 1 ? "-" : "") + std::to_string(i);
    return s;
}

inline TestiGriglia GrigliaSelettiva(int n, int classe = 6) {
    TestiGriglia g;
    g.colonne = {
        {"", "Punti Col.", OgniTerzo(n), "2-3", "1", "1"},
        {"", "Pari-Dispari", "Pari", "3", "4", "1"},
        {"", "Peso", Caselle(classe), PesoIntorno(n, classe, 0.10), "-", ""},
        {"", "Ampiezza", "", std::to_string(n * 2 / 3) + "-" + std::to_string(n - 3), "-", ""},
        {"", "LinkOpen", "", "", "", ""},
        {"", "Consecutivi", "", "0", "", ""},
        {"", "Distanza Minima", "", "2-" + std::to_string(n), "-", ""},
        {"", "LinkClose", "", "1-2", "", ""},
        {"", "Vortice", "Diretto", "2-3-4", "", ""},
    };
    g.quadri = {"1,1,-1"};
    return g;
}

inline TestiGriglia GrigliaAmpia(int n, int classe = 6) {
    TestiGriglia g;
    g.colonne = {
        {"", "Punti Col.", OgniTerzo(n), "1-2-3", "0-4", "1"},
        {"", "Pari-Dispari", "Pari", "2-3-4", "1-5", "1"},
        {"", "Peso", Caselle(classe), PesoIntorno(n, classe, 0.25), "-", ""},
        {"", "Ampiezza", "", std::to_string(n / 2) + "-" + std::to_string(n - 1), "-", ""},
        {"", "LinkOpen", "", "", "", ""},
        {"", "Consecutivi", "", "1-2", "", ""},
        {"", "Distanza Minima", "", "3-" + std::to_string(n), "-", ""},
        {"", "LinkClose", "", "1-2", "", ""},
        {"", "Vortice", "Diretto", "2-3-4-5-6", "1", "1"},
    };
    g.quadri = {"1,1,-1"};
    return g;
}

inline ParametriSviluppo Carico(const TestiGriglia& g, int n, int classe = 6) {
    const SistemaDecodificato s = LeggiCondizioni(g);
    ParametriSviluppo p;
    for (int x = 1; x <= n; ++x) p.numeri.push_back(x);
    p.classe = classe;
    p.condizioni = s.condizioni;
    p.quadri = s.quadri;
    return p;
}

inline FileSistema FileDelCarico(const ParametriSviluppo& p) {
    FileSistema f;
    f.intestazione.classe = int16_t(p.classe);
    for (int x : p.numeri) f.intestazione.numeri[size_t(x)] = -1;
    f.quadri = p.quadri;
    f.condizioni = p.condizioni;
    return f;
}

}  // namespace combi::bench
