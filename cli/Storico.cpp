// combifiltro-cli storico: how a columns file would have done over the
// user's archive of draws: the totals by points as the winnings check prints
// them ("Vincite con 3 punti : 84"), the draws with hits, the best draw, the
// longest run of draws without a hit and, with --posta, the money staked and
// won per year. Lines of the archive that are not draws are reported on the
// error stream with their line number; the rest is used.

#include <charconv>
#include <iomanip>
#include <locale>
#include <ostream>
#include <sstream>

#include "Argomenti.h"
#include "BilancioStorico.h"
#include "Comandi.h"
#include "Errore.h"
#include "FileColonne.h"
#include "Terminale.h"
#include "VerificaStorico.h"

namespace combi::cli {

namespace {

// Ctrl-C ends the check after the draws counted so far.
class OsservatoreStoricoTerminale : public OsservatoreStorico {
public:
    bool RichiestaStop() override { return StopDaTastiera(); }
};

DataEstrazione Data(const Argomenti& a, const char* nome, DataEstrazione predefinita) {
    const auto testo = a.Opzione(nome);
    if (!testo) return predefinita;
    const std::optional<DataEstrazione> data = LeggiData(*testo);
    if (!data) throw ErroreUso{"--" + std::string(nome) + " non è una data valida (aaaa-mm-gg o gg/mm/aaaa): \"" +
                               *testo + "\""};
    return *data;
}

// A decimal number >= 0 with "." before the decimals: "1", "0.5", whatever
// the user's locale (from_chars does not look at it).
double Importo(const std::string& testo, const std::string& nome) {
    double valore = -1;
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
    if (testo.empty() || errore != std::errc() || fine != testo.data() + testo.size() || !(valore >= 0) ||
        valore > 1e12)
        throw ErroreUso{nome + " deve essere un importo non negativo, come 1 o 0.50: \"" + testo + "\""};
    return valore;
}

// "--premi 2=250,3=4500": the prize of a column for each number of points.
TabellaPremi Premi(const std::string& testo) {
    TabellaPremi premi{};
    size_t inizio = 0;
    while (inizio <= testo.size()) {
        const size_t fine = std::min(testo.find(',', inizio), testo.size());
        const std::string voce = testo.substr(inizio, fine - inizio);
        const size_t uguale = voce.find('=');
        if (uguale == std::string::npos) throw ErroreUso{"--premi vuole punti=premio, come 2=250,3=4500"};
        const int punti = LeggiIntero(voce.substr(0, uguale), 0, kMaxClasse, "i punti di --premi");
        premi[size_t(punti)] = Importo(voce.substr(uguale + 1), "il premio di --premi");
        inizio = fine + 1;
    }
    return premi;
}

ParametriStorico Parametri(const Argomenti& a) {
    ParametriStorico p;
    const auto gioco = a.Opzione("gioco");
    if (!gioco) throw ErroreUso{"manca --gioco (Lotto, 10ELotto o SuperEnalotto)"};
    const std::optional<GiocoArchivio> g = GiocoDalNome(*gioco);
    if (!g) throw ErroreUso{"gioco sconosciuto: \"" + *gioco + "\" (Lotto, 10ELotto o SuperEnalotto)"};
    p.gioco = *g;
    if (const auto ruota = a.Opzione("ruota"); ruota && *ruota != "Tutte") {
        const std::optional<int> r = RuotaDalNome(*ruota);
        if (!r || *r >= kRuoteLotto) throw ErroreUso{"ruota sconosciuta: \"" + *ruota + "\""};
        if (p.gioco != GiocoArchivio::kLotto) throw ErroreUso{"--ruota vale solo per il Lotto"};
        p.ruota = *r;
    }
    p.dal = Data(a, "dal", p.dal);
    p.al = Data(a, "al", p.al);
    if (p.dal > p.al) throw ErroreUso{"--dal viene dopo --al"};
    // As the winnings check: two points already pay at Lotto, three elsewhere.
    const int predefinito = p.gioco == GiocoArchivio::kLotto ? 2 : 3;
    p.puntiMinimi = a.Opzione("minimo") ? LeggiIntero(*a.Opzione("minimo"), 1, kMaxClasse, "--minimo") : predefinito;
    return p;
}

// Amounts as they are typed, with "." before the decimals, in any locale.
std::string Euro(double valore) {
    std::ostringstream s;
    s.imbue(std::locale::classic());
    s << std::fixed << std::setprecision(2) << valore;
    return s.str();
}

void StampaRiassunto(const EsitoStorico& e, std::ostream& out) {
    for (const RigaRiepilogo& r : e.Riepilogo()) out << r.vincita << ": " << r.colonne << "\n";
    out << "Estrazioni controllate : " << e.estrazioni.size() << "\n";
    out << "Estrazioni con vincite : " << e.estrazioniConVincite << "\n";
    if (e.migliore) {
        const EsitoEstrazione& m = e.estrazioni[*e.migliore];
        const int punti = m.PuntiMassimi();
        out << "Migliore estrazione : " << TestoData(m.estrazione.data) << " " << kNomiRuote[m.estrazione.ruota]
            << " " << NumeriComeTesto(m.estrazione) << " (" << punti << " punti: " << m.conte[size_t(punti)]
            << (m.conte[size_t(punti)] == 1 ? " colonna)" : " colonne)") << "\n";
    }
    out << "Ritardo massimo : " << e.digiuno.concorsi << " estrazioni";
    if (e.digiuno.concorsi > 0) out << " (dal " << TestoData(e.digiuno.dal) << " al " << TestoData(e.digiuno.al) << ")";
    out << "\n";
}

void StampaBilancio(const StimaDenaro& s, double posta, std::ostream& out) {
    out << "Posta per colonna : " << Euro(posta) << "\n";
    auto riga = [&out](const std::string& nome, const Bilancio& b) {
        out << nome << " : giocato " << Euro(b.giocato) << ", vinto " << Euro(b.vinto) << ", saldo "
            << Euro(b.Saldo()) << "\n";
    };
    for (const BilancioAnno& a : s.perAnno) riga("Anno " + std::to_string(a.anno), a.bilancio);
    riga("Totale", s.totale);
}

}  // namespace

int ComandoStorico(const Parole& parole, std::ostream& out, std::ostream& err) {
    const Argomenti a(parole, {"archivio", "gioco", "ruota", "dal", "al", "minimo", "posta", "premi"});
    if (a.Posizionali().size() != 1) throw ErroreUso{"indicare un solo file di colonne (.col)"};
    const auto percorsoArchivio = a.Opzione("archivio");
    if (!percorsoArchivio) throw ErroreUso{"manca --archivio FILE, l'archivio delle estrazioni"};
    const ParametriStorico p = Parametri(a);
    const bool conPosta = a.Opzione("posta").has_value();
    const double posta = conPosta ? Importo(*a.Opzione("posta"), "--posta") : 0;
    const TabellaPremi premi = a.Opzione("premi") ? Premi(*a.Opzione("premi")) : TabellaPremi{};
    if (a.Opzione("premi") && !conPosta) throw ErroreUso{"--premi vuole anche --posta"};

    const std::vector<Colonna> colonne = LeggiFileColonne(a.Posizionali()[0]);
    if (colonne.empty()) throw Errore(kErroreFormatoFile, "Il file non contiene colonne");
    const Archivio archivio = LeggiFileArchivio(*percorsoArchivio);
    for (const SegnalazioneArchivio& s : archivio.scartate) err << s.messaggio << "\n";

    InstallaStopDaTastiera();
    OsservatoreStoricoTerminale oss;
    const EsitoStorico esito = VerificaStorico(colonne, archivio.estrazioni, p, oss);
    if (esito.interrotto)
        err << "Interrotto dopo " << esito.estrazioni.size() << " estrazioni su " << esito.daControllare << "\n";
    StampaRiassunto(esito, out);
    if (conPosta) StampaBilancio(StimaBilancio(esito, int64_t(colonne.size()), posta, premi), posta, out);
    return 0;
}

}  // namespace combi::cli
