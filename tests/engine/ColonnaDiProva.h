#pragma once
// A column written out in a test: the numbers in positions 1, 2, ...

#include <initializer_list>

#include "Colonna.h"

namespace combi::test {

inline Colonna Col(std::initializer_list<int> numeri) {
    Colonna c;
    int pos = 1;
    for (int n : numeri) c[pos++] = uint8_t(n);
    return c;
}

}  // namespace combi::test
