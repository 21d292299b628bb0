#include "BilancioStorico.h"

#include <cmath>

#include "Errore.h"

namespace combi {

namespace {

bool Importo(double valore) { return std::isfinite(valore) && valore >= 0; }

}  // namespace

double VintoEstrazione(const EsitoEstrazione& e, double posta, const TabellaPremi& premi) {
    double vinto = 0;
    for (size_t p = 0; p < premi.size(); ++p) vinto += double(e.conte[p]) * premi[p];
    return vinto * posta;
}

StimaDenaro StimaBilancio(const EsitoStorico& esito, int64_t colonne, double posta, const TabellaPremi& premi) {
    if (!Importo(posta)) throw Errore(kErroreArgomento, "Posta non valida");
    for (double premio : premi)
        if (!Importo(premio)) throw Errore(kErroreArgomento, "Premio non valido");
    StimaDenaro stima;
    for (const EsitoEstrazione& e : esito.estrazioni) {
        const int anno = AnnoDi(e.estrazione.data);
        if (stima.perAnno.empty() || stima.perAnno.back().anno != anno) stima.perAnno.push_back({anno, {}});
        Bilancio& b = stima.perAnno.back().bilancio;  // the draws come by date, so years come in order
        b.giocato += posta * double(colonne);
        b.vinto += VintoEstrazione(e, posta, premi);
    }
    for (const BilancioAnno& a : stima.perAnno) {
        stima.totale.giocato += a.bilancio.giocato;
        stima.totale.vinto += a.bilancio.vinto;
    }
    return stima;
}

}  // namespace combi
