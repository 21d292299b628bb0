#pragma once
// Field-by-field little-endian reading and writing of the binary files.
// The reader knows how many bytes remain and refuses to read past them.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace combi {

class LittleEndianWriter {
public:
    void U8(uint8_t v) { dati_.push_back(v); }
    void I16(int16_t v) { Intero(uint16_t(v), 2); }
    void I32(int32_t v) { Intero(uint32_t(v), 4); }
    void Testo(std::string_view s) { dati_.insert(dati_.end(), s.begin(), s.end()); }
    const std::vector<uint8_t>& Dati() const { return dati_; }

private:
    void Intero(uint32_t v, int byte) {
        for (int i = 0; i < byte; ++i) dati_.push_back(uint8_t(v >> (8 * i)));
    }
    std::vector<uint8_t> dati_;
};

class LittleEndianReader {
public:
    LittleEndianReader(const uint8_t* dati, size_t lunghezza) : dati_(dati), resto_(lunghezza) {}

    // Each read returns false, leaving the value untouched, when too few bytes remain.
    bool U8(uint8_t& v) { return Leggi(&v, 1); }
    bool I16(int16_t& v) {
        uint8_t b[2];
        if (!Leggi(b, 2)) return false;
        v = int16_t(uint16_t(b[0] | (b[1] << 8)));
        return true;
    }
    bool I32(int32_t& v) {
        uint8_t b[4];
        if (!Leggi(b, 4)) return false;
        v = int32_t(uint32_t(b[0]) | (uint32_t(b[1]) << 8) | (uint32_t(b[2]) << 16) | (uint32_t(b[3]) << 24));
        return true;
    }
    bool Testo(std::string& s, size_t n) {
        if (n > resto_) return false;
        s.assign(reinterpret_cast<const char*>(dati_), n);
        dati_ += n;
        resto_ -= n;
        return true;
    }
    size_t Resto() const { return resto_; }

private:
    bool Leggi(uint8_t* out, size_t n) {
        if (n > resto_) return false;
        for (size_t i = 0; i < n; ++i) out[i] = dati_[i];
        dati_ += n;
        resto_ -= n;
        return true;
    }
    const uint8_t* dati_;
    size_t resto_;
};

}  // namespace combi
