#include "StampaSchedine.h"

#include "AnteprimaSchedine.h"
#include "CombiFiltroA.h"
#include "ServizioDialoghiQt.h"

void AnteprimaSchedine(QWidget* genitore, const CombiFiltroA& controllo, const QString& tipoGioco) {
    ServizioDialoghiQt dialoghi(genitore);
    MostraAnteprimaSchedine(genitore, DatiDelControllo(controllo, tipoGioco), dialoghi, controllo.dirSistemi());
}
