#pragma once
// The condition record, its type codes and the recovery panel entry.
// Field order and widths are part of the files and of the public interface.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace combi {

enum TipoCondizione : int16_t {
    kNessuna = 0,
    kLinkOpen = 1,
    kLinkClose = 2,
    kPuntiColonna = 3,
    kPariDispari = 4,
    kPeso = 5,
    kResto = 6,
    kAmpiezza = 7,
    kVortice = 8,
    kSimmetrie = 9,
    kConsecutivi = 10,
    kInterruzioni = 11,
    kBaricentro = 12,
    kDistanzaMinima = 13,
    kDistanzaMassima = 14,
    kPosizioni = 15,
    kPonte = 16,
    kSequenze = 17,
    kParalleli = 18,
};

inline constexpr int16_t kVero = -1;   // 16-bit boolean true of records and results
inline constexpr int16_t kFalso = 0;

struct Condizione {
    int16_t Tipo = kNessuna;
    std::array<int16_t, 91> Numeri{};    // set or pattern, indexed 0..90
    std::array<int16_t, 11> Punti{};     // accepted point values 0..10
    std::array<int16_t, 11> Recupero{};  // recoverable point values 0..10
    int16_t Parametro{};
    int32_t MinPunti{};
    int32_t MaxPunti{};
    int32_t MinRecupero{};
    int32_t MaxRecupero{};
    int16_t QuadroRec{};
    int32_t Valore{};
    int32_t ContaFallite{};
    int32_t ContaSuperate{};
    int32_t ContaRecuperabili{};
    int16_t Superata = kFalso;
    int16_t Recuperabile = kFalso;
    int16_t EsitoGruppo = kFalso;

    bool operator==(const Condizione&) const = default;
};

inline constexpr int kLunghezzaCondizione = 270;  // packed record length in files

struct QuadroRecupero {
    int16_t Attivo{};
    int16_t Minimo{};
    int16_t Massimo{};

    bool operator==(const QuadroRecupero&) const = default;
};

inline constexpr int kLunghezzaQuadro = 6;
inline constexpr int kNumeroQuadri = 20;  // panels 1..20; index 0 belongs to no panel

using TabellaCondizioni = std::vector<Condizione>;
using TabellaQuadri = std::array<QuadroRecupero, kNumeroQuadri + 1>;

// The grid name of a type code; the empty string for any other code.
std::string NomeTipoCondizione(int codice);

// The type code of a grid name (compared exactly); 0 for an unknown name.
int CodiceTipoCondizione(const std::string& nome);

// How a condition of this type is judged.
bool GiudicataSuElenco(int tipo);    // point list: the value indexes Punti/Recupero
bool GiudicataSuIntervallo(int tipo);  // range: MinPunti..MaxPunti

}  // namespace combi
