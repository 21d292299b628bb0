// combifiltro-cli riduci: reduces a columns file so that every dropped column
// shares at least P of its numbers with a kept one, and writes the columns
// left. Ctrl-C stops the run; the columns left so far are written. With
// --ottimizza the greedy result is improved by local search for a time budget.

#include <algorithm>
#include <ostream>

#include "Argomenti.h"
#include "Comandi.h"
#include "FileColonne.h"
#include "Riduzione.h"
#include "RiduzioneOttimizzata.h"
#include "Terminale.h"
#include "Formato.h"

namespace combi::cli {

namespace {

// The phase and its percentage on one redrawn line, only on a terminal; while
// optimising, the best size found so far.
class OsservatoreRiduzioneTerminale : public OsservatoreOttimizzazione {
public:
    explicit OsservatoreRiduzioneTerminale(std::ostream& err) : err_(err), attivo_(SuTerminale(err)) {}
    void Fase(const std::string& testo) override {
        fase_ = testo;
        Disegna();
    }
    void Percentuale(int percento) override {
        percento_ = percento;
        Disegna();
    }
    void MigliorTrovato(std::size_t colonne, double secondi) override {
        (void)secondi;
        migliore_ = FormatNumero(double(colonne));
        Disegna();
    }
    bool RichiestaStop() override { return StopDaTastiera(); }
    void Chiudi() {
        if (scritto_) err_ << "\n";
        scritto_ = false;
    }

private:
    void Disegna() {
        if (!attivo_ || fase_.empty()) return;
        // Padded so that a shorter line covers the previous one.
        std::string riga = fase_ + " " + std::to_string(percento_) + "%";
        if (!migliore_.empty()) riga += "  migliore: " + migliore_ + " colonne";
        riga.resize(std::max<size_t>(riga.size(), 60), ' ');
        err_ << "\r" << riga << std::flush;
        scritto_ = true;
    }

    std::ostream& err_;
    bool attivo_;
    bool scritto_ = false;
    std::string fase_;
    std::string migliore_;
    int percento_{};
};

// The options of the optimising reduction, refused without --ottimizza.
OpzioniOttimizzazione LeggiOpzioniOttimizzazione(const Argomenti& a) {
    OpzioniOttimizzazione opzioni;
    const auto secondi = a.Opzione("secondi");
    const auto seme = a.Opzione("seme");
    if (!a.Flag("ottimizza")) {
        if (secondi || seme) throw ErroreUso{"--secondi e --seme valgono solo con --ottimizza"};
        return opzioni;
    }
    if (a.Flag("riferimento")) throw ErroreUso{"--ottimizza e --riferimento non vanno insieme"};
    if (secondi) opzioni.secondi = LeggiIntero(*secondi, 1, 86'400, "--secondi");
    if (seme) opzioni.seme = uint64_t(LeggiIntero(*seme, 0, 2'000'000'000, "--seme"));
    return opzioni;
}

}  // namespace

int ComandoRiduci(const Parole& parole, std::ostream& out, std::ostream& err) {
    const Argomenti a(parole, {"punti", "colonne", "secondi", "seme"}, {"riferimento", "ottimizza"});
    if (a.Posizionali().size() != 1) throw ErroreUso{"indicare un solo file di colonne (.col)"};
    const auto punti = a.Opzione("punti");
    if (!punti) throw ErroreUso{"manca --punti P (5, 4 o 3 numeri in comune)"};
    const int puntiRichiesti = LeggiIntero(*punti, 1, kMassimaClasseRiduzione, "--punti");
    const auto uscita = a.Opzione("colonne");
    if (!uscita) throw ErroreUso{"manca --colonne FILE.col"};
    const OpzioniOttimizzazione opzioni = LeggiOpzioniOttimizzazione(a);

    const std::vector<Colonna> colonne = LeggiColonneDaRidurre(a.Posizionali()[0]);
    const int classe = ClasseColonne(colonne);
    if (puntiRichiesti > classe) LeggiIntero(*punti, 1, classe, "--punti");  // the message of a bad number
    out << "Colonne : " << FormatNumero(double(colonne.size())) << "\n" << std::flush;
    InstallaStopDaTastiera();
    OsservatoreRiduzioneTerminale osservatore(err);
    const Cronometro cronometro;
    const RisultatoRiduzione r =
        a.Flag("ottimizza")      ? RiduciColonneOttimizzate(colonne, puntiRichiesti, opzioni, osservatore)
        : a.Flag("riferimento") ? RiduciColonneRiferimento(colonne, puntiRichiesti, osservatore)
                                : RiduciColonne(colonne, puntiRichiesti, osservatore);
    osservatore.Chiudi();

    ScriviFileColonne(*uscita, r.colonne);
    out << "Colonne ridotte : " << FormatNumero(double(r.colonne.size())) << "\n"
        << "Tempo : " << TempoTrascorso(cronometro.Secondi()) << "\n";
    if (r.interrotto && a.Flag("ottimizza"))
        out << "Ottimizzazione interrotta: le colonne scritte sono la migliore riduzione trovata.\n";
    else if (r.interrotto)
        out << "Riduzione interrotta: restano anche le colonne non ancora eliminate.\n";
    return 0;
}

}  // namespace combi::cli
