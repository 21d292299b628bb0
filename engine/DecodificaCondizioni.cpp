#include "DecodificaCondizioni.h"

#include "Colonna.h"
#include "LetturaNumero.h"

namespace combi {

void DecodificaElenco(std::string_view testo, int16_t* elementi, int quanti) {
    const std::string pulito = RimuoviACapo(testo);
    for (std::string_view pezzo : Dividi(pulito, "-")) {
        const int32_t indice = LeggiInt32(pezzo);
        if (indice >= 0 && indice < quanti) elementi[indice] = kVero;
    }
}

void DecodificaIntervallo(std::string_view testo, int32_t& minimo, int32_t& massimo) {
    const std::string pulito = RimuoviACapo(testo);
    const auto pezzi = Dividi(pulito, "-");
    minimo = 0;
    massimo = 0;
    if (pezzi.size() != 2) return;
    minimo = LeggiInt32(pezzi[0]);
    massimo = LeggiInt32(pezzi[1]);
}

int DecodificaPariDispari(std::string_view testo, std::array<int16_t, 91>& elementi) {
    const auto pezzi = Dividi(testo, kACapo);
    // The element after the pattern carries the end mark, so 90 elements at most.
    const int lunghezza = static_cast<int>(std::min<size_t>(pezzi.size(), elementi.size() - 1));
    for (int t = 0; t < lunghezza; ++t) {
        if (pezzi[t] == "P") elementi[t] = 0;
        else if (pezzi[t] == "D") elementi[t] = 1;
    }
    elementi[lunghezza] = kVero;
    return lunghezza;
}

std::string CodificaPariDispari(const std::array<int16_t, 91>& elementi) {
    std::string testo;
    for (int16_t e : elementi) {
        if (e == 1) testo += 'D';
        else if (e == 0) testo += 'P';
        else break;
    }
    return testo;
}

QuadroRecupero DecodificaQuadro(std::string_view riga) {
    const auto campi = Dividi(riga, ",");
    auto campo = [&](size_t i) { return i < campi.size() ? LeggiInt16(campi[i]) : int16_t{0}; };
    QuadroRecupero q;
    q.Minimo = campo(0);
    q.Massimo = campo(1);
    q.Attivo = campo(2);
    return q;
}

namespace {

// The text after the first line break; from the second character when the
// text has none (the label line of "Peso" and "Posizioni" is skipped).
std::string_view DopoPrimaRiga(std::string_view testo) {
    const size_t pos = testo.find(kACapo);
    if (pos != std::string_view::npos) return testo.substr(pos + kACapo.size());
    return testo.empty() ? testo : testo.substr(1);
}

int16_t Direzione(const std::string& testo, const char* diretta) {
    return Trim(testo) == diretta ? 1 : 2;
}

void LeggiParametri(Condizione& c, const std::string& testo) {
    switch (c.Tipo) {
    case kPuntiColonna:
    case kLinkClose: break;  // their set comes from other rows, see below
    case kPariDispari:
        if (testo == "Pari") for (int n = 2; n <= kMaxNumero; n += 2) c.Numeri[n] = kVero;
        if (testo == "Dispari") for (int n = 1; n <= kMaxNumero; n += 2) c.Numeri[n] = kVero;
        break;
    case kPeso: DecodificaElenco(DopoPrimaRiga(testo), c.Numeri); break;
    case kResto: {
        const size_t pos = testo.find(':');
        c.Parametro = LeggiInt16(Trim(pos == std::string::npos ? testo : testo.substr(pos + 1)));
        break;
    }
    case kVortice: c.Parametro = Direzione(testo, "Diretto"); break;
    case kSimmetrie: c.Parametro = Direzione(testo, "Dirette"); break;
    case kParalleli: c.Parametro = Direzione(testo, "Diretti"); break;
    case kPosizioni: c.Parametro = LeggiInt16(DopoPrimaRiga(testo)); break;
    case kSequenze: c.Parametro = static_cast<int16_t>(DecodificaPariDispari(testo, c.Numeri)); break;
    default: break;
    }
}

Condizione DecodificaColonna(const TestiCondizione& t, int tipo) {
    Condizione c;
    c.Tipo = static_cast<int16_t>(tipo);
    if (tipo == kNessuna || tipo == kLinkOpen) return c;
    if (tipo == kLinkClose) {
        DecodificaElenco(t[kRigaPunti], c.Numeri);
        return c;
    }
    if (tipo == kPuntiColonna) DecodificaElenco(t[kRigaParametri], c.Numeri);
    LeggiParametri(c, t[kRigaParametri]);
    if (GiudicataSuIntervallo(tipo)) {
        DecodificaIntervallo(t[kRigaPunti], c.MinPunti, c.MaxPunti);
        DecodificaIntervallo(t[kRigaRecupero], c.MinRecupero, c.MaxRecupero);
    } else {
        DecodificaElenco(t[kRigaPunti], c.Punti);
        DecodificaElenco(t[kRigaRecupero], c.Recupero);
    }
    c.QuadroRec = LeggiInt16(t[kRigaQuadroRec]);
    return c;
}

}  // namespace

SistemaDecodificato LeggiCondizioni(const TestiGriglia& griglia) {
    SistemaDecodificato s;
    s.condizioni.assign(1, Condizione{});
    for (size_t c = 0; c < griglia.colonne.size(); ++c) {
        const TestiCondizione& testi = griglia.colonne[c];
        const std::string nome = Trim(testi[kRigaCondizione]);
        if (nome.empty()) break;
        if (s.condizioni.size() < c + 1) s.condizioni.resize(c + 1);
        s.condizioni[c] = DecodificaColonna(testi, CodiceTipoCondizione(nome));
    }
    const size_t righe = std::min<size_t>(griglia.quadri.size(), kNumeroQuadri);
    for (size_t i = 0; i < righe; ++i) s.quadri[i + 1] = DecodificaQuadro(griglia.quadri[i]);
    return s;
}

}  // namespace combi
