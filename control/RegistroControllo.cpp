#include "RegistroControllo.h"

// Everything runs on the user-interface thread, so a plain pointer suffices.
namespace {
CombiFiltroA* registrato = nullptr;
}

CombiFiltroA* ControlloRegistrato() { return registrato; }

void RegistraControllo(CombiFiltroA* controllo) { registrato = controllo; }

void CancellaControllo(const CombiFiltroA* controllo) {
    if (registrato == controllo) registrato = nullptr;
}
