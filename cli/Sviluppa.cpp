// combifiltro-cli sviluppa: develops the system of a .sic file and writes the
// kept columns, and optionally the system again with its counters filled
// (the layout the workers of a parallel development leave behind).

#include <ostream>

#include "Argomenti.h"
#include "Comandi.h"
#include "FileColonne.h"
#include "FileSistema.h"
#include "SviluppaMpi.h"
#include "Sviluppo.h"
#include "Rapporto.h"
#include "Terminale.h"
#include "Utilita.h"

namespace combi::cli {

namespace {

Quota LeggiQuota(const std::string& testo) {
    const size_t barra = testo.find('/');
    if (barra == std::string::npos) throw ErroreUso{"--quota vuole la forma I/W, per esempio 2/4"};
    Quota q;
    q.di = LeggiIntero(testo.substr(barra + 1), 1, 4096, "W di --quota");
    q.indice = LeggiIntero(testo.substr(0, barra), 1, q.di, "I di --quota");
    return q;
}

OpzioniSviluppo LeggiOpzioni(const Argomenti& a) {
    OpzioniSviluppo o;
    if (auto t = a.Opzione("thread")) o.thread = LeggiIntero(*t, 1, 1024, "--thread");
    if (auto q = a.Opzione("quota")) o.quota = LeggiQuota(*q);
    return o;
}

}  // namespace

int ComandoSviluppa(const Parole& parole, std::ostream& out, std::ostream& err) {
    const Argomenti a(parole, {"colonne", "contatori", "thread", "quota"}, {"riferimento", "rapporto", "mpi"});
    if (a.Flag("mpi")) return SviluppaConMpi(a, out, err);
    if (a.Posizionali().size() != 1) throw ErroreUso{"indicare un solo file di sistema (.sic)"};
    const auto colonne = a.Opzione("colonne");
    if (!colonne) throw ErroreUso{"manca --colonne FILE.col"};
    const OpzioniSviluppo opzioni = LeggiOpzioni(a);

    FileSistema sistema = LeggiFileSistema(a.Posizionali()[0]);
    const ParametriSviluppo p = ParametriDalFile(sistema);
    InstallaStopDaTastiera();
    OsservatoreTerminale terminale(err);
    OsservatoreRapporto rapporto(out);
    OsservatoreSviluppo& osservatore = a.Flag("rapporto") ? static_cast<OsservatoreSviluppo&>(rapporto) : terminale;
    const Cronometro cronometro;
    const RisultatoSviluppo r = a.Flag("riferimento")
                                    ? SviluppaSistemaRiferimento(p, osservatore, opzioni.quota)
                                    : SviluppaSistema(p, osservatore, opzioni);
    terminale.Chiudi();

    ScriviFileColonne(*colonne, r.colonne);
    if (auto contatori = a.Opzione("contatori")) {
        sistema.condizioni = r.condizioni;
        ScriviFileSistema(*contatori, sistema);
    }
    if (a.Flag("rapporto")) {
        // A stopped worker reports no end: its share is incomplete.
        if (r.interrotto) return 1;
        rapporto.Fine(r.testate, r.colonne.size(), *colonne);
        return 0;
    }
    out << "Sviluppate : " << FormatNumero(double(r.testate)) << "\n"
        << "Condizionate : " << FormatNumero(double(r.colonne.size())) << "\n"
        << "Tempo : " << TempoTrascorso(cronometro.Secondi()) << "\n";
    if (r.interrotto) out << "Sviluppo interrotto: le colonne sono quelle tenute fin qui.\n";
    return 0;
}

}  // namespace combi::cli
