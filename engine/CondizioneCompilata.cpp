#include "CondizioneCompilata.h"

#include <algorithm>
#include <array>

#include "Misure.h"

namespace combi {

namespace {

using namespace dettaglio;


// Measures that read the parities alone are tabulated by the prefix's parity
// bits up to this class; above it (up to 2^19 patterns, each measured twice)
// building the table would cost more than most runs, so they are measured
// per block.
constexpr int kMaxClasseTabulata = 16;


uint16_t MascheraPunti(const std::array<int16_t, 11>& valori) {
    uint16_t m = 0;
    for (int v = 0; v <= 10; ++v)
        if (valori[v] != 0) m |= uint16_t(1u << v);
    return m;
}


Maschera128 SoloNumero(int n) {
    Maschera128 m;
    m.Imposta(n);
    return m;
}

// The largest sum of `quanti` of the picked numbers.
int SommaMassima(const std::vector<int>& numeri, int quanti) {
    int s = 0;
    for (int i = 0; i < quanti && i < int(numeri.size()); ++i) s += numeri[numeri.size() - 1 - size_t(i)];
    return s;
}

ProfiloColonna ProfiloDaParita(uint32_t parita, int k) {
    ProfiloColonna pc;
    pc.k = k;
    for (int i = 1; i <= k; ++i) pc.p[size_t(i)] = int((parita >> (i - 1)) & 1);
    return pc;
}


}  // namespace


CondizioneCompilata::CondizioneCompilata(const Condizione& c, int classe, const std::vector<int>& numeri)
    : genere_(Genere::Costante), elenco_(GiudicataSuElenco(c.Tipo)), k_(classe), punti_(MascheraPunti(c.Punti)),
      recupero_(MascheraPunti(c.Recupero)), minPunti_(c.MinPunti), maxPunti_(c.MaxPunti),
      minRecupero_(c.MinRecupero), maxRecupero_(c.MaxRecupero), origine_(c) {
    const int k = classe;
    switch (c.Tipo) {
    case kPuntiColonna:
    case kPariDispari: CompilaConta(c); break;
    case kPeso: {
        genere_ = Genere::Peso;
        prefissoScelto_ = true;
        for (int i = 1; i <= k; ++i) {
            if (c.Numeri[size_t(i)] != 0) caselle_ |= uint32_t(1) << (i - 1);
            else if (i < k) prefissoScelto_ = false;
        }
        ultimaScelta_ = c.Numeri[size_t(k)] != 0;
        penultimaScelta_ = k >= 2 && c.Numeri[size_t(k - 1)] != 0;
        chiavi_ = uint32_t(SommaMassima(numeri, k - 1)) + 1;
        break;
    }
    case kResto:
    case kBaricentro: CompilaPerSomma(c, numeri); break;
    case kAmpiezza:
        if (k >= 2) {
            genere_ = Genere::Ampiezza;
            chiavi_ = kMaxNumero + 1;  // the first number
            Tabula([&](uint32_t, Maschera128& sup, Maschera128& rec) {  // over x - first
                sup = SupSpostato(0);
                rec = RecSpostato(0);
            }, 1);
        }
        break;
    case kPosizioni:
        // Positions after the last hold 0, as do positions outside the record.
        if (c.Parametro >= 1 && c.Parametro <= k) {
            genere_ = Genere::Posizioni;
            costante_ = c.Parametro;
            chiavi_ = c.Parametro == k ? 1 : kMaxNumero + 1;
        }
        break;
    case kDistanzaMinima:
        costante_ = 1000;  // the measure below two numbers
        if (k >= 2) CompilaDistanze(Genere::DistanzaMinima);
        break;
    case kDistanzaMassima:
        if (k >= 2) CompilaDistanze(Genere::DistanzaMassima);
        break;
    case kConsecutivi:
    case kPonte:
        scarto_ = c.Tipo == kConsecutivi ? 1 : 2;
        if (k >= 2) CompilaVicini(Genere::Vicini, SoloNumero(scarto_));
        break;
    case kInterruzioni:
        // A gap changes the parity when it is odd.
        if (k >= 2) CompilaVicini(Genere::Interruzioni, kDispari);
        break;
    default: CompilaParita(); break;  // Vortice, Simmetrie, Sequenze, Paralleli
    }
    chiaviRiga_ = ChiaviDelleRighe();
}

// The row keys of each kind: what the first k-2 numbers leave for y to settle.
uint32_t CondizioneCompilata::ChiaviDelleRighe() const {
    switch (genere_) {
    case Genere::Parita: return 256;                     // the two codes, y even and y odd
    case Genere::Interruzioni: return 3 * kMaxClasse;    // count and the last number's parity or none
    case Genere::Costante: return 1;
    default: return chiavi_;
    }
}

uint32_t CondizioneCompilata::RigaDi(const Prefisso& q) const {
    switch (genere_) {
    case Genere::Conta: return uint32_t((q.numeri & insieme_).Conta());
    case Genere::Peso: return PesoDi(q);
    case Genere::PerSomma: return uint32_t(q.somma);
    case Genere::Ampiezza: return q.lunghezza > 0 ? uint32_t(q.primo) : 0;
    case Genere::Posizioni: return costante_ <= q.lunghezza ? q.colonna[costante_] : 0;
    case Genere::Parita: {
        const uint32_t dispari = uint32_t(1) << q.lunghezza;  // y at position k-1
        const auto codice = [&](uint32_t m) { return codici_.empty() ? CodiceParita(m) : codici_[m]; };
        return codice(q.parita) | uint32_t(codice(q.parita | dispari)) << 4;
    }
    case Genere::Interruzioni:
        return 3 * uint32_t(q.interruzioni) + (q.lunghezza == 0 ? 2 : uint32_t(q.ultimo & 1));
    case Genere::Vicini: return uint32_t(scarto_ == 1 ? q.consecutivi : q.ponti);
    case Genere::DistanzaMinima:
        return q.distanzaMinima == Prefisso::kNessunaDistanza ? kSenzaDistanza : uint32_t(q.distanzaMinima);
    case Genere::DistanzaMassima: return uint32_t(q.distanzaMassima);
    case Genere::Costante: return 0;
    }
    return 0;
}

void CondizioneCompilata::ContaRiga(const Prefisso& q, uint32_t riga, int yPrimo, int yUltimo,
                                    const Maschera128& scelti, const Tallie& t) const {
    const auto intervallo = [&](uint32_t riga, int64_t da, int64_t a) {
        if (da > a) return;
        t.perRiga[riga * kLarghezzaRiga + size_t(da)] += 1;
        t.perRiga[riga * kLarghezzaRiga + size_t(a) + 1] -= 1;
        *t.primaRiga = std::min(*t.primaRiga, riga);
        *t.ultimaRiga = std::max(*t.ultimaRiga, riga);
    };
    const auto blocco = [&](uint32_t chiave, int y) {
        ++t.perChiave[chiave * (kMaxNumero + 1) + size_t(y)];
        *t.primaChiave = std::min(*t.primaChiave, chiave);
        *t.ultimaChiave = std::max(*t.ultimaChiave, chiave);
    };
    // The blocks of y in da..a one by one, with the key the gap y - last.
    const auto diagonale = [&](int64_t da, int64_t a) {
        (scelti & Maschera128::Intervallo(std::max<int64_t>(da, yPrimo), std::min<int64_t>(a, yUltimo)))
            .PerOgni([&](int y) { blocco(uint32_t(y - q.ultimo), y); });
    };
    if (q.lunghezza == 0 || (genere_ != Genere::Vicini && genere_ != Genere::DistanzaMinima &&
                             genere_ != Genere::DistanzaMassima)) {
        intervallo(riga, yPrimo, yUltimo);
        return;
    }
    const int64_t c = q.ultimo;
    switch (genere_) {
    case Genere::Vicini: {
        intervallo(riga, yPrimo, yUltimo);
        const int y = q.ultimo + scarto_;  // the one y that adds a neighbour
        if (y < yPrimo || y > yUltimo || !scelti.Contiene(y)) return;
        t.perRiga[riga * kLarghezzaRiga + size_t(y)] -= 1;
        t.perRiga[riga * kLarghezzaRiga + size_t(y) + 1] += 1;
        blocco(riga + 1, y);
        return;
    }
    case Genere::DistanzaMinima:  // min(d, y - last)
        if (riga == kSenzaDistanza) {
            diagonale(yPrimo, yUltimo);
            return;
        }
        intervallo(riga, std::max<int64_t>(yPrimo, c + riga), yUltimo);
        diagonale(yPrimo, c + riga - 1);
        return;
    default:  // DistanzaMassima: max(D, y - last)
        intervallo(riga, yPrimo, std::min<int64_t>(yUltimo, c + riga));
        diagonale(c + riga + 1, yUltimo);
        return;
    }
}

void CondizioneCompilata::CompilaConta(const Condizione& c) {
    for (int n = 1; n <= kMaxNumero; ++n)
        if (c.Numeri[size_t(n)] != 0) insieme_.Imposta(n);
    CompilaVicini(Genere::Conta, insieme_);
}

// The masks of every key 0..chiavi-1, one call of `maschere` each.
template <class F>
void CondizioneCompilata::Tabula(F&& maschere, uint32_t chiavi) {
    sup_.resize(chiavi);
    rec_.resize(chiavi);
    for (uint32_t c = 0; c < chiavi; ++c) maschere(c, sup_[c], rec_[c]);
}

void CondizioneCompilata::CompilaDistanze(Genere genere) {
    genere_ = genere;
    // Built over the gap g = x - last and moved up by the last number on
    // every block.
    chiavi_ = kChiaviDistanza;
    Tabula([&](uint32_t chiave, Maschera128& sup, Maschera128& rec) {
        if (genere == Genere::DistanzaMinima) {
            // min(d, g): d itself from g = d on, g below it.
            const int64_t d = chiave == kSenzaDistanza ? int64_t(Prefisso::kNessunaDistanza) : int64_t(chiave);
            const Maschera128 oltre = Maschera128::Intervallo(d, 127);
            sup = (TuttiSe(Accetta(d)) & oltre) | Maschera128::Intervallo(minPunti_, std::min<int64_t>(maxPunti_, d - 1));
            rec = (TuttiSe(Recupera(d)) & oltre) |
                  Maschera128::Intervallo(minRecupero_, std::min<int64_t>(maxRecupero_, d - 1));
        } else {
            // max(D, g): D itself up to g = D, g above it.
            const int64_t d = chiave;
            const Maschera128 entro = Maschera128::Intervallo(1, d);
            sup = (TuttiSe(Accetta(d)) & entro) | Maschera128::Intervallo(std::max<int64_t>(minPunti_, d + 1), maxPunti_);
            rec = (TuttiSe(Recupera(d)) & entro) |
                  Maschera128::Intervallo(std::max<int64_t>(minRecupero_, d + 1), maxRecupero_);
        }
    }, kChiaviDistanza);
}

// The prefix's count a (it holds at most 19 numbers), one more for the
// candidates in `piu`.
void CondizioneCompilata::CompilaVicini(Genere genere, const Maschera128& piu) {
    genere_ = genere;
    chiavi_ = kMaxClasse;
    Tabula([&](uint32_t a, Maschera128& sup, Maschera128& rec) {
        sup = Scegli(Accetta(a), Accetta(int64_t(a) + 1), piu);
        rec = Scegli(Recupera(a), Recupera(int64_t(a) + 1), piu);
    }, chiavi_);
}

void CondizioneCompilata::CompilaPerSomma(const Condizione& c, const std::vector<int>& numeri) {
    genere_ = Genere::PerSomma;
    chiavi_ = uint32_t(SommaMassima(numeri, k_ - 1)) + 1;
    ProfiloColonna pc;
    pc.k = k_;
    Tabula([&](uint32_t s, Maschera128& sup, Maschera128& rec) {
        for (int x = 1; x <= kMaxNumero; ++x) {
            pc.somma = int32_t(s) + x;
            const int32_t v = c.Tipo == kResto ? MisuraResto(pc, c.Parametro) : MisuraBaricentro(pc);
            if (Accetta(v)) sup.Imposta(x);
            if (Recupera(v)) rec.Imposta(x);
        }
    }, chiavi_);
}

void CondizioneCompilata::CompilaParita() {
    genere_ = Genere::Parita;
    chiavi_ = 16;
    if (k_ > kMaxClasseTabulata) return;
    codici_.resize(size_t(1) << (k_ - 1));
    for (uint32_t m = 0; m < codici_.size(); ++m) codici_[m] = CodiceParita(m);
}

// Sup code | rec code << 2 of a parity measure after a prefix's parities:
// bit 0 of each code when an even last number passes, bit 1 when an odd one does.
uint8_t CondizioneCompilata::CodiceParita(uint32_t parita) const {
    const uint32_t dispari = uint32_t(1) << (k_ - 1);
    const int32_t vPari = MisuraCondizione(origine_, ProfiloDaParita(parita, k_));
    const int32_t vDispari = MisuraCondizione(origine_, ProfiloDaParita(parita | dispari, k_));
    return uint8_t(Accetta(vPari) | Accetta(vDispari) << 1 | Recupera(vPari) << 2 | Recupera(vDispari) << 3);
}

}  // namespace combi
