#pragma once
// The control registry: one process-wide slot holding the live control, so
// that every dialog reaches it without being handed it. Set when the control
// initialises, cleared by Deinit. One control per process.

class CombiFiltroA;

// The live control, or nullptr before initialisation and after Deinit.
CombiFiltroA* ControlloRegistrato();

// Called by the control only.
void RegistraControllo(CombiFiltroA* controllo);
// Clears the slot if it still holds `controllo`.
void CancellaControllo(const CombiFiltroA* controllo);
