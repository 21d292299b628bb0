#include "ParametriInserimento.h"

#include "Errore.h"
#include "LetturaNumero.h"
#include "Testo.h"
#include "TestiGriglia.h"

namespace editori {

CampiInserimento DividiCampi(std::string_view testo) {
    CampiInserimento campi;
    const auto pezzi = combi::Dividi(testo, "|");
    if (!pezzi.empty()) campi.accettati = pezzi[0];
    if (pezzi.size() > 1) campi.recupero = pezzi[1];
    return campi;
}

std::pair<std::string, std::string> DividiIntestazione(std::string_view campo) {
    const auto a = campo.find(combi::kACapo);
    if (a == std::string_view::npos) {
        throw combi::Errore(combi::kErroreIndice,
                            "Testo dei parametri incompleto: manca l'elenco dei punti");
    }
    return {std::string(campo.substr(0, a)), std::string(campo.substr(a + combi::kACapo.size()))};
}

std::vector<int> ValoriElenco(std::string_view campo) {
    std::vector<int> valori;
    for (std::string_view pezzo : combi::Dividi(campo, ",")) valori.push_back(combi::LeggiInt32(pezzo));
    return valori;
}

std::pair<std::string, std::string> ValoriIntervallo(std::string_view campo) {
    const auto pezzi = combi::Dividi(campo, ",");
    if (pezzi.size() != 2) {
        throw combi::Errore(combi::kErroreIndice,
                            "Intervallo non valido: servono minimo e massimo separati da \",\"");
    }
    return {combi::Trim(pezzi[0]), combi::Trim(pezzi[1])};
}

void ErroreValoreSenzaCasella(int valore) {
    throw combi::Errore(combi::kErroreIndice,
                        "Il valore " + std::to_string(valore) + " non è tra i punti possibili");
}

void ErroreTestoNonValido(const std::string& dettaglio) {
    throw combi::Errore(combi::kErroreArgomento, "Parametro non valido: " + dettaglio);
}

}  // namespace editori
