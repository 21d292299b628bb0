#include "CollegaEditori.h"

#include "ChiaviComandi.h"
#include "CombiFiltroA.h"
#include "F_QuadroRecuperi.h"
#include "FabbricaEditoriQt.h"

std::unique_ptr<FabbricaEditori> CollegaEditori(CombiFiltroA& controllo, ServizioDialoghi& dialoghi) {
    CombiFiltroA* ctl = &controllo;
    auto fabbrica = std::make_unique<FabbricaEditoriQt>([ctl, &dialoghi] {
        ContestoEditore c;
        c.classe = ctl->classe();
        std::array<int16_t, 91> numeri{};
        ctl->GetNumeriSel(numeri);
        for (int i = 1; i <= 90 && numeri[i] != 0; ++i) c.numeriSelezionati.push_back(numeri[i]);
        c.idTipoGioco = ctl->GetIdCmbTipoGioco();
        c.dialoghi = &dialoghi;
        return c;
    });
    controllo.ImpostaFabbricaEditori(fabbrica.get());
    controllo.RegistraComando(chiavi::kQuadroRecuperi, [ctl] {
        F_QuadroRecuperi d(ctl);
        d.LeggiRecuperiInseriti(*ctl->GetGridCond(), *ctl->GetLbQuadroRec());
        d.Mostra();
        if (!d.Tag().isEmpty()) ctl->RicostruisciQuadri(d.MinMax());
    });
    return fabbrica;
}
