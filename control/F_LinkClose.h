#pragma once
// The "LinkClose" dialog: the user ticks the accepted counts of satisfied
// conditions of the group being closed (boxes 0..n, rows of ten after the
// first row 0..10). "CONFERMA" accepts without checks, "CHIUDI" cancels.

#include <QDialog>

#include <vector>

#include "EditoreCondizione.h"

class QCheckBox;
class QGridLayout;
class QPushButton;

class F_LinkClose : public QDialog, public EditoreCondizione {
    Q_OBJECT
public:
    explicit F_LinkClose(QWidget* genitore = nullptr);

    // Creates the boxes 1..n; boxes already there end the layout unchanged.
    void LoadchkPunti(int quante) override;
    // The ticked counts joined by "-"; empty when nothing is ticked.
    QString GetPunti() const;
    // Ticks the counts of row 3 of the current column; counts beyond the
    // last box (the group shrank) are skipped.
    void LeggiPunti(const GrigliaCondizioni& griglia) override;

    void RiempiDaParametri(const QString& testo) override;
    void Mostra() override;
    QString Tag() const override { return tag_; }
    TestiEditore GetParametri() const override;

    int NumeroCaselle() const { return static_cast<int>(caselle_.size()); }
    QCheckBox* Casella(int i) const;
    QPushButton* Pulsante(int indice) const;  // 0 "CONFERMA", 1 "CHIUDI"

private:
    void AggiungiCasella(int i);

    std::vector<QCheckBox*> caselle_;
    QGridLayout* disposizione_ = nullptr;
    QPushButton* pulsanti_[2] = {};
    QString tag_;
};
