// Dispatch of combifiltro-cli's subcommands, with the usage text and the
// report of every failure as an Italian message and an exit code.

#include <new>
#include <ostream>

#include "Argomenti.h"
#include "Comandi.h"
#include "Errore.h"

namespace combi::cli {

namespace {

struct Comando {
    const char* nome;
    int (*esegui)(const Parole&, std::ostream&, std::ostream&);
    const char* uso;
};

const Comando kComandi[] = {
    {"sviluppa", ComandoSviluppa,
     "sviluppa SISTEMA.sic --colonne OUT.col [--contatori OUT.sic] [--thread N] [--quota I/W] "
     "[--riferimento] [--rapporto] [--mpi] [--silenzioso]"},
    {"conta", ComandoConta, "conta SISTEMA.sic [--contatori OUT.sic] [--thread N] [--silenzioso]"},
    {"info", ComandoInfo, "info FILE.sic|FILE.col"},
    {"riduci", ComandoRiduci,
     "riduci COLONNE.col --punti P --colonne OUT.col [--riferimento | --ottimizza [--secondi S] [--seme N]]"},
    {"garanzia", ComandoGaranzia,
     "garanzia TENUTE.col --punti P (--su COLONNE.col | --numeri 1-20 --classe 6) [--buchi BUCHI.col]\n"
     "  combifiltro-cli garanzia TENUTE.col --tabella --numeri 1-20 [--estratti 5]"},
    {"spoglio", ComandoSpoglio, "spoglio COLONNE.col --estrazione 5,12,90 [--minimo P] [--classe K]"},
    {"storico", ComandoStorico,
     "storico COLONNE.col --archivio FILE --gioco Lotto|10ELotto|SuperEnalotto [--ruota Bari] "
     "[--dal 2020-01-01] [--al 2024-12-31] [--minimo P] [--posta 1] [--premi 2=250,3=4500]"},
};

void Uso(std::ostream& err) {
    err << "Uso:\n";
    for (const Comando& c : kComandi) err << "  combifiltro-cli " << c.uso << "\n";
}

}  // namespace

int EseguiComando(const std::string& nome, const std::string& uso, const std::function<int()>& corpo,
                  std::ostream& err) {
    try {
        return corpo();
    } catch (const ErroreUso& e) {
        err << "combifiltro-cli " << nome << ": " << e.messaggio << "\nUso: combifiltro-cli " << uso << "\n";
        return 2;
    } catch (const Errore& e) {
        err << "Errore " << e.numero() << "- " << e.descrizione() << "\n";
        return 1;
    } catch (const std::bad_alloc&) {
        err << "Errore " << kErroreMemoria << "- Memoria insufficiente\n";
        return 1;
    } catch (const std::exception& e) {
        // Anything else the system throws (a thread it refuses, a failed
        // mapping) ends the command with its message, never the process
        // with an abort.
        err << "Errore imprevisto: " << e.what() << "\n";
        return 1;
    }
}

int Esegui(const Parole& parole, std::ostream& out, std::ostream& err) {
    if (parole.empty() || parole[0] == "--help" || parole[0] == "aiuto") {
        Uso(err);
        return parole.empty() ? 2 : 0;
    }
    for (const Comando& c : kComandi) {
        if (parole[0] != c.nome) continue;
        return EseguiComando(
            c.nome, c.uso, [&] { return c.esegui(Parole(parole.begin() + 1, parole.end()), out, err); }, err);
    }
    err << "combifiltro-cli: comando sconosciuto \"" << parole[0] << "\"\n";
    Uso(err);
    return 2;
}

}  // namespace combi::cli
