#pragma once
// The pieces of the reduction that both paths share: the representativeness
// table and its sort, the input check, the progress/stop bookkeeping and the
// output. Not part of the public interface; the tests use it to compare the
// phases one by one.

#include <cstdint>
#include <vector>

#include "Colonna.h"
#include "Riduzione.h"

namespace combi::riduzione {

struct Rappresentativita {
    int32_t indice{};    // 1-based column index; 0 = not analysed
    int32_t conta{};     // columns covered
    bool operator==(const Rappresentativita&) const = default;
};

// 1-based: element 0 is unused.
using TabellaRappresentativita = std::vector<Rappresentativita>;

// Progress, message pump and the stop as one run sees them: the stop request
// is read only right after a pump, and once seen it stays.
class Controllo {
public:
    explicit Controllo(OsservatoreRiduzione& oss) : oss_(oss) {}
    void Fase(const char* testo) { oss_.Fase(testo); }
    void Avanza(int64_t passo, int64_t totale);  // integer part of passo*100/totale, at most 100
    void Percento(int percento);
    void Pausa() {
        oss_.ElaboraMessaggi();
        if (!fermo_ && oss_.RichiestaStop()) fermo_ = true;
    }
    bool Fermo() const { return fermo_; }

private:
    OsservatoreRiduzione& oss_;
    int ultimo_ = -1;
    bool fermo_ = false;
};

// The class of the set (ClasseColonne; 6 for no column). Throws Errore for
// points outside 1..class, or as ClasseColonne does.
int ControllaIngresso(const std::vector<Colonna>& colonne, int puntiRichiesti);

// After a stopped analysis: the records from `analizzate` + 1 on get their
// own column index and count 0.
void CompletaAnalisi(TabellaRappresentativita& tabella, int64_t analizzate);

// The table sorted by count, largest first, with the list quicksort over
// 1..count; with `fermo` every call returns at its first check.
void OrdinaTabella(TabellaRappresentativita& tabella, bool fermo);

// The output: every column whose `eliminata` flag (1-based) is clear, in file
// order, with the percentage after each column.
std::vector<Colonna> ColonneRimaste(const std::vector<Colonna>& colonne,
                                    const std::vector<uint8_t>& eliminata, Controllo& controllo);

// Representativeness counts, 0-based: column i covers conte[i] others.
std::vector<int32_t> ContaCopertureRiferimento(const std::vector<Colonna>& colonne, int puntiRichiesti);
std::vector<int32_t> ContaCoperture(const std::vector<Colonna>& colonne, int puntiRichiesti);

}  // namespace combi::riduzione
