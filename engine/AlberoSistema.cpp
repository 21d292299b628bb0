#include "AlberoSistema.h"

#include <map>

#include "Condizione.h"

namespace combi {

std::vector<NodoSistema> CostruisciAlberoSistema(const std::vector<TestiCondizione>& colonne) {
    std::vector<NodoSistema> nodi{{kChiaveRadice, "Sistema", 0, ""}};
    std::map<std::string, std::string> genitoreDi;  // node key -> its parent's key
    std::string corrente = kChiaveRadice;
    for (size_t i = 0; i < colonne.size(); ++i) {
        const std::string& nome = colonne[i][kRigaCondizione];
        if (nome.empty()) break;
        const int c = int(i) + 1;
        NodoSistema nodo{"Cond" + std::to_string(c), nome, c, corrente};
        genitoreDi[nodo.chiave] = corrente;
        const int tipo = CodiceTipoCondizione(nome);
        if (tipo == kLinkOpen) {
            corrente = nodo.chiave;
        } else if (tipo == kLinkClose) {
            if (corrente != kChiaveRadice) corrente = genitoreDi[corrente];
            nodo.testo = nome + " (" + colonne[i][kRigaPunti] + ")";
        }
        nodi.push_back(std::move(nodo));
    }
    return nodi;
}

}  // namespace combi
