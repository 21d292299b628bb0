#pragma once
// Hands the condition editors and the recovery panel dialog to the control.

#include <memory>

class CombiFiltroA;
class FabbricaEditori;
class ServizioDialoghi;

// The factory the control asks for an editor of a type; the caller keeps it
// alive as long as the control. Also registers the "QuadroRecuperi" command.
std::unique_ptr<FabbricaEditori> CollegaEditori(CombiFiltroA& controllo, ServizioDialoghi& dialoghi);
