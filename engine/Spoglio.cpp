#include "Spoglio.h"

#include "Errore.h"
#include "LetturaNumero.h"
#include "Testo.h"
#include "Formato.h"

namespace combi {

namespace {

constexpr size_t kMassimoEstratti = 20;

void Rifiuta(std::string_view testo) {
    const std::string messaggio = ControllaEstrazione(testo);
    if (!messaggio.empty()) throw Errore(kErroreArgomento, messaggio);
}

}  // namespace

std::string ControllaEstrazione(std::string_view testo) {
    const std::vector<std::string_view> voci = Dividi(testo, ",");
    if (voci.size() > kMassimoEstratti) return kMsgMassimo20Numeri;
    for (std::string_view v : voci) {
        const double numero = LeggiNumero(v);
        if (!(numero > 0) || numero > kMaxNumero) return kMsgNumeriDa1a90;
    }
    return {};
}

EsitoSpoglio VerificaVincite(std::span<const Colonna> colonne, int classe, std::string_view estrazione,
                             int puntiMinimi) {
    Rifiuta(estrazione);
    if (classe < 1 || classe > kMaxClasse)
        throw Errore(kErroreArgomento, "Classe non valida: " + std::to_string(classe));
    if (puntiMinimi < 1) throw Errore(kErroreArgomento, "Punti minimi non validi: " + std::to_string(puntiMinimi));

    // A byte matches when some drawn value equals it exactly: 5.5 matches nothing.
    bool estratto[256] = {};
    for (std::string_view v : Dividi(estrazione, ",")) {
        const double numero = LeggiNumero(v);
        if (numero == double(int(numero))) estratto[int(numero)] = true;  // 1..90 after the check
    }
    EsitoSpoglio esito;
    for (size_t c = 0; c < colonne.size(); ++c) {
        int punti = 0;
        for (int pos = 1; pos <= classe; ++pos) punti += estratto[colonne[c][pos]];
        ++esito.contatori[size_t(punti)];
        if (punti >= puntiMinimi) esito.vincite.push_back({int64_t(c) + 1, TestoColonna(colonne[c], false), punti});
    }
    for (int p = classe; p >= puntiMinimi; --p)
        esito.riepilogo.push_back({"Vincite con " + std::to_string(p) + " punti ", esito.contatori[size_t(p)]});
    return esito;
}

Colonna EstrazioneComeColonna(std::string_view estrazione) {
    Rifiuta(estrazione);
    Colonna c;
    int pos = 1;
    for (std::string_view v : Dividi(estrazione, ",")) c[pos++] = uint8_t(LeggiInt32(v));
    return c;
}

}  // namespace combi
