#include "ComandiPannello.h"

const std::vector<ComandoPannello>& ComandiPannello() {
    static const std::vector<ComandoPannello> comandi = {
        {"Open", "Apri sistema", "open", {}},
        {"Save", "Salva sistema", "save",
         {{"Salva", "Salva", 0}, {"SalvaConNome", "Salva con nome", 0}, {"SalvaColonne", "SalvaColonne", 0}}},
        {"New", "Nuovo", "New", {}},
        {"SelNumeri", "Selezione numeri", "selnumeri", {}, true},
        {"Condizioni", "Condizioni", "condizioni",
         {{"PuntiSuColonna", "Punti su colonna", 3},
          {"PuntisuPariDispari", "Pari - dispari", 4},
          {"PuntisuPeso", "Peso", 5},
          {"PuntiSuResto", "Resto", 6},
          {"PuntiSuAmpiezza", "Ampiezza", 7},
          {"PuntiSuDistanzaMinima", "Distanza minima", 13},
          {"PuntiSuDistanzaMassima", "Distanza massima", 14},
          {"PuntiSuVortice", "Vortice", 8},
          {"PuntiSuSimmetrie", "Simmetrie", 9},
          {"PuntiSuParalleli", "Paralleli", 18},
          {"PuntiSuConsecutivi", "Consecutivi", 10},
          {"PuntiSuInterruzioni", "Interruzioni", 11},
          {"PuntiSuBaricentro", "Baricentro", 12},
          {"PuntiSuPosizioni", "Posizioni", 15},
          {"PuntiSuPonte", "Ponte", 16},
          {"PuntiSuSequenze", "Sequenze", 17}}},
        {"Inserisci", "Inserisci condizione", "inserisci", {}},
        {"Edit", "Edit condizione", "edit", {}},
        {"Delete", "Elimina condizione", "delete", {}},
        {"QuadroRecuperi", "Quadro recuperi", "quadrorec", {}},
        {"LinkOpen", "Link Open", "linkopen", {}},
        {"LinkClose", "Link Close", "linkclose", {}},
        {"SviluppaCond", "Sviluppa sistema", "sviluppo", {}},
        {"Stop", "Stop", "stop", {}},
        {"VisualizzaColonne", "Visualizza colonne", "VisCol", {}},
        {"DecrGrid", "Decrementa larghezza colonne", "decrgrid", {}},
        {"IncrGrid", "Incrementa larghezza colonne", "incrgrid", {}},
        {"Naviga", "Naviga sistema", "naviga", {}},
        {"EffettoCondizioni", "Effetto condizioni", "effettocond", {}},
        {"ConfrontoCondSuCol", "Confronto condizioni su colonna", "confrontocondizioni", {}},
        {"Riduzione", "Riduzione colonne", "riduci", {}},
        {"StampaSk", "Stampa schedine", "printsk", {}},
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
