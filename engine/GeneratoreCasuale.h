#pragma once
// splitmix64: the same sequence on every platform for the same seed, so a
// search with a seed and a step limit gives the same columns everywhere.

#include <cstdint>

namespace combi {

class GeneratoreCasuale {
public:
    explicit GeneratoreCasuale(uint64_t seme) : stato_(seme * 0x9E3779B97F4A7C15ull + 0x2545F4914F6CDD1Dull) {}

    uint64_t operator()() {
        uint64_t z = (stato_ += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }

private:
    uint64_t stato_;
};

}  // namespace combi
