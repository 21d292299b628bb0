#pragma once
// The temperature of the local search's annealing (RicercaLocale.h).
// Not part of the public interface.
//
// A change that does not raise the cost is always taken. The first
// kCampioni worsening changes are taken too, and measured: the starting
// temperature is the one at which the average of them would be taken half
// the time, exp(-media / T) = 1/2, so T = media / ln 2. From then on a
// worsening change of `variazione` is taken with probability
// exp(-variazione / T). The temperature cools by a fixed ratio at each
// stage, and a restart warms it back to a fraction of the starting one.

#include <cmath>
#include <cstdint>

namespace combi::riduzione {

class Temperatura {
public:
    static constexpr uint32_t kCampioni = 200;        // worsening changes measured for the starting temperature
    static constexpr double kRaffreddamento = 0.99;   // per stage
    static constexpr double kRiscaldamento = 0.3;     // the restart's temperature, a fraction of the first

    // `caso()` draws 64 random bits; it is called only when the draw decides,
    // so the sequence a search walks does not depend on how this is written.
    template <typename Caso>
    bool Accetta(int64_t variazione, Caso&& caso) {
        if (variazione <= 0) return true;
        if (Taratura()) {
            somma_ += double(variazione);
            if (++misurati_ == kCampioni) valore_ = iniziale_ = somma_ / kCampioni / std::log(2.0);
            return true;
        }
        const double frazione = double(caso() >> 11) * 0x1.0p-53;  // uniform in [0, 1)
        return frazione < std::exp(-double(variazione) / valore_);
    }

    void Raffredda() { valore_ *= kRaffreddamento; }
    void Riscalda() { valore_ = iniziale_ * kRiscaldamento; }

    bool Taratura() const { return misurati_ < kCampioni; }  // still measuring
    double Valore() const { return valore_; }

private:
    double valore_{};
    double iniziale_{};
    double somma_{};
    uint32_t misurati_{};
};

}  // namespace combi::riduzione
