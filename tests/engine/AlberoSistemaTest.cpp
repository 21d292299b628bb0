#include <gtest/gtest.h>

#include <initializer_list>

#include "AlberoSistema.h"

namespace combi {
namespace {

// Grid columns 1.. with their "Condizione" names; a LinkClose gets "Punti" `punti`.
std::vector<TestiCondizione> Griglia(std::initializer_list<const char*> nomi, const char* punti = "1-2") {
    std::vector<TestiCondizione> colonne;
    for (const char* nome : nomi) {
        TestiCondizione t;
        t[kRigaCondizione] = nome;
        if (t[kRigaCondizione] == "LinkClose") t[kRigaPunti] = punti;
        colonne.push_back(t);
    }
    return colonne;
}

// "key<parent:text" for every node, in order.
std::vector<std::string> Descrivi(const std::vector<NodoSistema>& nodi) {
    std::vector<std::string> righe;
    for (const auto& n : nodi) {
        EXPECT_EQ(n.chiave, n.colonna == 0 ? "sistema" : "Cond" + std::to_string(n.colonna));
        righe.push_back(n.chiave + "<" + n.genitore + ":" + n.testo);
    }
    return righe;
}

TEST(AlberoSistema, LinkGroupsBecomeBranches) {
    struct Caso {
        const char* nome;
        std::vector<TestiCondizione> griglia;
        std::vector<std::string> attesi;
    } casi[] = {
        {"one group between plain conditions",
         Griglia({"Peso", "LinkOpen", "Resto", "Ampiezza", "LinkClose", "Ponte"}, "0-2"),
         {"sistema<:Sistema", "Cond1<sistema:Peso", "Cond2<sistema:LinkOpen", "Cond3<Cond2:Resto",
          "Cond4<Cond2:Ampiezza", "Cond5<Cond2:LinkClose (0-2)", "Cond6<sistema:Ponte"}},
        {"nested groups",
         Griglia({"LinkOpen", "Peso", "LinkOpen", "Resto", "LinkClose", "Ponte", "LinkClose", "Vortice"}),
         {"sistema<:Sistema", "Cond1<sistema:LinkOpen", "Cond2<Cond1:Peso", "Cond3<Cond1:LinkOpen",
          "Cond4<Cond3:Resto", "Cond5<Cond3:LinkClose (1-2)", "Cond6<Cond1:Ponte",
          "Cond7<Cond1:LinkClose (1-2)", "Cond8<sistema:Vortice"}},
        {"groups one after the other",
         Griglia({"LinkOpen", "Peso", "LinkClose", "LinkOpen", "Resto", "LinkClose"}, ""),
         {"sistema<:Sistema", "Cond1<sistema:LinkOpen", "Cond2<Cond1:Peso", "Cond3<Cond1:LinkClose ()",
          "Cond4<sistema:LinkOpen", "Cond5<Cond4:Resto", "Cond6<Cond4:LinkClose ()"}},
        {"a group left open keeps the rest inside",
         Griglia({"LinkOpen", "Peso", "Resto"}),
         {"sistema<:Sistema", "Cond1<sistema:LinkOpen", "Cond2<Cond1:Peso", "Cond3<Cond1:Resto"}},
        {"a close without an open stays under the root",
         Griglia({"Peso", "LinkClose", "Resto"}),
         {"sistema<:Sistema", "Cond1<sistema:Peso", "Cond2<sistema:LinkClose (1-2)", "Cond3<sistema:Resto"}},
        {"the first empty name ends the tree",
         Griglia({"Peso", "", "Resto"}),
         {"sistema<:Sistema", "Cond1<sistema:Peso"}},
        {"empty grid: the root alone", Griglia({"", "Peso"}), {"sistema<:Sistema"}},
        {"no columns at all", {}, {"sistema<:Sistema"}},
        // Names are kept as written, whatever the decoding would make of them.
        {"unknown and lower-case names", Griglia({"linkopen", "Boh", "LinkClose"}),
         {"sistema<:Sistema", "Cond1<sistema:linkopen", "Cond2<sistema:Boh", "Cond3<sistema:LinkClose (1-2)"}},
    };
    for (const Caso& caso : casi) {
        EXPECT_EQ(Descrivi(CostruisciAlberoSistema(caso.griglia)), caso.attesi) << caso.nome;
    }
}

}  // namespace
}  // namespace combi
