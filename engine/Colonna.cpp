#include "Colonna.h"

namespace combi {

int ClasseDellaColonna(const Colonna& c) {
    for (int pos = kMaxClasse; pos >= 1; --pos)
        if (c[pos] != 0) return pos;
    return 0;
}

}  // namespace combi
