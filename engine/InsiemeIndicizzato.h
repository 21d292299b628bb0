#pragma once
// A set of the indices 0..n-1 that adds and removes in constant time and
// lists its members in an array, so that a member can be drawn at random:
// a removed member's place goes to the last one.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace combi {

class InsiemeIndicizzato {
public:
    InsiemeIndicizzato() = default;
    explicit InsiemeIndicizzato(size_t n) : posizione_(n, kFuori) {}

    void Inserisci(uint32_t i) {
        posizione_[i] = int32_t(membri_.size());
        membri_.push_back(i);
    }
    void Togli(uint32_t i) {
        const int32_t p = posizione_[i];
        const uint32_t ultimo = membri_.back();
        membri_[size_t(p)] = ultimo;
        posizione_[ultimo] = p;
        membri_.pop_back();
        posizione_[i] = kFuori;
    }

    bool Contiene(uint32_t i) const { return posizione_[i] != kFuori; }
    const std::vector<uint32_t>& Membri() const { return membri_; }
    uint32_t operator[](size_t p) const { return membri_[p]; }
    size_t size() const { return membri_.size(); }
    bool empty() const { return membri_.empty(); }
    uint32_t back() const { return membri_.back(); }
    auto begin() const { return membri_.begin(); }
    auto end() const { return membri_.end(); }

private:
    static constexpr int32_t kFuori = -1;  // the place of a non-member

    std::vector<uint32_t> membri_;
    std::vector<int32_t> posizione_;  // place in membri_, or kFuori
};

}  // namespace combi
