#pragma once
// The condition editors offered to the control: the sixteen types 3..18.
// The link marks stay with the control.

#include <functional>
#include <memory>

#include "ContestoEditore.h"
#include "EditoreCondizione.h"

class F_PuntiSuBase;

// A prepared editor of a type (loaded, values laid out, panel " "), or
// nullptr for a type without one. `genitore` owns nothing: the caller owns
// the editor.
std::unique_ptr<F_PuntiSuBase> CreaEditore(int tipo, const ContestoEditore& contesto,
                                           QWidget* genitore = nullptr);

class FabbricaEditoriQt : public FabbricaEditori {
public:
    // `contesto` is asked for the class, numbers, game and message boxes of
    // the live control each time an editor is created.
    explicit FabbricaEditoriQt(std::function<ContestoEditore()> contesto);

    std::unique_ptr<EditoreCondizione> CreaEditore(int tipo, QWidget* genitore) override;

private:
    std::function<ContestoEditore()> contesto_;
};
