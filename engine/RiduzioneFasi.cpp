#include "RiduzioneFasi.h"

#include <algorithm>
#include <string>

#include "Errore.h"
#include "FileColonne.h"
#include "Quicksort.h"

namespace combi::riduzione {

void Controllo::Avanza(int64_t passo, int64_t totale) {
    if (totale <= 0) return;
    Percento(int(std::min<int64_t>(passo * 100 / totale, 100)));
}

void Controllo::Percento(int percento) {
    if (percento == ultimo_) return;
    ultimo_ = percento;
    oss_.Percentuale(percento);
}

void ControllaIngresso(const std::vector<Colonna>& colonne, int puntiRichiesti) {
    if (puntiRichiesti < 1 || puntiRichiesti > kNumeriRiduzione)
        throw Errore(kErroreArgomento, "I punti richiesti devono essere da 1 a 6, non " +
                                           std::to_string(puntiRichiesti));
    for (size_t i = 0; i < colonne.size(); ++i) {
        bool visto[kMaxNumero + 1] = {};
        for (int pos = 1; pos <= kNumeriRiduzione; ++pos) {
            const int n = colonne[i][pos];
            if (n < 1 || n > kMaxNumero || visto[n])
                throw Errore(kErroreFormatoFile,
                             "La colonna " + std::to_string(i + 1) +
                                 " non ha sei numeri diversi da 1 a 90 nelle prime sei posizioni");
            visto[n] = true;
        }
    }
}

void CompletaAnalisi(TabellaRappresentativita& tabella, int64_t analizzate) {
    for (size_t i = size_t(analizzate) + 1; i < tabella.size(); ++i) tabella[i] = {int32_t(i), 0};
}

void OrdinaTabella(TabellaRappresentativita& tabella, bool fermo) {
    QuicksortDecrescente(tabella, 1, int64_t(tabella.size()) - 1,
                         [](const Rappresentativita& r) { return r.conta; }, [fermo] { return fermo; });
}

std::vector<Colonna> ColonneRimaste(const std::vector<Colonna>& colonne,
                                    const std::vector<uint8_t>& eliminata, Controllo& controllo) {
    // Sized once: the same list as growing it 1000 records at a time and
    // trimming it, without copying a million columns a thousand times.
    const size_t rimaste = size_t(std::count(eliminata.begin() + 1, eliminata.end(), uint8_t(0)));
    std::vector<Colonna> risultato;
    risultato.reserve(rimaste);
    const int64_t n = int64_t(colonne.size());
    for (int64_t j = 1; j <= n; ++j) {
        if (!eliminata[size_t(j)]) risultato.push_back(colonne[size_t(j) - 1]);
        controllo.Avanza(j, n);
    }
    return risultato;
}

}  // namespace combi::riduzione

namespace combi {

std::vector<Colonna> LeggiColonneDaRidurre(const std::string& percorso) {
    if (!GetNumeroColonneInFile(percorso)) throw Errore(kErroreFileNonTrovato, "Il file delle colonne non esiste");
    return LeggiFileColonne(percorso);
}

RisultatoRiduzione RiduciFileColonne(const std::string& percorso, int puntiRichiesti,
                                     OsservatoreRiduzione& oss, bool riferimento) {
    const std::vector<Colonna> colonne = LeggiColonneDaRidurre(percorso);
    return riferimento ? RiduciColonneRiferimento(colonne, puntiRichiesti, oss)
                       : RiduciColonne(colonne, puntiRichiesti, oss);
}

}  // namespace combi
