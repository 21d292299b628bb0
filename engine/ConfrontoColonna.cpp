#include "ConfrontoColonna.h"

#include "DecodificaCondizioni.h"
#include "Formato.h"
#include "VerificaColonna.h"

namespace combi {

namespace {

std::string TestoPunti(const std::array<int16_t, 11>& elenco, int32_t minimo, int32_t massimo) {
    const std::string testo = ElencoIndici(elenco, "-", false);
    return testo.empty() ? std::to_string(minimo) + "-" + std::to_string(massimo) : testo;
}

RigaConfronto Riga(const Condizione& c, size_t indice) {
    RigaConfronto r;
    r.colonne = {std::to_string(indice + 1), NomeTipoCondizione(c.Tipo)};
    if (c.Tipo == kLinkOpen || c.Tipo == kLinkClose) return r;
    r.colonne.push_back(TestoPunti(c.Punti, c.MinPunti, c.MaxPunti));
    r.colonne.push_back(TestoPunti(c.Recupero, c.MinRecupero, c.MaxRecupero));
    r.colonne.push_back(std::to_string(c.Valore));
    r.colonne.push_back(c.Superata != 0 || c.Recuperabile != 0 ? "Si" : "No");
    r.esito = c.Superata != 0 ? EsitoRiga::kSuperata
              : c.Recuperabile != 0 ? EsitoRiga::kRecuperabile
                                    : EsitoRiga::kFallita;
    return r;
}

}  // namespace

Confronto ConfrontaCondizioniSuColonna(const Colonna& colonna, const TestiGriglia& griglia) {
    SistemaDecodificato s = LeggiCondizioni(griglia);
    Confronto esito;
    esito.superata = VerificaColonna(ClasseDellaColonna(colonna), colonna, s.condizioni, s.quadri) != 0;
    for (size_t i = 0; i < s.condizioni.size(); ++i)
        if (s.condizioni[i].Tipo != kNessuna) esito.righe.push_back(Riga(s.condizioni[i], i));
    esito.condizioni = std::move(s.condizioni);
    return esito;
}

std::vector<std::vector<int>> PreparaTabellaCandidati(const std::vector<int>& numeri, int classe,
                                                      const std::function<void(const std::string&)>& avvisa) {
    if (classe < 1) {
        if (avvisa) avvisa(kMsgClasseNonPositiva);
        return {};
    }
    std::vector<int> sel;
    for (int n : numeri)
        if (n != 0) sel.push_back(n);
    const int n = int(sel.size());
    std::vector<std::vector<int>> tabella;
    if (n < classe) return tabella;
    for (int c = 1; c <= n - classe + 1; ++c) {
        std::vector<int> riga(static_cast<size_t>(classe));
        for (int r = 1; r <= classe; ++r) riga[size_t(r - 1)] = sel[size_t(r + c - 2)];
        tabella.push_back(std::move(riga));
    }
    return tabella;
}

}  // namespace combi
