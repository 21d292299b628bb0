#include "Testo.h"

namespace combi {

std::vector<std::string_view> Dividi(std::string_view testo, std::string_view separatore) {
    std::vector<std::string_view> pezzi;
    if (testo.empty()) return pezzi;
    size_t inizio = 0;
    for (;;) {
        const size_t pos = testo.find(separatore, inizio);
        if (pos == std::string_view::npos) break;
        pezzi.push_back(testo.substr(inizio, pos - inizio));
        inizio = pos + separatore.size();
    }
    pezzi.push_back(testo.substr(inizio));
    return pezzi;
}

std::string Trim(std::string_view testo) {
    const size_t inizio = testo.find_first_not_of(' ');
    if (inizio == std::string_view::npos) return {};
    const size_t fine = testo.find_last_not_of(' ');
    return std::string(testo.substr(inizio, fine - inizio + 1));
}

std::string Sostituisci(std::string_view testo, std::string_view da, std::string_view a) {
    std::string risultato;
    size_t inizio = 0;
    for (;;) {
        const size_t pos = testo.find(da, inizio);
        if (pos == std::string_view::npos || da.empty()) break;
        risultato.append(testo.substr(inizio, pos - inizio)).append(a);
        inizio = pos + da.size();
    }
    risultato.append(testo.substr(inizio));
    return risultato;
}

std::string RimuoviACapo(std::string_view testo) { return Sostituisci(testo, "\r\n", ""); }

namespace {

// A UTF-8 continuation byte belongs to the character started before it.
bool IsContinuazione(char ch) { return (static_cast<unsigned char>(ch) & 0xC0) == 0x80; }

}  // namespace

size_t CaratteriUtf8(std::string_view testo) {
    size_t n = 0;
    for (char ch : testo) n += IsContinuazione(ch) ? 0 : 1;
    return n;
}

size_t InizioCarattereUtf8(std::string_view testo, size_t n) {
    size_t i = 0;
    for (; i < testo.size(); ++i) {
        if (IsContinuazione(testo[i])) continue;
        if (n-- == 0) return i;
    }
    return testo.size();
}

}  // namespace combi
