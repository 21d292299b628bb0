// The grid-text decoder with arbitrary texts in all five rows and arbitrary
// recovery lines, followed by a development of a small system on both paths,
// which must agree.
#include <cstdint>
#include <string>

#include "DecodificaCondizioni.h"
#include "Ingressi.h"
#include "Sviluppo.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t lunghezza) {
    using namespace combi;
    // Each group of six fields is one grid column, rows 0..5 (row 1, the name,
    // picked by its first byte among the known names); then the recovery lines.
    const std::vector<std::string> campi = fuzz::Pezzi(dati, lunghezza, fuzz::kSeparatoreCampi);
    TestiGriglia g;
    size_t i = 0;
    for (; i + 6 <= campi.size() && g.colonne.size() < 12; i += 6) {
        TestiCondizione t;
        for (int r = 0; r < 6; ++r) t[r] = campi[i + r];
        const int codice = t[1].empty() ? 0 : uint8_t(t[1][0]) % 20;
        t[1] = codice == 0 ? t[1] : NomeTipoCondizione(codice);
        g.colonne.push_back(t);
    }
    for (; i < campi.size(); ++i) g.quadri.push_back(campi[i]);
    const SistemaDecodificato s = LeggiCondizioni(g);
    ParametriSviluppo p;
    p.classe = lunghezza % 12 + 1;
    for (int n = 1; n <= p.classe + 2; ++n) p.numeri.push_back(n * 6);  // at most 14 numbers: 84
    p.condizioni = s.condizioni;
    p.quadri = s.quadri;
    OsservatoreSviluppo o;
    const RisultatoSviluppo a = SviluppaSistemaRiferimento(p, o);
    const RisultatoSviluppo b = SviluppaSistema(p, o, {.thread = 1, .quota = {}});
    if (!(a.colonne == b.colonne) || !(a.condizioni == b.condizioni)) __builtin_trap();
    return 0;
}
