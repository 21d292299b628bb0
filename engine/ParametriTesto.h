#pragma once
// The parameter text with which the host inserts a condition without showing
// its editor: "accepted|recovery". The text comes from the host program, so
// anything may arrive: every piece is read here, without widgets, and a
// malformed text throws Errore (number and Italian description) that the
// control reports under "CombiFiltro.setPuntiSuFrm". Whether a value has a
// check box is left to the editor, which knows its class and parameter.

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace combi {

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

// A sequence of the "Sequenze" editor: at least one letter, only "P" and "D".
bool SequenzaValida(std::string_view sequenza);

// Errors of a fill: a value without a check box, a text that cannot be read.
[[noreturn]] void ErroreValoreSenzaCasella(int valore);
[[noreturn]] void ErroreTestoNonValido(const std::string& dettaglio);

// How the editor of a condition type reads field 0 of the text.
enum class FormaParametri {
    kNessuna,          // not filled from a text ("Punti Col.", links, unknown codes)
    kElenco,           // "0,1,2"
    kVarianteEElenco,  // variant CR LF "0,1,2" (the variant combo's text)
    kSequenzaEElenco,  // "PDP" CR LF "0,1,2"
    kIntervallo,       // "min,max"
};
FormaParametri FormaParametriDelTipo(int tipo);

// A whole parameter text read for the editor of `tipo`: what the fill puts
// into the widgets. List editors use the value lists, range editors the two
// texts of each range (put into the text boxes as they are).
struct ParametriInserimento {
    std::string intestazione;   // variant or sequence; empty for the other forms
    std::vector<int> accettati;
    std::vector<int> recupero;
    std::pair<std::string, std::string> intervallo;
    std::pair<std::string, std::string> intervalloRecupero;
    bool conRecupero = false;   // field 1 present and not empty: panel "1" is chosen
};

// Throws Errore for a text the fill refuses: a missing CR LF after the
// variant or sequence, a sequence of other letters, a range without exactly
// two values. An empty text or a type of form kNessuna gives empty parameters.
ParametriInserimento LeggiTestoParametri(int tipo, std::string_view testo);

}  // namespace combi
