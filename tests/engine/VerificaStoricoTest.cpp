// The check over the archive of draws. The bit planes' count running one
// plane past its array changes no count in a release build; only a checked
// build (the sanitizer run of scripts/test.sh, which also checks every
// index) can see it.
// The parameters' defaults for the minimum and the class are set by every
// caller, and the draws' order on an equal date and wheel is never asked
// for: the archive refuses a wheel twice on one date, as it refuses a drawn
// number 0. How many draws a thread takes at a time changes speed only.
#include <gtest/gtest.h>

#include "ColonnaDiProva.h"

#include <random>

#include "BilancioStorico.h"
#include "Errore.h"
#include "VerificaStorico.h"

namespace combi {
namespace {

using test::Col;

Estrazione E(DataEstrazione data, int ruota, std::initializer_list<int> numeri) {
    Estrazione e;
    e.data = data;
    e.ruota = uint8_t(ruota);
    for (int n : numeri) e.numeri[e.quanti++] = uint8_t(n);
    return e;
}

constexpr int kBari = 0, kRoma = 7;

// Four class-3 columns and seven draws, their points worked out by hand:
//   {1,2,3} {1,4,5} {2,4,6} {7,8,9}
const std::vector<Colonna> kColonne = {Col({1, 2, 3}), Col({1, 4, 5}), Col({2, 4, 6}), Col({7, 8, 9})};
const std::vector<Estrazione> kArchivio = {
    E(20240111, kBari, {4, 5, 6, 60, 61}),    // 0 2 2 0
    E(20240102, kBari, {1, 2, 4, 10, 11}),    // 2 2 2 0
    E(20240104, kRoma, {1, 2, 3, 40, 41}),    // 3 1 1 0
    E(20240104, kBari, {20, 21, 22, 23, 24}), // 0 0 0 0
    E(20240106, kBari, {7, 30, 31, 32, 33}),  // 0 0 0 1
    E(20240109, kBari, {50, 51, 52, 53, 54}), // 0 0 0 0
    E(20231228, kBari, {80, 81, 82, 83, 84}), // 0 0 0 0
    E(20240104, kRuotaSuperEnalotto, {1, 2, 3, 4, 5, 6}),  // another game: never counted
};

// Counts by points 0..3 for the draws in date order, then wheel.
using Conte4 = std::array<int64_t, 4>;

Conte4 Prime4(const ContePunti& c) { return {c[0], c[1], c[2], c[3]}; }

TEST(VerificaStorico, HandWorkedDrawsGiveTheirCountsTheBestDrawAndTheLongestDryRun) {
    struct Caso {
        const char* nome;
        std::optional<int> ruota;
        DataEstrazione dal, al;
        int minimo;
        std::vector<Conte4> perEstrazione;
        Conte4 totali;
        int64_t conVincite;
        DataEstrazione migliore;  // 0: none
        Digiuno digiuno;
    };
    const Caso casi[] = {
        {"tutte le ruote, minimo 2", {}, 0, 99991231, 2,
         {{4, 0, 0, 0}, {1, 0, 3, 0}, {4, 0, 0, 0}, {1, 2, 0, 1}, {3, 1, 0, 0}, {4, 0, 0, 0}, {2, 0, 2, 0}},
         {19, 3, 5, 1}, 3, 20240104, {2, 20240106, 20240109}},
        {"Bari, minimo 2", kBari, 0, 99991231, 2,
         {{4, 0, 0, 0}, {1, 0, 3, 0}, {4, 0, 0, 0}, {3, 1, 0, 0}, {4, 0, 0, 0}, {2, 0, 2, 0}},
         {18, 1, 5, 0}, 2, 20240102, {3, 20240104, 20240109}},
        {"tutte le ruote, minimo 3", {}, 0, 99991231, 3,
         {{4, 0, 0, 0}, {1, 0, 3, 0}, {4, 0, 0, 0}, {1, 2, 0, 1}, {3, 1, 0, 0}, {4, 0, 0, 0}, {2, 0, 2, 0}},
         {19, 3, 5, 1}, 1, 20240104, {3, 20240106, 20240111}},
        {"dal 4 al 9 gennaio, minimo 2", {}, 20240104, 20240109, 2,
         {{4, 0, 0, 0}, {1, 2, 0, 1}, {3, 1, 0, 0}, {4, 0, 0, 0}},
         {12, 3, 0, 1}, 1, 20240104, {2, 20240106, 20240109}},
        {"due ritardi uguali: vale il primo", {}, 0, 20240106, 2,
         {{4, 0, 0, 0}, {1, 0, 3, 0}, {4, 0, 0, 0}, {1, 2, 0, 1}, {3, 1, 0, 0}},
         {13, 3, 3, 1}, 2, 20240104, {1, 20231228, 20231228}},
        {"Bari, minimo 3: mai", kBari, 0, 99991231, 3,
         {{4, 0, 0, 0}, {1, 0, 3, 0}, {4, 0, 0, 0}, {3, 1, 0, 0}, {4, 0, 0, 0}, {2, 0, 2, 0}},
         {18, 1, 5, 0}, 0, 0, {6, 20231228, 20240111}},
    };
    for (const Caso& c : casi) {
        ParametriStorico p;
        p.ruota = c.ruota;
        p.dal = c.dal;
        p.al = c.al;
        p.puntiMinimi = c.minimo;
        for (int thread : {0, 1, 3}) {  // 0: the plain loop
            p.thread = thread;
            p.estrazioniPerGruppo = 2;
            OsservatoreStorico oss;
            const EsitoStorico e = thread ? VerificaStorico(kColonne, kArchivio, p, oss)
                                          : VerificaStoricoRiferimento(kColonne, kArchivio, p, oss);
            SCOPED_TRACE(std::string(c.nome) + ", thread " + std::to_string(thread));
            std::vector<Conte4> perEstrazione;
            for (const EsitoEstrazione& d : e.estrazioni) perEstrazione.push_back(Prime4(d.conte));
            EXPECT_EQ(perEstrazione, c.perEstrazione);
            EXPECT_EQ(Prime4(e.totali), c.totali);
            EXPECT_EQ(e.estrazioniConVincite, c.conVincite);
            EXPECT_EQ(e.migliore ? e.estrazioni[*e.migliore].estrazione.data : 0, c.migliore);
            EXPECT_EQ(e.digiuno.concorsi, c.digiuno.concorsi);
            EXPECT_EQ(e.digiuno.dal, c.digiuno.dal);
            EXPECT_EQ(e.digiuno.al, c.digiuno.al);
            EXPECT_FALSE(e.interrotto);
        }
    }
    // The totals rows run from the class (capped by the five numbers drawn) down to the minimum.
    ParametriStorico p;
    p.puntiMinimi = 2;
    OsservatoreStorico oss;
    EXPECT_EQ(VerificaStorico(kColonne, kArchivio, p, oss).Riepilogo(),
              (std::vector<RigaRiepilogo>{{"Vincite con 3 punti ", 1}, {"Vincite con 2 punti ", 5}}));
    p.classe = 8;
    EXPECT_EQ(VerificaStorico(kColonne, kArchivio, p, oss).Riepilogo().front().vincita, "Vincite con 5 punti ");
    // Two draws alike above the minimum: the second, with two columns at 2
    // points ({1,4,5} and {2,4,6}) against one, is the best.
    const EsitoStorico due = VerificaStorico(
        kColonne, {E(20240301, kBari, {4, 5, 60, 61, 62}), E(20240302, kBari, {4, 5, 6, 60, 61})}, p, oss);
    ASSERT_TRUE(due.migliore.has_value());
    EXPECT_EQ(due.estrazioni[*due.migliore].estrazione.data, 20240302);
    // An empty columns file, with the group size left to the engine: every
    // draw is checked and none wins.
    const EsitoStorico vuoto = VerificaStorico({}, kArchivio, ParametriStorico{}, oss);
    EXPECT_EQ(vuoto.estrazioni.size(), 7u);
    EXPECT_EQ(vuoto.estrazioniConVincite, 0);
    EXPECT_FALSE(vuoto.migliore.has_value());
}

TEST(VerificaStorico, RefusesColumnsAndParametersItCannotCheck) {
    OsservatoreStorico oss;
    ParametriStorico p;
    // The first column that is not 1..90 ascending then zeros is named.
    const std::vector<std::vector<Colonna>> errate = {
        {Col({1, 2, 3}), Col({5, 4})}, {Col({1, 91})}, {Col({})}, {Col({4, 5}), Col({6, 7}), Col({0, 2, 3})},
        {Col({1, 2}), Col({1, 0, 3})}};
    const int nominate[] = {2, 1, 1, 3, 2};
    for (size_t i = 0; i < errate.size(); ++i) {
        try {
            VerificaStorico(errate[i], kArchivio, p, oss);
            ADD_FAILURE() << "case " << i << " accepted";
        } catch (const Errore& e) {
            EXPECT_EQ(std::string(e.what()), "La colonna " + std::to_string(nominate[i]) +
                                                 " non ha numeri crescenti da 1 a 90 seguiti da zeri");
        }
    }
    // The minimum within 1..20; a wheel only for the Lotto, one of its 11 (0..10).
    struct Caso { int minimo; GiocoArchivio gioco; std::optional<int> ruota; const char* messaggio; };
    const Caso casi[] = {
        {0, GiocoArchivio::kLotto, {}, "Punti minimi non validi: 0"},
        {21, GiocoArchivio::kLotto, {}, "Punti minimi non validi: 21"},
        {20, GiocoArchivio::kLotto, {}, nullptr},
        {2, GiocoArchivio::kDieciELotto, kBari, "La ruota si sceglie solo per il Lotto"},
        {2, GiocoArchivio::kLotto, -1, "La ruota si sceglie solo per il Lotto"},
        {2, GiocoArchivio::kLotto, kRuoteLotto, "La ruota si sceglie solo per il Lotto"},
        {2, GiocoArchivio::kLotto, kRuoteLotto - 1, nullptr},
    };
    for (const Caso& c : casi) {
        p.puntiMinimi = c.minimo, p.gioco = c.gioco, p.ruota = c.ruota;
        for (bool riferimento : {false, true}) {
            try {
                if (riferimento) VerificaStoricoRiferimento(kColonne, kArchivio, p, oss);
                else VerificaStorico(kColonne, kArchivio, p, oss);
                EXPECT_EQ(c.messaggio, nullptr) << c.minimo << " accepted";
            } catch (const Errore& e) {
                ASSERT_NE(c.messaggio, nullptr) << e.what();
                EXPECT_EQ(std::string(e.what()), c.messaggio);
            }
        }
    }
}

// Random columns of every class (enough for several blocks of 32,768) and
// draws of every game: the bit planes give the plain loop's counts exactly.
TEST(VerificaStorico, BitPlanesMatchThePlainLoopOnRandomColumnsOfEveryClass) {
    std::mt19937 rng(16);
    std::vector<int> urna(kMaxNumero);
    for (int n = 0; n < kMaxNumero; ++n) urna[size_t(n)] = n + 1;
    std::vector<Colonna> colonne(70'000);
    for (size_t j = 0; j < colonne.size(); ++j) {
        // Numbers from a narrower pool now and then, as a conditioned system has.
        const int pool = j % 3 ? kMaxNumero : 30;
        const int classe = 1 + int(rng() % kMaxClasse);
        std::shuffle(urna.begin(), urna.begin() + pool, rng);
        std::vector<int> numeri(urna.begin(), urna.begin() + std::min(classe, pool));
        std::sort(numeri.begin(), numeri.end());
        for (size_t k = 0; k < numeri.size(); ++k) colonne[j].Numeri[k] = uint8_t(numeri[k]);
    }
    std::vector<Estrazione> archivio;
    for (int i = 0; i < 120; ++i) {
        std::shuffle(urna.begin(), urna.end(), rng);
        const int ruota = i % kRuote;
        Estrazione e;
        e.data = 20200101 + i / kRuote;
        e.ruota = uint8_t(ruota);
        e.quanti = uint8_t(NumeriEstratti(GiocoDellaRuota(ruota)));
        for (size_t k = 0; k < e.quanti; ++k) e.numeri[k] = uint8_t(urna[k]);
        archivio.push_back(e);
    }
    for (int g = 0; g < kGiochiArchivio; ++g) {
        ParametriStorico p;
        p.gioco = GiocoArchivio(g);
        p.puntiMinimi = 2 + g;
        p.thread = 1 + g;
        p.estrazioniPerGruppo = 3;
        OsservatoreStorico oss;
        const EsitoStorico veloce = VerificaStorico(colonne, archivio, p, oss);
        const EsitoStorico piano = VerificaStoricoRiferimento(colonne, archivio, p, oss);
        ASSERT_EQ(veloce.estrazioni.size(), piano.estrazioni.size());
        EXPECT_GE(veloce.estrazioni.size(), 9u);
        for (size_t i = 0; i < veloce.estrazioni.size(); ++i)
            EXPECT_EQ(veloce.estrazioni[i].conte, piano.estrazioni[i].conte) << "gioco " << g << ", estrazione " << i;
        EXPECT_EQ(veloce.migliore, piano.migliore);
        EXPECT_EQ(veloce.digiuno.concorsi, piano.digiuno.concorsi);
    }
}

// A Stop keeps the draws counted before it, in date order: on one thread
// the first group, on two the groups finished from the first on.
TEST(VerificaStorico, StopKeepsTheDrawsAlreadyCounted) {
    class StopAlPrimo : public OsservatoreStorico {
    public:
        bool RichiestaStop() override { return true; }
        void Progresso(size_t fatte, size_t totale) override { rapporti.emplace_back(fatte, totale); }
        std::vector<std::pair<size_t, size_t>> rapporti;
    } stop;
    std::vector<Estrazione> archivio;
    for (int i = 0; i < 600; ++i)
        archivio.push_back(E((2000 + i / 336) * 10000 + (i / 28 % 12 + 1) * 100 + i % 28 + 1, kBari,
                             {1 + i % 80, 82, 83, 84, 85}));
    ParametriStorico p;
    p.estrazioniPerGruppo = 10;
    OsservatoreStorico tutto;
    const EsitoStorico intero = VerificaStoricoRiferimento(kColonne, archivio, p, tutto);
    for (int thread : {0, 1, 2}) {
        p.thread = thread;
        stop.rapporti.clear();
        const EsitoStorico e = thread ? VerificaStorico(kColonne, archivio, p, stop)
                                      : VerificaStoricoRiferimento(kColonne, archivio, p, stop);
        ASSERT_FALSE(stop.rapporti.empty());
        EXPECT_EQ(stop.rapporti[0], std::make_pair(size_t(0), size_t(600)));  // the bar starts empty
        EXPECT_EQ(e.daControllare, 600u);
        if (thread < 2) {
            EXPECT_EQ(e.estrazioni.size(), thread ? 10u : 1u);
        }
        EXPECT_EQ(e.estrazioni.size() % (thread ? 10 : 1), 0u);
        EXPECT_EQ(e.interrotto, e.estrazioni.size() < 600);
        ContePunti totali{};
        for (size_t i = 0; i < e.estrazioni.size(); ++i) {
            EXPECT_EQ(e.estrazioni[i].estrazione, intero.estrazioni[i].estrazione);
            EXPECT_EQ(e.estrazioni[i].conte, intero.estrazioni[i].conte);
            for (size_t s = 0; s < totali.size(); ++s) totali[s] += intero.estrazioni[i].conte[s];
        }
        EXPECT_EQ(e.totali, totali);
    }
}

TEST(VerificaStorico, MoneyIsStakedOnEveryColumnAndDrawAndWonByThePrizeTable) {
    ParametriStorico p;
    p.puntiMinimi = 2;
    OsservatoreStorico oss;
    const EsitoStorico e = VerificaStorico(kColonne, kArchivio, p, oss);
    TabellaPremi premi{};
    premi[2] = 10;
    premi[3] = 100;
    // 2023: one draw, 4 columns at 2.50. 2024: six draws; wins 3x10 (Jan 2),
    // 1x100 (Jan 4, Roma), 2x10 (Jan 11), each times the stake.
    const StimaDenaro s = StimaBilancio(e, 4, 2.5, premi);
    ASSERT_EQ(s.perAnno.size(), 2u);
    EXPECT_EQ(s.perAnno[0].anno, 2023);
    EXPECT_DOUBLE_EQ(s.perAnno[0].bilancio.giocato, 10);
    EXPECT_DOUBLE_EQ(s.perAnno[0].bilancio.vinto, 0);
    EXPECT_EQ(s.perAnno[1].anno, 2024);
    EXPECT_DOUBLE_EQ(s.perAnno[1].bilancio.giocato, 60);
    EXPECT_DOUBLE_EQ(s.perAnno[1].bilancio.vinto, 375);
    EXPECT_DOUBLE_EQ(s.totale.Saldo(), 305);
    double perEstrazione = 0;  // the window's money, draw by draw
    for (const EsitoEstrazione& x : e.estrazioni) perEstrazione += VintoEstrazione(x, 2.5, premi);
    EXPECT_DOUBLE_EQ(perEstrazione, 375);
    EXPECT_EQ(e.estrazioni[0].Vincenti(-1), 4);  // 2023-12-28: every column makes at least nothing
    TabellaPremi soloZero{};
    soloZero[0] = 1;  // the 10eLotto pays for no number drawn
    EXPECT_DOUBLE_EQ(VintoEstrazione(e.estrazioni[0], 2.5, soloZero), 10);
    premi[1] = -1;
    EXPECT_THROW(StimaBilancio(e, 4, 1, premi), Errore);
    EXPECT_THROW(StimaBilancio(e, 4, std::nan(""), TabellaPremi{}), Errore);
}

}  // namespace
}  // namespace combi
