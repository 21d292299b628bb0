// Grid texts and system files from anywhere (hand-edited, cut short, made by
// other programs) must never make the engine read or write outside its data:
// random texts and bytes are decoded and developed, and both development
// paths must still agree. Run under the sanitizers, this is where an
// out-of-range index would show.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "DecodificaCondizioni.h"
#include "Errore.h"
#include "FileSistema.h"
#include "Sviluppo.h"
#include "VerificaColonna.h"

namespace combi {
namespace {

std::string TestoCasuale(std::mt19937& rng) {
    static const char* pezzi[] = {"0", "1", "7", "10", "11", "90", "95", "300", "99999999999", "-", "--",
                                  "\r\n", ",", ":", " ", "P", "D", "p", "x", "-1", "2.5", "Caselle :"};
    std::string s;
    for (int n = std::uniform_int_distribution<int>(0, 12)(rng); n > 0; --n)
        s += pezzi[std::uniform_int_distribution<size_t>(0, std::size(pezzi) - 1)(rng)];
    return s;
}

TEST(TestiOstili, RandomGridTextsDecodeAndDevelopSafely) {
    std::mt19937 rng(424242);
    for (int caso = 0; caso < 400; ++caso) {
        TestiGriglia g;
        const int colonne = std::uniform_int_distribution<int>(0, 8)(rng);
        for (int c = 0; c < colonne; ++c) {
            TestiCondizione t;
            t[kRigaCondizione] = NomeTipoCondizione(std::uniform_int_distribution<int>(1, 19)(rng));
            if (t[kRigaCondizione].empty()) t[kRigaCondizione] = "Ignota";
            for (int r = kRigaParametri; r <= kRigaQuadroRec; ++r) t[r] = TestoCasuale(rng);
            g.colonne.push_back(t);
        }
        for (int q = std::uniform_int_distribution<int>(0, 25)(rng); q > 0; --q) g.quadri.push_back(TestoCasuale(rng));
        const SistemaDecodificato s = LeggiCondizioni(g);
        ParametriSviluppo p;
        // Every class, 17..20 included, whose parity measures are judged per block.
        p.classe = std::uniform_int_distribution<int>(1, kMaxClasse)(rng);
        for (int n = 1; n <= p.classe + 2; ++n) p.numeri.push_back(n * 4);
        p.condizioni = s.condizioni;
        p.quadri = s.quadri;
        OsservatoreSviluppo o;
        const RisultatoSviluppo a = SviluppaSistemaRiferimento(p, o);
        const RisultatoSviluppo b = SviluppaSistema(p, o, {.thread = 2, .quota = {}});
        EXPECT_TRUE(a.colonne == b.colonne) << caso;
        EXPECT_TRUE(a.condizioni == b.condizioni) << caso;
    }
}

TEST(TestiOstili, RandomSystemFilesLoadOrFailWithAMessage) {
    std::mt19937 rng(77);
    int caricati = 0, rifiutati = 0;
    for (int caso = 0; caso < 300; ++caso) {
        std::vector<uint8_t> byte(std::uniform_int_distribution<size_t>(0, 587 + 270 * 3)(rng));
        for (uint8_t& b : byte) b = uint8_t(rng());
        // Keep the header's class plausible half of the time so some files develop.
        if (byte.size() > 8 && caso % 2) byte[7] = uint8_t(1 + rng() % kMaxClasse), byte[8] = 0;
        // Known type codes, so that the measures meet the random sets and parameters.
        for (size_t r = 317; r + 1 < byte.size(); r += 270) byte[r] = uint8_t(rng() % 19), byte[r + 1] = 0;
        try {
            const FileSistema s = DecodificaSistema(byte.data(), byte.size());
            ++caricati;
            ParametriSviluppo p = ParametriDalFile(s);
            const size_t numeri = std::max<size_t>(14, size_t(p.classe) + 2);
            if (p.numeri.size() > numeri) p.numeri.resize(numeri);
            OsservatoreSviluppo o;
            try {
                const RisultatoSviluppo a = SviluppaSistemaRiferimento(p, o);
                const RisultatoSviluppo b = SviluppaSistema(p, o);
                EXPECT_TRUE(a.colonne == b.colonne) << caso;
                EXPECT_TRUE(a.condizioni == b.condizioni) << caso;
            } catch (const Errore& e) {
                EXPECT_FALSE(std::string(e.what()).empty());
            }
        } catch (const Errore& e) {
            ++rifiutati;
            EXPECT_FALSE(std::string(e.what()).empty());
        }
    }
    EXPECT_GT(caricati, 0);
    EXPECT_GT(rifiutati, 0);
}

}  // namespace
}  // namespace combi
