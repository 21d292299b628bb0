#pragma once
// The player's archive of draws: a plain text file that the user keeps up to
// date, one draw per line:
//     2024-03-12;Bari;5;12;44;67;90
//     12/03/2024;10ELotto;1;4;...        (20 numbers)
//     2024-03-12;SuperEnalotto;3;17;25;48;66;81;12;40   (6, then Jolly and SuperStar if known)
// Separators are ";", ",", tabs or blanks, in any mix and any run; dates are
// dd/mm/yyyy or yyyy-mm-dd. Lines whose first visible character is "#" and
// lines without fields are ignored.
//
// A line that cannot be a draw is reported with its line number and what is
// wrong with it (an Italian message), and the reading goes on: one mistyped
// line in years of draws must not cost the user the rest.

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace combi {

// The games an archive holds, in the order the dialogs list them.
enum class GiocoArchivio : uint8_t { kLotto, kDieciELotto, kSuperEnalotto };
inline constexpr int kGiochiArchivio = 3;

// Where a draw comes from: the eleven Lotto wheels, then the two other games.
// The index is what a draw stores; the names are what the file and the user write.
inline constexpr int kRuoteLotto = 11;
inline constexpr int kRuotaDieciELotto = 11;
inline constexpr int kRuotaSuperEnalotto = 12;
inline constexpr int kRuote = 13;
inline constexpr const char* kNomiRuote[kRuote] = {
    "Bari",   "Cagliari", "Firenze", "Genova",   "Milano",   "Napoli",       "Palermo",
    "Roma",   "Torino",   "Venezia", "Nazionale", "10ELotto", "SuperEnalotto",
};
inline constexpr const char* kNomiGiochi[kGiochiArchivio] = {"Lotto", "10ELotto", "SuperEnalotto"};

// How many numbers a draw of the game holds (the Jolly and SuperStar aside).
int NumeriEstratti(GiocoArchivio gioco);
GiocoArchivio GiocoDellaRuota(int ruota);

// The index of a wheel or game name (upper and lower case alike), or nothing.
std::optional<int> RuotaDalNome(std::string_view nome);
std::optional<GiocoArchivio> GiocoDalNome(std::string_view nome);

// A date as the number yyyymmdd, so that dates compare as numbers.
using DataEstrazione = int32_t;

// "dd/mm/yyyy" or "yyyy-mm-dd" (day and month of one or two digits, year of
// four), a real calendar date; nothing otherwise.
std::optional<DataEstrazione> LeggiData(std::string_view testo);
std::string TestoData(DataEstrazione data);  // "2024-03-12"
inline int AnnoDi(DataEstrazione data) { return data / 10000; }

struct Estrazione {
    DataEstrazione data{};
    uint8_t ruota{};                    // index in kNomiRuote
    uint8_t quanti{};                   // drawn numbers: 5, 20 or 6
    std::array<uint8_t, 20> numeri{};   // as the line lists them, 0 beyond `quanti`
    uint8_t jolly{};                    // SuperEnalotto, 0 when the line has none
    uint8_t superstar{};                // SuperEnalotto, 0 when the line has none
    int32_t riga{};                     // 1-based line of the file
    bool operator==(const Estrazione&) const = default;
};

struct SegnalazioneArchivio {
    int32_t riga{};
    std::string messaggio;  // "Riga 12: il numero 91 è fuori da 1 a 90"
};

struct Archivio {
    std::vector<Estrazione> estrazioni;           // in file order
    std::vector<SegnalazioneArchivio> scartate;   // the refused lines, in file order
};

// Reads the text of an archive. A second line for the same wheel (or game)
// and date is refused, naming the line that came first: the draw would
// otherwise count twice.
Archivio LeggiArchivio(std::string_view testo);

// The largest archive read: ten times a century of every wheel.
inline constexpr uint64_t kMassimoFileArchivio = 64ull << 20;

// Reads the file whole. Throws Errore 53 when it does not exist, 75 when it
// cannot be read, 7 when it is longer than kMassimoFileArchivio.
Archivio LeggiFileArchivio(const std::string& percorso);

// One line of the archive for the draw, in the form the reader accepts
// ("2024-03-12;Bari;5;12;44;67;90"), without the line end.
std::string RigaArchivio(const Estrazione& e);

// The drawn numbers as the winnings check takes them: "5,12,44,67,90".
std::string NumeriComeTesto(const Estrazione& e);

}  // namespace combi
