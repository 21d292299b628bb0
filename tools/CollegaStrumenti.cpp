#include "CollegaStrumenti.h"

#include "CombiFiltroA.h"

void CollegaStrumenti(CombiFiltroA& controllo, ServizioDialoghi& dialoghi) {
    CombiFiltroA* ctl = &controllo;
    ServizioDialoghi* servizio = &dialoghi;
    // One registration per tool window.
    (void)ctl;
    (void)servizio;
}
