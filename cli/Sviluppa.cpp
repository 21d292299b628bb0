// combifiltro-cli sviluppa: develops the system of a .sic file and writes the
// kept columns as the run produces them, and optionally the system again with
// its counters filled (the layout the workers of a parallel development leave
// behind). The memory in use does not grow with the columns kept.

#include <ostream>

#include "Argomenti.h"
#include "Comandi.h"
#include "Conteggi.h"
#include "FileSistema.h"
#include "Rapporto.h"
#include "Riepilogo.h"
#include "ScritturaColonne.h"
#include "SviluppaMpi.h"
#include "Sviluppo.h"
#include "Terminale.h"

namespace combi::cli {

int ComandoSviluppa(const Parole& parole, std::ostream& out, std::ostream& err) {
    const Argomenti a(parole, {"colonne", "contatori", "thread", "quota"},
                      {"riferimento", "rapporto", "mpi", "silenzioso"});
    if (a.Flag("mpi")) return SviluppaConMpi(a, out, err);
    if (a.Posizionali().size() != 1) throw ErroreUso{"indicare un solo file di sistema (.sic)"};
    const auto colonne = a.Opzione("colonne");
    if (!colonne) throw ErroreUso{"manca --colonne FILE.col"};
    const OpzioniSviluppo opzioni = LeggiOpzioni(a);

    FileSistema sistema = LeggiFileSistema(a.Posizionali()[0]);
    const ParametriSviluppo p = ParametriDalFile(sistema);
    ControllaParametri(p, opzioni.quota);
    const Tratto tratto = TrattoDellaQuota(Combinazioni(int(p.numeri.size()), p.classe), opzioni.quota);
    InstallaStopDaTastiera();
    OsservatoreTerminale terminale(err, tratto.fine - tratto.inizio,
                                   SuTerminale(err) && !a.Flag("silenzioso") && !a.Flag("rapporto"));
    OsservatoreRapporto rapporto(out);
    OsservatoreSviluppo& osservatore = a.Flag("rapporto") ? static_cast<OsservatoreSviluppo&>(rapporto) : terminale;
    const Cronometro cronometro;
    ScritturaColonne scrittura(*colonne);
    const EsitoSviluppo r = a.Flag("riferimento")
                                ? SviluppaSistemaRiferimento(p, osservatore, scrittura, opzioni.quota)
                                : SviluppaSistema(p, osservatore, &scrittura, opzioni);
    terminale.Chiudi();
    scrittura.Concludi();
    if (auto contatori = a.Opzione("contatori")) {
        sistema.condizioni = r.condizioni;
        ScriviFileSistema(*contatori, sistema);
    }
    if (a.Flag("rapporto")) {
        // A stopped worker reports no end: its share is incomplete.
        if (r.interrotto) return 1;
        rapporto.Fine(r.testate, r.tenute, *colonne);
        return 0;
    }
    StampaRiepilogo(out, r.testate, r.tenute, cronometro.Secondi(), r.interrotto);
    return 0;
}

}  // namespace combi::cli
