// The fast reduction: the same three phases as the reference, with the
// all-pairs scans replaced by the subset index (RiduzioneIndice.h). The
// progress, the pumps and the stop checks come at the same steps as in the
// reference, so a stop seen at the same pump gives the same result.

#include "Riduzione.h"

#include "RiduzioneFasi.h"
#include "RiduzioneIndice.h"

namespace combi {

namespace {

using riduzione::Controllo;
using riduzione::IndiceCoperture;
using riduzione::TabellaRappresentativita;

// The counts are all computed when the index is built (a fraction of a second
// for a million columns); the per-column steps then only publish them, so
// that the progress and a stop behave as in the column-by-column analysis.
int64_t Analizza(const IndiceCoperture& indice, TabellaRappresentativita& tabella, Controllo& controllo) {
    const int64_t n = int64_t(indice.Conte().size());
    for (int64_t i = 1; i <= n; ++i) {
        tabella[size_t(i)] = {int32_t(i), indice.Conte()[size_t(i) - 1]};
        controllo.Avanza(i, n);
        controllo.Pausa();
        if (controllo.Fermo()) return i;
    }
    return n;
}

// A kept column c eliminates every column of the lists of its t-subsets.
// Each list is walked at most once over the whole selection: a later column
// holding the same subset shares it with c, so c has already eliminated it.
void Seleziona(const IndiceCoperture& indice, const TabellaRappresentativita& tabella,
               std::vector<uint8_t>& eliminata, Controllo& controllo) {
    const int64_t n = int64_t(tabella.size()) - 1;
    std::vector<uint8_t> tenuta(size_t(n) + 1, 0);
    for (int64_t p = 1; p <= n; ++p) {
        const uint32_t c = uint32_t(tabella[size_t(p)].indice);
        if (!eliminata[c]) {
            tenuta[c] = true;
            indice.PerVicini(c - 1, [&](uint32_t j0) {
                const uint32_t j = j0 + 1;
                if (j != c && !tenuta[j]) eliminata[j] = true;
            });
        }
        if (controllo.Fermo()) break;
        controllo.Avanza(p, n);
        controllo.Pausa();
    }
}

}  // namespace

namespace riduzione {

std::vector<int32_t> ContaCoperture(const std::vector<Colonna>& colonne, int puntiRichiesti) {
    const int classe = ControllaIngresso(colonne, puntiRichiesti);
    return IndiceCoperture(colonne, classe, puntiRichiesti).Conte();
}

}  // namespace riduzione

RisultatoRiduzione RiduciColonne(const std::vector<Colonna>& colonne, int puntiRichiesti,
                                 OsservatoreRiduzione& oss) {
    const int classe = riduzione::ControllaIngresso(colonne, puntiRichiesti);
    Controllo controllo(oss);
    TabellaRappresentativita tabella(colonne.size() + 1);

    controllo.Fase(kFaseAnalisi);
    const IndiceCoperture indice(colonne, classe, puntiRichiesti);
    riduzione::CompletaAnalisi(tabella, Analizza(indice, tabella, controllo));

    controllo.Fase(kFaseOrdinamento);
    controllo.Pausa();
    riduzione::OrdinaTabella(tabella, controllo.Fermo());

    controllo.Fase(kFaseRiduzione);
    std::vector<uint8_t> eliminata(colonne.size() + 1, 0);
    Seleziona(indice, tabella, eliminata, controllo);

    RisultatoRiduzione r;
    r.colonne = riduzione::ColonneRimaste(colonne, eliminata, controllo);
    controllo.Fase("");
    controllo.Percento(0);
    r.interrotto = controllo.Fermo();
    return r;
}

}  // namespace combi
