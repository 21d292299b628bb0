#include "ComandiPannello.h"

#include "ChiaviComandi.h"
#include "Condizione.h"

using namespace chiavi;

const std::vector<ComandoPannello>& ComandiPannello() {
    static const std::vector<ComandoPannello> comandi = {
        {kApri, "Apri sistema", "open", {}},
        {kSalvaPulsante, "Salva sistema", "save",
         {{kSalva, "Salva", 0}, {kSalvaConNome, "Salva con nome", 0}, {kSalvaColonne, "SalvaColonne", 0}}},
        {kNuovo, "Nuovo", "New", {}},
        {kSelNumeri, "Selezione numeri", "selnumeri", {}, true},
        {kCondizioni, "Condizioni", "condizioni",
         {{"PuntiSuColonna", "Punti su colonna", combi::kPuntiColonna},
          {"PuntisuPariDispari", "Pari - dispari", combi::kPariDispari},
          {"PuntisuPeso", "Peso", combi::kPeso},
          {"PuntiSuResto", "Resto", combi::kResto},
          {"PuntiSuAmpiezza", "Ampiezza", combi::kAmpiezza},
          {"PuntiSuDistanzaMinima", "Distanza minima", combi::kDistanzaMinima},
          {"PuntiSuDistanzaMassima", "Distanza massima", combi::kDistanzaMassima},
          {"PuntiSuVortice", "Vortice", combi::kVortice},
          {"PuntiSuSimmetrie", "Simmetrie", combi::kSimmetrie},
          {"PuntiSuParalleli", "Paralleli", combi::kParalleli},
          {"PuntiSuConsecutivi", "Consecutivi", combi::kConsecutivi},
          {"PuntiSuInterruzioni", "Interruzioni", combi::kInterruzioni},
          {"PuntiSuBaricentro", "Baricentro", combi::kBaricentro},
          {"PuntiSuPosizioni", "Posizioni", combi::kPosizioni},
          {"PuntiSuPonte", "Ponte", combi::kPonte},
          {"PuntiSuSequenze", "Sequenze", combi::kSequenze}}},
        {kInserisci, "Inserisci condizione", "inserisci", {}},
        {kEdit, "Edit condizione", "edit", {}},
        {kDelete, "Elimina condizione", "delete", {}},
        {kQuadroRecuperi, "Quadro recuperi", "quadrorec", {}},
        {kLinkOpen, "Link Open", "linkopen", {}},
        {kLinkClose, "Link Close", "linkclose", {}},
        {kSviluppa, "Sviluppa sistema", "sviluppo", {}},
        {kStop, "Stop", "stop", {}},
        {kVisualizzaColonne, "Visualizza colonne", "VisCol", {}},
        {kDecrGrid, "Decrementa larghezza colonne", "decrgrid", {}},
        {kIncrGrid, "Incrementa larghezza colonne", "incrgrid", {}},
        {kNaviga, "Naviga sistema", "naviga", {}},
        {kEffettoCondizioni, "Effetto condizioni", "effettocond", {}},
        {kConfrontoCondSuCol, "Confronto condizioni su colonna", "confrontocondizioni", {}},
        {kRiduzione, "Riduzione colonne", "riduci", {}},
        {kStampaSk, "Stampa schedine", "printsk", {}},
    };
    return comandi;
}

const VoceMenuComando* VoceMenu(const QString& chiave) {
    for (const ComandoPannello& comando : ComandiPannello()) {
        for (const VoceMenuComando& voce : comando.menu) {
            if (StessaChiave(chiave, voce.chiave)) return &voce;
        }
    }
    return nullptr;
}
