#pragma once
// The local search behind the optimising reduction (RiduzioneOttimizzata.h).
// Not part of the public interface.
//
// A set cover where the elements and the candidates are the same columns and
// a column covers another when they share at least t numbers (Vicinato.h).
// The number of kept columns is fixed while simulated annealing tries to
// cover everything with it; the cost is the number of uncovered columns.
// State: coperture_[i], how many kept columns cover column i, so that the
// cost of a change is read off the columns the leaving and the entering
// column cover (those only the leaving one covers are lost, those nobody
// covers and the newcomer does are gained).
//
// A step picks an uncovered column u at random and a kept column k among the
// nearest to u (most numbers in common); k gives way to k with one of its
// numbers not in u replaced by one of u's it lacks, which covers u. When no
// input column has those numbers (a conditioned system) the newcomer is an
// input column covering u nearest to k. The change is taken when it does not
// raise the cost, otherwise with probability exp(-increase / T).
// The temperature starts where about half the worsening changes are taken
// and cools geometrically. When the cost at this size has not improved for a
// while (a frozen search only repeats itself) the size starts again from the
// best covering set less a column drawn among the few least useful, warm.
// When nothing is uncovered the set is recorded as the best and a kept column
// whose removal uncovers least is dropped: the search goes on one column smaller.
//
// The weighted variant counts the uncovered columns by weight, a weight that
// grows at every refused change while the column stays uncovered (the holes
// that resist are attacked first), and takes, among all the one-number
// changes of k towards u, the one leaving least uncovered weight. Fewer steps
// a second, but on the integral systems it reaches small sizes sooner than
// the plain one; the two run side by side (RiduzioneOttimizzata.cpp).

#include <cstdint>
#include <memory>
#include <vector>

#include "Colonna.h"
#include "GeneratoreCasuale.h"
#include "InsiemeIndicizzato.h"
#include "Temperatura.h"
#include "Vicinato.h"

namespace combi::riduzione {

// What the optimising reduction runs on a thread: steps, and the best set.
class Ricerca {
public:
    virtual ~Ricerca() = default;
    // One step; returns true when it reached a covering set smaller than the best so far.
    virtual bool Passo() = 0;
    virtual const std::vector<uint32_t>& Migliore() const = 0;  // ascending indices
};

class RicercaLocale : public Ricerca {
public:
    // `colonne` checked, of class `classe`; `iniziali`: a covering set (0-based
    // indices). The redundant columns of it are dropped at once.
    RicercaLocale(const std::vector<Colonna>& colonne, int classe, int punti, const std::vector<uint32_t>& iniziali,
                  uint64_t seme);
    // The same, over a neighbourhood shared with other searches; `pesata`:
    // the weighted variant (see above).
    RicercaLocale(std::shared_ptr<const Vicinato> vicinato, const std::vector<uint32_t>& iniziali, uint64_t seme,
                  bool pesata = false);

    bool Passo() override;
    const std::vector<uint32_t>& Migliore() const override { return migliore_; }

    // The state the steps keep up to date, for the tests to recount from the
    // kept columns alone: a step's bookkeeping is where a fault would hide,
    // since a wrong count only makes the search worse.
    const InsiemeIndicizzato& Tenute() const { return tenute_; }
    const InsiemeIndicizzato& Scoperte() const { return scoperte_; }
    const std::vector<uint32_t>& Coperture() const { return coperture_; }  // kept columns covering each
    // Changes taken that moved the cost (the uncovered count, or weight) by
    // another amount than they were judged by.
    uint64_t StimeSbagliate() const { return stimeSbagliate_; }

private:
    void Inizia(const std::vector<uint32_t>& iniziali);
    void Aggiungi(uint32_t c);
    void Togli(uint32_t c);
    int64_t Perdita(uint32_t k);
    void TogliMenoUtile();
    uint32_t PiuVicinaTenuta(uint32_t u);
    uint32_t Sostituta(uint32_t u, uint32_t tolta);
    uint32_t SostitutaVicina(uint32_t u, uint32_t tolta);
    uint32_t MigliorSostituta(uint32_t u, uint32_t tolta, int64_t& variazione);
    void CambiVerso(uint32_t u, uint32_t tolta);
    int64_t Variazione(uint32_t tolta, uint32_t aggiunta);
    int64_t Costo() const;
    uint64_t Caso() { return caso_(); }
    void Raffredda();
    void Ricomincia();

    // A stage is this many steps per kept number: long enough to try each kept
    // column's changes a few times, short enough that a set of hundreds of
    // columns cools within seconds rather than the whole budget.
    static constexpr uint64_t kPassiPerNumero = 3;
    static constexpr uint32_t kStadiSenzaProgresso = 100; // stages without a better cost before the restart
    static constexpr size_t kRicambi = 4;                // the restart drops one of this many least useful columns
    static constexpr int kProveSostituta = 4;            // one-number changes tried before walking u's coverers

    std::shared_ptr<const Vicinato> vicinato_;
    const Vicinato& v_;
    std::vector<uint32_t> coperture_;
    InsiemeIndicizzato tenute_;             // the kept columns
    InsiemeIndicizzato scoperte_;           // the uncovered columns
    Timbri timbri_;
    std::vector<uint32_t> candidate_;       // the choices of a step
    // The weighted variant: the weight of each column, and what only the
    // leaving column covers, walked once for all the candidates of a step.
    bool pesata_ = false;
    std::vector<int64_t> peso_;
    std::vector<uint32_t> soloDaTolta_;

    // Annealing (Temperatura.h); a stage is passiStadio_ steps.
    Temperatura temperatura_;
    uint64_t passiStadio_ = 1000;
    uint64_t passoNelloStadio_{};
    uint32_t stadiSenzaProgresso_{};
    uint64_t stimeSbagliate_{};             // taken changes whose cost was misjudged
    size_t minimoScoperte_ = SIZE_MAX;      // the best cost at the current size

    std::vector<uint32_t> migliore_;
    GeneratoreCasuale caso_;
};

}  // namespace combi::riduzione
