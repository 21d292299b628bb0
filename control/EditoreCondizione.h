#pragma once
// The extension point of the condition editors. The control asks a
// FabbricaEditori for the editor of a type, uses it for one edit and drops
// it. An editor only produces the four texts of the grid rows "Parametri",
// "Punti", "Recupero" and "Quadro Rec."; the control writes them.
//
// The order the control follows (GestisciCondizione):
//   editing:      create, LeggiPunti(grid), then as below;
//   "Punti Col.": AbilitaNum(number grid), Mostra();
//   other types:  RiempiDaParametri(text) when the host supplied a parameter
//                 text (then the tag is "ttt" and nothing is shown), else
//                 Mostra();
//   then:         an empty Tag() means cancelled; otherwise GetParametri().

#include <QString>

#include <memory>

class GrigliaCondizioni;
class GrigliaNumeri;
class QWidget;

struct TestiEditore {
    QString parametri;  // row 2
    QString punti;      // row 3
    QString recupero;   // row 4
    QString quadro;     // row 5: " " or "1".."20"
};

class EditoreCondizione {
public:
    virtual ~EditoreCondizione() = default;

    // Fills the editor from the grid's current column (editing).
    virtual void LeggiPunti(const GrigliaCondizioni& griglia) = 0;
    // Fills the editor from a host's parameter text without showing it and
    // marks it confirmed ("ttt"); throws combi::Errore on a malformed text.
    virtual void RiempiDaParametri(const QString& testo) = 0;
    // Shows the editor modally until "CONFERMA" or "CHIUDI".
    virtual void Mostra() = 0;
    // "ooo" after "CONFERMA", "ttt" when filled from a text, empty when cancelled.
    virtual QString Tag() const = 0;
    virtual TestiEditore GetParametri() const = 0;

    // "Punti Col." offers only the system's numbers.
    virtual void AbilitaNum(const GrigliaNumeri& numeri) { (void)numeri; }
    // "LinkClose": the number of conditions of the group being closed.
    virtual void LoadchkPunti(int quante) { (void)quante; }
};

class FabbricaEditori {
public:
    virtual ~FabbricaEditori() = default;
    // A fresh editor for the type code, owned by the caller; nullptr when
    // this factory has none for that type.
    virtual std::unique_ptr<EditoreCondizione> CreaEditore(int tipo, QWidget* genitore) = 0;
};
