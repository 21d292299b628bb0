// The development shared among MPI processes. Process i of W develops share
// i+1 of W of the enumeration, without "Riduzione N-K" (it depends on the
// column kept before, which may belong to another share); process 0 gathers
// the shares in order and UnisciQuote re-applies the reduction over them.
//
// A failing process must not leave the others waiting for it: each phase
// that can fail (reading the system, developing) ends with a check in which
// every process takes part, and the first failure is carried to process 0,
// which reports it; then every process leaves.

#include <mpi.h>

#include <algorithm>
#include <chrono>
#include <exception>
#include <new>
#include <optional>
#include <ostream>
#include <thread>

#include "Errore.h"
#include "FileColonne.h"
#include "FileSistema.h"
#include "PacchettoQuota.h"
#include "SviluppaMpi.h"
#include "Sviluppo.h"
#include "Riepilogo.h"
#include "Terminale.h"
#include "Conteggi.h"
#include "UnioneQuote.h"
#include "Formato.h"

namespace combi::cli {

namespace {

constexpr int kEtichettaQuota = 1;
constexpr int kEtichettaGuasto = 2;
// MPI counts are `int`: a share of many millions of columns travels in pieces.
constexpr uint64_t kPezzo = uint64_t(1) << 30;
// Process 0 reports a failure and gives the job its exit code. The others
// leave with 0: mpirun kills the whole job as soon as one process ends with
// another code, and process 0 could then die before printing its message.
constexpr int kUscitaSenzaRapporto = 0;

// Open MPI waits by spinning on the processor. A process that has finished
// its share would then take processor time from the ones still developing on
// the same host, so every wait here polls and sleeps instead.
void Attendi(MPI_Request& richiesta) {
    for (;;) {
        int finita = 0;
        MPI_Test(&richiesta, &finita, MPI_STATUS_IGNORE);
        if (finita) return;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

class SessioneMpi {
public:
    SessioneMpi() {
        int avviato = 0, chiuso = 0;
        MPI_Initialized(&avviato);
        MPI_Finalized(&chiuso);
        if (chiuso) throw Errore(kErroreArgomento, "MPI è già stato chiuso in questo processo");
        if (!avviato) MPI_Init(nullptr, nullptr);
        MPI_Comm_rank(MPI_COMM_WORLD, &rango_);
        MPI_Comm_size(MPI_COMM_WORLD, &processi_);
        MPI_Comm locale;
        MPI_Comm_split_type(MPI_COMM_WORLD, MPI_COMM_TYPE_SHARED, 0, MPI_INFO_NULL, &locale);
        MPI_Comm_size(locale, &sullaMacchina_);
        MPI_Comm_free(&locale);
    }
    // Everyone meets before MPI_Finalize, whose own wait would spin.
    ~SessioneMpi() {
        MPI_Request r;
        MPI_Ibarrier(MPI_COMM_WORLD, &r);
        Attendi(r);
        MPI_Finalize();
    }
    SessioneMpi(const SessioneMpi&) = delete;
    SessioneMpi& operator=(const SessioneMpi&) = delete;

    int Rango() const { return rango_; }
    int Processi() const { return processi_; }
    int SullaMacchina() const { return sullaMacchina_; }  // processes sharing this host

private:
    int rango_{};
    int processi_ = 1;
    int sullaMacchina_ = 1;
};

void Invia(const void* dati, uint64_t n, MPI_Datatype tipo, int destinatario, int etichetta) {
    MPI_Request r;
    MPI_Isend(dati, int(n), tipo, destinatario, etichetta, MPI_COMM_WORLD, &r);
    Attendi(r);
}

void Ricevi(void* dati, uint64_t n, MPI_Datatype tipo, int mittente, int etichetta) {
    MPI_Request r;
    MPI_Irecv(dati, int(n), tipo, mittente, etichetta, MPI_COMM_WORLD, &r);
    Attendi(r);
}

void InviaByte(const std::vector<uint8_t>& dati, int destinatario, int etichetta) {
    const uint64_t n = dati.size();
    Invia(&n, 1, MPI_UINT64_T, destinatario, etichetta);
    for (uint64_t da = 0; da < n; da += kPezzo)
        Invia(dati.data() + da, std::min(kPezzo, n - da), MPI_BYTE, destinatario, etichetta);
}

std::vector<uint8_t> RiceviByte(int mittente, int etichetta) {
    uint64_t n{};
    Ricevi(&n, 1, MPI_UINT64_T, mittente, etichetta);
    std::vector<uint8_t> dati(n);
    for (uint64_t da = 0; da < n; da += kPezzo)
        Ricevi(dati.data() + da, std::min(kPezzo, n - da), MPI_BYTE, mittente, etichetta);
    return dati;
}

// A failure as it travels to process 0: the error number (-1 for a wrong
// command line) and the Italian description.
struct Guasto {
    int numero{};
    std::string messaggio;
};

Guasto DescriviGuasto(const std::exception_ptr& e) {
    try {
        std::rethrow_exception(e);
    } catch (const ErroreUso& u) {
        return {-1, u.messaggio};
    } catch (const Errore& x) {
        return {x.numero(), x.descrizione()};
    } catch (const std::bad_alloc&) {
        return {kErroreMemoria, "Memoria insufficiente"};
    } catch (...) {
        return {kErroreArgomento, "Errore imprevisto"};
    }
}

[[noreturn]] void Rilancia(const Guasto& g, int rango) {
    if (g.numero < 0) throw ErroreUso{g.messaggio};
    throw Errore(g.numero, "Processo " + std::to_string(rango) + ": " + g.messaggio);
}

// Every process calls this after a phase. When a process failed, process 0
// throws the failure of the lowest such process and the others return true;
// false when every process succeeded.
bool ControllaGuasti(const SessioneMpi& mpi, const std::exception_ptr& errore) {
    const int mio = errore ? mpi.Rango() : mpi.Processi();
    int primo = mpi.Processi();
    MPI_Request r;
    MPI_Iallreduce(&mio, &primo, 1, MPI_INT, MPI_MIN, MPI_COMM_WORLD, &r);
    Attendi(r);
    if (primo == mpi.Processi()) return false;
    if (mpi.Rango() == 0 && primo == 0) std::rethrow_exception(errore);
    if (mpi.Rango() == 0) {
        Guasto g;
        Ricevi(&g.numero, 1, MPI_INT, primo, kEtichettaGuasto);
        const std::vector<uint8_t> testo = RiceviByte(primo, kEtichettaGuasto);
        g.messaggio.assign(testo.begin(), testo.end());
        Rilancia(g, primo);
    }
    if (mpi.Rango() == primo) {
        const Guasto g = DescriviGuasto(errore);
        Invia(&g.numero, 1, MPI_INT, 0, kEtichettaGuasto);
        InviaByte(std::vector<uint8_t>(g.messaggio.begin(), g.messaggio.end()), 0, kEtichettaGuasto);
    }
    return true;
}

// Each host reads the system from its own disk: a file that differs from
// one host to another would make the shares belong to different systems.
uint64_t Impronta(const FileSistema& s) {
    uint64_t h = 1469598103934665603ull;
    for (uint8_t b : CodificaSistema(s)) h = (h ^ b) * 1099511628211ull;
    return h;
}

bool StessoSistemaOvunque(const FileSistema& s) {
    const uint64_t mia = Impronta(s);
    uint64_t minima{}, massima{};
    MPI_Allreduce(&mia, &minima, 1, MPI_UINT64_T, MPI_MIN, MPI_COMM_WORLD);
    MPI_Allreduce(&mia, &massima, 1, MPI_UINT64_T, MPI_MAX, MPI_COMM_WORLD);
    return minima == massima;
}

struct Richiesta {
    std::string sistema;
    std::string colonne;
    std::optional<std::string> contatori;
    bool riferimento = false;
    int thread{};
};

Richiesta LeggiRichiesta(const Argomenti& a, const SessioneMpi& mpi) {
    if (a.Posizionali().size() != 1) throw ErroreUso{"indicare un solo file di sistema (.sic)"};
    const auto colonne = a.Opzione("colonne");
    if (!colonne) throw ErroreUso{"manca --colonne FILE.col"};
    if (a.Opzione("quota")) throw ErroreUso{"--quota e --mpi non si usano insieme: le quote le assegna MPI"};
    if (a.Flag("rapporto")) throw ErroreUso{"--rapporto e --mpi non si usano insieme"};
    Richiesta r{a.Posizionali()[0], *colonne, a.Opzione("contatori"), a.Flag("riferimento"), 0};
    // Without --thread the hardware threads of a host are shared among the
    // processes running on it, so that one process per core is not oversubscribed.
    const int hardware = int(std::max(1u, std::thread::hardware_concurrency()));
    r.thread = a.Opzione("thread") ? LeggiIntero(*a.Opzione("thread"), 1, 1024, "--thread")
                                   : std::max(1, hardware / mpi.SullaMacchina());
    return r;
}

// The other processes show no progress but honour Ctrl-C like process 0.
class OsservatoreMuto : public OsservatoreSviluppo {
public:
    bool RichiestaStop() override { return StopDaTastiera(); }
};

RisultatoSviluppo SviluppaQuota(const Richiesta& richiesta, const FileSistema& sistema,
                                const SessioneMpi& mpi, OsservatoreSviluppo& oss) {
    ParametriSviluppo p = ParametriDalFile(sistema);
    p.riduzione = 0;
    const Quota quota{mpi.Rango() + 1, mpi.Processi()};
    if (richiesta.riferimento) return SviluppaSistemaRiferimento(p, oss, quota);
    return SviluppaSistema(p, oss, {.thread = richiesta.thread, .quota = quota});
}

// What process 0 holds when the job's processes have done their part: its
// own share and the others' as received, decoded only once MPI is closed.
struct Raccolta {
    Richiesta richiesta;
    FileSistema sistema;
    int processi = 1;
    RisultatoSviluppo mia;
    std::vector<std::vector<uint8_t>> altre;
};

std::vector<RisultatoSviluppo> DecodificaQuote(Raccolta& raccolta) {
    std::vector<RisultatoSviluppo> quote;
    quote.push_back(std::move(raccolta.mia));
    for (std::vector<uint8_t>& dati : raccolta.altre) {
        quote.push_back(DecodificaQuota(dati.data(), dati.size()));
        dati = {};
    }
    return quote;
}

void ScriviRisultato(const Richiesta& richiesta, FileSistema sistema, const RisultatoSviluppo& r,
                     int processi, const Cronometro& cronometro, std::ostream& out) {
    ScriviFileColonne(richiesta.colonne, r.colonne);
    if (richiesta.contatori) {
        sistema.condizioni = r.condizioni;
        ScriviFileSistema(*richiesta.contatori, sistema);
    }
    out << "Processi MPI : " << processi << "\n";
    StampaRiepilogo(out, r.testate, r.colonne.size(), cronometro.Secondi(), r.interrotto);
}

// The part of the run inside the MPI job; nothing on every process but 0.
// Process 0 leaves the job as soon as the shares are in, so that the others
// do not wait for the merge and the writing.
std::optional<Raccolta> SviluppaInsieme(const Argomenti& a, std::ostream& err) {
    SessioneMpi mpi;
    Raccolta raccolta;
    raccolta.processi = mpi.Processi();
    std::exception_ptr errore;
    try {
        raccolta.richiesta = LeggiRichiesta(a, mpi);
        raccolta.sistema = LeggiFileSistema(raccolta.richiesta.sistema);
    } catch (...) {
        errore = std::current_exception();
    }
    if (ControllaGuasti(mpi, errore)) return std::nullopt;
    if (!StessoSistemaOvunque(raccolta.sistema)) {
        if (mpi.Rango() != 0) return std::nullopt;
        throw Errore(kErroreFormatoFile,
                     "Il file " + raccolta.richiesta.sistema + " non è lo stesso su tutti i processi");
    }

    InstallaStopDaTastiera();
    // Process 0 shows the progress of its own share.
    const ParametriSviluppo p = ParametriDalFile(raccolta.sistema);
    const Tratto tratto = TrattoDellaQuota(Combinazioni(int(p.numeri.size()), p.classe), {1, mpi.Processi()});
    OsservatoreTerminale terminale(err, tratto.fine - tratto.inizio, SuTerminale(err) && !a.Flag("silenzioso"));
    OsservatoreMuto muto;
    try {
        OsservatoreSviluppo& oss = mpi.Rango() == 0 ? static_cast<OsservatoreSviluppo&>(terminale) : muto;
        raccolta.mia = SviluppaQuota(raccolta.richiesta, raccolta.sistema, mpi, oss);
    } catch (...) {
        errore = std::current_exception();
    }
    terminale.Chiudi();
    if (ControllaGuasti(mpi, errore)) return std::nullopt;

    if (mpi.Rango() != 0) {
        InviaByte(CodificaQuota(raccolta.mia), 0, kEtichettaQuota);
        return std::nullopt;
    }
    for (int p = 1; p < mpi.Processi(); ++p) raccolta.altre.push_back(RiceviByte(p, kEtichettaQuota));
    return raccolta;
}

}  // namespace

int SviluppaConMpi(const Argomenti& a, std::ostream& out, std::ostream& err) {
    const Cronometro cronometro;
    std::optional<Raccolta> raccolta = SviluppaInsieme(a, err);
    if (!raccolta) return kUscitaSenzaRapporto;
    const int classe = raccolta->sistema.intestazione.classe;
    const int riduzione = raccolta->sistema.intestazione.riduzione;
    const RisultatoSviluppo r = UnisciQuote(DecodificaQuote(*raccolta), classe, riduzione);
    ScriviRisultato(raccolta->richiesta, std::move(raccolta->sistema), r, raccolta->processi, cronometro, out);
    return 0;
}

}  // namespace combi::cli
