// The parameter texts with which the host inserts a condition: every type's
// reading of arbitrary text either gives the parameters or refuses with a
// message, and parameters written back as text read the same again.
#include <cstdint>
#include <string>

#include "Errore.h"
#include "LetturaNumero.h"
#include "ParametriTesto.h"
#include "TestiGriglia.h"

namespace {

std::string Unisci(const std::vector<int>& valori) {
    std::string testo;
    for (size_t i = 0; i < valori.size(); ++i) testo += (i ? "," : "") + std::to_string(valori[i]);
    return testo;
}

std::string Riscrivi(combi::FormaParametri forma, const combi::ParametriInserimento& p) {
    using combi::FormaParametri;
    std::string testo;
    if (forma == FormaParametri::kIntervallo) {
        testo = p.intervallo.first + "," + p.intervallo.second;
        if (p.conRecupero) testo += "|" + p.intervalloRecupero.first + "," + p.intervalloRecupero.second;
        return testo;
    }
    if (forma != FormaParametri::kElenco) testo = p.intestazione + combi::kACapo;
    testo += Unisci(p.accettati);
    if (p.conRecupero) testo += "|" + Unisci(p.recupero);
    return testo;
}

bool Uguali(const combi::ParametriInserimento& a, const combi::ParametriInserimento& b) {
    return a.intestazione == b.intestazione && a.accettati == b.accettati && a.recupero == b.recupero &&
           a.intervallo == b.intervallo && a.intervalloRecupero == b.intervalloRecupero &&
           a.conRecupero == b.conRecupero;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t lunghezza) {
    using namespace combi;
    if (lunghezza < 1) return 0;
    const int tipo = dati[0] % 20;
    const std::string testo(reinterpret_cast<const char*>(dati + 1), lunghezza - 1);
    const FormaParametri forma = FormaParametriDelTipo(tipo);
    try {
        const ParametriInserimento p = LeggiTestoParametri(tipo, testo);
        // The range editors read their boxes by the leading-number rule.
        LeggiInt32(p.intervallo.first), LeggiInt32(p.intervallo.second);
        if (forma == FormaParametri::kNessuna || testo.empty()) return 0;
        if (!Uguali(p, LeggiTestoParametri(tipo, Riscrivi(forma, p)))) __builtin_trap();
    } catch (const Errore& e) {
        if (e.descrizione().empty() || forma == FormaParametri::kNessuna) __builtin_trap();
    }
    return 0;
}
