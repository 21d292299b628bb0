#include "Condizione.h"

#include "TipiCondizione.h"

namespace combi {

std::string NomeTipoCondizione(int codice) {
    if (codice < 1) return {};
    const DescrizioneTipo* d = DescrizioneDelTipo(codice);
    return d ? std::string(d->nome) : std::string();
}

int CodiceTipoCondizione(const std::string& nome) {
    for (const DescrizioneTipo& d : kTipiCondizione)
        if (d.codice != kNessuna && d.nome == nome) return d.codice;
    return kNessuna;
}

bool GiudicataSuElenco(int tipo) { return GiudizioDelTipo(tipo) == Giudizio::Elenco; }

bool GiudicataSuIntervallo(int tipo) { return GiudizioDelTipo(tipo) == Giudizio::Intervallo; }

}  // namespace combi
