// Joining the workers' shares. How many columns are handed on at a time and
// which share's condition table is copied before the counts are written in
// change nothing a user sees (the counts are summed over every share); nor
// does whether an empty table block is refused by the share's reader or by
// the table's.
#include <gtest/gtest.h>

#include "ColonneInMemoria.h"
#include "Conteggi.h"
#include "Errore.h"
#include "OsservatoriDiProva.h"
#include "PacchettoQuota.h"
#include "SistemiCasuali.h"
#include "Sviluppo.h"
#include "UnioneQuote.h"

namespace combi {
namespace {

using test::ExpectStessoRisultato;
using test::Osservatore;

// Shares 1..W developed apart without "Riduzione N-K", each handed over as
// bytes the way another process would send it.
std::vector<RisultatoSviluppo> QuoteSenzaRiduzione(ParametriSviluppo p, int w,
                                                   OsservatoreSviluppo& oss) {
    p.riduzione = 0;
    std::vector<RisultatoSviluppo> quote;
    for (int i = 1; i <= w; ++i) {
        const std::vector<uint8_t> dati = CodificaQuota(SviluppaSistema(p, oss, {.thread = 2, .quota = {i, w}}));
        quote.push_back(DecodificaQuota(dati.data(), dati.size()));
    }
    return quote;
}

TEST(UnioneQuote, JoinedSharesEqualTheWholeDevelopmentWithAndWithoutReduction) {
    test::GeneratoreSistemi gen(424242);
    int ridotti = 0;
    for (int caso = 0; caso < 60; ++caso) {
        ParametriSviluppo p = gen.Sistema(16, 7);
        // Every system once without the reduction and once with a K that drops columns.
        for (int riduzione : {0, p.classe > 1 ? gen.Tra(1, p.classe - 1) : 0}) {
            p.riduzione = riduzione;
            Osservatore o;
            const RisultatoSviluppo intero = SviluppaSistema(p, o);
            for (int w : {1, 2, 3, 7, 40}) {
                const std::string nome = "case " + std::to_string(caso) + " K=" +
                                         std::to_string(riduzione) + " W=" + std::to_string(w);
                ExpectStessoRisultato(UnisciQuote(QuoteSenzaRiduzione(p, w, o), p.classe, riduzione),
                                      intero, nome);
                if (HasFailure()) return;
            }
            Osservatore o2;
            ParametriSviluppo senza = p;
            senza.riduzione = 0;
            if (SviluppaSistema(senza, o2).colonne.size() > intero.colonne.size()) ++ridotti;
        }
    }
    EXPECT_GT(ridotti, 10) << "too few systems where the reduction dropped a column";
}

TEST(UnioneQuote, ReductionWorkedExampleAndEdgeValues) {
    // Class 6, K = 1: a column sharing 5 numbers with the last kept one goes,
    // one sharing 4 stays; the dropped column is not the reference for the next.
    const std::vector<Colonna> passanti = {
        {{1, 2, 3, 4, 5, 6}}, {{1, 2, 3, 4, 5, 7}}, {{1, 2, 3, 4, 8, 9}}, {{1, 2, 3, 4, 8, 10}},
        {{1, 2, 3, 11, 12, 13}}};
    struct Caso {
        int classe, riduzione;
        std::vector<size_t> tenute;
    } casi[] = {
        {6, 1, {0, 2, 4}},
        {6, 0, {0, 1, 2, 3, 4}},  // no reduction
        {6, 6, {0, 1, 2, 3, 4}},  // R = 0 keeps everything
        {6, 5, {0}},              // R = 1: any shared number drops the column
    };
    for (const Caso& c : casi) {
        std::vector<Colonna> colonne = passanti;
        ApplicaRiduzione(colonne, c.classe, c.riduzione);
        std::vector<Colonna> attese;
        for (size_t i : c.tenute) attese.push_back(passanti[i]);
        EXPECT_TRUE(colonne == attese) << "K=" << c.riduzione;
        ColonneInMemoria consegnate;  // the same, handed on to a destination
        ApplicaRiduzione(passanti, c.classe, c.riduzione, consegnate);
        EXPECT_TRUE(consegnate.colonne == attese) << "K=" << c.riduzione;
    }
}

// Numbers 1..n, class k, one condition: 2 or 3 even numbers.
ParametriSviluppo SistemaPariDispari(int n, int k, int riduzione) {
    ParametriSviluppo p;
    for (int i = 1; i <= n; ++i) p.numeri.push_back(i);
    p.classe = k;
    p.riduzione = riduzione;
    TestiGriglia g;
    TestiCondizione t;
    t[kRigaCondizione] = "Pari-Dispari";
    t[kRigaParametri] = "Pari";
    t[kRigaPunti] = "2-3";
    g.colonne.push_back(t);
    p.condizioni = LeggiCondizioni(g).condizioni;
    return p;
}

TEST(UnioneQuote, AStoppedShareEndsTheJoinedRunAsAPrefix) {
    const ParametriSviluppo p = SistemaPariDispari(24, 6, 2);  // 134596 columns, about 45000 a share

    Osservatore tutto;
    const RisultatoSviluppo intero = SviluppaSistema(p, tutto);
    std::vector<RisultatoSviluppo> quote = QuoteSenzaRiduzione(p, 3, tutto);
    Osservatore ferma(10000);
    ParametriSviluppo senza = p;
    senza.riduzione = 0;
    quote[1] = SviluppaSistema(senza, ferma, {.thread = 1, .quota = {2, 3}});
    ASSERT_TRUE(quote[1].interrotto);

    const RisultatoSviluppo unito = UnisciQuote(quote, p.classe, p.riduzione);
    EXPECT_TRUE(unito.interrotto);
    EXPECT_EQ(unito.testate, quote[0].testate + 10000);
    const Condizione& peso = unito.condizioni[0];
    EXPECT_EQ(uint64_t(peso.ContaSuperate) + uint64_t(peso.ContaFallite), unito.testate);
    // The kept columns are those of the whole run that come before the first untested one.
    Enumerazione en(p.numeri, p.classe);
    en.Posiziona(unito.testate);
    std::vector<Colonna> prefisso;
    for (const Colonna& c : intero.colonne)
        if (c.Numeri < en.Corrente().Numeri) prefisso.push_back(c);
    EXPECT_FALSE(prefisso.empty());
    EXPECT_TRUE(unito.colonne == prefisso);
}

TEST(UnioneQuote, BadSharesAndDamagedBytesAreRefused) {
    EXPECT_THROW(UnisciQuote({}, 5, 0), Errore);
    RisultatoSviluppo a, b;
    a.condizioni.resize(2);
    b.condizioni.resize(3);
    EXPECT_THROW(UnisciQuote({a, b}, 5, 0), Errore);

    Osservatore o;
    const RisultatoSviluppo quota = SviluppaSistema(SistemaPariDispari(12, 5, 0), o);
    ASSERT_FALSE(quota.colonne.empty());
    const std::vector<uint8_t> dati = CodificaQuota(quota);
    for (size_t taglio : {size_t(0), size_t(8), size_t(12), size_t(13), size_t(13 + 300), dati.size() - 1}) {
        EXPECT_THROW(DecodificaQuota(dati.data(), taglio), Errore) << "cut at " << taglio;
    }
    // Past four billion columns tested the count takes its high word:
    // 5,000,000,007 is 0x1'2A05'F207, low word first; a stopped share says so.
    RisultatoSviluppo grande = quota;
    grande.testate = 5'000'000'007;
    grande.interrotto = true;
    const std::vector<uint8_t> datiGrande = CodificaQuota(grande);
    EXPECT_EQ(std::vector<uint8_t>(datiGrande.begin(), datiGrande.begin() + 8),
              (std::vector<uint8_t>{0x07, 0xF2, 0x05, 0x2A, 1, 0, 0, 0}));
    EXPECT_EQ(datiGrande[8], 1);
    EXPECT_EQ(DecodificaQuota(datiGrande.data(), datiGrande.size()).testate, 5'000'000'007u);
    EXPECT_TRUE(DecodificaQuota(datiGrande.data(), datiGrande.size()).interrotto);
    std::vector<uint8_t> flagStrano = dati;
    flagStrano[8] = 2;
    EXPECT_THROW(DecodificaQuota(flagStrano.data(), flagStrano.size()), Errore);
    std::vector<uint8_t> bloccoLungo = dati;
    bloccoLungo[12] = 0x7f;  // table block longer than the bytes
    EXPECT_THROW(DecodificaQuota(bloccoLungo.data(), bloccoLungo.size()), Errore);
}

}  // namespace
}  // namespace combi
