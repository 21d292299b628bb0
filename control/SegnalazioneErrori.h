#pragma once
// How a guarded operation of the control reports a failure: a critical box
// titled with the operation's source ("CombiFiltro.Salva") whose text is the
// error number, "- ", the description and, when the failing line is known,
// " Linea errore " and the line. The error stops there: nothing thrown by a
// guarded operation reaches the host.

#include <QString>

#include <source_location>
#include <string>

#include "Errore.h"
#include "ServizioDialoghi.h"

// An error raised by the control itself, which knows the line it came from.
class ErroreControllo : public combi::Errore {
public:
    ErroreControllo(int numero, const std::string& descrizione,
                    std::source_location dove = std::source_location::current())
        : combi::Errore(numero, descrizione), linea_(static_cast<int>(dove.line())) {}
    int linea() const { return linea_; }

private:
    int linea_;
};

// "91- descrizione Linea errore 40"; the line part only when `linea` != 0.
QString TestoErrore(int numero, const QString& descrizione, int linea = 0);

// The report of the exception being handled (call inside a catch block);
// nothing is shown for error number 0 or an ignored number (e.g. 30017 for
// the grid layout). Non-engine exceptions are reported with the numbers users
// know: 7 for memory, 5 for anything else.
void SegnalaEccezioneCorrente(ServizioDialoghi& dialoghi, const QString& sorgente, int ignorato = 0);

// Runs `corpo` as a guarded operation of source `sorgente`.
// Returns false when it failed (and was reported).
template <class Corpo>
bool EseguiProtetta(ServizioDialoghi& dialoghi, const QString& sorgente, Corpo&& corpo) {
    try {
        corpo();
        return true;
    } catch (...) {
        SegnalaEccezioneCorrente(dialoghi, sorgente);
        return false;
    }
}
