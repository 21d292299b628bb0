#pragma once
// "Punti su resto": the values are the remainders 0..d-1 of the divisor d
// chosen in Combo1 ("2".."5"); a new divisor relays the boxes.

#include "F_PuntiSuElenco.h"

class F_PuntiSuResto : public F_PuntiSuElenco {
    Q_OBJECT
public:
    F_PuntiSuResto(const VoceCatalogo& voce, const ContestoEditore& contesto, QWidget* genitore);

protected:
    int UltimoValore() const override;
};
