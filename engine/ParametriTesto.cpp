#include "ParametriTesto.h"

#include <algorithm>

#include "Condizione.h"
#include "Errore.h"
#include "LetturaNumero.h"
#include "Testo.h"
#include "TestiGriglia.h"

namespace combi {

CampiInserimento DividiCampi(std::string_view testo) {
    CampiInserimento campi;
    const auto pezzi = Dividi(testo, "|");
    if (!pezzi.empty()) campi.accettati = pezzi[0];
    if (pezzi.size() > 1) campi.recupero = pezzi[1];
    return campi;
}

std::pair<std::string, std::string> DividiIntestazione(std::string_view campo) {
    const auto a = campo.find(kACapo);
    if (a == std::string_view::npos)
        throw Errore(kErroreIndice, "Testo dei parametri incompleto: manca l'elenco dei punti");
    return {std::string(campo.substr(0, a)), std::string(campo.substr(a + kACapo.size()))};
}

std::vector<int> ValoriElenco(std::string_view campo) {
    std::vector<int> valori;
    for (std::string_view pezzo : Dividi(campo, ",")) valori.push_back(LeggiInt32(pezzo));
    return valori;
}

std::pair<std::string, std::string> ValoriIntervallo(std::string_view campo) {
    const auto pezzi = Dividi(campo, ",");
    if (pezzi.size() != 2)
        throw Errore(kErroreIndice, "Intervallo non valido: servono minimo e massimo separati da \",\"");
    return {Trim(pezzi[0]), Trim(pezzi[1])};
}

bool SequenzaValida(std::string_view sequenza) {
    return !sequenza.empty() &&
           std::all_of(sequenza.begin(), sequenza.end(), [](char c) { return c == 'P' || c == 'D'; });
}

void ErroreValoreSenzaCasella(int valore) {
    throw Errore(kErroreIndice, "Il valore " + std::to_string(valore) + " non è tra i punti possibili");
}

void ErroreTestoNonValido(const std::string& dettaglio) {
    throw Errore(kErroreArgomento, "Parametro non valido: " + dettaglio);
}

FormaParametri FormaParametriDelTipo(int tipo) {
    switch (tipo) {
        case kConsecutivi: case kInterruzioni: case kPonte:
            return FormaParametri::kElenco;
        case kPariDispari: case kParalleli: case kSimmetrie: case kResto: case kVortice:
            return FormaParametri::kVarianteEElenco;
        case kSequenze:
            return FormaParametri::kSequenzaEElenco;
        case kAmpiezza: case kBaricentro: case kDistanzaMinima: case kDistanzaMassima:
        case kPosizioni: case kPeso:
            return FormaParametri::kIntervallo;
        default:
            return FormaParametri::kNessuna;
    }
}

namespace {

// Field 0 of the list forms: the header (variant or sequence) comes off first.
std::string ElencoDopoIntestazione(FormaParametri forma, const std::string& campo,
                                   ParametriInserimento& p) {
    if (forma == FormaParametri::kElenco) return campo;
    auto [intestazione, valori] = DividiIntestazione(campo);
    if (forma == FormaParametri::kSequenzaEElenco && !SequenzaValida(intestazione))
        ErroreTestoNonValido("sequenza \"" + intestazione + "\" (solo lettere P e D)");
    if (forma == FormaParametri::kVarianteEElenco && intestazione.empty())
        ErroreTestoNonValido("variante vuota");
    p.intestazione = std::move(intestazione);
    return valori;
}

}  // namespace

ParametriInserimento LeggiTestoParametri(int tipo, std::string_view testo) {
    ParametriInserimento p;
    const FormaParametri forma = FormaParametriDelTipo(tipo);
    if (testo.empty() || forma == FormaParametri::kNessuna) return p;
    const CampiInserimento campi = DividiCampi(testo);
    p.conRecupero = !campi.recupero.empty();
    if (forma == FormaParametri::kIntervallo) {
        p.intervallo = ValoriIntervallo(campi.accettati);
        if (p.conRecupero) p.intervalloRecupero = ValoriIntervallo(campi.recupero);
        return p;
    }
    p.accettati = ValoriElenco(ElencoDopoIntestazione(forma, campi.accettati, p));
    if (p.conRecupero) p.recupero = ValoriElenco(campi.recupero);
    return p;
}

}  // namespace combi
