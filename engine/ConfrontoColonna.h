#pragma once
// The check of one column typed by the user against the conditions, as data:
// one row per condition for the list view that shows it.

#include <functional>
#include <string>
#include <vector>

#include "Colonna.h"
#include "Condizione.h"
#include "TestiGriglia.h"

namespace combi {

enum class EsitoRiga {
    kNessuno,       // link rows carry no outcome
    kSuperata,      // passed directly or recovered: green
    kRecuperabile,  // failed but its value is recoverable: yellow
    kFallita,       // failed and not recoverable: red
};

struct RigaConfronto {
    // condition number, type name, points, recovery, value, "Si"/"No";
    // link rows fill only the first two.
    std::vector<std::string> colonne;
    EsitoRiga esito = EsitoRiga::kNessuno;
};

struct Confronto {
    bool superata = false;  // the column's overall verdict
    std::vector<RigaConfronto> righe;
    TabellaCondizioni condizioni;  // the judged table, values of this column
};

// Reads the conditions from the grid texts, takes as class the highest
// position holding a number and judges the column. Rows skip type-0 records.
Confronto ConfrontaCondizioniSuColonna(const Colonna& colonna, const TestiGriglia& griglia);

inline constexpr const char* kMsgClasseNonPositiva = "Impostare il numero di elementi per ciascuna combinazione";

// The candidate table of the development, for the limits the Ampiezza and
// Baricentro editors show: tabella[c-1][r-1] = numbers[r + c - 1] (1-based),
// c = 1..N-k+1 (zeros among the numbers are skipped). Empty when fewer than k
// numbers are given. A class below 1 is the user's missing choice: `avvisa`
// (when given) receives kMsgClasseNonPositiva and the table is empty.
std::vector<std::vector<int>> PreparaTabellaCandidati(const std::vector<int>& numeri, int classe,
                                                      const std::function<void(const std::string&)>& avvisa = {});

}  // namespace combi
