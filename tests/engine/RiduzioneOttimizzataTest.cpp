#include <gtest/gtest.h>

#include "ColonnaDiProva.h"

#include <algorithm>
#include <random>

#include "Errore.h"
#include "Garanzia.h"
#include "RiduzioneOttimizzata.h"

namespace combi {
namespace {

using test::Col;

// Every improvement reported, and a stop from the k-th pump (0: never).
class Registro : public OsservatoreOttimizzazione {
public:
    explicit Registro(int stopAllaPompa = 0) : stop_(stopAllaPompa) {}
    void MigliorTrovato(std::size_t colonne, double secondi) override {
        migliori.push_back(colonne);
        EXPECT_GE(secondi, 0.0);
    }
    void ElaboraMessaggi() override { ++pompe; }
    bool RichiestaStop() override { return stop_ > 0 && pompe >= stop_; }
    std::vector<size_t> migliori;
    int pompe = 0;

private:
    int stop_;
};

// Columns of a class drawn from a small pool of numbers, so that they cover each other.
std::vector<Colonna> Casuali(uint32_t seme, size_t n, int pool, int classe) {
    std::mt19937 rng(seme);
    std::vector<int> numeri;
    for (int x = 1; x <= pool; ++x) numeri.push_back(x * 89 / pool);
    std::vector<Colonna> v;
    while (v.size() < n) {
        std::shuffle(numeri.begin(), numeri.end(), rng);
        Colonna c;
        for (int p = 1; p <= classe; ++p) c[p] = uint8_t(numeri[size_t(p) - 1]);
        v.push_back(c);
    }
    return v;
}

// True when `parte` is `tutto` with some columns left out, in order.
bool Sottosequenza(const std::vector<Colonna>& parte, const std::vector<Colonna>& tutto) {
    size_t j = 0;
    for (const Colonna& c : parte) {
        while (j < tutto.size() && !(tutto[j] == c)) ++j;
        if (j++ == tutto.size()) return false;
    }
    return true;
}

TEST(RiduzioneOttimizzata, ValidNeverLargerAndRepeatableOnRandomSets) {
    struct Caso { uint32_t seme; size_t n; int pool; int classe; int punti; };
    const Caso casi[] = {
        {1, 300, 12, 6, 3}, {2, 500, 14, 6, 4}, {3, 400, 11, 5, 3}, {4, 300, 16, 4, 2},
        {5, 250, 13, 7, 5}, {6, 200, 9, 3, 2},  {7, 400, 15, 6, 5}, {8, 150, 14, 10, 7},
    };
    size_t piuPiccoli = 0;
    for (const Caso& c : casi) {
        SCOPED_TRACE("seme " + std::to_string(c.seme));
        const std::vector<Colonna> v = Casuali(c.seme, c.n, c.pool, c.classe);
        OsservatoreRiduzione muto;
        const size_t avido = RiduciColonne(v, c.punti, muto).colonne.size();
        for (uint64_t seme : {1u, 2u, 3u}) {
            OpzioniOttimizzazione opzioni;
            opzioni.secondi = 1e6;  // the steps end the run, not the clock
            opzioni.seme = seme;
            opzioni.passiMassimi = 3000;
            Registro a, b;
            const RisultatoRiduzione r = RiduciColonneOttimizzate(v, c.punti, opzioni, a);
            EXPECT_FALSE(r.interrotto);
            EXPECT_LE(r.colonne.size(), avido);
            EXPECT_TRUE(CercaBuchi(r.colonne, v, c.punti, muto).empty());
            EXPECT_TRUE(Sottosequenza(r.colonne, v));
            // Improvements strictly decreasing, the last one the result.
            ASSERT_FALSE(a.migliori.empty());
            EXPECT_TRUE(std::is_sorted(a.migliori.rbegin(), a.migliori.rend()));
            EXPECT_EQ(std::adjacent_find(a.migliori.begin(), a.migliori.end()), a.migliori.end());
            EXPECT_EQ(a.migliori.back(), r.colonne.size());
            EXPECT_LE(a.migliori.front(), avido);
            // The same seed and steps: the same columns.
            EXPECT_EQ(RiduciColonneOttimizzate(v, c.punti, opzioni, b).colonne, r.colonne);
            piuPiccoli += r.colonne.size() < avido;
        }
    }
    // The search is worth running: most of these sets end below the greedy size.
    EXPECT_GE(piuPiccoli, 12u);
}

// Every 6-number column of 1..n: the greedy size, which the search must beat,
// comes from the plain reduction of the same input.
TEST(RiduzioneOttimizzata, IntegralDesignsEndBelowTheGreedySize) {
    struct Caso { int n; int punti; };
    for (const Caso& c : {Caso{15, 3}, Caso{12, 4}, Caso{11, 5}}) {
        std::vector<int> numeri;
        for (int x = 1; x <= c.n; ++x) numeri.push_back(x);
        const std::vector<Colonna> v = ColonneIntegrali(numeri, 6);
        OsservatoreRiduzione muto;
        const size_t avido = RiduciColonne(v, c.punti, muto).colonne.size();
        OpzioniOttimizzazione opzioni;
        opzioni.secondi = 1e6;
        opzioni.passiMassimi = 20000;
        Registro r;
        const RisultatoRiduzione ottima = RiduciColonneOttimizzate(v, c.punti, opzioni, r);
        EXPECT_LT(ottima.colonne.size(), avido) << c.n << " numeri, " << c.punti << " punti";
        EXPECT_TRUE(CercaBuchi(ottima.colonne, v, c.punti, muto).empty());
    }
}

TEST(RiduzioneOttimizzata, StopSmallSetsAndRefusals) {
    const std::vector<Colonna> v = Casuali(9, 400, 12, 6);
    OsservatoreRiduzione muto;
    const std::vector<Colonna> avido = RiduciColonne(v, 3, muto).colonne;
    OpzioniOttimizzazione opzioni;
    opzioni.secondi = 1e6;
    // Stopped during the greedy reduction: its result, as RiduciColonne gives it.
    Registro presto(1);
    const RisultatoRiduzione a = RiduciColonneOttimizzate(v, 3, opzioni, presto);
    EXPECT_TRUE(a.interrotto);
    Registro presto2(1);
    EXPECT_EQ(a.colonne, RiduciColonne(v, 3, presto2).colonne);
    // Stopped in the search (the greedy phase pumps once per column, before the
    // sort and per position): still a valid set.
    Registro tardi(int(2 * v.size() + 2));
    const RisultatoRiduzione b = RiduciColonneOttimizzate(v, 3, opzioni, tardi);
    EXPECT_TRUE(b.interrotto);
    EXPECT_LE(b.colonne.size(), avido.size());
    EXPECT_TRUE(CercaBuchi(b.colonne, v, 3, muto).empty());
    // Nothing to search: no column, or one.
    Registro r;
    EXPECT_TRUE(RiduciColonneOttimizzate({}, 3, opzioni, r).colonne.empty());
    const std::vector<Colonna> una = {Col({1, 2, 3, 4, 5, 6})};
    EXPECT_EQ(RiduciColonneOttimizzate(una, 3, opzioni, r).colonne, una);
    EXPECT_THROW(RiduciColonneOttimizzate(v, 7, opzioni, r), Errore);
    EXPECT_THROW(RiduciColonneOttimizzate({Col({1, 2, 3}), Col({1, 2})}, 2, opzioni, r), Errore);
}

}  // namespace
}  // namespace combi
