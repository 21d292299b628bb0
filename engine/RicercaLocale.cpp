#include "RicercaLocale.h"

#include <algorithm>
#include <limits>
#include <tuple>

#include "SceltaACaso.h"

namespace combi::riduzione {

RicercaLocale::RicercaLocale(const std::vector<Colonna>& colonne, int classe, int punti,
                             const std::vector<uint32_t>& iniziali, uint64_t seme)
    : RicercaLocale(std::make_shared<const Vicinato>(colonne, classe, punti), iniziali, seme) {}

RicercaLocale::RicercaLocale(std::shared_ptr<const Vicinato> vicinato, const std::vector<uint32_t>& iniziali,
                             uint64_t seme, bool pesata)
    : vicinato_(std::move(vicinato)),
      v_(*vicinato_),
      coperture_(v_.Quante(), 0),
      tenute_(v_.Quante()),
      scoperte_(v_.Quante()),
      pesata_(pesata),
      peso_(pesata ? v_.Quante() : 0, 1),
      caso_(seme) {
    Inizia(iniziali);
}

void RicercaLocale::Inizia(const std::vector<uint32_t>& iniziali) {
    for (uint32_t i = 0; i < v_.Quante(); ++i) scoperte_.Inserisci(i);
    for (uint32_t c : iniziali) Aggiungi(c);
    // Redundant columns first: every column they cover is covered twice.
    for (size_t p = tenute_.size(); p-- > 0;)
        if (Perdita(tenute_[p]) == 0) Togli(tenute_[p]);
    migliore_ = tenute_.Membri();
    std::sort(migliore_.begin(), migliore_.end());
    passiStadio_ = std::max<uint64_t>(100, uint64_t(tenute_.size()) * uint64_t(v_.Classe()) * kPassiPerNumero);
}

void RicercaLocale::Aggiungi(uint32_t c) {
    tenute_.Inserisci(c);
    v_.PerVicini(c, timbri_, [&](uint32_t i) {
        if (coperture_[i]++ == 0) scoperte_.Togli(i);
    });
}

void RicercaLocale::Togli(uint32_t c) {
    tenute_.Togli(c);
    v_.PerVicini(c, timbri_, [&](uint32_t i) {
        if (--coperture_[i] == 0) scoperte_.Inserisci(i);
    });
}

// What removing kept column k would uncover: the columns only k covers.
int64_t RicercaLocale::Perdita(uint32_t k) {
    int64_t perdita = 0;
    v_.PerVicini(k, timbri_, [&](uint32_t i) { perdita += coperture_[i] == 1; });
    return perdita;
}

// A kept column whose removal uncovers least, ties at random: the search
// then starts the smaller size as close to covering as one removal allows.
void RicercaLocale::TogliMenoUtile() {
    SceltaACaso<int64_t> scelta(caso_);
    for (uint32_t k : tenute_) scelta.Proponi(k, Perdita(k));
    Togli(scelta.Scelta());
}

uint32_t RicercaLocale::PiuVicinaTenuta(uint32_t u) {
    SceltaACaso<int> scelta(caso_);
    for (uint32_t k : tenute_) scelta.Proponi(k, -v_.Comuni(k, u));
    return scelta.Scelta();
}

// How column a differs from column b: a's numbers b lacks (fuori) and b's
// numbers a lacks (mancanti), with their counts.
struct Differenza {
    Maschera fuori, mancanti;
    uint64_t quanteFuori, quanteMancanti;
};

static Differenza Differenze(const Maschera& a, const Maschera& b) {
    Differenza d;
    d.fuori = {a[0] & ~b[0], a[1] & ~b[1]};
    d.mancanti = {b[0] & ~a[0], b[1] & ~a[1]};
    d.quanteFuori = uint64_t(QuantiNumeri(d.fuori));
    d.quanteMancanti = uint64_t(QuantiNumeri(d.mancanti));
    return d;
}

// The numbers of a with the i-th of d.fuori replaced by the j-th of d.mancanti.
static Maschera Scambio(const Maschera& a, const Differenza& d, uint64_t i, uint64_t j) {
    const int x = NumeroDiPosto(d.fuori, i);
    const int y = NumeroDiPosto(d.mancanti, j);
    Maschera m = a;
    Leva(m, x);
    Metti(m, y);
    return m;
}

// `tolta` with one of its numbers outside u replaced by one of u's it lacks:
// one number nearer to u, so it covers u. Any input column covering u
// nearest to `tolta` when no such change is an input column.
uint32_t RicercaLocale::Sostituta(uint32_t u, uint32_t tolta) {
    const Maschera& a = v_.Numeri(tolta);
    const Differenza d = Differenze(a, v_.Numeri(u));
    for (int prova = 0; prova < kProveSostituta; ++prova) {
        const uint64_t i = Caso() % d.quanteFuori;
        const uint64_t j = Caso() % d.quanteMancanti;
        if (const auto c = v_.Cerca(Scambio(a, d, i, j))) return *c;
    }
    return SostitutaVicina(u, tolta);
}

uint32_t RicercaLocale::SostitutaVicina(uint32_t u, uint32_t tolta) {
    candidate_.clear();
    int vicinanza = std::numeric_limits<int>::min();  // below any count of common numbers
    v_.PerVicini(u, timbri_, [&](uint32_t c) {
        const int comuni = v_.Comuni(c, tolta);
        if (comuni > vicinanza) vicinanza = comuni, candidate_.clear();
        if (comuni == vicinanza) candidate_.push_back(c);
    });
    return candidate_[Caso() % candidate_.size()];  // u itself is among them
}

// The change in the number of uncovered columns if `aggiunta` takes the place
// of `tolta`: those only `tolta` covers and `aggiunta` does not are lost,
// those nobody covers and `aggiunta` does are gained.
int64_t RicercaLocale::Variazione(uint32_t tolta, uint32_t aggiunta) {
    int64_t d = 0;
    v_.PerVicini(tolta, timbri_, [&](uint32_t i) { d += coperture_[i] == 1 && !v_.Copre(aggiunta, i); });
    v_.PerVicini(aggiunta, timbri_, [&](uint32_t i) { d -= coperture_[i] == 0; });
    return d;
}

// Every one-number change of `tolta` towards u that is an input column, into
// candidate_; the input columns covering u nearest to `tolta` when there is none.
void RicercaLocale::CambiVerso(uint32_t u, uint32_t tolta) {
    const Maschera& a = v_.Numeri(tolta);
    const Differenza d = Differenze(a, v_.Numeri(u));
    candidate_.clear();
    for (uint64_t i = 0; i < d.quanteFuori; ++i)
        for (uint64_t j = 0; j < d.quanteMancanti; ++j) {
            if (const auto c = v_.Cerca(Scambio(a, d, i, j))) candidate_.push_back(*c);
        }
    if (candidate_.empty()) SostitutaVicina(u, tolta);  // leaves its choices in candidate_
}

// The weighted variant's newcomer: the candidate leaving the least uncovered
// weight, ties at random; `variazione` is that weight's change.
uint32_t RicercaLocale::MigliorSostituta(uint32_t u, uint32_t tolta, int64_t& variazione) {
    soloDaTolta_.clear();
    v_.PerVicini(tolta, timbri_, [&](uint32_t i) {
        if (coperture_[i] == 1) soloDaTolta_.push_back(i);
    });
    CambiVerso(u, tolta);
    SceltaACaso<int64_t> scelta(caso_);
    for (uint32_t c : candidate_) {
        int64_t d = 0;
        for (uint32_t i : soloDaTolta_)
            if (!v_.Copre(c, i)) d += peso_[i];
        for (uint32_t i : scoperte_)
            if (v_.Copre(c, i)) d -= peso_[i];
        scelta.Proponi(c, d);
    }
    variazione = scelta.Minima();
    return scelta.Scelta();
}

// Geometric cooling by stages. When the best cost at this size has not moved
// for kStadiSenzaProgresso stages the search starts the size again from the
// best covering set, less another column, at a fraction of the starting
// temperature: the full one undoes what the descent to the smaller size built.
void RicercaLocale::Raffredda() {
    if (scoperte_.size() < minimoScoperte_) minimoScoperte_ = scoperte_.size(), stadiSenzaProgresso_ = 0;
    if (++passoNelloStadio_ < passiStadio_) return;
    passoNelloStadio_ = 0;
    temperatura_.Raffredda();
    if (++stadiSenzaProgresso_ >= kStadiSenzaProgresso) {
        temperatura_.Riscalda();
        Ricomincia();
        stadiSenzaProgresso_ = 0;
        minimoScoperte_ = scoperte_.size();
    }
}

// Back to the best covering set, less one column chosen at random among the
// kRicambi whose removal uncovers least: another start for the same size.
void RicercaLocale::Ricomincia() {
    if (migliore_.size() <= 1) return;
    while (!tenute_.empty()) Togli(tenute_.back());
    for (uint32_t c : migliore_) Aggiungi(c);
    struct Ricambio { int64_t perdita; uint64_t caso; uint32_t colonna; };  // `caso` breaks the ties
    std::vector<Ricambio> ricambi;
    for (uint32_t k : tenute_) ricambi.push_back({Perdita(k), Caso(), k});
    const size_t scelte = std::min(ricambi.size(), kRicambi);
    std::partial_sort(ricambi.begin(), ricambi.begin() + ptrdiff_t(scelte), ricambi.end(),
                      [](const Ricambio& a, const Ricambio& b) { return std::tie(a.perdita, a.caso) < std::tie(b.perdita, b.caso); });
    Togli(ricambi[Caso() % scelte].colonna);
    minimoScoperte_ = scoperte_.size();
}

bool RicercaLocale::Passo() {
    if (scoperte_.empty()) {
        // A covering set: record it if it is a new best, then try one column fewer.
        const bool nuovo = tenute_.size() < migliore_.size();
        if (nuovo) {
            migliore_ = tenute_.Membri();
            std::sort(migliore_.begin(), migliore_.end());
        }
        if (tenute_.size() > 1) TogliMenoUtile();
        minimoScoperte_ = scoperte_.size();
        stadiSenzaProgresso_ = 0;
        return nuovo;
    }
    const uint32_t u = scoperte_[Caso() % scoperte_.size()];
    const uint32_t tolta = PiuVicinaTenuta(u);
    int64_t variazione{};
    const uint32_t aggiunta = pesata_ ? MigliorSostituta(u, tolta, variazione) : Sostituta(u, tolta);
    if (!pesata_) variazione = Variazione(tolta, aggiunta);
    if (temperatura_.Accetta(variazione, caso_)) {
        const int64_t prima = Costo();
        Togli(tolta);
        Aggiungi(aggiunta);
        stimeSbagliate_ += Costo() - prima != variazione;
    } else if (pesata_) {
        for (uint32_t i : scoperte_) ++peso_[i];
    }
    Raffredda();
    return false;
}

// What the search lowers: the uncovered columns, counted or weighed.
int64_t RicercaLocale::Costo() const {
    if (!pesata_) return int64_t(scoperte_.size());
    int64_t peso = 0;
    for (uint32_t i : scoperte_) peso += peso_[i];
    return peso;
}

}  // namespace combi::riduzione
