#pragma once
// Hands the windows of the analysis tools to the control: each toolbar
// command that opens one is registered here.

class CombiFiltroA;
class ServizioDialoghi;

// `dialoghi` must outlive the control.
void CollegaStrumenti(CombiFiltroA& controllo, ServizioDialoghi& dialoghi);
