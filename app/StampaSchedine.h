#pragma once
// The print preview of the play slips: the developed columns of the control,
// laid out as numbered slips for the chosen game.

#include <QString>

class CombiFiltroA;
class QWidget;

void AnteprimaSchedine(QWidget* genitore, const CombiFiltroA& controllo, const QString& tipoGioco);
