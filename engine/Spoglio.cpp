#include "Spoglio.h"

#include <algorithm>

#include "Errore.h"
#include "LetturaNumero.h"
#include "Testo.h"
#include "Formato.h"

namespace combi {

namespace {

constexpr size_t kMassimoEstratti = 20;

bool Spazio(char c) { return c == ' ' || c == '\t'; }

std::string_view SenzaSpazi(std::string_view testo) {
    while (!testo.empty() && Spazio(testo.front())) testo.remove_prefix(1);
    while (!testo.empty() && Spazio(testo.back())) testo.remove_suffix(1);
    return testo;
}

// The blank-separated words of a piece that holds no "," or ";".
void AggiungiParole(std::string_view pezzo, std::vector<std::string_view>& voci) {
    size_t i = 0;
    while (i < pezzo.size()) {
        const size_t fine = std::find_if(pezzo.begin() + std::ptrdiff_t(i), pezzo.end(), Spazio) - pezzo.begin();
        voci.push_back(pezzo.substr(i, fine - i));
        i = std::find_if_not(pezzo.begin() + std::ptrdiff_t(fine), pezzo.end(), Spazio) - pezzo.begin();
    }
}

void Rifiuta(std::string_view testo) {
    const std::string messaggio = ControllaEstrazione(testo);
    if (!messaggio.empty()) throw Errore(kErroreArgomento, messaggio);
}

}  // namespace

std::vector<std::string_view> VociEstrazione(std::string_view testo) {
    std::vector<std::string_view> voci;
    testo = SenzaSpazi(testo);
    if (testo.empty()) return voci;
    size_t inizio = 0;
    for (;;) {
        const size_t segno = testo.find_first_of(",;", inizio);
        const std::string_view pezzo = SenzaSpazi(testo.substr(inizio, segno - inizio));
        if (pezzo.empty()) {
            voci.push_back(pezzo);  // nothing between two marks
        } else {
            AggiungiParole(pezzo, voci);
        }
        if (segno == std::string_view::npos) return voci;
        inizio = segno + 1;
    }
}

std::vector<double> NumeriEstrazione(std::string_view testo) {
    std::vector<double> numeri;
    for (std::string_view v : VociEstrazione(testo)) numeri.push_back(LeggiNumero(v));
    return numeri;
}

std::string ControllaEstrazione(std::string_view testo) {
    const std::vector<std::string_view> voci = VociEstrazione(testo);
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
    for (const double numero : NumeriEstrazione(estrazione)) {
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
    for (std::string_view v : VociEstrazione(estrazione)) c[pos++] = uint8_t(LeggiInt32(v));
    return c;
}

}  // namespace combi
