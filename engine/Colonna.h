#pragma once
// One column of a system: up to 20 numbers 1..90 in ascending order.
// The same 20 bytes live in memory, in the public interface and in files.

#include <array>
#include <cstdint>

namespace combi {

inline constexpr int kMaxClasse = 20;   // positions of the column record
inline constexpr int kMaxNumero = 90;   // numbers run 1..90 for every game

struct Colonna {
    // Numeri[0] is position 1; positions above the class hold 0.
    std::array<uint8_t, kMaxClasse> Numeri{};

    // 1-based access as the rest of the system counts positions.
    uint8_t& operator[](int posizione) { return Numeri[posizione - 1]; }
    uint8_t operator[](int posizione) const { return Numeri[posizione - 1]; }

    bool operator==(const Colonna&) const = default;
};

// The most columns held in memory at once (5 GB): the kept columns of a
// development and a columns file read whole. A set this large is beyond what
// the tools can use; refusing it with a message beats the process being
// killed for lack of memory halfway through.
inline constexpr uint64_t kMassimoColonneInMemoria = 250'000'000;

static_assert(sizeof(Colonna) == 20, "a column is 20 bytes in files and in memory");

// The class of a column that carries none: the highest position holding a
// non-zero number (0 for an empty column).
int ClasseDellaColonna(const Colonna& c);

}  // namespace combi
