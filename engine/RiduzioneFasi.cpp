#include "RiduzioneFasi.h"

#include <algorithm>
#include <string>

#include "Errore.h"
#include "FileColonne.h"
#include "OrdinamentoQuicksort.h"

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

namespace {

// "sei", the word the messages have always used for the usual class.
std::string InLettere(int n) {
    static const char* const parole[] = {"zero", "uno", "due", "tre", "quattro", "cinque",
                                         "sei", "sette", "otto", "nove", "dieci"};
    return n >= 0 && n <= 10 ? parole[n] : std::to_string(n);
}

}  // namespace

int ControllaIngresso(const std::vector<Colonna>& colonne, int puntiRichiesti) {
    const int classe = colonne.empty() ? kNumeriRiduzione : ClasseColonne(colonne);
    if (puntiRichiesti < 1 || puntiRichiesti > classe)
        throw Errore(kErroreArgomento, "I punti richiesti devono essere da 1 a " + std::to_string(classe) + ", non " +
                                           std::to_string(puntiRichiesti));
    return classe;
}

}  // namespace combi::riduzione

namespace combi {

int ClasseColonne(const std::vector<Colonna>& colonne) {
    if (colonne.empty()) return 0;
    const int classe = ClasseDellaColonna(colonne[0]);
    if (classe < kMinimaClasseRiduzione || classe > kMassimaClasseRiduzione)
        throw Errore(kErroreFormatoFile, "La classe delle colonne deve essere da 2 a 10: la colonna 1 ha " +
                                             std::to_string(classe) + " numeri");
    const std::string k = riduzione::InLettere(classe);
    for (size_t i = 0; i < colonne.size(); ++i) {
        bool visto[kMaxNumero + 1] = {};
        for (int pos = 1; pos <= classe; ++pos) {
            const int n = colonne[i][pos];
            if (n < 1 || n > kMaxNumero || visto[n])
                throw Errore(kErroreFormatoFile, "La colonna " + std::to_string(i + 1) + " non ha " + k +
                                                     " numeri diversi da 1 a 90 nelle prime " + k + " posizioni");
            visto[n] = true;
        }
    }
    return classe;
}

}  // namespace combi

namespace combi::riduzione {

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
