#pragma once
// One condition compiled for the judgement of whole blocks (the columns that
// share their first k-1 numbers). On every block the condition depends on
// the prefix only through a small whole number, its key: the count of set
// members for "Punti Col.", the sum for "Resto", the first number for
// "Ampiezza", the parity pattern's verdicts for "Vortice", and so on. The key
// and the prefix's last number fix the masks of the candidates on which the
// condition passes and is recoverable; that is what lets the development
// count a condition's outcomes by tallying keys, and build masks only for
// the blocks that can still keep a column.

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "Condizione.h"
#include "Maschera.h"
#include "Prefisso.h"

namespace combi {

namespace dettaglio {

inline constexpr Maschera128 kPari{0x5555555555555555ull, 0x5555555555555555ull};
inline constexpr Maschera128 kDispari{0xAAAAAAAAAAAAAAAAull, 0xAAAAAAAAAAAAAAAAull};
// Masks by a two-bit code: bit 0 for the even candidates, bit 1 for the odd.
inline constexpr std::array<Maschera128, 4> kPerParita{Maschera128{}, kPari, kDispari, Maschera128::Tutti()};
inline constexpr uint32_t kSenzaDistanza = 0;  // the key of a prefix with no gap yet
inline constexpr uint32_t kChiaviDistanza = kMaxNumero;  // no gap yet, then the gaps 1..89

// A value outside 0..10 is in no point list.
inline bool InElenco(uint16_t maschera, int64_t v) { return v >= 0 && v <= 10 && ((maschera >> v) & 1); }

// Everything outside `piu` when `fuori`, everything inside when `dentro`.
inline Maschera128 Scegli(bool fuori, bool dentro, const Maschera128& piu) {
    return (TuttiSe(fuori) & ~piu) | (TuttiSe(dentro) & piu);
}

}  // namespace dettaglio

class CondizioneCompilata {
public:
    // `numeri`: the picked numbers, ascending (they bound the sums).
    CondizioneCompilata(const Condizione& c, int classe, const std::vector<int>& numeri);

    // How many keys there are: every key lies in 0..Chiavi()-1.
    uint32_t Chiavi() const { return chiavi_; }

    uint32_t Chiave(const Prefisso& p) const;

    // A row is every block whose prefix starts with the same k-2 numbers q:
    // they differ in the number y at position k-1. Over a row the condition
    // depends on q through a row key, and on y: Riga() is the key's bound,
    // ChiaveDaRiga the block key of row key and y.
    uint32_t ChiaviRiga() const { return chiaviRiga_; }
    uint32_t RigaDi(const Prefisso& q) const;
    // The key of the block of y in a row: `ultimo` is q's last number, 0
    // for an empty q. Exact for every kind.
    uint32_t ChiaveDelBlocco(uint32_t riga, int y, int ultimo) const;
    // The same without q's last number: exact for every kind but the gaps',
    // whose blocks that depend on it are tallied apart (ContaRiga).
    uint32_t ChiaveDaRiga(uint32_t riga, int y) const;
    // Over a row the masks do not change with y: the row's key alone fixes
    // them, so a row judges the condition once for all its blocks.
    bool CostanteNellaRiga() const;
    // The numbers y of a row (key `riga`) whose block may hold a column on
    // which the condition passes: every y but where the row's key rules some
    // out at once (a sum that cannot reach its range).
    Maschera128 YPossibili(uint32_t riga) const;

    // Where one thread tallies a condition's blocks.
    struct Tallie {
        uint32_t* perChiave;   // blocks by [chiave * 91 + last number]
        int32_t* perRiga;      // rows as differences over y: [riga * 92 + y]
        uint32_t* primaChiave;
        uint32_t* ultimaChiave;
        uint32_t* primaRiga;
        uint32_t* ultimaRiga;
    };
    static constexpr size_t kLarghezzaRiga = kMaxNumero + 2;

    // Tallies every block of the row of prefix q (whose key is `riga`), whose
    // y runs over the picked numbers yPrimo..yUltimo.
    void ContaRiga(const Prefisso& q, uint32_t riga, int yPrimo, int yUltimo, const Maschera128& scelti,
                   const Tallie& t) const;

