// combifiltro-cli conta: how many columns the system of a .sic file keeps,
// with every condition's counters, at the development's speed and without
// writing a column.

#include <ostream>

#include "Argomenti.h"
#include "Comandi.h"
#include "Conteggi.h"
#include "FileSistema.h"
#include "Riepilogo.h"
#include "Sviluppo.h"
#include "Terminale.h"

namespace combi::cli {

int ComandoConta(const Parole& parole, std::ostream& out, std::ostream& err) {
    const Argomenti a(parole, {"contatori", "thread"}, {"silenzioso"});
    if (a.Posizionali().size() != 1) throw ErroreUso{"indicare un solo file di sistema (.sic)"};
    const OpzioniSviluppo opzioni = LeggiOpzioni(a);

    FileSistema sistema = LeggiFileSistema(a.Posizionali()[0]);
    const ParametriSviluppo p = ParametriDalFile(sistema);
    ControllaParametri(p, opzioni.quota);
    InstallaStopDaTastiera();
    OsservatoreTerminale terminale(err, Combinazioni(int(p.numeri.size()), p.classe),
                                   SuTerminale(err) && !a.Flag("silenzioso"));
    const Cronometro cronometro;
    const EsitoSviluppo r = ContaSistema(p, terminale, opzioni);
    terminale.Chiudi();
    if (auto contatori = a.Opzione("contatori")) {
        sistema.condizioni = r.condizioni;
        ScriviFileSistema(*contatori, sistema);
    }
    StampaRiepilogo(out, r.testate, r.tenute, cronometro.Secondi(), r.interrotto);
    return 0;
}

}  // namespace combi::cli
