#include "DistribuzioneMisura.h"
#include "Messaggi.h"

#include "Errore.h"
#include "Misure.h"

namespace {

const std::vector<int>& Verificati(const std::vector<int>& numeri, int classe) {
    if (classe < 1 || classe > combi::kMaxClasse || static_cast<int>(numeri.size()) < classe) {
        throw combi::Errore(combi::kErroreArgomento, std::string(combi::kImpostarePronostico));
    }
    return numeri;
}

}  // namespace

DistribuzioneMisura::DistribuzioneMisura(const combi::Condizione& condizione,
                                         const std::vector<int>& numeri, int classe)
    : condizione_(condizione), classe_(classe), enumerazione_(Verificati(numeri, classe), classe) {}

bool DistribuzioneMisura::Avanza(uint64_t quante) {
    for (uint64_t i = 0; i < quante && !Finita(); ++i) {
        const auto profilo = combi::ProfilaColonna(classe_, enumerazione_.Corrente());
        ++conteggi_[combi::MisuraCondizione(condizione_, profilo)];
        ++misurate_;
        if (!Finita()) enumerazione_.Avanza();
    }
    return !Finita();
}