    // The candidates on which the condition passes directly and on which it
    // is recoverable, for a key and the prefix's last number (0 when the
    // prefix is empty).
    void Maschere(uint32_t chiave, int ultimo, Maschera128& sup, Maschera128& rec) const;
    // The first of the two alone, for conditions in no recovery panel.
    Maschera128 Superate(uint32_t chiave, int ultimo) const {
        Maschera128 sup, rec;
        Maschere(chiave, ultimo, sup, rec);
        return sup;
    }
    // Both masks of the block of y in a row (ChiaveDelBlocco, then Maschere).
    void MaschereDelBlocco(uint32_t riga, int y, int ultimo, Maschera128& sup, Maschera128& rec) const;
    // The same for the blocks of ys[0..n) of a row, as f(j, sup, rec): one
    // dispatch on the kind for all of them, so the loop inside is straight.
    template <class F>
    void PerOgniBlocco(uint32_t riga, int ultimo, const int* ys, size_t n, F&& f) const {
        PerGenere([&]<Genere G>() {
            for (size_t j = 0; j < n; ++j) {
                Maschera128 sup, rec;
                MaschereDi<G>(ChiaveDelBloccoDi<G>(riga, ys[j], ultimo), ys[j], sup, rec);
                f(j, sup, rec);
            }
        });
    }
    Maschera128 SuperateDelBlocco(uint32_t riga, int y, int ultimo) const {
        Maschera128 sup, rec;
        MaschereDelBlocco(riga, y, ultimo, sup, rec);
        return sup;
    }

private:
    enum class Genere : uint8_t {
        Conta,            // Punti Col., Pari-Dispari: members of a number set
        Peso,
        PerSomma,         // Resto, Baricentro: tabulated by the prefix's sum
        Ampiezza,
        Posizioni,
        DistanzaMinima,
        DistanzaMassima,
        Vicini,           // Consecutivi, Ponte: neighbours at a fixed gap
        Interruzioni,
        Parita,           // Vortice, Simmetrie, Sequenze, Paralleli
        Costante,         // a value that no candidate can change
    };
    template <Genere G> uint32_t ChiaveDaRigaDi(uint32_t riga, int y) const;
    template <Genere G> uint32_t ChiaveDelBloccoDi(uint32_t riga, int y, int ultimo) const;
    template <Genere G> void MaschereDi(uint32_t chiave, int ultimo, Maschera128& sup, Maschera128& rec) const;
    template <class F> decltype(auto) PerGenere(F&& f) const;

    bool Accetta(int64_t v) const;
    bool Recupera(int64_t v) const;
    Maschera128 SupSpostato(int64_t v0) const;
    Maschera128 RecSpostato(int64_t v0) const;
    void CompilaConta(const Condizione& c);
    void CompilaPerSomma(const Condizione& c, const std::vector<int>& numeri);
    void CompilaParita();
    uint32_t ChiaviDelleRighe() const;
    uint32_t PesoDi(const Prefisso& p) const;
    void CompilaDistanze(Genere genere);
    void CompilaVicini(Genere genere, const Maschera128& piu);
    template <class F>
    void Tabula(F&& maschere, uint32_t chiavi);
    // The parity measure's sup code | rec code << 2 after a prefix's parities.
    uint8_t CodiceParita(uint32_t parita) const;

