// The guarantee table (Garanzia.h): for m drawn numbers among the chosen
// ones, the fewest points the best kept column surely makes.
//
// A depth-first walk over the m-subsets of the chosen numbers, keeping for
// every column how many of the subset's numbers it holds and a histogram of
// those counts, so the best column is known at every node. Adding numbers
// never lowers the best, so a partial subset whose best already reaches the
// smallest found so far is abandoned with all its extensions; and since the
// row for m + 1 is at least the row for m, a subset reaching that bound ends
// the row.

#include <algorithm>
#include <string>

#include "Errore.h"
#include "Garanzia.h"
#include "RiduzioneFasi.h"

namespace combi {

namespace {

class Ricerca {
public:
    Ricerca(const std::vector<Colonna>& tenute, const std::vector<int>& numeri, riduzione::Controllo& controllo)
        : colonneDi_(numeri.size()), conta_(tenute.size(), 0), istogramma_(kMaxClasse + 2, 0), controllo_(controllo) {
        for (size_t x = 0; x < numeri.size(); ++x)
            for (size_t c = 0; c < tenute.size(); ++c)
                for (int pos = 1; pos <= kMaxClasse; ++pos)
                    if (tenute[c][pos] == numeri[x]) colonneDi_[x].push_back(uint32_t(c));
        istogramma_[0] = int64_t(tenute.size());
    }

    // The row for m drawn numbers, knowing it is at least `minimo`.
    int Riga(int m, int minimo) {
        migliore_ = m + 1;
        minimo_ = minimo;
        Visita(0, m);
        return migliore_;
    }

private:
    void Aggiungi(size_t x) {
        for (uint32_t c : colonneDi_[x]) {
            --istogramma_[size_t(conta_[c])];
            ++istogramma_[size_t(++conta_[c])];
            massimo_ = std::max(massimo_, conta_[c]);
        }
    }
    void Togli(size_t x) {
        for (uint32_t c : colonneDi_[x]) {
            --istogramma_[size_t(conta_[c])];
            ++istogramma_[size_t(--conta_[c])];
        }
        while (massimo_ > 0 && istogramma_[size_t(massimo_)] == 0) --massimo_;
    }

    // Subsets of `restanti` more numbers chosen from position `da` on.
    void Visita(size_t da, int restanti) {
        if (controllo_.Fermo() || migliore_ <= minimo_) return;
        if (++nodi_ % 65536 == 0) controllo_.Pausa();
        if (massimo_ >= migliore_) return;  // no extension can do better
        if (restanti == 0) {
            migliore_ = massimo_;
            return;
        }
        for (size_t x = da; x + size_t(restanti) <= colonneDi_.size(); ++x) {
            Aggiungi(x);
            Visita(x + 1, restanti - 1);
            Togli(x);
            if (controllo_.Fermo() || migliore_ <= minimo_) return;
        }
    }

    std::vector<std::vector<uint32_t>> colonneDi_;  // per chosen number, the kept columns holding it
    std::vector<int> conta_;                         // per kept column, its numbers in the subset
    std::vector<int64_t> istogramma_;                // columns per count
    int massimo_{};
    int migliore_{};
    int minimo_{};
    uint64_t nodi_{};
    riduzione::Controllo& controllo_;
};

}  // namespace

TabellaGaranzia CalcolaTabellaGaranzia(const std::vector<Colonna>& tenute, const std::vector<int>& numeri,
                                       int estratti, OsservatoreRiduzione& oss) {
    if (estratti < 1) throw Errore(kErroreArgomento, "I numeri estratti devono essere almeno 1");
    ControllaNumeri(numeri);
    const int righe = std::min(estratti, int(numeri.size()));
    riduzione::Controllo controllo(oss);
    controllo.Fase(kFaseTabellaGaranzia);
    Ricerca ricerca(tenute, numeri, controllo);
    TabellaGaranzia tabella;
    int minimo = 0;
    for (int m = 1; m <= righe; ++m) {
        const int punti = ricerca.Riga(m, minimo);
        if (controllo.Fermo()) break;
        tabella.righe.push_back({m, punti});
        minimo = punti;
        controllo.Avanza(m, righe);
        controllo.Pausa();
        if (controllo.Fermo()) break;
    }
    tabella.interrotto = controllo.Fermo();
    controllo.Fase("");
    controllo.Percento(0);
    return tabella;
}

}  // namespace combi
