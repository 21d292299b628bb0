#pragma once
// The check-list layout: one ChkPunti and one ChkRecupero box per point
// value, element i of both arrays standing for value i. A value is never
// both accepted and recoverable.

#include <vector>

#include "F_PuntiSuBase.h"

class QCheckBox;
class QGridLayout;

class F_PuntiSuElenco : public F_PuntiSuBase {
    Q_OBJECT
public:
    F_PuntiSuElenco(const VoceCatalogo& voce, const ContestoEditore& contesto, QWidget* genitore);

    // Lays out the boxes of values PrimoValore()..UltimoValore(): boxes of
    // higher values are unticked and hidden, box 0 keeps its state unless
    // `azzeraPrimo`.
    void LoadChk(bool azzeraPrimo = false);
    void AbilitaChkRecupero() override;

    // The boxes of a value offered now; nullptr for any other value.
    QCheckBox* ChkPunti(int valore) const;
    QCheckBox* ChkRecupero(int valore) const;
    int PrimoValore() const { return Voce().primoValore; }
    int UltimoOfferto() const { return ultimo_; }

protected:
    // The highest value offered: the class unless the type says otherwise.
    virtual int UltimoValore() const { return Classe(); }

    void CaricaValori() override { LoadChk(); }
    QString MessaggioCoerenza() const override;
    void TestiValori(QString& punti, QString& recupero) const override;
    void LeggiValori(const std::string& punti, const std::string& recupero,
                     const std::string& quadro) override;
    void RiempiAccettati(const std::string& valori) override;
    void RiempiRecupero(const std::string& valori) override;

private:
    void CreaCasella(int valore);
    void ClickPunti(int valore);
    // Ticks the boxes of the values of a "-" list; values without a box are
    // collected in `ignorati`.
    void Spunta(const std::vector<QCheckBox*>& caselle, const std::string& elenco, QStringList& ignorati);
    static QString Elenco(const std::vector<QCheckBox*>& caselle, int primo, int ultimo);

    std::vector<QCheckBox*> punti_;     // indexed by value; grown on demand
    std::vector<QCheckBox*> recupero_;
    QGridLayout* grigliaPunti_ = nullptr;
    QGridLayout* grigliaRecupero_ = nullptr;
    int ultimo_ = -1;
};
