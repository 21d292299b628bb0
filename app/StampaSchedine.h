#pragma once
// The host's answer to "StampaSk": the print preview of the play slips of
// the control's kept columns for the chosen game (tools/AnteprimaSchedine).

#include <QString>

class CombiFiltroA;
class QWidget;

void AnteprimaSchedine(QWidget* genitore, const CombiFiltroA& controllo, const QString& tipoGioco);
