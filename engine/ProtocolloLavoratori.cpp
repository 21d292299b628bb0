#include "ProtocolloLavoratori.h"

#include <charconv>

#include "Percorsi.h"

namespace combi {

namespace {

constexpr std::string_view kTestate = "testate ";
constexpr std::string_view kTenute = "tenute ";
constexpr std::string_view kFine = "fine ";

std::optional<uint64_t> Numero(std::string_view testo) {
    uint64_t n{};
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), n);
    if (errore != std::errc() || fine != testo.data() + testo.size() || testo.empty()) return std::nullopt;
    return n;
}

}  // namespace

std::string RigaTestate(uint64_t testate) { return std::string(kTestate) + std::to_string(testate); }
std::string RigaTenute(uint64_t tenute) { return std::string(kTenute) + std::to_string(tenute); }
std::string RigaFine(const std::string& fileColonne) { return std::string(kFine) + fileColonne; }

std::optional<RigaRapporto> LeggiRigaRapporto(std::string_view riga) {
    while (!riga.empty() && (riga.back() == '\n' || riga.back() == '\r')) riga.remove_suffix(1);
    for (const auto& [prefisso, tipo] : {std::pair{kTestate, RigaRapporto::Tipo::Testate},
                                         std::pair{kTenute, RigaRapporto::Tipo::Tenute}}) {
        if (!riga.starts_with(prefisso)) continue;
        const std::optional<uint64_t> n = Numero(riga.substr(prefisso.size()));
        if (!n) return std::nullopt;
        return RigaRapporto{tipo, *n, {}};
    }
    if (riga.starts_with(kFine) && riga.size() > kFine.size())
        return RigaRapporto{RigaRapporto::Tipo::Fine, 0, std::string(riga.substr(kFine.size()))};
    return std::nullopt;
}

std::string FileSistemaDellaCorsa(const std::string& cartella) { return cartella + "SistCond.sic"; }

std::string FileContatoriLavoratore(const std::string& cartella, int i) {
    return NomeFileNumerato(FileSistemaDellaCorsa(cartella), i);
}

std::string FileColonneLavoratore(const std::string& cartella, int i) {
    return NomeFileNumerato(cartella + "SistCond.col", i);
}

}  // namespace combi
