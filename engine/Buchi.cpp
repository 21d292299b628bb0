#include "Buchi.h"

#include <algorithm>
#include <string>

#include "Errore.h"
#include "Garanzia.h"
#include "RiduzioneFasi.h"
#include "Sottoinsiemi.h"

namespace combi::riduzione {

SottoinsiemiTenuti::SottoinsiemiTenuti(const std::vector<Colonna>& tenute, int posizioni, int punti)
    : posizioni_(posizioni), punti_(punti) {
    uint8_t a[kMaxClasse];
    for (const Colonna& c : tenute) {
        const int quanti = sottoinsiemi::NumeriOrdinati(c, posizioni, a);
        sottoinsiemi::PerSottoinsiemi(a, quanti, punti, [&](uint64_t r) { ranghi_.push_back(r); });
    }
    std::sort(ranghi_.begin(), ranghi_.end());
    ranghi_.erase(std::unique(ranghi_.begin(), ranghi_.end()), ranghi_.end());
}

bool SottoinsiemiTenuti::Coperta(const Colonna& c) const {
    uint8_t a[kMaxClasse];
    const int quanti = sottoinsiemi::NumeriOrdinati(c, posizioni_, a);
    bool trovato = false;
    // The enumeration runs to its end; C(20,10) subsets at worst, C(6,3) = 20 as a rule.
    sottoinsiemi::PerSottoinsiemi(a, quanti, punti_, [&](uint64_t r) {
        trovato = trovato || std::binary_search(ranghi_.begin(), ranghi_.end(), r);
    });
    return trovato;
}

void ControllaNumeri(const std::vector<Colonna>& colonne, int posizioni, const char* cosa) {
    for (size_t i = 0; i < colonne.size(); ++i) {
        bool visto[256] = {};
        for (int pos = 1; pos <= posizioni; ++pos) {
            const int n = colonne[i][pos];
            if (n == 0) continue;
            if (n > kMaxNumero || visto[n])
                throw Errore(kErroreFormatoFile, std::string("La colonna ") + std::to_string(i + 1) + " " + cosa +
                                                     " ha numeri ripetuti o maggiori di 90");
            visto[n] = true;
        }
    }
}

uint64_t ContaBuchi(const std::vector<Colonna>& tenute, const std::vector<Colonna>& daCoprire, int posizioni,
                    int punti) {
    const SottoinsiemiTenuti indice(tenute, posizioni, punti);
    uint64_t buchi = 0;
    for (const Colonna& c : daCoprire) buchi += !indice.Coperta(c);
    return buchi;
}

}  // namespace combi::riduzione

namespace combi {

std::vector<Colonna> CercaBuchi(const std::vector<Colonna>& tenute, const std::vector<Colonna>& daCoprire, int punti,
                                OsservatoreRiduzione& oss) {
    if (punti < 1 || punti > sottoinsiemi::kMassimoK)
        throw Errore(kErroreArgomento, "I punti richiesti devono essere da 1 a 10, non " + std::to_string(punti));
    riduzione::ControllaNumeri(tenute, kMaxClasse, "delle colonne tenute");
    riduzione::ControllaNumeri(daCoprire, kMaxClasse, "da coprire");
    riduzione::Controllo controllo(oss);
    controllo.Fase(kFaseBuchi);
    const riduzione::SottoinsiemiTenuti indice(tenute, kMaxClasse, punti);
    std::vector<Colonna> buchi;
    const int64_t n = int64_t(daCoprire.size());
    for (int64_t i = 0; i < n; ++i) {
        if (!indice.Coperta(daCoprire[size_t(i)])) buchi.push_back(daCoprire[size_t(i)]);
        if ((i + 1) % 4096 == 0 || i + 1 == n) {
            controllo.Avanza(i + 1, n);
            controllo.Pausa();
            if (controllo.Fermo()) break;
        }
    }
    controllo.Fase("");
    controllo.Percento(0);
    return buchi;
}

}  // namespace combi
