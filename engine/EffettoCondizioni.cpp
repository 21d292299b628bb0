#include "EffettoCondizioni.h"

#include "Formato.h"

namespace combi {

namespace {

bool Collegamento(int tipo) { return tipo == kLinkOpen || tipo == kLinkClose; }

// A count and its share, written into the two adjacent report columns.
void Conteggio(RigaEffetto& riga, int colonna, int32_t conta, double integrali, std::string_view separatore) {
    riga.testi[colonna] = FormatNumero(double(conta), separatore);
    riga.testi[colonna + 1] = std::to_string(Percentuale(double(conta), integrali));
}

RigaEffetto Riga(const Condizione& c, int id, double integrali, std::string_view separatore) {
    RigaEffetto riga;
    riga.id = id;
    riga.testi[kEffettoId] = std::to_string(id);
    riga.testi[kEffettoCondizione] = NomeTipoCondizione(c.Tipo);
    if (Collegamento(c.Tipo)) return riga;
    Conteggio(riga, kEffettoSuperate, c.ContaSuperate, integrali, separatore);
    Conteggio(riga, kEffettoScartate, c.ContaFallite, integrali, separatore);
    Conteggio(riga, kEffettoRecuperate, c.ContaRecuperabili, integrali, separatore);
    return riga;
}

}  // namespace

std::vector<RigaEffetto> RigheEffetto(const TabellaCondizioni& tabella, double colonneIntegrali,
                                      std::string_view separatore) {
    std::vector<RigaEffetto> righe;
    for (size_t i = 0; i < tabella.size() && tabella[i].Tipo != kNessuna; ++i) {
        righe.push_back(Riga(tabella[i], int(i) + 1, colonneIntegrali, separatore));
    }
    return righe;
}

std::vector<RigaEffetto> RigheEffetto(const TabellaCondizioni& tabella, double colonneIntegrali) {
    return RigheEffetto(tabella, colonneIntegrali, SeparatoreMigliaia());
}

}  // namespace combi
