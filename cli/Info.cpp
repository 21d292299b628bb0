// combifiltro-cli info: what a system file or a columns file holds.

#include <algorithm>
#include <ostream>

#include "Argomenti.h"
#include "Comandi.h"
#include "FileBinario.h"
#include "FileColonne.h"
#include "FileSistema.h"
#include "ScritturaCondizioni.h"
#include "Testo.h"
#include "Formato.h"
#include "Percorsi.h"

namespace combi::cli {

namespace {

constexpr size_t kColonneMostrate = 10;

// A grid text on one line: its line breaks shown as " | ".
std::string SuUnaRiga(const std::string& testo) { return Sostituisci(testo, kACapo, " | "); }

void MostraSistema(const FileSistema& s, std::ostream& out) {
    const ParametriSviluppo p = ParametriDalFile(s);
    out << "Classe : " << s.intestazione.classe << "\n"
        << "Riduzione N-K : " << s.intestazione.riduzione << "\n"
        << "Numeri (" << p.numeri.size() << ") :";
    for (int n : p.numeri) out << " " << n;
    out << "\nCondizioni : " << s.condizioni.size() << "\n";
    const char* righe[] = {"", "Condizione", "Parametri", "Punti", "Recupero", "Quadro Rec."};
    for (size_t i = 0; i < s.condizioni.size(); ++i) {
        const TestiCondizione t = TestiDaCondizione(s.condizioni[i]);
        out << "  " << i + 1 << ".";
        for (int r = kRigaCondizione; r <= kRigaQuadroRec; ++r)
            if (!t[r].empty()) out << " " << righe[r] << ": " << SuUnaRiga(t[r]) << ";";
        const Condizione& c = s.condizioni[i];
        if (c.ContaSuperate || c.ContaFallite || c.ContaRecuperabili)
            out << " Superate: " << FormatNumero(c.ContaSuperate) << "; Scartate: " << FormatNumero(c.ContaFallite)
                << "; Recuperate: " << FormatNumero(c.ContaRecuperabili) << ";";
        out << "\n";
    }
    out << "Quadri di recupero in uso :";
    bool alcuno = false;
    for (int q = 1; q <= kNumeroQuadri; ++q)
        if (s.quadri[q].Attivo != 0) {
            out << " " << q << " (" << s.quadri[q].Minimo << "-" << s.quadri[q].Massimo << ")";
            alcuno = true;
        }
    out << (alcuno ? "" : " nessuno") << "\n";
}

void MostraColonne(const std::string& percorso, std::ostream& out) {
    const std::vector<Colonna> colonne = LeggiFileColonne(percorso);
    out << "Colonne : " << FormatNumero(double(colonne.size())) << "\n";
    if (const auto resto = LunghezzaFile(percorso) % kLunghezzaColonna; resto != 0)
        out << "Attenzione: " << resto << " byte finali non formano una colonna intera.\n";
    for (size_t i = 0; i < std::min(colonne.size(), kColonneMostrate); ++i)
        out << "  " << i + 1 << ": " << TestoColonna(colonne[i], false) << "\n";
    if (const auto errata = PrimaColonnaNonValida(colonne))
        out << "Attenzione: la colonna " << *errata + 1
            << " non ha numeri crescenti da 1 a 90.\n";
}

}  // namespace

int ComandoInfo(const Parole& parole, std::ostream& out, std::ostream& err) {
    (void)err;
    const Argomenti a(parole, {});
    if (a.Posizionali().size() != 1) throw ErroreUso{"indicare un solo file (.sic o .col)"};
    const std::string& percorso = a.Posizionali()[0];
    std::string estensione = EstensioneFile(percorso);
    std::transform(estensione.begin(), estensione.end(), estensione.begin(), ::tolower);
    if (estensione == "col") MostraColonne(percorso, out);
    else if (estensione == "sic") MostraSistema(LeggiFileSistema(percorso), out);
    else throw ErroreUso{"estensione non riconosciuta (servono .sic o .col): " + percorso};
    return 0;
}

}  // namespace combi::cli
