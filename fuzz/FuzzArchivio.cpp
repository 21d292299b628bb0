// The archive of draws as the user keeps it: any text is read without a
// crash; every draw kept is a valid draw of its game, every refused line is
// named by its number; the draws written back read the same; and the
// back-test of columns made from the draws gives the plain loop's counts.
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

#include "ArchivioEstrazioni.h"
#include "VerificaStorico.h"

namespace {

using namespace combi;

void ControllaEstrazione(const Estrazione& e, int32_t righe) {
    if (LeggiData(TestoData(e.data)) != e.data) __builtin_trap();
    if (e.ruota >= kRuote || e.quanti != NumeriEstratti(GiocoDellaRuota(e.ruota))) __builtin_trap();
    if (e.riga < 1 || e.riga > righe) __builtin_trap();
    bool visto[kMaxNumero + 1] = {};
    for (size_t k = 0; k < e.numeri.size(); ++k) {
        const uint8_t n = e.numeri[k];
        if (k >= e.quanti) {
            if (n) __builtin_trap();
            continue;
        }
        if (n < 1 || n > kMaxNumero || visto[n]) __builtin_trap();
        visto[n] = true;
    }
    if (e.jolly && (e.jolly > kMaxNumero || visto[e.jolly])) __builtin_trap();
    if (e.superstar > kMaxNumero || (e.superstar && !e.jolly)) __builtin_trap();
}

// Columns from the draws themselves, so that they score: the first
// 1..10 numbers of each draw, ascending.
std::vector<Colonna> ColonneDalleEstrazioni(const std::vector<Estrazione>& estrazioni) {
    std::vector<Colonna> colonne;
    for (size_t i = 0; i < std::min<size_t>(estrazioni.size(), 40); ++i) {
        const Estrazione& e = estrazioni[i];
        std::vector<uint8_t> numeri(e.numeri.begin(), e.numeri.begin() + std::min<size_t>(e.quanti, 1 + i % 10));
        std::sort(numeri.begin(), numeri.end());
        Colonna c;
        std::copy(numeri.begin(), numeri.end(), c.Numeri.begin());
        colonne.push_back(c);
    }
    return colonne;
}

void ControllaStorico(const std::vector<Estrazione>& estrazioni) {
    const std::vector<Colonna> colonne = ColonneDalleEstrazioni(estrazioni);
    for (int g = 0; g < kGiochiArchivio; ++g) {
        ParametriStorico p;
        p.gioco = GiocoArchivio(g);
        p.puntiMinimi = 1 + g;
        p.thread = g == 0 ? 2 : 1;  // starting threads is what a run costs most
        p.estrazioniPerGruppo = 3;
        OsservatoreStorico oss;
        const EsitoStorico veloce = VerificaStorico(colonne, estrazioni, p, oss);
        const EsitoStorico piano = VerificaStoricoRiferimento(colonne, estrazioni, p, oss);
        if (veloce.estrazioni.size() != piano.estrazioni.size() || veloce.totali != piano.totali) __builtin_trap();
        for (size_t i = 0; i < veloce.estrazioni.size(); ++i)
            if (veloce.estrazioni[i].conte != piano.estrazioni[i].conte) __builtin_trap();
        if (veloce.migliore != piano.migliore || veloce.digiuno.concorsi != piano.digiuno.concorsi) __builtin_trap();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t lunghezza) {
    const std::string_view testo(reinterpret_cast<const char*>(dati), lunghezza);
    const int32_t righe = int32_t(std::count(testo.begin(), testo.end(), '\n')) + 1;
    const Archivio a = LeggiArchivio(testo);
    for (const Estrazione& e : a.estrazioni) ControllaEstrazione(e, righe);
    int32_t ultima = 0;
    for (const SegnalazioneArchivio& s : a.scartate) {
        if (s.riga <= ultima || s.riga > righe) __builtin_trap();
        if (s.messaggio.rfind("Riga " + std::to_string(s.riga) + ": ", 0) != 0) __builtin_trap();
        ultima = s.riga;
    }
    if (a.estrazioni.size() + a.scartate.size() > size_t(righe)) __builtin_trap();

    std::string scritto;
    for (const Estrazione& e : a.estrazioni) scritto += RigaArchivio(e) + "\n";
    const Archivio riletto = LeggiArchivio(scritto);
    if (!riletto.scartate.empty() || riletto.estrazioni.size() != a.estrazioni.size()) __builtin_trap();
    for (size_t i = 0; i < a.estrazioni.size(); ++i) {
        Estrazione e = riletto.estrazioni[i];
        e.riga = a.estrazioni[i].riga;
        if (!(e == a.estrazioni[i])) __builtin_trap();
    }
    ControllaStorico(a.estrazioni);
    return 0;
}
