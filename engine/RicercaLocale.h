#pragma once
// The local search behind the optimising reduction (RiduzioneOttimizzata.h).
// Not part of the public interface.
//
// A set cover where the elements and the candidates are the same columns and
// a column covers another when they share at least t numbers (a symmetric
// relation, so "the columns covering i" are "the columns i covers"; they are
// walked through the subset index, never stored). The number of kept columns
// is fixed while the search tries to cover everything with it. State:
//   - coperture_[i]: how many kept columns cover column i;
//   - sommaCoprenti_[i]: the sum of their indices, so that when exactly one
//     kept column covers i it is known without a search;
//   - peso_[i]: the weight of column i, which grows every time a proposed
//     change is refused while i is uncovered (hole weighting: the columns that
//     stay uncovered count more and more until a change covers them);
//   - perdita_[k]: for a kept column k, the weight of the columns only k
//     covers: what removing it would uncover.
// A step picks an uncovered column u at random; the kept column nearest to u
// (most numbers in common) gives way to the column covering u nearest to it
// that leaves the least uncovered weight (a sample of the ties). The change
// is taken when it does not add uncovered weight, otherwise with probability
// exp(-increase / temperature), the temperature tuned every thousand
// worsening proposals so that about 2% of them are taken.
// When nothing is uncovered the set is recorded as the best and the kept
// column of least loss is dropped: the search goes on one column smaller.

#include <array>
#include <cstdint>
#include <vector>

#include "Colonna.h"
#include "RiduzioneIndice.h"

namespace combi::riduzione {

class RicercaLocale {
public:
    // `colonne` checked, of class `classe`; `iniziali`: a covering set (0-based
    // indices). The redundant columns of it are dropped at once.
    RicercaLocale(const std::vector<Colonna>& colonne, int classe, int punti, const std::vector<uint32_t>& iniziali,
                  uint64_t seme);

    // One step; returns true when it reached a covering set smaller than the best so far.
    bool Passo();

    const std::vector<uint32_t>& Migliore() const { return migliore_; }  // ascending indices

private:
    template <typename F>
    void PerVicini(uint32_t i, F&& f);  // every column sharing >= t numbers with i, once each
    void Aggiungi(uint32_t c);
    void Togli(uint32_t c);
    void Scopri(uint32_t i);
    void Copri(uint32_t i);
    uint32_t MenoPerdita();
    uint32_t PiuVicinaTenuta(uint32_t u);
    uint32_t MigliorSostituta(uint32_t u, uint32_t tolta, int64_t& variazione);
    int Comuni(uint32_t a, uint32_t b) const;
    bool Copre(uint32_t a, uint32_t b) const { return Comuni(a, b) >= punti_; }
    uint64_t Caso();
    bool Accetta(int64_t variazione);

    static constexpr size_t kCandidatiProvati = 48;
    static constexpr uint32_t kPassiTaratura = 1000;
    static constexpr double kQuotaPeggiori = 0.02;

    IndiceCoperture indice_;
    int punti_;
    std::vector<std::array<uint64_t, 2>> maschere_;  // the numbers of each column as bits
    std::vector<uint32_t> coperture_;
    std::vector<uint64_t> sommaCoprenti_;
    std::vector<int64_t> peso_;
    std::vector<int64_t> perdita_;          // meaningful for kept columns
    std::vector<uint32_t> tenute_;          // the kept columns
    std::vector<int32_t> posTenuta_;        // position in tenute_, -1 if not kept
    std::vector<uint32_t> scoperte_;        // the uncovered columns
    std::vector<int32_t> posScoperta_;      // position in scoperte_, -1 if covered
    std::vector<uint32_t> timbro_;          // visit marks of PerVicini
    uint32_t giro_ = 0;
    std::vector<uint32_t> vicini_;          // the candidates of a step
    std::vector<uint32_t> soloDaTolta_;     // the columns only the leaving column covers
    double temperatura_ = 1.0;
    uint32_t peggioriProposte_ = 0;
    uint32_t peggioriAccettate_ = 0;
    std::vector<uint32_t> migliore_;
    uint64_t stato_;
};

}  // namespace combi::riduzione
