#pragma once
// The development of a system: every integral column of the picked numbers is
// judged against the conditions and the passing ones are kept, subject to the
// "Riduzione N-K" rule against the previously kept column.
//
// Two paths give the same result: SviluppaSistemaRiferimento, the plain
// single-threaded loop, and SviluppaSistema, the multi-core one. Both report
// progress, read the stop request and let the host pump messages once every
// 10000 tested columns, so a stop ends the run at the next multiple of 10000.

#include <cstdint>
#include <functional>
#include <span>
#include <thread>
#include <vector>

#include "Colonna.h"
#include "Condizione.h"

namespace combi {

inline constexpr uint64_t kPassoProgresso = 10000;

// What the engine needs from whoever runs it: a place to show the counters
// ("Sviluppate :", "Condizionate :"), the stop flag and the message pump.
// Every call is made on the thread that started the development.
class OsservatoreSviluppo {
public:
    virtual ~OsservatoreSviluppo() = default;
    virtual void Progresso(uint64_t testate, uint64_t tenute) { (void)testate; (void)tenute; }
    virtual bool RichiestaStop() { return false; }
    virtual void ElaboraMessaggi() {}
};

struct ParametriSviluppo {
    std::vector<int> numeri;        // the picked numbers, ascending, 1..90
    int classe{};                   // numbers per column, 1..20
    int riduzione{};                // K of "Riduzione N-K"; 0 for none
    TabellaCondizioni condizioni;   // at least one record
    TabellaQuadri quadri{};
};

// Worker `indice` of `di` develops the contiguous stretch
// [T*(indice-1)/di, T*indice/di) of the T integral columns.
struct Quota {
    int indice = 1;
    int di = 1;
};

// Starts a thread running `lavoro`; tests pass one that fails on purpose.
using AvviaThread = std::function<std::thread(std::function<void()> lavoro)>;

struct OpzioniSviluppo {
    int thread{};    // 0: one per hardware thread
    Quota quota;
};

// Where the kept columns go, in enumeration order, as the run produces them.
// Every call is made on the thread that started the development.
class DestinazioneColonne {
public:
    virtual ~DestinazioneColonne() = default;
    virtual void Accoda(std::span<const Colonna> colonne) = 0;
};

// What a development leaves besides its columns.
struct EsitoSviluppo {
    uint64_t testate{};             // columns tested
    uint64_t tenute{};              // columns kept
    TabellaCondizioni condizioni;   // counters summed over the tested columns;
                                    // Valore and flags of the last tested column
    bool interrotto = false;        // a stop request ended the run early
};

struct RisultatoSviluppo {
    std::vector<Colonna> colonne;   // kept columns in enumeration order
    uint64_t testate{};
    TabellaCondizioni condizioni;
    bool interrotto = false;
};

// The distance R = k - K below which a passing column must stay from the
// previously kept one; 0 (keep every passing column) when K is 0.
int DistanzaRiduzione(int classe, int riduzione);

// The first and one-past-last rank of a share of T columns.
struct Tratto {
    uint64_t inizio{};
    uint64_t fine{};
};
Tratto TrattoDellaQuota(uint64_t totale, const Quota& quota);

// Throws Errore with an Italian description when the parameters cannot be
// developed (class outside 1..20, numbers not ascending in 1..90, class above
// the count of picked numbers, a bad share).
void ControllaParametri(const ParametriSviluppo& p, const Quota& quota);

// The plain loop: one column at a time through VerificaColonna. The kept
// columns go to `destinazione` every 10000 tested columns and at the end.
EsitoSviluppo SviluppaSistemaRiferimento(const ParametriSviluppo& p, OsservatoreSviluppo& oss,
                                         DestinazioneColonne& destinazione, const Quota& quota = {});

// The fast path, on every core. A null `destinazione` only counts: the
// columns are judged, reduced and counted, and none is written. The worker
// threads are started through `avvia` when given (empty: std::thread).
EsitoSviluppo SviluppaSistema(const ParametriSviluppo& p, OsservatoreSviluppo& oss,
                              DestinazioneColonne* destinazione, const OpzioniSviluppo& opzioni = {},
                              const AvviaThread& avvia = {});

// How many columns the development would keep, with every counter, at the
// development's speed and without writing any column.
EsitoSviluppo ContaSistema(const ParametriSviluppo& p, OsservatoreSviluppo& oss,
                           const OpzioniSviluppo& opzioni = {});

// Both paths with the kept columns held in memory.
RisultatoSviluppo SviluppaSistemaRiferimento(const ParametriSviluppo& p, OsservatoreSviluppo& oss,
                                             const Quota& quota = {});
RisultatoSviluppo SviluppaSistema(const ParametriSviluppo& p, OsservatoreSviluppo& oss,
                                  const OpzioniSviluppo& opzioni = {});

}  // namespace combi
