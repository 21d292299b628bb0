#pragma once
// The distribution of one condition's measure over the integral system of
// the picked numbers, computed a slice at a time so that a window can stay
// responsive (and stop) between slices. Plain C++: no widgets.

#include <cstdint>
#include <map>
#include <vector>

#include "Conteggi.h"
#include "Condizione.h"

class DistribuzioneMisura {
public:
    // `numeri` ascending, at least `classe` of them (else combi::Errore).
    DistribuzioneMisura(const combi::Condizione& condizione, const std::vector<int>& numeri, int classe);

    // Measures up to `quante` more columns; false once every column is done.
    bool Avanza(uint64_t quante);
    bool Finita() const { return misurate_ == enumerazione_.Totale(); }
    uint64_t Misurate() const { return misurate_; }
    uint64_t Totale() const { return enumerazione_.Totale(); }
    // Columns per measured value, in increasing value order.
    const std::map<int32_t, uint64_t>& Conteggi() const { return conteggi_; }

private:
    combi::Condizione condizione_;
    int classe_;
    combi::Enumerazione enumerazione_;
    uint64_t misurate_ = 0;
    std::map<int32_t, uint64_t> conteggi_;
};
