#pragma once
// A set of numbers 0..127 as two 64-bit words: bit n stands for the number n.
// The fast development judges all the candidates of a column's last position
// at once, so every verdict on them is one of these masks.

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace combi {

struct Maschera128 {
    uint64_t basso{};    // numbers 0..63
    uint64_t alto{};     // numbers 64..127

    static constexpr Maschera128 Tutti() { return {~uint64_t{0}, ~uint64_t{0}}; }

    // The numbers a..b, both included; empty when a > b. Bounds outside
    // 0..127 are clamped, so callers may pass any shifted range. A table
    // lookup and no branch: this runs for several conditions of every block.
    static constexpr Maschera128 Intervallo(int64_t a, int64_t b);

    // Every number moved up by n (0..127); those passing 127 drop out.
    constexpr Maschera128 Sposta(int n) const {
        __extension__ typedef unsigned __int128 Parola;
        const Parola v = ((Parola(alto) << 64) | basso) << n;
        return {uint64_t(v), uint64_t(v >> 64)};
    }

    constexpr void Imposta(int n) { (n < 64 ? basso : alto) |= uint64_t{1} << (n & 63); }
    constexpr bool Contiene(int n) const { return ((n < 64 ? basso : alto) >> (n & 63)) & 1; }
    constexpr bool Vuota() const { return (basso | alto) == 0; }
    constexpr int Conta() const { return std::popcount(basso) + std::popcount(alto); }

    constexpr Maschera128 operator&(const Maschera128& m) const { return {basso & m.basso, alto & m.alto}; }
    constexpr Maschera128 operator|(const Maschera128& m) const { return {basso | m.basso, alto | m.alto}; }
    constexpr Maschera128 operator^(const Maschera128& m) const { return {basso ^ m.basso, alto ^ m.alto}; }
    constexpr Maschera128 operator~() const { return {~basso, ~alto}; }
    constexpr Maschera128& operator&=(const Maschera128& m) { return *this = *this & m; }
    constexpr Maschera128& operator|=(const Maschera128& m) { return *this = *this | m; }
    constexpr bool operator==(const Maschera128&) const = default;

    // Calls f(n) for every number of the set in ascending order.
    template <class F>
    constexpr void PerOgni(F&& f) const {
        for (uint64_t w = basso; w != 0; w &= w - 1) f(std::countr_zero(w));
        for (uint64_t w = alto; w != 0; w &= w - 1) f(64 + std::countr_zero(w));
    }

};

namespace dettaglio {

// kDaZero[n]: the numbers 0..n-1, for n in 0..128.
constexpr auto kDaZero = [] {
    std::array<Maschera128, 129> t{};
    for (int n = 1; n <= 128; ++n) {
        t[size_t(n)] = t[size_t(n - 1)];
        t[size_t(n)].Imposta(n - 1);
    }
    return t;
}();

constexpr int64_t Limita(int64_t v) { return std::clamp<int64_t>(v, 0, 128); }

}  // namespace dettaglio

constexpr Maschera128 Maschera128::Intervallo(int64_t a, int64_t b) {
    const int64_t da = dettaglio::Limita(a), oltre = dettaglio::Limita(b + 1);
    // With oltre <= da the first set lies inside the second: empty.
    return dettaglio::kDaZero[size_t(oltre)] & ~dettaglio::kDaZero[size_t(da)];
}

// A fixed choice between nothing and everything, for verdicts that do not
// depend on the candidate.
constexpr Maschera128 TuttiSe(bool vero) { return vero ? Maschera128::Tutti() : Maschera128{}; }

}  // namespace combi
