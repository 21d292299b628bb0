#pragma once
// The range layout: the accepted values are "Minimo".."Massimo" typed into
// TxtPunti(0) and TxtPunti(1), the recoverable ones into TxtPuntiRec(0/1).
// The texts are handed back exactly as typed.

#include "F_PuntiSuBase.h"

class QLineEdit;

class F_PuntiSuIntervallo : public F_PuntiSuBase {
    Q_OBJECT
public:
    F_PuntiSuIntervallo(const VoceCatalogo& voce, const ContestoEditore& contesto, QWidget* genitore);

    void AbilitaChkRecupero() override;
    QLineEdit* TxtPunti(int indice) const { return txtPunti_[indice]; }
    QLineEdit* TxtPuntiRec(int indice) const { return txtPuntiRec_[indice]; }

protected:
    void CaricaValori() override {}
    QString MessaggioCoerenza() const override;
    void TestiValori(QString& punti, QString& recupero) const override;
    void LeggiValori(const std::string& punti, const std::string& recupero,
                     const std::string& quadro) override;
    void RiempiAccettati(const std::string& valori) override;
    void RiempiRecupero(const std::string& valori) override;

private:
    QLineEdit* txtPunti_[2] = {};
    QLineEdit* txtPuntiRec_[2] = {};
};
