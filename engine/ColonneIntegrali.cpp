// Every combination of a list of numbers in a class (Garanzia.h).

#include <algorithm>
#include <string>

#include "Errore.h"
#include "Garanzia.h"

namespace combi {

void ControllaNumeri(const std::vector<int>& numeri) {
    bool visto[kMaxNumero + 1] = {};
    for (int n : numeri) {
        if (n < 1 || n > kMaxNumero) throw Errore(kErroreArgomento, "Inserire numeri da 1 a 90, non " + std::to_string(n));
        if (visto[n]) throw Errore(kErroreArgomento, "Il numero " + std::to_string(n) + " è ripetuto");
        visto[n] = true;
    }
}

std::vector<Colonna> ColonneIntegrali(const std::vector<int>& numeri, int classe) {
    ControllaNumeri(numeri);
    const int n = int(numeri.size());
    if (classe < 1 || classe > kMaxClasse || classe > n)
        throw Errore(kErroreArgomento, "La classe deve essere da 1 a " + std::to_string(std::min(n, kMaxClasse)) +
                                           ", non " + std::to_string(classe));
    double quante = 1;  // C(n, classe), in floating point: it may not fit any integer
    for (int k = 0; k < classe; ++k) quante = quante * (n - k) / (k + 1);
    if (quante > double(kMassimoColonneInMemoria))
        throw Errore(kErroreMemoria, "Troppe colonne integrali: " + std::to_string(uint64_t(quante)));
    std::vector<Colonna> colonne;
    colonne.reserve(size_t(quante + 0.5));
    int p[kMaxClasse];
    for (int m = 0; m < classe; ++m) p[m] = m;
    for (;;) {
        Colonna c;
        for (int m = 0; m < classe; ++m) c.Numeri[size_t(m)] = uint8_t(numeri[size_t(p[m])]);
        std::sort(c.Numeri.begin(), c.Numeri.begin() + classe);
        colonne.push_back(c);
        int m = classe - 1;
        while (m >= 0 && p[m] == n - classe + m) --m;
        if (m < 0) return colonne;
        ++p[m];
        for (int q = m + 1; q < classe; ++q) p[q] = p[q - 1] + 1;
    }
}

}  // namespace combi
