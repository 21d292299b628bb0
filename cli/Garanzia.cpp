// combifiltro-cli garanzia: what a reduced set guarantees. With --punti, the
// holes: the columns (of a file, or every combination of some numbers in a
// class) sharing fewer than P numbers with every kept column, optionally
// written to a file. With --tabella, for 1..D numbers drawn among the chosen
// ones, the points the best kept column surely makes.

#include <charconv>
#include <ostream>

#include "Argomenti.h"
#include "Comandi.h"
#include "FileColonne.h"
#include "Formato.h"
#include "Garanzia.h"
#include "Riduzione.h"
#include "Terminale.h"

namespace combi::cli {

namespace {

// Ctrl-C as the stop request; no progress line (both searches take seconds).
class OsservatoreGaranzia : public OsservatoreRiduzione {
public:
    bool RichiestaStop() override { return StopDaTastiera(); }
};

int LeggiNumero(std::string_view testo) {
    int valore{};
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
    if (errore != std::errc() || fine != testo.data() + testo.size() || valore < 1 || valore > kMaxNumero)
        throw ErroreUso{"--numeri: inserire numeri da 1 a 90 separati da virgole o intervalli, per esempio 1-20 "
                        "oppure 3,7,12-15: \"" + std::string(testo) + "\""};
    return valore;
}

// "1-20", "3,7,12-15": the numbers in the order written, each once.
std::vector<int> LeggiNumeri(const std::string& testo) {
    std::vector<int> numeri;
    bool visto[kMaxNumero + 1] = {};
    size_t inizio = 0;
    while (inizio <= testo.size()) {
        size_t fine = testo.find(',', inizio);
        if (fine == std::string::npos) fine = testo.size();
        const std::string_view parte = std::string_view(testo).substr(inizio, fine - inizio);
        const size_t trattino = parte.find('-');
        const int da = LeggiNumero(parte.substr(0, trattino));
        const int a = trattino == std::string_view::npos ? da : LeggiNumero(parte.substr(trattino + 1));
        if (a < da) throw ErroreUso{"--numeri: intervallo al contrario \"" + std::string(parte) + "\""};
        for (int n = da; n <= a; ++n) {
            if (visto[n]) throw ErroreUso{"--numeri: il numero " + std::to_string(n) + " è ripetuto"};
            visto[n] = true;
            numeri.push_back(n);
        }
        inizio = fine + 1;
    }
    return numeri;
}

std::string Righe(const TabellaGaranzia& t) {
    std::string testo;
    for (const RigaGaranzia& r : t.righe) {
        testo += r.indovinati == 1 ? "Se esce 1 dei tuoi numeri : almeno "
                                   : "Se escono " + std::to_string(r.indovinati) + " dei tuoi numeri : almeno ";
        testo += r.puntiMinimi == 1 ? "1 punto\n" : std::to_string(r.puntiMinimi) + " punti\n";
    }
    return testo;
}

int Tabella(const Argomenti& a, const std::vector<Colonna>& tenute, std::ostream& out) {
    for (const char* vietata : {"punti", "su", "classe", "buchi"})
        if (a.Opzione(vietata)) throw ErroreUso{std::string("--tabella non va con --") + vietata};
    const auto numeri = a.Opzione("numeri");
    if (!numeri) throw ErroreUso{"manca --numeri, per esempio 1-20 oppure 3,7,12-15"};
    const auto estratti = a.Opzione("estratti");
    const int d = estratti ? LeggiIntero(*estratti, 1, kMaxClasse, "--estratti") : 5;
    OsservatoreGaranzia osservatore;
    const TabellaGaranzia t = CalcolaTabellaGaranzia(tenute, LeggiNumeri(*numeri), d, osservatore);
    out << Righe(t);
    if (t.interrotto) out << "Calcolo interrotto: mancano le righe seguenti.\n";
    return 0;
}

}  // namespace

int ComandoGaranzia(const Parole& parole, std::ostream& out, std::ostream& err) {
    (void)err;
    const Argomenti a(parole, {"punti", "su", "numeri", "classe", "buchi", "estratti"}, {"tabella"});
    if (a.Posizionali().size() != 1) throw ErroreUso{"indicare un solo file di colonne tenute (.col)"};
    InstallaStopDaTastiera();
    if (a.Flag("tabella")) return Tabella(a, LeggiColonneDaRidurre(a.Posizionali()[0]), out);

    const auto punti = a.Opzione("punti");
    if (!punti) throw ErroreUso{"manca --punti P (numeri in comune con una colonna tenuta)"};
    const int p = LeggiIntero(*punti, 1, kMassimaClasseRiduzione, "--punti");
    const auto su = a.Opzione("su");
    const auto numeri = a.Opzione("numeri");
    const auto classe = a.Opzione("classe");
    if (a.Opzione("estratti")) throw ErroreUso{"--estratti vale solo con --tabella"};
    if (su && (numeri || classe)) throw ErroreUso{"indicare --su oppure --numeri con --classe, non entrambi"};
    if (!su && !(numeri && classe)) throw ErroreUso{"manca --su COLONNE.col oppure --numeri 1-20 --classe 6"};
    std::vector<Colonna> daCoprire;
    if (su) {
        daCoprire = LeggiColonneDaRidurre(*su);
    } else {
        const std::vector<int> lista = LeggiNumeri(*numeri);
        const int k = LeggiIntero(*classe, 1, std::min<int>(kMaxClasse, int(lista.size())), "--classe");
        daCoprire = ColonneIntegrali(lista, k);
    }
    const std::vector<Colonna> tenute = LeggiColonneDaRidurre(a.Posizionali()[0]);
    OsservatoreGaranzia osservatore;
    const std::vector<Colonna> buchi = CercaBuchi(tenute, daCoprire, p, osservatore);
    if (const auto file = a.Opzione("buchi")) ScriviFileColonne(*file, buchi);
    out << "Colonne tenute : " << FormatNumero(double(tenute.size())) << "\n"
        << "Colonne da coprire : " << FormatNumero(double(daCoprire.size())) << "\n"
        << "Buchi : " << FormatNumero(double(buchi.size())) << "\n";
    if (osservatore.RichiestaStop()) out << "Ricerca interrotta: i buchi contati sono quelli trovati fin qui.\n";
    return 0;
}

}  // namespace combi::cli
