#include "ScritturaCondizioni.h"

#include "DecodificaCondizioni.h"
#include "Formato.h"

namespace combi {

namespace {

std::string Verticale(std::string_view testo) { return TestoVerticale(testo, 1); }

// A range as the editor leaves it: both boxes empty read back as 0..0, so
// 0..0 is written as the lone separator the empty boxes give.
std::string TestoIntervallo(int32_t minimo, int32_t massimo) {
    if (minimo == 0 && massimo == 0) return "-";
    return std::to_string(minimo) + "-" + std::to_string(massimo);
}

std::string TestoElenco(const std::array<int16_t, 11>& valori) { return ElencoIndici(valori, "-", false); }

std::string TestoPosizioni(const std::array<int16_t, 91>& numeri) {
    std::string s;
    for (int pos = 1; pos <= 20; ++pos)
        if (numeri[pos] != 0) s += (s.empty() ? "" : "-") + std::to_string(pos);
    return s;
}

std::string TestoSequenza(const Condizione& c) {
    std::string lettere;
    for (int t = 0; t < c.Parametro && t < 90; ++t) lettere += c.Numeri[t] == 1 ? 'D' : 'P';
    return lettere.empty() ? std::string() : Verticale(lettere);
}

std::string Parametri(const Condizione& c) {
    switch (c.Tipo) {
    case kLinkOpen:
    case kLinkClose: return Verticale(NomeTipoCondizione(c.Tipo));
    case kPuntiColonna: return TestoNumeriColonna(c.Numeri);
    case kPariDispari: return c.Numeri[2] != 0 ? "Pari" : (c.Numeri[1] != 0 ? "Dispari" : "");
    case kPeso: return "Caselle :" + kACapo + TestoPosizioni(c.Numeri);
    case kResto: return "Resto a : " + std::to_string(c.Parametro);
    case kAmpiezza: return Verticale("Ampiezza");
    case kVortice: return c.Parametro == 1 ? "Diretto" : "Inverso";
    case kSimmetrie: return c.Parametro == 1 ? "Dirette" : "Inverse";
    case kConsecutivi: return Verticale("Consecutivi");
    case kInterruzioni: return Verticale("Interruzioni");
    case kBaricentro: return Verticale("Baricentro");
    case kDistanzaMinima: return Verticale("DistanzaMin");
    case kDistanzaMassima: return Verticale("DistanzaMax");
    case kPosizioni: return "Casella :" + kACapo + std::to_string(c.Parametro);
    case kPonte: return Verticale("Ponte");
    case kSequenze: return TestoSequenza(c);
    case kParalleli: return c.Parametro == 1 ? "Diretti" : "Inversi";
    default: return {};
    }
}

}  // namespace

std::string TestoNumeriColonna(const std::array<int16_t, 91>& numeri) {
    const std::string elenco = ElencoIndici(std::span<const int16_t>(numeri).subspan(1), 1, "-", true);
    return elenco.empty() ? elenco : TestoVerticale(elenco, 12);
}

TestiCondizione TestiDaCondizione(const Condizione& c) {
    TestiCondizione t;
    t[kRigaCondizione] = NomeTipoCondizione(c.Tipo);
    if (t[kRigaCondizione].empty()) return t;
    t[kRigaParametri] = Parametri(c);
    if (c.Tipo == kLinkOpen) return t;
    if (c.Tipo == kLinkClose) {
        t[kRigaPunti] = ElencoIndici(c.Numeri, "-", false);
        return t;
    }
    if (GiudicataSuIntervallo(c.Tipo)) {
        t[kRigaPunti] = TestoIntervallo(c.MinPunti, c.MaxPunti);
        t[kRigaRecupero] = TestoIntervallo(c.MinRecupero, c.MaxRecupero);
    } else {
        t[kRigaPunti] = TestoElenco(c.Punti);
        t[kRigaRecupero] = TestoElenco(c.Recupero);
    }
    t[kRigaQuadroRec] = c.QuadroRec == 0 ? std::string() : std::to_string(c.QuadroRec);
    return t;
}

std::string RigaQuadro(const QuadroRecupero& q) {
    return std::to_string(q.Minimo) + "," + std::to_string(q.Massimo) + "," + std::to_string(q.Attivo);
}

TestiGriglia TestiDaSistema(const TabellaCondizioni& condizioni, const TabellaQuadri& quadri) {
    TestiGriglia g;
    for (const Condizione& c : condizioni) g.colonne.push_back(TestiDaCondizione(c));
    for (int p = 1; p <= kNumeroQuadri; ++p) g.quadri.push_back(RigaQuadro(quadri[p]));
    return g;
}

}  // namespace combi
