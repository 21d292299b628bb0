#pragma once
// The skeleton shared by the sixteen condition editors: the accepted and
// recovery frames, the recovery panel combo, the three buttons, the tag that
// tells the control how the dialog ended, validation and the four texts the
// control writes into the grid. The two layouts (check boxes, ranges) and
// the types with fields of their own only fill in the hooks below.
//
// Life of an editor: created by CreaEditore (which also runs Prepara), then
// LeggiPunti or RiempiDaParametri, Mostra, Tag, GetParametri, destroyed.

#include <QDialog>
#include <QString>

#include <string>

#include "CatalogoEditori.h"
#include "Condizione.h"
#include "ContestoEditore.h"
#include "EditoreCondizione.h"
#include "TestiGriglia.h"

class QComboBox;
class QLabel;
class QPushButton;
class QVBoxLayout;

class F_PuntiSuBase : public QDialog, public EditoreCondizione {
    Q_OBJECT
public:
    F_PuntiSuBase(const VoceCatalogo& voce, const ContestoEditore& contesto, QWidget* genitore);

    // The dialog's load: lays out the values and fills the panel combo.
    // Separate from the constructor because it runs the layouts' hooks.
    void Prepara();

    // EditoreCondizione
    void LeggiPunti(const GrigliaCondizioni& griglia) override;
    void RiempiDaParametri(const QString& testo) override;
    void Mostra() override;
    QString Tag() const override { return tag_; }
    TestiEditore GetParametri() const override;

    // Fills the widgets from the texts of a grid column (rows 2..5).
    void LeggiPunti(const combi::TestiCondizione& testi);
    // Shows the last failing check's message (exclamation, no title) and
    // returns false; true when the entry is complete.
    bool VerificaCoerenza();
    // " " then "1".."20", first item selected.
    void LoadComboquadroRec();
    // Enables or clears the recovery widgets after a panel choice.
    virtual void AbilitaChkRecupero() = 0;
    // The condition as the development would read the current texts.
    combi::Condizione CondizioneCorrente() const;

    const VoceCatalogo& Voce() const { return voce_; }
    int Classe() const { return contesto_.classe; }
    bool PannelloScelto() const;
    QPushButton* Pulsante(int indice) const;  // 0 CONFERMA, 1 CHIUDI, 2 STATISTICA
    QComboBox* CmbRecupero() const { return cmbRecupero_; }
    // The note shown when stored values were dropped while editing.
    QLabel* Nota() const { return labNota_; }

protected:
    // ---- layout hooks ----
    virtual void CaricaValori() = 0;  // LoadChk of the layout
    virtual QString MessaggioCoerenza() const = 0;
    virtual void TestiValori(QString& punti, QString& recupero) const = 0;
    // Rows 3..5 of a column; the range layout needs the panel selected
    // between the two ranges, so the panel is the layout's business.
    virtual void LeggiValori(const std::string& punti, const std::string& recupero,
                             const std::string& quadro) = 0;
    virtual void RiempiAccettati(const std::string& valori) = 0;
    virtual void RiempiRecupero(const std::string& valori) = 0;

    // ---- type hooks ----
    virtual void CaricaCampiPropri() {}  // after the values, before the panel combo
    virtual QString TestoParametri() const;
    virtual void LeggiParametri(const std::string& testo);
    // Consumes the type's part of field 0 and returns the accepted values.
    virtual std::string RiempiParametri(const std::string& campo);

    // Where a type adds its own widgets (above the accepted values) and
    // where the layouts put the accepted and the recovery widgets.
    QVBoxLayout* ZonaPropria() const { return zonaPropria_; }
    QVBoxLayout* ZonaPunti() const { return zonaPunti_; }
    QVBoxLayout* ZonaRecupero() const { return zonaRecupero_; }
    // Combo1 of the types with variants (Pari-Dispari, Resto...); else nullptr.
    QComboBox* Combo1() const { return combo1_; }
    const ContestoEditore& Contesto() const { return contesto_; }
    void SelezionaQuadro(const std::string& testo);
    // Shows (or hides, when empty) the note about dropped values.
    void SegnalaValoriIgnorati(const QString& elenco);

private:
    void Conferma();
    void Statistica();

    const VoceCatalogo& voce_;
    ContestoEditore contesto_;
    QString tag_;
    QVBoxLayout* zonaPropria_ = nullptr;
    QVBoxLayout* zonaPunti_ = nullptr;
    QVBoxLayout* zonaRecupero_ = nullptr;
    QComboBox* combo1_ = nullptr;
    QComboBox* cmbRecupero_ = nullptr;
    QLabel* labNota_ = nullptr;
    QPushButton* pulsanti_[3] = {};
};
