#pragma once
// The observers the tests hand to the development and to the reduction: they
// record what they are told and ask for a stop at a chosen point. And the
// comparison of two developments, field by field.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "Riduzione.h"
#include "Sviluppo.h"

namespace combi::test {

// Records every progress report and message pump; asks for a stop once the
// reported count of tested columns reaches `fermaA`.
class Osservatore : public OsservatoreSviluppo {
public:
    explicit Osservatore(uint64_t fermaA = UINT64_MAX) : fermaA_(fermaA) {}
    void Progresso(uint64_t testate, uint64_t tenute) override { rapporti.push_back({testate, tenute}); }
    bool RichiestaStop() override { return !rapporti.empty() && rapporti.back().first >= fermaA_; }
    void ElaboraMessaggi() override { ++pompe; }
    std::vector<std::pair<uint64_t, uint64_t>> rapporti;
    int pompe = 0;

private:
    uint64_t fermaA_;
};

// Every call the reduction makes, in order, and a stop that starts at the
// k-th message pump (0: never).
class Registro : public OsservatoreRiduzione {
public:
    explicit Registro(int stopAlPasso = 0) : stopAl_(stopAlPasso) {}
    void Fase(const std::string& t) override { eventi.push_back(std::string("F").append(t)); }
    void Percentuale(int p) override { eventi.push_back(std::string("P").append(std::to_string(p))); }
    void ElaboraMessaggi() override {
        ++pompe;
        eventi.push_back("M");
    }
    bool RichiestaStop() override { return stopAl_ > 0 && pompe >= stopAl_; }
    std::vector<std::string> eventi;
    int pompe = 0;

private:
    int stopAl_;
};

inline void ExpectStessoRisultato(const RisultatoSviluppo& a, const RisultatoSviluppo& b, const std::string& caso) {
    EXPECT_EQ(a.testate, b.testate) << caso;
    EXPECT_EQ(a.interrotto, b.interrotto) << caso;
    ASSERT_EQ(a.colonne.size(), b.colonne.size()) << caso;
    EXPECT_TRUE(a.colonne == b.colonne) << caso;
    ASSERT_EQ(a.condizioni.size(), b.condizioni.size()) << caso;
    for (size_t i = 0; i < a.condizioni.size(); ++i)
        EXPECT_EQ(a.condizioni[i], b.condizioni[i]) << caso << " condition " << i;
}

}  // namespace combi::test
