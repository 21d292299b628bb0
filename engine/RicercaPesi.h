#pragma once
// A local search over the orbits of a rotation of the numbers, for the
// optimising reduction (RicercaAlternata.h): by orbit weighting rather than
// annealing. Not part of the public interface.
//
// The units are the orbits of the input columns under the rotation; an orbit
// covers another when a column of one covers a column of the other (the
// relation is the same for every column of an orbit). Only whole orbits of
// `ordine` columns are kept. Every orbit has a weight (1 at the start) and a
// score kept up to date: when not kept, the weight of the uncovered orbits it
// would cover; when kept, minus the weight of the orbits only it covers. A
// step removes the kept orbit with the highest score (least loss; not the one
// the last step added), picks an uncovered orbit u at random and adds, among
// ALL the orbits covering u, the one with the highest score that
// configuration checking allows (a removed orbit may come back only after an
// orbit it covers has changed state); ties go to the one left untouched
// longest. Then every uncovered orbit gains one unit of weight: the holes that
// resist weigh more and more. When nothing is uncovered the set is recorded
// as the best and the kept orbit of least loss is dropped.
//
// The kept orbit covering another alone is found without a walk: each orbit
// keeps the XOR of the kept orbits covering it.

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "GeneratoreCasuale.h"
#include "InsiemeIndicizzato.h"
#include "RicercaLocale.h"
#include "Vicinato.h"

namespace combi::riduzione {

// What decides between two orbits a step may take or drop: the higher score,
// and between equal scores the one left untouched longest.
struct Merito {
    int64_t punteggio;
    uint64_t ultimoCambio;  // the step at which it last entered or left
};
inline bool Meglio(Merito a, Merito b) {
    return a.punteggio > b.punteggio || (a.punteggio == b.punteggio && a.ultimoCambio < b.ultimoCambio);
}

class RicercaPesi : public Ricerca {
public:
    // The search over the orbits of a rotation of order `ordine` of the numbers
    // the input uses: a kept orbit is `ordine` columns. Valida() is false when
    // the input is not closed under the rotation, an orbit cannot be covered,
    // or the orbit lists would pass `massimeVicine` entries (4 bytes each).
    RicercaPesi(std::shared_ptr<const Vicinato> vicinato, int ordine, uint64_t seme,
                uint64_t massimeVicine = kMassimeVicine);
    bool Valida() const { return valida_; }

    bool Passo() override;
    const std::vector<uint32_t>& Migliore() const override { return migliore_; }

    // The state recounted from the kept orbits alone equals the one the steps
    // keep up to date: how many kept orbits cover each orbit and which (for
    // the lone ones), the uncovered set, and every score (a kept orbit's
    // loss, the weight only it covers, as a negative; another's gain, the
    // uncovered weight it would cover). For the tests: a wrong count only
    // makes the search worse.
    bool Coerente() const;

    static constexpr uint64_t kMassimeVicine = 40'000'000;  // 160 MB of orbit lists

private:
    // The orbits orbit o covers.
    std::span<const uint32_t> Vicine(uint32_t o) const {
        return std::span(vicine_).subspan(inizioVicine_[o], inizioVicine_[size_t(o) + 1] - inizioVicine_[o]);
    }
    bool CostruisciOrbite(int ordine, uint64_t massimeVicine);
    void Registra();
    void Aggiungi(uint32_t c);
    void Togli(uint32_t c);
    Merito MeritoDi(uint32_t o) const { return {punteggio_[o], ultimoCambio_[o]}; }
    uint32_t DaTogliere() const;
    uint32_t DaAggiungere(uint32_t u);
    void Pesa();
    uint64_t Caso() { return caso_(); }

    std::shared_ptr<const Vicinato> vicinato_;
    const Vicinato& v_;
    // Orbit mode: the columns of orbit o are colonneOrbita_[inizioOrbita_[o]..[o+1]),
    // the orbits it covers vicine_[inizioVicine_[o]..[o+1]); piena_: a whole orbit of `ordine` columns.
    bool valida_ = true;
    bool finita_ = false;
    uint32_t unita_{};
    std::vector<uint64_t> inizioOrbita_, inizioVicine_;
    std::vector<uint32_t> colonneOrbita_, vicine_;
    std::vector<uint8_t> piena_;
    size_t dimensioneMigliore_ = SIZE_MAX;
    std::vector<uint32_t> coperture_;
    std::vector<uint32_t> xorTenute_;     // XOR of the kept columns covering each column
    std::vector<int64_t> peso_;
    std::vector<int64_t> punteggio_;
    std::vector<uint64_t> ultimoCambio_;  // the step at which each column last entered or left
    std::vector<uint8_t> puoEntrare_;     // configuration checking
    InsiemeIndicizzato tenute_;
    InsiemeIndicizzato scoperte_;
    uint32_t ultimaAggiunta_ = UINT32_MAX;
    uint64_t passo_{};
    std::vector<uint32_t> migliore_;
    GeneratoreCasuale caso_;
};

}  // namespace combi::riduzione
