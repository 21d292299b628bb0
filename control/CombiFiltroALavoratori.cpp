// The results of external development workers: each worker fills its three
// hidden fields (tested count, kept count, and at the end the path of its
// columns file); when every completion field holds a path the files are
// appended in field order and the panel leaves its busy state.

#include "CombiFiltroA.h"

#include "ContatoriLavoratori.h"
#include "FileColonne.h"
#include "Utilita.h"

void CombiFiltroA::RaccogliCondizioni(combi::TabellaCondizioni& tabella) const {
    if (motore_ == interno) {
        tabella = condizioniSviluppo_;
        return;
    }
    tabella = combi::SommaContatoriLavoratori(combi::FileSistemaTemp(), numeroThreads_);
}

void CombiFiltroA::AccodaFileColonne(const QString& file) {
    const std::vector<combi::Colonna> lette = combi::LeggiFileColonne(file.toStdString());
    if (lette.empty()) return;
    if (colonne_.empty()) colonne_.assign(1, combi::Colonna{});
    colonne_.insert(colonne_.end(), lette.begin(), lette.end());
}
