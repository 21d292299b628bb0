// The block walk on the picked numbers 3 5 8 13 21 34, worked out by hand.
// In class 3 the rows are the columns that share their first number: 10
// columns start with 3, 6 with 5, 3 with 8 and 1 with 13. A stretch takes a
// row at once only from the row's first column and only when it holds the
// whole row; anything else goes block by block, a block's last numbers as a
// set.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "EnumerazioneBlocchi.h"

namespace combi {
namespace {

std::string Numeri(const Prefisso& p) {
    std::string s;
    for (int i = 0; i < p.lunghezza; ++i) s += std::to_string(p.colonna.Numeri[size_t(i)]) + " ";
    return s;
}

// Each call of the walk as "R prefix| first-last" or "B prefix| candidates",
// with "*" for a whole block.
std::vector<std::string> Percorso(EnumerazioneBlocchi& e, uint64_t quante, uint64_t attese) {
    std::vector<std::string> chiamate;
    const uint64_t fatte = e.Percorri(
        quante,
        [&](const Prefisso& q, int y1, int y2) {
            chiamate.push_back("R " + Numeri(q) + "| " + std::to_string(y1) + "-" + std::to_string(y2));
        },
        [&](const Prefisso& p, Maschera128 candidati, bool intero) {
            std::string s = "B " + Numeri(p) + "|";
            candidati.PerOgni([&](int n) { s += " " + std::to_string(n); });
            chiamate.push_back(s + (intero ? " *" : ""));
        });
    EXPECT_EQ(fatte, attese);
    return chiamate;
}

using Chiamate = std::vector<std::string>;

TEST(EnumerazioneBlocchi, WholeRowsGoAtOnceAndEveryOtherStretchBlockByBlock) {
    const std::vector<int> sel{3, 5, 8, 13, 21, 34};
    EnumerazioneBlocchi classe3(sel, 3);
    EXPECT_EQ(Percorso(classe3, 10, 10), (Chiamate{"R 3 | 5-21"}));
    EXPECT_EQ(Percorso(classe3, 7, 7), (Chiamate{"R 5 | 8-21", "B 8 13 | 21"}));
    EXPECT_EQ(Percorso(classe3, 100, 3), (Chiamate{"B 8 13 | 34", "B 8 21 | 34 *", "R 13 | 21-21"}));
    EXPECT_EQ(Percorso(classe3, 5, 0), Chiamate{});

    // Rank 11 is 5 8 21: the walk starts inside a block.
    classe3.Posiziona(11);
    EXPECT_EQ(Percorso(classe3, 3, 3), (Chiamate{"B 5 8 | 21 34", "B 5 13 | 21"}));
    classe3.Posiziona(20);
    EXPECT_EQ(Percorso(classe3, 1, 0), Chiamate{});

    // In class 2 all the columns are one row; in class 1 there are no rows.
    EnumerazioneBlocchi classe2(sel, 2);
    EXPECT_EQ(Percorso(classe2, 14, 14), (Chiamate{"B 3 | 5 8 13 21 34 *", "B 5 | 8 13 21 34 *",
                                                   "B 8 | 13 21 34 *", "B 13 | 21 34 *"}));
    classe2.Posiziona(0);
    EXPECT_EQ(Percorso(classe2, 15, 15), (Chiamate{"R | 3-21"}));
    EnumerazioneBlocchi classe1(sel, 1);
    EXPECT_EQ(Percorso(classe1, 4, 4), (Chiamate{"B | 3 5 8 13"}));
    EXPECT_EQ(Percorso(classe1, 9, 2), (Chiamate{"B | 21 34"}));
    classe1.Posiziona(0);
    EXPECT_EQ(Percorso(classe1, 6, 6), (Chiamate{"B | 3 5 8 13 21 34 *"}));

    // Class 4: a row is the columns that share their first two numbers.
    EnumerazioneBlocchi classe4(sel, 4);
    EXPECT_EQ(Percorso(classe4, 7, 7), (Chiamate{"R 3 5 | 8-21", "B 3 8 13 | 21"}));
    EXPECT_THROW(EnumerazioneBlocchi(sel, 7), std::invalid_argument);
    EXPECT_THROW(EnumerazioneBlocchi(sel, 0), std::invalid_argument);
}

}  // namespace
}  // namespace combi
