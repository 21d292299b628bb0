// The winnings input: the drawn numbers as typed by the user, checked and
// counted against a few columns, then turned into the column that the
// conditions page measures against one condition of every type.
#include <algorithm>
#include <cstdint>
#include <numeric>
#include <string>

#include "Errore.h"
#include "FileColonne.h"
#include "Ingressi.h"
#include "Spoglio.h"
#include "VerificaColonna.h"

namespace {

// One condition of every measured type; the parameter and the number set
// come from the input so that odd parameters meet odd drawn columns.
combi::TabellaCondizioni CondizioniDiProva(int16_t parametro) {
    combi::TabellaCondizioni tabella;
    for (int tipo = combi::kPuntiColonna; tipo <= combi::kParalleli; ++tipo) {
        combi::Condizione c;
        c.Tipo = int16_t(tipo);
        c.Parametro = parametro;
        for (int n = 0; n <= combi::kMaxNumero; n += 3) c.Numeri[n] = combi::kVero;
        c.Punti.fill(combi::kVero);
        c.MaxPunti = 90;
        tabella.push_back(c);
    }
    return tabella;
}

void ControllaConteggi(const combi::EsitoSpoglio& e, size_t colonne, int classe, int minimo) {
    const int64_t somma = std::accumulate(e.contatori.begin(), e.contatori.end(), int64_t(0));
    if (somma != int64_t(colonne)) __builtin_trap();
    for (const combi::RigaVincita& r : e.vincite)
        if (r.punti < minimo || r.punti > classe) __builtin_trap();
    if (e.riepilogo.size() != size_t(std::max(0, classe - minimo + 1))) __builtin_trap();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t lunghezza) {
    using namespace combi;
    if (lunghezza < 2) return 0;
    // Class and minimum run a little past their domains to reach the refusals.
    const int classe = dati[0] % 23 - 1;
    const int minimo = dati[1] % 13 - 1;
    const uint8_t* resto = dati + 2;
    const size_t quanti = lunghezza - 2;
    const uint8_t* fine = std::find(resto, resto + quanti, uint8_t(fuzz::kSeparatoreParole));
    const std::string testo(resto, fine);
    const size_t dopo = fine == resto + quanti ? 0 : size_t(resto + quanti - fine - 1);
    const std::vector<Colonna> colonne = DecodificaColonne(fine + (dopo ? 1 : 0), dopo);

    const bool accettato = ControllaEstrazione(testo).empty();
    try {
        const Colonna estratta = EstrazioneComeColonna(testo);
        if (!accettato) __builtin_trap();
        TabellaCondizioni tabella = CondizioniDiProva(int16_t(int8_t(dati[0] ^ dati[1])));
        VerificaColonna(std::clamp(classe, 1, kMaxClasse), estratta, tabella, TabellaQuadri{});
    } catch (const Errore&) {
        if (accettato) __builtin_trap();
    }
    try {
        ControllaConteggi(VerificaVincite(colonne, classe, testo, minimo), colonne.size(), classe, minimo);
        if (!accettato || classe < 1 || classe > kMaxClasse || minimo < 1) __builtin_trap();
    } catch (const Errore& e) {
        if (e.descrizione().empty()) __builtin_trap();
    }
    return 0;
}
