#include "Riepilogo.h"

#include <ostream>

#include "Formato.h"

namespace combi::cli {

namespace {

Quota LeggiQuota(const std::string& testo) {
    const size_t barra = testo.find('/');
    if (barra == std::string::npos) throw ErroreUso{"--quota vuole la forma I/W, per esempio 2/4"};
    Quota q;
    q.di = LeggiIntero(testo.substr(barra + 1), 1, 4096, "W di --quota");
    q.indice = LeggiIntero(testo.substr(0, barra), 1, q.di, "I di --quota");
    return q;
}

}  // namespace

OpzioniSviluppo LeggiOpzioni(const Argomenti& a) {
    OpzioniSviluppo o;
    if (auto t = a.Opzione("thread")) o.thread = LeggiIntero(*t, 1, 1024, "--thread");
    if (auto q = a.Opzione("quota")) o.quota = LeggiQuota(*q);
    return o;
}

void StampaRiepilogo(std::ostream& out, uint64_t testate, uint64_t tenute, int32_t secondi, bool interrotto) {
    out << "Sviluppate : " << FormatNumero(double(testate)) << "\n"
        << "Condizionate : " << FormatNumero(double(tenute)) << "\n"
        << "Tempo : " << TempoTrascorso(secondi) << "\n";
    if (interrotto) out << "Sviluppo interrotto: le colonne sono quelle tenute fin qui.\n";
}

}  // namespace combi::cli
