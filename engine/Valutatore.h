#pragma once
// The development's fast judgement of a column. The condition table is
// compiled once per run: point lists become bit masks, number and position
// sets become 128-bit masks, and the link groups, which depend only on the
// order of the types, are settled once into a fixed evaluation program.
// It must agree with VerificaColonna on every column; the tests check it.

#include <array>
#include <cstdint>
#include <vector>

#include "Colonna.h"
#include "Condizione.h"

namespace combi {

inline constexpr int kMaxCondizioniVeloci = 256;

class Valutatore {
public:
    using Bitset = std::array<uint64_t, kMaxCondizioniVeloci / 64>;

    // Per condition: columns that failed, passed and were recoverable.
    struct Contatori {
        std::vector<int64_t> fallite, superate, recuperabili;
        explicit Contatori(size_t n = 0) : fallite(n), superate(n), recuperabili(n) {}
        void Somma(const Contatori& altri);
    };

    // A table of more than kMaxCondizioniVeloci conditions cannot be compiled.
    static bool Compilabile(const TabellaCondizioni& tabella) {
        return tabella.size() <= kMaxCondizioniVeloci;
    }

    Valutatore(const TabellaCondizioni& tabella, const TabellaQuadri& quadri, int classe);
    ~Valutatore();
    Valutatore(const Valutatore&) = delete;
    Valutatore& operator=(const Valutatore&) = delete;

    // Judges one column and adds its outcome to the counters.
    bool Giudica(const Colonna& c, Contatori& contatori) const;

private:
    struct Compilata;
    struct Gruppo;
    struct Quadro;

    void CompilaGruppi(const TabellaCondizioni& tabella);

    int k_;
    int parole_;                        // 64-bit words of the bitsets in use
    std::vector<Compilata> condizioni_;
    std::vector<Quadro> quadri_;
    std::vector<Gruppo> gruppi_;        // inner groups before the groups that contain them
    Bitset sempreSuperate_{};           // type 0: passes on every column
    Bitset foglieFinali_{};             // conditions judged one by one at the end
    std::vector<int> gruppiFinali_;     // groups judged one by one at the end
};

}  // namespace combi
