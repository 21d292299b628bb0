#pragma once
// The development's fast judgement. All the columns that share their first
// k-1 numbers (a block) are judged at once: each condition, compiled into a
// CondizioneCompilata, turns the prefix into a key, and the key into masks
// of the candidates for the last position on which it passes and on which
// it is recoverable. The recovery panels and the link groups combine these
// masks with bit-sliced counters.
//
// Two things keep it fast. The condition counters count every column, but
// on a whole block a condition's outcome depends only on its key and the
// prefix's last number, so a block adds one to a tally of those pairs, and
// the tallies turn into counts now and then (Riversa). And the verdict is
// built one condition at a time, stopping as soon as no candidate is left:
// most blocks of a selective system end after a condition or two.
//
// The link groups depend only on the order of the types, so they are settled
// once into a fixed program. It must agree with VerificaColonna on every
// column; the tests check it on seeded random systems of every class.

#include <array>
#include <cstdint>
#include <vector>

#include "CondizioneCompilata.h"
#include "Condizione.h"
#include "Maschera.h"
#include "Prefisso.h"

namespace combi {

class Valutatore {
public:
    // The counters of the judged conditions, in their table order: passes
    // [0, n) and recoverables [n, 2n). The failures are the tested columns
    // minus the passes.
    struct Contatori {
        std::vector<int64_t> valori;
        void Azzera();
    };

    // One thread's working space: the keys and masks of the current block,
    // and per condition the tally of whole blocks by key and last number.
    struct Lavagna {
        std::vector<Maschera128> superate, recuperabili, gruppi;
        std::vector<uint32_t> tallie;   // per condition from its base: [chiave * 91 + ultimo]
        std::vector<int32_t> righe;     // per condition from its base: [riga * 92 + y], differences
        std::vector<uint32_t> primaChiave, ultimaChiave, primaRiga, ultimaRiga;  // since the last Riversa
        // The conditions that must pass on their own, in the order tried:
        // the one that most often leaves no candidate first.
        std::vector<int> ordine, ordineRiga;  // all of them; those a row cannot judge once
        std::vector<uint32_t> scarti, scartiRiga;  // blocks each one ended, since the last reordering
        uint32_t blocchi{};
        std::vector<uint32_t> righeBlocco;  // the row keys of the current row
        // The blocks of the current row still alive: y and candidates; the
        // masks of one condition over them.
        std::vector<int> ys;
        std::vector<Maschera128> esiti;
        // Per condition (and per group), its masks over the row's blocks.
        std::vector<Maschera128> superateBlocchi, recuperabiliBlocchi, gruppiBlocchi;
        // The blocks of the last row judged that keep a column: y and the candidates kept.
        std::vector<std::pair<int, Maschera128>> esitiRiga;
    };

    // `numeri`: the picked numbers, ascending.
    Valutatore(const TabellaCondizioni& tabella, const TabellaQuadri& quadri, int classe,
               const std::vector<int>& numeri);
    ~Valutatore();
    Valutatore(const Valutatore&) = delete;
    Valutatore& operator=(const Valutatore&) = delete;

    // A link group or panel too large for the counters' width; such a table
    // is developed by the plain loop.
    static bool Compilabile(const TabellaCondizioni& tabella);

    Lavagna NuovaLavagna() const;
    Contatori NuoviContatori() const;

    // Judges a whole row: the blocks whose prefix is q (k-2 numbers) and a
    // number y among the picked ones in yPrimo..yUltimo. The counters are
    // tallied; the blocks that keep a column are left in lavagna.esitiRiga.
    void GiudicaRiga(const Prefisso& q, int yPrimo, int yUltimo, Lavagna& lavagna) const;

    // The candidates (numbers for position k after the prefix of k-1 numbers)
    // whose columns pass. `intero`: the candidates are every picked number
    // above the prefix's last, so the block's outcomes may be tallied; a cut
    // block adds them to the counters at once.
    Maschera128 Giudica(const Prefisso& prefisso, Maschera128 candidati, bool intero, Contatori& contatori,
                        Lavagna& lavagna) const;

    // Adds the tallies into the counters and clears them.
    void Riversa(Lavagna& lavagna, Contatori& contatori) const;

    // The counters as the table's records show them, saturated to 32 bits.
    void ScriviContatori(const Contatori& c, uint64_t testate, TabellaCondizioni& tabella) const;

private:
    struct Quadro;
    struct Gruppo;

    void CompilaQuadri(const TabellaCondizioni& tabella, const TabellaQuadri& quadri);
    void CompilaGruppi(const TabellaCondizioni& tabella);
    template <class Fornitore>
    Maschera128 Verdetto(Maschera128 candidati, const Fornitore& maschere, std::vector<int>& ordine,
                         std::vector<uint32_t>& scarti, Lavagna& l) const;
    void Maschere(int i, uint32_t chiave, int ultimo, Lavagna& l) const;
    CondizioneCompilata::Tallie TallieDi(size_t i, Lavagna& l) const;
    void RiversaRighe(size_t i, Lavagna& l) const;
    void CompattaVivi(Lavagna& l) const;
    bool QuadriDellaRiga(int c, Lavagna& l) const;
    void GruppiDellaRiga(int c, Lavagna& l) const;
    void RiversaChiavi(size_t i, Lavagna& l, Contatori& contatori) const;
    static void Riordina(std::vector<int>& ordine, std::vector<uint32_t>& scarti);

    std::vector<CondizioneCompilata> condizioni_;  // the judged conditions, in table order
    std::vector<int> indici_;                      // their table indices
    std::vector<size_t> basi_;                     // where each one's tallies start
    std::vector<size_t> basiRighe_;                // where each one's row tallies start
    Maschera128 scelti_;
    std::vector<int> posto_;                       // table index -> position in condizioni_, -1
    std::vector<int> foglieSole_;      // must pass on their own, in no active panel
    std::vector<int> foglieDiRiga_;    // those of them a whole row judges once
    std::vector<Quadro> quadri_;
    std::vector<Gruppo> gruppi_;       // inner groups before the groups that contain them
    std::array<Maschera128, kMaxNumero + 1> sopra_{};  // picked numbers above each number
};

}  // namespace combi
