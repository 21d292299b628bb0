#pragma once
// The one navigator window of a control. "Naviga" creates it when it is not
// open and shows it modeless above the other windows; a deleted condition
// ("AggiornaNavigatore") rebuilds its tree while it is open; the control's
// Deinit ("ChiudiNavigatore") unloads it. Closing the window unloads it too,
// so the next "Naviga" reads the grid afresh.

#include <QPointer>

class CombiFiltroA;
class F_NavigaSistema;

class NavigatoreControllo {
public:
    // `controllo` must outlive this object; the window is its child.
    explicit NavigatoreControllo(CombiFiltroA& controllo) : controllo_(controllo) {}

    void Mostra();
    void Aggiorna();
    void Chiudi();

    // The open window, or nullptr.
    F_NavigaSistema* Finestra() const;

private:
    CombiFiltroA& controllo_;
    QPointer<F_NavigaSistema> finestra_;
};
