// The reduction as a plain all-pairs loop: every column is compared with every
// other through a mark set of the numbers 1..90. Slow (count^2) and kept that
// way on purpose: it is the yardstick the indexed path is checked against.

#include <algorithm>
#include <iterator>

#include "Riduzione.h"
#include "RiduzioneFasi.h"

namespace combi {

namespace {

using riduzione::Controllo;
using riduzione::TabellaRappresentativita;

// The first `classe` numbers of one column, compared with another's.
struct Segni {
    explicit Segni(int classe) : classe(classe) {}
    int classe;
    bool numero[kMaxNumero + 1] = {};

    void Segna(const Colonna& c) {
        std::fill(std::begin(numero), std::end(numero), false);
        for (int pos = 1; pos <= classe; ++pos) numero[c[pos]] = true;
    }
    int Comuni(const Colonna& c) const {
        int k = 0;
        for (int pos = 1; pos <= classe; ++pos) k += numero[c[pos]];
        return k;
    }
};

// Returns the number of columns analysed (all of them unless stopped).
int64_t Analizza(const std::vector<Colonna>& colonne, int classe, int punti, TabellaRappresentativita& tabella,
                 Controllo& controllo) {
    const int64_t n = int64_t(colonne.size());
    Segni segni(classe);
    for (int64_t i = 1; i <= n; ++i) {
        segni.Segna(colonne[size_t(i) - 1]);
        int32_t coperte = 0;
        for (int64_t j = 1; j <= n; ++j) {
            if (j != i && segni.Comuni(colonne[size_t(j) - 1]) >= punti) ++coperte;
            if (controllo.Fermo()) return i - 1;
        }
        tabella[size_t(i)] = {int32_t(i), coperte};
        controllo.Avanza(i, n);
        controllo.Pausa();
    }
    return n;
}

void Seleziona(const std::vector<Colonna>& colonne, int classe, int punti, const TabellaRappresentativita& tabella,
               std::vector<uint8_t>& eliminata, Controllo& controllo) {
    const int64_t n = int64_t(colonne.size());
    std::vector<uint8_t> tenuta(size_t(n) + 1, 0);
    Segni segni(classe);
    for (int64_t p = 1; p <= n; ++p) {
        const int64_t c = tabella[size_t(p)].indice;
        if (!eliminata[size_t(c)]) {
            tenuta[size_t(c)] = true;
            segni.Segna(colonne[size_t(c) - 1]);
            for (int64_t j = 1; j <= n; ++j)
                if (!tenuta[size_t(j)] && j != c && !eliminata[size_t(j)] &&
                    segni.Comuni(colonne[size_t(j) - 1]) >= punti)
                    eliminata[size_t(j)] = true;
        }
        if (controllo.Fermo()) break;
        controllo.Avanza(p, n);
        controllo.Pausa();
    }
}

}  // namespace

namespace riduzione {

std::vector<int32_t> ContaCopertureRiferimento(const std::vector<Colonna>& colonne, int puntiRichiesti) {
    const int classe = ControllaIngresso(colonne, puntiRichiesti);
    OsservatoreRiduzione muto;
    Controllo controllo(muto);
    TabellaRappresentativita tabella(colonne.size() + 1);
    Analizza(colonne, classe, puntiRichiesti, tabella, controllo);
    std::vector<int32_t> conte;
    for (size_t i = 1; i < tabella.size(); ++i) conte.push_back(tabella[i].conta);
    return conte;
}

}  // namespace riduzione

RisultatoRiduzione RiduciColonneRiferimento(const std::vector<Colonna>& colonne, int puntiRichiesti,
                                            OsservatoreRiduzione& oss) {
    const int classe = riduzione::ControllaIngresso(colonne, puntiRichiesti);
    Controllo controllo(oss);
    TabellaRappresentativita tabella(colonne.size() + 1);

    controllo.Fase(kFaseAnalisi);
    riduzione::CompletaAnalisi(tabella, Analizza(colonne, classe, puntiRichiesti, tabella, controllo));

    controllo.Fase(kFaseOrdinamento);
    controllo.Pausa();
    riduzione::OrdinaTabella(tabella, controllo.Fermo());

    controllo.Fase(kFaseRiduzione);
    std::vector<uint8_t> eliminata(colonne.size() + 1, 0);
    Seleziona(colonne, classe, puntiRichiesti, tabella, eliminata, controllo);

    RisultatoRiduzione r;
    r.colonne = riduzione::ColonneRimaste(colonne, eliminata, controllo);
    controllo.Fase("");
    controllo.Percento(0);
    r.interrotto = controllo.Fermo();
    return r;
}

}  // namespace combi
