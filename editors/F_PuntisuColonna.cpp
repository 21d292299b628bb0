#include "F_PuntisuColonna.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "GrigliaNumeri.h"
#include "LetturaNumero.h"
#include "Testo.h"
#include "ScritturaCondizioni.h"

F_PuntisuColonna::F_PuntisuColonna(const VoceCatalogo& voce, const ContestoEditore& contesto,
                                   QWidget* genitore)
    : F_PuntiSuElenco(voce, contesto, genitore) {
    griglia_ = new GrigliaNumeri(this);
    griglia_->setObjectName("GrigliaNumeri1");
    griglia_->setWindowFlags(Qt::Widget);  // embedded, not the panel's tool window
    ZonaPropria()->addWidget(griglia_);
    AbilitaNum(contesto.numeriSelezionati);
    // Ending the pick in the grid confirms the dialog, as on the main panel.
    connect(griglia_, &GrigliaNumeri::Chiusa, this, [this] { Pulsante(0)->click(); });
    connect(griglia_, &GrigliaNumeri::SelezioneCambiata, this, [this] { AggiornaDisponibili(); });
}

void F_PuntisuColonna::AbilitaNum(const GrigliaNumeri& numeri) {
    for (int n = 1; n <= 90; ++n) delSistema_[n] = numeri.Selezionato(n);
    AggiornaDisponibili();
}

void F_PuntisuColonna::AbilitaNum(const std::vector<int>& numeri) {
    delSistema_.fill(false);
    for (int n : numeri) {
        if (n >= 1 && n <= 90) delSistema_[n] = true;
    }
    AggiornaDisponibili();
}

// A condition edited after the system lost some of its numbers still holds
// them: they stay available while picked, so the user can clear them, and
// once cleared they cannot be picked again.
void F_PuntisuColonna::AggiornaDisponibili() {
    for (int n = 1; n <= 90; ++n) griglia_->ImpostaDisponibile(n, delSistema_[n] || griglia_->Selezionato(n));
}

void F_PuntisuColonna::RiempiDaParametri(const QString&) {
    // The set is always picked by the user: the dialog is shown whatever
    // text the host passes.
}

QString F_PuntisuColonna::TestoParametri() const {
    // Two digits each, joined by "-", four numbers to a 12-character line.
    std::array<int16_t, 91> scelti{};
    for (int n = 1; n <= 90; ++n) scelti[n] = griglia_->Selezionato(n) ? combi::kVero : combi::kFalso;
    return QString::fromStdString(combi::TestoNumeriColonna(scelti));
}

void F_PuntisuColonna::LeggiParametri(const std::string& testo) {
    // The line breaks after every fourth number are not part of the numbers.
    // The pieces are views into this string: it must outlive the loop.
    const std::string numeri = combi::RimuoviACapo(testo);
    for (std::string_view pezzo : combi::Dividi(numeri, "-")) {
        griglia_->ImpostaNumero(combi::LeggiInt32(pezzo), true);
    }
}
