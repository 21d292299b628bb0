#pragma once
// The subcommands of combifiltro-cli. Each takes the words after its name and
// writes to the streams it is given, so tests run them in-process.
// Result: the process exit code (0 success, 1 failed operation, 2 bad usage).

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace combi::cli {

using Parole = std::vector<std::string>;

int ComandoSviluppa(const Parole& parole, std::ostream& out, std::ostream& err);
int ComandoConta(const Parole& parole, std::ostream& out, std::ostream& err);
int ComandoInfo(const Parole& parole, std::ostream& out, std::ostream& err);
int ComandoRiduci(const Parole& parole, std::ostream& out, std::ostream& err);
int ComandoGaranzia(const Parole& parole, std::ostream& out, std::ostream& err);
int ComandoSpoglio(const Parole& parole, std::ostream& out, std::ostream& err);
int ComandoStorico(const Parole& parole, std::ostream& out, std::ostream& err);

// Runs one subcommand's body and reports how it ended: a usage error as the
// message and the usage line (2), an engine error by number (1), no memory
// as error 7 (1), anything else the system throws by its text (1).
int EseguiComando(const std::string& nome, const std::string& uso, const std::function<int()>& corpo,
                  std::ostream& err);

// Runs the whole command line (argv[1..]): dispatch, usage and error report.
int Esegui(const Parole& parole, std::ostream& out, std::ostream& err);

}  // namespace combi::cli
