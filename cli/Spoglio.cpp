// combifiltro-cli spoglio: the winnings check of a columns file against the
// drawn numbers: the winning columns, then how many columns scored each
// number of points. Tab-separated, so the lists paste into a spreadsheet.

#include <ostream>

#include "Argomenti.h"
#include "Comandi.h"
#include "FileColonne.h"
#include "Formato.h"
#include "Spoglio.h"

namespace combi::cli {

namespace {

constexpr int kMinimoPredefinito = 2;  // the default of the dialog for "Lotto"

}  // namespace

int ComandoSpoglio(const Parole& parole, std::ostream& out, std::ostream&) {
    const Argomenti a(parole, {"estrazione", "minimo", "classe"});
    if (a.Posizionali().size() != 1) throw ErroreUso{"indicare un solo file di colonne (.col)"};
    const auto estrazione = a.Opzione("estrazione");
    if (!estrazione) throw ErroreUso{"manca --estrazione, per esempio 5,12,90 oppure \"5 12 90\""};
    if (const std::string messaggio = ControllaEstrazione(*estrazione); !messaggio.empty())
        throw ErroreUso{messaggio};
    const int minimo = a.Opzione("minimo") ? LeggiIntero(*a.Opzione("minimo"), 1, 10, "--minimo") : kMinimoPredefinito;
    int classe = a.Opzione("classe") ? LeggiIntero(*a.Opzione("classe"), 1, kMaxClasse, "--classe") : 0;

    const std::vector<Colonna> colonne = LeggiFileColonne(a.Posizionali()[0]);
    // Without --classe, the class is that of the first column.
    if (classe == 0 && !colonne.empty()) classe = ClasseDellaColonna(colonne.front());
    if (classe == 0) throw ErroreUso{"il file non ha colonne da cui leggere la classe: indicare --classe K"};

    const EsitoSpoglio esito = VerificaVincite(colonne, classe, *estrazione, minimo);
    out << "Colonna\tNumeri\tPunti\n";
    for (const RigaVincita& v : esito.vincite) out << v.colonna << "\t" << v.numeri << "\t" << v.punti << "\n";
    out << "\nVincita\tColonne\n";
    for (const RigaRiepilogo& r : esito.riepilogo) out << r.vincita << "\t" << FormatNumero(double(r.colonne)) << "\n";
    return 0;
}

}  // namespace combi::cli
