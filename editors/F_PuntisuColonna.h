#pragma once
// "Punti su colonna": the user picks a set of numbers in a number grid of
// its own (only the system's numbers are available) and the accepted counts
// of those numbers in a column. Always shown to the user, never filled from
// a host's text.

#include <array>
#include <vector>

#include "F_PuntiSuElenco.h"

class GrigliaNumeri;

class F_PuntisuColonna : public F_PuntiSuElenco {
    Q_OBJECT
public:
    F_PuntisuColonna(const VoceCatalogo& voce, const ContestoEditore& contesto, QWidget* genitore);

    // Makes available the numbers picked in the main panel's grid, and those
    // the condition holds that are no longer picked there until unticked.
    void AbilitaNum(const GrigliaNumeri& numeri) override;
    // The same from the picked numbers themselves.
    void AbilitaNum(const std::vector<int>& numeri);
    void RiempiDaParametri(const QString& testo) override;
    GrigliaNumeri* Numeri() const { return griglia_; }

protected:
    QString TestoParametri() const override;
    void LeggiParametri(const std::string& testo) override;

private:
    void AggiornaDisponibili();

    GrigliaNumeri* griglia_ = nullptr;
    std::array<bool, 91> delSistema_{};  // 1..90: picked in the main panel
};

