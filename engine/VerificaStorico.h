#pragma once
// How the columns would have done: every draw of the archive in the chosen
// game, wheel and dates, checked against every column, as the winnings check
// does for one draw. Per draw: how many columns scored each number of
// points; over all of them: the totals, the best draw and the longest run of
// draw dates without a column at the minimum points.
//
// Two paths give the same counts. VerificaStoricoRiferimento checks every
// column against every draw, position by position. VerificaStorico keeps,
// for every number 1..90, one bit per column ("the column holds it"), and
// adds the rows of the drawn numbers with bitwise full adders: 64 columns
// score a draw in a handful of word operations, and the counts per points
// come from population counts of the sum's bit planes. Draws are shared
// among threads.
//
// Why not the t-subset index of the reduction: it answers "which columns hold
// these t numbers" cheaply when the draw is small and few columns share much
// with it (Lotto, five numbers). A 10ELotto draw holds 20 of the 90 numbers,
// so nearly every column scores something and the index would visit them all,
// and its lists grow as C(class, t) per column (class 10 at t = 3: 120 entries
// per column, half a gigabyte for a million). The bit planes cost the same
// for every game and class and need 90 bits per column.

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "ArchivioEstrazioni.h"
#include "Colonna.h"
#include "Spoglio.h"

namespace combi {

struct ParametriStorico {
    GiocoArchivio gioco = GiocoArchivio::kLotto;
    std::optional<int> ruota;              // Lotto only: one wheel 0..10; none for every wheel
    DataEstrazione dal{};                  // first date checked
    DataEstrazione al = 99991231;          // last date checked
    int puntiMinimi = 1;                   // 1..20: a draw "has hits" when a column scores this many
    int classe{};                          // rows of the totals: at least this class (0: the columns')
    int thread{};                          // 0: one per core
    // Draws per group handed to a thread; 0: about 64 million column checks
    // (tests use small groups to share a few draws among threads).
    size_t estrazioniPerGruppo{};
};

// Progress, message pumping and Stop, all called on the calling thread, after
// every group of draws (a few tens of milliseconds of work).
class OsservatoreStorico {
public:
    virtual ~OsservatoreStorico() = default;
    virtual void Progresso(size_t controllate, size_t totale) { (void)controllate, (void)totale; }
    virtual void ElaboraMessaggi() {}
    virtual bool RichiestaStop() { return false; }
};

// conte[p]: how many columns scored p points.
using ContePunti = std::array<int64_t, kMaxClasse + 1>;

struct EsitoEstrazione {
    Estrazione estrazione;
    ContePunti conte{};
    // The most points any column scored, 0 when none scored.
    int PuntiMassimi() const;
    // Columns scoring at least `minimo`.
    int64_t Vincenti(int minimo) const;
};

struct Digiuno {
    int64_t concorsi{};          // dates in a row without a hit
    DataEstrazione dal{}, al{};      // its first and last date; 0 when there is none
};

struct EsitoStorico {
    int classe{};                             // the rows of the totals run from min(classe, drawn numbers)
    int puntiMinimi = 1;                      // ... down to this
    std::vector<EsitoEstrazione> estrazioni;  // every draw checked, by date then wheel
    ContePunti totali{};
    int64_t estrazioniConVincite{};
    std::optional<size_t> migliore;           // index in `estrazioni`
    Digiuno digiuno;
    size_t daControllare{};                   // draws in the range
    bool interrotto = false;                  // a Stop cut the draws short: `estrazioni` is a prefix
    // "Vincite con p punti " and the total, from the top row down to the minimum.
    std::vector<RigaRiepilogo> Riepilogo() const;
};

// The draws of the archive that the parameters select, by date then wheel.
std::vector<Estrazione> EstrazioniScelte(const std::vector<Estrazione>& archivio, const ParametriStorico& p);

// `colonne`: the columns to check, each with numbers 1..90 strictly ascending
// then zeros (any class). Throws Errore 321 naming the first column that is
// not, Errore 5 for a minimum outside 1..20 or a wheel given for another
// game than Lotto. On Stop the draws already checked, in order, make the result.
EsitoStorico VerificaStorico(const std::vector<Colonna>& colonne, const std::vector<Estrazione>& archivio,
                             const ParametriStorico& p, OsservatoreStorico& oss);

EsitoStorico VerificaStoricoRiferimento(const std::vector<Colonna>& colonne,
                                        const std::vector<Estrazione>& archivio, const ParametriStorico& p,
                                        OsservatoreStorico& oss);

}  // namespace combi
