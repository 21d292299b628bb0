#include "CollegaStrumenti.h"

#include <memory>

#include "ChiaviComandi.h"
#include "CombiFiltroA.h"
#include "F_EffettoCond.h"
#include "F_Riduzione.h"
#include "F_Spoglio.h"
#include "F_VisualizzaColonne.h"
#include "NavigatoreControllo.h"
#include "SegnalazioneErrori.h"

void CollegaStrumenti(CombiFiltroA& controllo, ServizioDialoghi& dialoghi) {
    CombiFiltroA* ctl = &controllo;
    ServizioDialoghi* servizio = &dialoghi;
    controllo.RegistraComando(chiavi::kConfrontoCondSuCol, [ctl, servizio] {
        F_Spoglio spoglio(*ctl, *servizio, ctl);
        spoglio.exec();
    });
    // The reduction window is the view of the control's reductions while it
    // is open.
    controllo.RegistraComando(chiavi::kRiduzione, [ctl, servizio] {
        F_Riduzione riduzione(*ctl, *servizio, ctl);
        riduzione.exec();
    });
    // A reduction the host starts with no window open gets one of its own,
    // modeless, left open after the run for the user to close.
    controllo.RegistraComando(chiavi::kApriFinestraRiduzione, [ctl, servizio] {
        auto* riduzione = new F_Riduzione(*ctl, *servizio, ctl);
        riduzione->setAttribute(Qt::WA_DeleteOnClose);
        riduzione->show();
    });
    controllo.RegistraComando(chiavi::kVisualizzaColonne, [ctl] {
        F_VisualizzaColonne colonne(*ctl, ctl);
        colonne.exec();
    });
    controllo.RegistraComando(chiavi::kEffettoCondizioni, [ctl, servizio] {
        EseguiProtetta(*servizio, "F_EffettoCond.Form_Load", [ctl] {
            F_EffettoCond effetto(*ctl, ctl);
            effetto.exec();
        });
    });
    // The navigator outlives a command: the three handlers share its owner.
    auto navigatore = std::make_shared<NavigatoreControllo>(controllo);
    controllo.RegistraComando(chiavi::kNaviga, [navigatore, servizio] {
        EseguiProtetta(*servizio, "F_NavigaSistema.Form_Load", [&] { navigatore->Mostra(); });
    });
    controllo.RegistraComando(chiavi::kAggiornaNavigatore, [navigatore] { navigatore->Aggiorna(); });
    controllo.RegistraComando(chiavi::kChiudiNavigatore, [navigatore] { navigatore->Chiudi(); });
}
