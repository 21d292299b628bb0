// The development: the fast path against the plain loop on random systems of
// every class, and worked examples. Mutation testing leaves a few changes
// alive that no user can see: when the per-row condition order is re-sorted,
// how many pieces wait for the writer, how many steps a piece holds, how many
// helpers start and how many threads a machine telling one core gets, a stop
// at a piece's last step recounting the whole piece, the evaluator's mark for
// "none" (any negative will do), the early exits taken when no candidate is
// left, an empty last step or piece, the level or key count of a measure's
// table (one more is unused: a weight's prefix never reaches the largest
// sum), the unreachable return after a switch over every kind; and the
// merge of the threads' counters running one element past its array, which
// changes no count in a release build: only a checked build (the sanitizer run
// of scripts/test.sh, which also checks every index) can see it.
#include <gtest/gtest.h>

#include <system_error>

#include "ColonnaDiProva.h"
#include "ColonneInMemoria.h"
#include "OsservatoriDiProva.h"
#include "Conteggi.h"
#include "Errore.h"
#include "VerificaColonna.h"
#include "DecodificaCondizioni.h"
#include "SistemiCasuali.h"
#include "Sviluppo.h"

namespace combi {
namespace {

using test::Col;

using test::ExpectStessoRisultato;
using test::Osservatore;

ParametriSviluppo Sistema(int n, int k, std::vector<TestiCondizione> colonne = {}, int riduzione = 0) {
    ParametriSviluppo p;
    for (int i = 1; i <= n; ++i) p.numeri.push_back(i);
    p.classe = k;
    p.riduzione = riduzione;
    TestiGriglia g;
    g.colonne = std::move(colonne);
    const SistemaDecodificato s = LeggiCondizioni(g);
    p.condizioni = s.condizioni;
    p.quadri = s.quadri;
    return p;
}

TEST(Sviluppo, FastPathEqualsReferenceOnRandomSystems) {
    test::GeneratoreSistemi gen(20261123);
    for (int caso = 0; caso < 300; ++caso) {
        ParametriSviluppo p = gen.Sistema();
        // Record 0 of the panels is no panel: conditions without one name
        // it, and a hand-made file may mark it active all the same.
        if (caso % 4 == 0) p.quadri[0].Attivo = 1, p.quadri[0].Minimo = 0, p.quadri[0].Massimo = 20;
        Osservatore o1, o2;
        const RisultatoSviluppo rif = SviluppaSistemaRiferimento(p, o1);
        const RisultatoSviluppo veloce = SviluppaSistema(p, o2, {.thread = 1 + caso % 3, .quota = {}});
        ExpectStessoRisultato(rif, veloce, "case " + std::to_string(caso));
        EXPECT_EQ(o1.rapporti, o2.rapporti) << caso;
        if (HasFailure()) return;
    }
}

// Every class 1..20 (the parity measures of classes 17..20 are measured per
// block, not tabulated), up to 60000 columns, with a stop at a random
// multiple of 10000 in some runs; the count without columns agrees too.
TEST(Sviluppo, FastPathEqualsReferenceOnEveryClass) {
    test::GeneratoreSistemi gen(4242);
    for (int classe = 1; classe <= kMaxClasse; ++classe) {
        for (int caso = 0; caso < 12; ++caso) {
            int n = classe;
            while (n < kMaxNumero && Combinazioni(n + 1, classe) <= 60000 && gen.Tra(0, 5) > 0) ++n;
            const ParametriSviluppo p = gen.SistemaDi(classe, n);
            const uint64_t ferma = gen.Tra(0, 2) == 0 ? uint64_t(gen.Tra(1, 5)) * kPassoProgresso : UINT64_MAX;
            Osservatore o1(ferma), o2(ferma), o3(ferma);
            const RisultatoSviluppo rif = SviluppaSistemaRiferimento(p, o1);
            const RisultatoSviluppo veloce = SviluppaSistema(p, o2, {.thread = 1 + caso % 3, .quota = {}});
            const std::string nome = "class " + std::to_string(classe) + " case " + std::to_string(caso);
            ExpectStessoRisultato(rif, veloce, nome);
            EXPECT_EQ(o1.rapporti, o2.rapporti) << nome;
            const EsitoSviluppo conta = ContaSistema(p, o3, {.thread = 2, .quota = {}});
            EXPECT_EQ(conta.tenute, rif.colonne.size()) << nome;
            EXPECT_EQ(conta.condizioni, rif.condizioni) << nome;
            EXPECT_EQ(o3.rapporti, o1.rapporti) << nome;
            if (HasFailure()) return;
        }
    }
}

TEST(Sviluppo, LargerRandomSystemsAcrossSeveralBlocks) {
    test::GeneratoreSistemi gen(7);
    for (int caso = 0; caso < 12; ++caso) {
        ParametriSviluppo p = gen.Sistema(22, 6);
        while (Combinazioni(int(p.numeri.size()), p.classe) < 30000 || p.condizioni.size() < 5) p = gen.Sistema(22, 6);
        // Every other case puts all the conditions on panel 1: a panel of
        // more members than the fast count takes without a loop.
        if (caso % 2 == 1) {
            for (Condizione& c : p.condizioni) c.QuadroRec = 1;
            p.quadri[1].Attivo = 1, p.quadri[1].Minimo = 1, p.quadri[1].Massimo = 3;
        }
        Osservatore o1, o2;
        ExpectStessoRisultato(SviluppaSistemaRiferimento(p, o1), SviluppaSistema(p, o2, {.thread = 3, .quota = {}}),
                              "case " + std::to_string(caso));
        EXPECT_EQ(o1.rapporti, o2.rapporti);
    }
}

TEST(Sviluppo, StopIsHonouredAtTheNextMultipleOfTenThousand) {
    const ParametriSviluppo p = Sistema(20, 6, {{"", "Consecutivi", "", "0-1", "", ""}});  // 38760 columns
    for (int thread : {1, 2, 4}) {
        Osservatore rif(25000), veloce(25000);
        const RisultatoSviluppo a = SviluppaSistemaRiferimento(p, rif);
        const RisultatoSviluppo b = SviluppaSistema(p, veloce, {.thread = thread, .quota = {}});
        EXPECT_EQ(a.testate, 30000u);
        EXPECT_TRUE(a.interrotto);
        ExpectStessoRisultato(a, b, "threads " + std::to_string(thread));
        EXPECT_EQ(veloce.pompe, 2);  // after 10000 and 20000, not after the stop
    }
}

// From 64 steps on one thread judges pieces of several steps ahead of the
// stop: a stop inside a piece counts the conditions over the steps up to it
// only (45 numbers in class 5, 1,221,759 columns, make pieces of 3 steps).
TEST(Sviluppo, StopInsideAPieceOfSeveralSteps) {
    test::GeneratoreSistemi gen(77);
    for (int caso = 0; caso < 3; ++caso) {
        const ParametriSviluppo p = gen.SistemaDi(5, 45);
        for (uint64_t ferma : {10000u, 20000u, 30000u}) {
            Osservatore rif(ferma), veloce(ferma);
            ExpectStessoRisultato(SviluppaSistemaRiferimento(p, rif), SviluppaSistema(p, veloce, {.thread = 1, .quota = {}}),
                                  "case " + std::to_string(caso) + " stop " + std::to_string(ferma));
        }
    }
}

// A failure while the worker threads judge (here the columns' destination,
// as a full disk) reaches the caller as the same exception: no thread is
// left running, nothing hangs, the process is not ended.
TEST(Sviluppo, AFailureDuringTheRunReachesTheCaller) {
    struct Guasto : DestinazioneColonne {
        void Accoda(std::span<const Colonna>) override { throw Errore(61, "Spazio su disco esaurito"); }
    };
    const ParametriSviluppo p = Sistema(22, 6, {{"", "Consecutivi", "", "0-1", "", ""}});  // 74613 columns
    for (int thread : {1, 2, 4}) {
        OsservatoreSviluppo muto;
        Guasto guasto;
        try {
            SviluppaSistema(p, muto, &guasto, {.thread = thread, .quota = {}});
            ADD_FAILURE() << "no error with " << thread << " threads";
        } catch (const Errore& e) {
            EXPECT_EQ(e.numero(), 61) << thread;
        }
    }
}

// The system refusing a thread (std::system_error) must not end the process:
// the run goes on with the threads that started and the calling thread.
TEST(Sviluppo, AThreadThatCannotStartLeavesTheOthersToFinish) {
    const ParametriSviluppo p = Sistema(24, 5, {{"", "Consecutivi", "", "0-1", "", ""},
                                               {"", "Ampiezza", "", "8-20", "-", ""}});  // 42504 columns
    Osservatore o;
    const RisultatoSviluppo rif = SviluppaSistemaRiferimento(p, o);
    for (int fallisce : {0, 1, 2}) {
        int avviati = 0;
        const AvviaThread avvia = [&](std::function<void()> lavoro) {
            if (avviati++ == fallisce) throw std::system_error(std::make_error_code(std::errc::resource_unavailable_try_again));
            return std::thread(std::move(lavoro));
        };
        ColonneInMemoria colonne;
        const EsitoSviluppo e = SviluppaSistema(p, o, &colonne, {.thread = 4, .quota = {}}, avvia);
        EXPECT_EQ(colonne.colonne, rif.colonne) << fallisce;
        EXPECT_EQ(e.condizioni, rif.condizioni) << fallisce;
        EXPECT_EQ(avviati, fallisce + 1) << "no thread is started after a refusal";
    }
}

TEST(Sviluppo, ReductionDropsColumnsTooCloseToThePreviousKeptOne) {
    // Class 6 of 8 numbers, K = 1: R = 5. Any two of the 28 columns share 4
    // or 5 numbers; walked by hand in order, a column is kept when it shares
    // only 4 with the last one kept: 123456, then 123478 (123457 .. 123468
    // share 5), 123567, 124568, 134567, 234568.
    const std::vector<Colonna> attese = {Col({1, 2, 3, 4, 5, 6}), Col({1, 2, 3, 4, 7, 8}), Col({1, 2, 3, 5, 6, 7}),
                                         Col({1, 2, 4, 5, 6, 8}), Col({1, 3, 4, 5, 6, 7}), Col({2, 3, 4, 5, 6, 8})};
    const ParametriSviluppo p = Sistema(8, 6, {}, 1);
    for (int thread : {1, 2}) {
        Osservatore o;
        const RisultatoSviluppo r = SviluppaSistema(p, o, {.thread = thread, .quota = {}});
        EXPECT_TRUE(r.colonne == attese) << thread << " threads: " << r.colonne.size() << " kept";
        EXPECT_EQ(r.testate, 28u);
    }
    Osservatore o;
    EXPECT_TRUE(SviluppaSistemaRiferimento(p, o).colonne == attese);
}

TEST(Sviluppo, EdgeSizesAndBadParameters) {
    Osservatore o;
    const RisultatoSviluppo uno = SviluppaSistema(Sistema(5, 5), o);
    EXPECT_EQ(uno.testate, 1u);
    EXPECT_EQ(uno.colonne.size(), 1u);  // no conditions: every column kept
    EXPECT_EQ(o.rapporti.back(), (std::pair<uint64_t, uint64_t>{1, 1}));
    EXPECT_THROW(SviluppaSistema(Sistema(5, 6), o), Errore);
    EXPECT_THROW(SviluppaSistema(Sistema(30, 21), o), Errore);
    ParametriSviluppo disordinati = Sistema(6, 3), zero = Sistema(6, 3), oltre = Sistema(6, 3);
    std::swap(disordinati.numeri[0], disordinati.numeri[1]);
    zero.numeri[0] = 0, oltre.numeri[5] = 91;
    EXPECT_THROW(SviluppaSistemaRiferimento(disordinati, o), Errore);
    for (const ParametriSviluppo& p : {zero, oltre}) EXPECT_THROW(SviluppaSistema(p, o), Errore) << p.numeri[0];
    // The widest gap, 89: of the 4,005 pairs of 1..90 only 1 90 has it.
    const ParametriSviluppo largo = Sistema(90, 2, {{"", "Distanza Minima", "", "89-89", "", ""},
                                                    {"", "Distanza Massima", "", "89-89", "", ""}});
    EXPECT_TRUE(SviluppaSistema(largo, o).colonne == std::vector<Colonna>{Col({1, 90})});
    for (const Quota quota : {Quota{4, 3}, Quota{0, 3}, Quota{1, 0}})
        EXPECT_THROW(SviluppaSistema(Sistema(6, 3), o, {.thread = 0, .quota = quota}), Errore) << quota.indice;
}

TEST(Sviluppo, SharesConcatenateToTheWholeRun) {
    test::GeneratoreSistemi gen(99);
    for (int caso = 0; caso < 20; ++caso) {
        ParametriSviluppo p = gen.Sistema(16, 6);
        p.riduzione = 0;
        Osservatore o;
        const RisultatoSviluppo intero = SviluppaSistema(p, o);
        for (int w : {1, 3, 7}) {
            std::vector<Colonna> unite;
            std::vector<int64_t> superate(p.condizioni.size());
            uint64_t testate = 0;
            for (int i = 1; i <= w; ++i) {
                const RisultatoSviluppo parte = SviluppaSistema(p, o, {.thread = 2, .quota = {i, w}});
                unite.insert(unite.end(), parte.colonne.begin(), parte.colonne.end());
                testate += parte.testate;
                for (size_t c = 0; c < superate.size(); ++c) superate[c] += parte.condizioni[c].ContaSuperate;
            }
            EXPECT_EQ(testate, intero.testate);
            EXPECT_TRUE(unite == intero.colonne) << caso << " W=" << w;
            for (size_t c = 0; c < superate.size(); ++c)
                EXPECT_EQ(superate[c], intero.condizioni[c].ContaSuperate);
        }
    }
}

}  // namespace
}  // namespace combi
