#include "FabbricaEditoriQt.h"

#include "Condizione.h"
#include "TipiCondizione.h"
#include "F_PuntiSuCaselle.h"
#include "F_PuntiSuElenco.h"
#include "F_PuntiSuIntervallo.h"
#include "F_PuntiSuLimiti.h"
#include "F_PuntiSuResto.h"
#include "F_PuntiSuSequenze.h"
#include "F_PuntisuColonna.h"

namespace {

std::unique_ptr<F_PuntiSuBase> Costruisci(const VoceCatalogo& v, const ContestoEditore& c, QWidget* g) {
    switch (v.tipo) {
    case combi::kPuntiColonna: return std::make_unique<F_PuntisuColonna>(v, c, g);
    case combi::kResto: return std::make_unique<F_PuntiSuResto>(v, c, g);
    case combi::kSequenze: return std::make_unique<F_PuntiSuSequenze>(v, c, g);
    case combi::kAmpiezza:
    case combi::kBaricentro: return std::make_unique<F_PuntiSuLimiti>(v, c, g);
    case combi::kPeso:
    case combi::kPosizioni: return std::make_unique<F_PuntiSuCaselle>(v, c, g);
    default: break;
    }
    if (combi::GiudizioDelTipo(v.tipo) == combi::Giudizio::Intervallo) return std::make_unique<F_PuntiSuIntervallo>(v, c, g);
    return std::make_unique<F_PuntiSuElenco>(v, c, g);
}

}  // namespace

std::unique_ptr<F_PuntiSuBase> CreaEditore(int tipo, const ContestoEditore& contesto, QWidget* genitore) {
    const VoceCatalogo* voce = VoceDelTipo(tipo);
    if (voce == nullptr) return nullptr;
    auto editore = Costruisci(*voce, contesto, genitore);
    editore->Prepara();
    return editore;
}

FabbricaEditoriQt::FabbricaEditoriQt(std::function<ContestoEditore()> contesto)
    : contesto_(std::move(contesto)) {}

std::unique_ptr<EditoreCondizione> FabbricaEditoriQt::CreaEditore(int tipo, QWidget* genitore) {
    return ::CreaEditore(tipo, contesto_(), genitore);
}
