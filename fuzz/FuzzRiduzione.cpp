// The reduction's loading and the reduction itself on arbitrary columns
// files: the bytes are written to a file and read back by the same loader the
// dialog and the command line use; both paths must agree, also when a stop
// arrives after a chosen number of steps, and a complete run must keep the
// guarantee (every dropped column covered by a kept one).
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <string>

#include "Errore.h"
#include "Riduzione.h"

namespace {

class StopDopo : public combi::OsservatoreRiduzione {
public:
    explicit StopDopo(int passi) : passi_(passi) {}
    void ElaboraMessaggi() override { ++fatti_; }
    bool RichiestaStop() override { return passi_ > 0 && fatti_ >= passi_; }

private:
    int passi_;
    int fatti_ = 0;
};

const std::string& FileDiLavoro() {
    static const std::string percorso = "/tmp/FuzzRiduzione-" + std::to_string(getpid()) + ".col";
    return percorso;
}

// Compared on the first `classe` numbers, the class of the set.
bool Coperta(const combi::Colonna& a, const combi::Colonna& b, int classe, int punti) {
    int comuni = 0;
    for (int i = 1; i <= classe; ++i)
        for (int j = 1; j <= classe; ++j) comuni += a[i] == b[j];
    return comuni >= punti;
}

void ControllaGaranzia(const std::vector<combi::Colonna>& tutte, const std::vector<combi::Colonna>& tenute,
                       int punti) {
    const int classe = combi::ClasseColonne(tutte);
    for (const combi::Colonna& c : tutte) {
        bool coperta = false;
        for (const combi::Colonna& t : tenute) coperta = coperta || Coperta(c, t, classe, punti);
        if (!coperta) __builtin_trap();
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* dati, size_t lunghezza) {
    using namespace combi;
    if (lunghezza < 2) return 0;
    // A reduction may ask for 1..k points in class k; 0 and 11 check the refusal.
    const int punti = dati[0] % 12;
    const int stop = dati[1];
    if (FILE* f = std::fopen(FileDiLavoro().c_str(), "wb")) {
        std::fwrite(dati + 2, 1, lunghezza - 2, f);
        std::fclose(f);
    } else {
        return 0;
    }
    try {
        StopDopo oa(stop), ob(stop);
        const RisultatoRiduzione a = RiduciFileColonne(FileDiLavoro(), punti, oa, true);
        const RisultatoRiduzione b = RiduciFileColonne(FileDiLavoro(), punti, ob, false);
        if (!(a.colonne == b.colonne) || a.interrotto != b.interrotto) __builtin_trap();
        if (punti < 1 || punti > 10) __builtin_trap();
        ControllaGaranzia(LeggiColonneDaRidurre(FileDiLavoro()), a.colonne, punti);
    } catch (const Errore& e) {
        if (e.descrizione().empty()) __builtin_trap();
    }
    return 0;
}
