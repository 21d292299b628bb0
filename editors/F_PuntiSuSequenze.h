#pragma once
// "Punti su sequenze": the user composes a pattern of "P" (even) and "D"
// (odd) letters in LabSequenza; the values are the runs of that pattern in a
// column, 0..k-s+1 for s letters. An empty sequence cannot be confirmed: it
// would measure nothing and has no vertical text.

#include "F_PuntiSuElenco.h"

class QLabel;

class F_PuntiSuSequenze : public F_PuntiSuElenco {
    Q_OBJECT
public:
    F_PuntiSuSequenze(const VoceCatalogo& voce, const ContestoEditore& contesto, QWidget* genitore);

    QString Sequenza() const;
    // Replaces the sequence and relays the boxes (all values unticked).
    void ImpostaSequenza(const QString& sequenza);

protected:
    int UltimoValore() const override;
    QString MessaggioCoerenza() const override;
    QString TestoParametri() const override;
    void LeggiParametri(const std::string& testo) override;
    std::string RiempiParametri(const std::string& campo) override;

private:
    QLabel* labSequenza_ = nullptr;
};
