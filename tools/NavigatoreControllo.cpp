#include "NavigatoreControllo.h"

#include "CombiFiltroA.h"
#include "F_NavigaSistema.h"
#include "UtilitaSchermo.h"

// A window the user closed waits for its deferred deletion while hidden:
// it counts as gone.
F_NavigaSistema* NavigatoreControllo::Finestra() const {
    return finestra_ && finestra_->isVisible() ? finestra_.data() : nullptr;
}

void NavigatoreControllo::Mostra() {
    if (Finestra() == nullptr) {
        delete finestra_.data();
        finestra_ = new F_NavigaSistema(controllo_, &controllo_);
        finestra_->setAttribute(Qt::WA_DeleteOnClose);
    }
    InPrimoPiano(finestra_, -1);
    finestra_->raise();
    finestra_->activateWindow();
}

void NavigatoreControllo::Aggiorna() {
    if (F_NavigaSistema* finestra = Finestra()) finestra->CostruisciAlbero();
}

void NavigatoreControllo::Chiudi() { delete finestra_.data(); }
