#pragma once
// "Peso" and "Posizioni": range editors with a column of positions 1..k
// above the range. Peso ticks any positions (ChkCaselle), Posizioni chooses
// one (ObCaselle). Neither requires a position.

#include <vector>

#include "F_PuntiSuIntervallo.h"

class QAbstractButton;
class QVBoxLayout;

class F_PuntiSuCaselle : public F_PuntiSuIntervallo {
    Q_OBJECT
public:
    F_PuntiSuCaselle(const VoceCatalogo& voce, const ContestoEditore& contesto, QWidget* genitore);

    // Creates positions 1..k, one under the other.
    void LoadChk();
    // Position p (1..k), nullptr otherwise.
    QAbstractButton* Casella(int posizione) const;

protected:
    void CaricaValori() override { LoadChk(); }
    QString TestoParametri() const override;
    void LeggiParametri(const std::string& testo) override;

private:
    bool Esclusive() const;

    QVBoxLayout* colonnaCaselle_ = nullptr;
    std::vector<QAbstractButton*> caselle_;  // [0] unused: positions start at 1
};
