#pragma once
// The parameter text with which the host inserts a condition without showing
// its editor: "accepted|recovery". Plain text handling, shared by every
// editor; a malformed text throws combi::Errore (number and Italian
// description) and the control reports it.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace editori {

struct CampiInserimento {
    std::string accettati;  // field 0
    std::string recupero;   // field 1, empty when missing
};

// Splits at "|"; fields after the second are ignored.
CampiInserimento DividiCampi(std::string_view testo);

// "Pari" CR LF "0,2" -> {"Pari", "0,2"}; a field without CR LF is incomplete.
std::pair<std::string, std::string> DividiIntestazione(std::string_view campo);

// "0,2,3" -> {0, 2, 3} by the leading-number rule; empty text -> none.
std::vector<int> ValoriElenco(std::string_view campo);

// "3,7" -> {"3", "7"}, trimmed; anything but exactly two pieces is an error.
std::pair<std::string, std::string> ValoriIntervallo(std::string_view campo);

// Errors of a fill: "valore 7 senza casella", "variante sconosciuta".
[[noreturn]] void ErroreValoreSenzaCasella(int valore);
[[noreturn]] void ErroreTestoNonValido(const std::string& dettaglio);

}  // namespace editori