    Genere genere_;
    bool elenco_ = false;          // judged on a point list, else on a range
    int k_{};
    uint16_t punti_{}, recupero_{};
    int32_t minPunti_{}, maxPunti_{}, minRecupero_{}, maxRecupero_{};
    int32_t costante_{};           // Costante's value; Posizioni' position
    int scarto_{};                 // Vicini: the gap counted
    bool ultimaScelta_ = false;    // Peso: the last position is among the chosen
    bool prefissoScelto_ = false;  // Peso: every prefix position is chosen
    uint32_t caselle_{};           // Peso: bit i-1 for position i
    uint32_t chiavi_ = 1;
    uint32_t chiaviRiga_ = 1;
    bool penultimaScelta_ = false;  // Peso: position k-1 is among the chosen
    Maschera128 insieme_;          // Conta: the number set
    std::vector<Maschera128> sup_, rec_;   // by key, where tabulated
    std::vector<uint8_t> codici_;          // Parita: codes by parity pattern
    Condizione origine_;                   // for the parity measures above the tabulated classes
};


inline bool CondizioneCompilata::Accetta(int64_t v) const {
    return elenco_ ? dettaglio::InElenco(punti_, v) : minPunti_ <= v && v <= maxPunti_;
}

inline bool CondizioneCompilata::Recupera(int64_t v) const {
    return elenco_ ? dettaglio::InElenco(recupero_, v) : minRecupero_ <= v && v <= maxRecupero_;
}

// The candidates x with v0 + x inside the accepted (recoverable) range.
inline Maschera128 CondizioneCompilata::SupSpostato(int64_t v0) const {
    return Maschera128::Intervallo(minPunti_ - v0, maxPunti_ - v0);
}

inline Maschera128 CondizioneCompilata::RecSpostato(int64_t v0) const {
    return Maschera128::Intervallo(minRecupero_ - v0, maxRecupero_ - v0);
}

inline uint32_t CondizioneCompilata::Chiave(const Prefisso& p) const {
    switch (genere_) {
    case Genere::Conta: return uint32_t((p.numeri & insieme_).Conta());
    case Genere::Peso: return PesoDi(p);
    case Genere::PerSomma: return uint32_t(p.somma);
    case Genere::Ampiezza: return uint32_t(p.primo);
    case Genere::Posizioni: return costante_ == k_ ? 0 : p.colonna[costante_];
    case Genere::DistanzaMinima:
        return p.distanzaMinima == Prefisso::kNessunaDistanza ? dettaglio::kSenzaDistanza : uint32_t(p.distanzaMinima);
    case Genere::DistanzaMassima: return uint32_t(p.distanzaMassima);
    case Genere::Vicini: return uint32_t(scarto_ == 1 ? p.consecutivi : p.ponti);
    case Genere::Interruzioni: return uint32_t(p.interruzioni);
    case Genere::Parita: return codici_.empty() ? CodiceParita(p.parita) : codici_[p.parita];
    case Genere::Costante: return 0;
    }
    return 0;
}

inline uint32_t CondizioneCompilata::PesoDi(const Prefisso& p) const {
    if (prefissoScelto_) return uint32_t(p.somma);
    uint32_t v = 0;
    for (int i = 1; i <= p.lunghezza; ++i)
        if ((caselle_ >> (i - 1)) & 1) v += p.colonna[i];
    return v;
}

// Each kind's block key and masks, one function template per step, written
// once: the switches below dispatch on the kind, and the hot path fuses the
// two steps of a kind under one switch (MaschereDelBlocco).

template <CondizioneCompilata::Genere G>
[[gnu::always_inline]] inline uint32_t CondizioneCompilata::ChiaveDaRigaDi(uint32_t riga, int y) const {
    using enum Genere;
    if constexpr (G == Conta) return riga + uint32_t(insieme_.Contiene(y));
    else if constexpr (G == Peso) return riga + (penultimaScelta_ ? uint32_t(y) : 0);
    else if constexpr (G == PerSomma) return riga + uint32_t(y);
    else if constexpr (G == Ampiezza) return k_ >= 3 ? riga : uint32_t(y);  // y is the first number in class 2
    else if constexpr (G == Posizioni) return costante_ == k_ - 1 ? uint32_t(y) : riga;
    else if constexpr (G == Parita) return (y & 1) ? riga >> 4 : riga & 15;
    else if constexpr (G == Interruzioni) {
        const uint32_t ultimo = riga % 3;
        return riga / 3 + (ultimo < 2 && uint32_t(y & 1) != ultimo);
    } else return riga;  // the gap kinds tally their exceptions as blocks
}

template <CondizioneCompilata::Genere G>
[[gnu::always_inline]] inline uint32_t CondizioneCompilata::ChiaveDelBloccoDi(uint32_t riga, int y, int ultimo) const {
    using enum Genere;
    // An empty q (class 2): the block's prefix is y alone, with no gap.
    const int32_t gap = y - ultimo;
    if constexpr (G == Vicini) return riga + (ultimo != 0 && gap == scarto_);
    else if constexpr (G == DistanzaMinima) {
        if (ultimo == 0) return dettaglio::kSenzaDistanza;
        return riga == dettaglio::kSenzaDistanza ? uint32_t(gap) : std::min(riga, uint32_t(gap));
    } else if constexpr (G == DistanzaMassima) return ultimo == 0 ? 0 : std::max(riga, uint32_t(gap));
    else return ChiaveDaRigaDi<G>(riga, y);
}

template <CondizioneCompilata::Genere G>
[[gnu::always_inline]] inline void CondizioneCompilata::MaschereDi(uint32_t chiave, int ultimo, Maschera128& sup,
                                                                   Maschera128& rec) const {
    using enum Genere;
    if constexpr (G == Conta || G == PerSomma) {
        sup = sup_[chiave];
        rec = rec_[chiave];
    } else if constexpr (G == Peso) {
        if (ultimaScelta_) {
            sup = SupSpostato(chiave);
            rec = RecSpostato(chiave);
        } else {
            sup = TuttiSe(Accetta(chiave));
            rec = TuttiSe(Recupera(chiave));
        }
    } else if constexpr (G == Ampiezza) {  // x - first
        sup = sup_[0].Sposta(int(chiave));
        rec = rec_[0].Sposta(int(chiave));
    } else if constexpr (G == Posizioni) {
        if (costante_ == k_) {  // the last number itself
            sup = SupSpostato(0);
            rec = RecSpostato(0);
        } else {
            sup = TuttiSe(Accetta(chiave));
            rec = TuttiSe(Recupera(chiave));
        }
    } else if constexpr (G == DistanzaMinima || G == DistanzaMassima || G == Vicini || G == Interruzioni) {
        sup = sup_[chiave].Sposta(ultimo);  // over the gap x - last
        rec = rec_[chiave].Sposta(ultimo);
    } else if constexpr (G == Parita) {
        sup = dettaglio::kPerParita[chiave & 3];
        rec = dettaglio::kPerParita[chiave >> 2];
    } else {  // Costante
        sup = TuttiSe(Accetta(costante_));
        rec = TuttiSe(Recupera(costante_));
    }
}

// Calls f.template operator()<G>() for the condition's kind.
template <class F>
[[gnu::always_inline]] inline decltype(auto) CondizioneCompilata::PerGenere(F&& f) const {
    using enum Genere;
    switch (genere_) {
    case Conta: return f.template operator()<Conta>();
    case Peso: return f.template operator()<Peso>();
    case PerSomma: return f.template operator()<PerSomma>();
    case Ampiezza: return f.template operator()<Ampiezza>();
    case Posizioni: return f.template operator()<Posizioni>();
    case DistanzaMinima: return f.template operator()<DistanzaMinima>();
    case DistanzaMassima: return f.template operator()<DistanzaMassima>();
    case Vicini: return f.template operator()<Vicini>();
    case Interruzioni: return f.template operator()<Interruzioni>();
    case Parita: return f.template operator()<Parita>();
    case Costante: break;
    }
    return f.template operator()<Costante>();
}

inline uint32_t CondizioneCompilata::ChiaveDaRiga(uint32_t riga, int y) const {
    return PerGenere([&]<Genere G>() { return ChiaveDaRigaDi<G>(riga, y); });
}

inline uint32_t CondizioneCompilata::ChiaveDelBlocco(uint32_t riga, int y, int ultimo) const {
    return PerGenere([&]<Genere G>() { return ChiaveDelBloccoDi<G>(riga, y, ultimo); });
}

[[gnu::always_inline]] inline void CondizioneCompilata::Maschere(uint32_t chiave, int ultimo, Maschera128& sup,
                                                                 Maschera128& rec) const {
    PerGenere([&]<Genere G>() { MaschereDi<G>(chiave, ultimo, sup, rec); });
}

[[gnu::always_inline]] inline void CondizioneCompilata::MaschereDelBlocco(uint32_t riga, int y, int ultimo,
                                                                          Maschera128& sup, Maschera128& rec) const {
    PerGenere([&]<Genere G>() { MaschereDi<G>(ChiaveDelBloccoDi<G>(riga, y, ultimo), y, sup, rec); });
}

inline Maschera128 CondizioneCompilata::YPossibili(uint32_t riga) const {
    if (genere_ != Genere::Peso || !penultimaScelta_) return Maschera128::Tutti();
    const int64_t p = riga;  // the weight of the first k-2 numbers
    if (!ultimaScelta_) return Maschera128::Intervallo(minPunti_ - p, maxPunti_ - p);  // p + y alone
    // p + y + x with y < x <= 127: some x exists when 2y + 1 <= max - p and y >= min - p - 127.
    if (minPunti_ > maxPunti_) return {};
    const int64_t alto = maxPunti_ - p - 1;
    return Maschera128::Intervallo(minPunti_ - p - 127, alto < 0 ? -1 : alto / 2);
}

inline bool CondizioneCompilata::CostanteNellaRiga() const {
    switch (genere_) {
    case Genere::Ampiezza: return k_ >= 3;                 // the first number is in the row's prefix
    case Genere::Posizioni: return costante_ != k_ - 1;     // not the number at position k-1
    case Genere::Peso: return !penultimaScelta_;
    case Genere::Costante: return true;
    default: return false;
    }
}

}  // namespace combi
