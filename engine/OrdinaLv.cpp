#include "OrdinaLv.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "Errore.h"
#include "Formato.h"
#include "OrdinamentoQuicksort.h"

namespace combi {

namespace {

// The row copy of the sort: the key of its kind, and the row itself.
struct CopiaRiga {
    int64_t numero{};
    std::string testo;
    RigaLista riga;
};

const std::string& TestoDellaColonna(const RigaLista& r, int colonna) {
    static const std::string vuoto;
    return size_t(colonna) <= r.testi.size() ? r.testi[size_t(colonna) - 1] : vuoto;
}

}  // namespace

// Values beyond the fixed-point range (about 9.2e14) are clamped to its ends
// rather than failing: a hand-typed enormous number still sorts first or last.
int64_t ChiaveNumerica(std::string_view testo) {
    const double scalato = std::nearbyint(ValoreDecimale(testo) * 10000.0);
    constexpr double kLimite = 9223372036854775807.0;  // 2^63 as a double
    if (std::isnan(scalato)) return 0;
    if (scalato >= kLimite) return std::numeric_limits<int64_t>::max();
    if (scalato <= -kLimite) return std::numeric_limits<int64_t>::min();
    return static_cast<int64_t>(scalato);
}

std::vector<RigaLista> OrdinaRighe(std::vector<RigaLista> righe, int colonna, int tipo, int ordine) {
    if (tipo < kOrdinaTesto || tipo > kOrdinaNumeroBis)
        throw Errore(kErroreArgomento, "Tipo di ordinamento non valido: " + std::to_string(tipo));
    if (ordine != kCrescente && ordine != kDecrescente)
        throw Errore(kErroreArgomento, "Verso di ordinamento non valido: " + std::to_string(ordine));
    if (colonna < 1) throw Errore(kErroreArgomento, "Colonna di ordinamento non valida");
    if (righe.size() < 2) return righe;

    std::vector<CopiaRiga> copie(righe.size() + 1);  // 1-based, as the quicksort wants
    for (size_t r = 0; r < righe.size(); ++r) {
        CopiaRiga& c = copie[r + 1];
        if (tipo == kOrdinaTesto)
            c.testo = TestoDellaColonna(righe[r], colonna);
        else
            c.numero = ChiaveNumerica(TestoDellaColonna(righe[r], colonna));
        c.riga = std::move(righe[r]);
    }
    const int64_t ultimo = int64_t(righe.size());
    auto maiFermo = [] { return false; };
    if (tipo == kOrdinaTesto)
        QuicksortDecrescente(copie, 1, ultimo, [](const CopiaRiga& c) -> const std::string& { return c.testo; }, maiFermo);
    else
        QuicksortDecrescente(copie, 1, ultimo, [](const CopiaRiga& c) { return c.numero; }, maiFermo);

    // Order 1 rebuilds first to last (largest first), order 0 last to first.
    for (size_t r = 0; r < righe.size(); ++r)
        righe[r] = std::move(copie[ordine == kDecrescente ? r + 1 : righe.size() - r].riga);
    return righe;
}

std::vector<int> IconeIntestazioni(int colonne, size_t righe, int colonna, int ordine) {
    if (righe < 2) return {};
    std::vector<int> icone(size_t(std::max(colonne, 0)), 0);
    if (colonna >= 1 && colonna <= colonne) icone[size_t(colonna) - 1] = ordine == kDecrescente ? 2 : 1;
    return icone;
}

}  // namespace combi
