#pragma once
// "Stampa schedine" for the host: the print preview of the kept columns,
// with the choice between the slips and the compact list and an export of
// every page to a PDF file.

#include <QString>

#include "ImpaginaSchedine.h"

class CombiFiltroA;
class ServizioDialoghi;
class QWidget;

// What is printed from the control: its kept columns, its system file's
// name, the game `gioco` and the class of the columns, dated today.
DatiSchedine DatiDelControllo(const CombiFiltroA& controllo, const QString& gioco);

// Writes every page as a PDF file; false when the file cannot be written.
bool EsportaPdf(const DatiSchedine& dati, Impaginazione modo, const QString& file);

// The print preview, modal. The PDF file is asked for through `dialoghi`,
// starting in `cartella`; a failure to write it is reported there too.
void MostraAnteprimaSchedine(QWidget* genitore, const DatiSchedine& dati, ServizioDialoghi& dialoghi,
                             const QString& cartella);
