#include "ArchivioEstrazioni.h"

#include <algorithm>
#include <cstdio>
#include <unordered_map>

#include "Colonna.h"
#include "FileBinario.h"

namespace combi {

namespace {

bool Separatore(char c) { return c == ';' || c == ',' || c == '\t' || c == ' ' || c == '\r'; }

// The fields of a line: runs of characters between separators. A run of
// separators is one separator, so "5 ; 12" and "5;;12" read as 5 and 12.
std::vector<std::string_view> Campi(std::string_view riga) {
    std::vector<std::string_view> campi;
    size_t i = 0;
    while (i < riga.size()) {
        while (i < riga.size() && Separatore(riga[i])) ++i;
        const size_t inizio = i;
        while (i < riga.size() && !Separatore(riga[i])) ++i;
        if (i > inizio) campi.push_back(riga.substr(inizio, i - inizio));
    }
    return campi;
}

char Minuscola(char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; }

bool UgualeSenzaMaiuscole(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (Minuscola(a[i]) != Minuscola(b[i])) return false;
    return true;
}

// Digits only; a value too large for any use (a number above 90, a year
// above 9999) saturates at 100000 instead of overflowing.
std::optional<int> Cifre(std::string_view testo) {
    if (testo.empty()) return std::nullopt;
    int valore = 0;
    for (char c : testo) {
        if (c < '0' || c > '9') return std::nullopt;
        valore = std::min(valore * 10 + (c - '0'), 100000);
    }
    return valore;
}

bool Bisestile(int anno) { return anno % 4 == 0 && (anno % 100 != 0 || anno % 400 == 0); }

int GiorniDelMese(int anno, int mese) {
    static constexpr int kGiorni[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return mese == 2 && Bisestile(anno) ? 29 : kGiorni[mese - 1];
}

// Three numeric pieces split at `sep`: the year, piece `anno`, of four
// digits, the day and the month of one or two.
std::optional<std::array<int, 3>> TrePezzi(std::string_view testo, char sep, size_t anno) {
    std::array<int, 3> valori{};
    for (size_t p = 0; p < 3; ++p) {
        const size_t fine = p < 2 ? testo.find(sep) : testo.size();
        if (fine == std::string_view::npos) return std::nullopt;
        const std::string_view pezzo = testo.substr(0, fine);
        const std::optional<int> v = Cifre(pezzo);  // none for an empty piece
        if (!v || (p == anno ? pezzo.size() != 4 : pezzo.size() > 2)) return std::nullopt;
        valori[p] = *v;
        testo.remove_prefix(p < 2 ? fine + 1 : fine);
    }
    return valori;
}

// The text between quotes, as the messages cite what the user wrote.
std::string Citato(std::string_view testo) {
    std::string citato(1, '"');
    citato.append(testo);
    citato += '"';
    return citato;
}

std::string Riga(int32_t riga) { return "Riga " + std::to_string(riga) + ": "; }

// The numbers of one line checked against its game, or the message that refuses it.
std::string ControllaNumeri(const std::vector<int>& numeri, int ruota) {
    const GiocoArchivio gioco = GiocoDellaRuota(ruota);
    const size_t voluti = size_t(NumeriEstratti(gioco));
    const char* nome = kNomiRuote[ruota];
    if (gioco == GiocoArchivio::kSuperEnalotto) {
        if (numeri.size() < voluti || numeri.size() > voluti + 2)
            return std::string(nome) + " vuole 6 numeri, più Jolly e SuperStar facoltativi: la riga ne ha " +
                   std::to_string(numeri.size());
    } else if (numeri.size() != voluti) {
        return std::string(nome) + " vuole " + std::to_string(voluti) + " numeri: la riga ne ha " +
               std::to_string(numeri.size());
    }
    bool visto[kMaxNumero + 1] = {};
    for (size_t i = 0; i < numeri.size(); ++i) {
        const int n = numeri[i];
        if (n < 1 || n > kMaxNumero) return "il numero " + std::to_string(n) + " è fuori da 1 a 90";
        // The SuperStar comes from an urn of its own: it may repeat a number.
        const bool superstar = gioco == GiocoArchivio::kSuperEnalotto && i == voluti + 1;
        if (superstar) continue;
        if (visto[n]) return "il numero " + std::to_string(n) + " è ripetuto";
        visto[n] = true;
    }
    return {};
}

class Lettore {
public:
    void Leggi(std::string_view testo) {
        if (testo.substr(0, 3) == "\xEF\xBB\xBF") testo.remove_prefix(3);  // a UTF-8 mark left by editors
        int32_t numero = 0;
        while (!testo.empty()) {
            const size_t fine = testo.find('\n');
            LeggiRiga(testo.substr(0, fine), ++numero);
            if (fine == std::string_view::npos) break;
            testo.remove_prefix(fine + 1);
        }
    }
    Archivio archivio;

private:
    void Scarta(int32_t riga, const std::string& motivo) { archivio.scartate.push_back({riga, Riga(riga) + motivo}); }

    void LeggiRiga(std::string_view testo, int32_t riga) {
        const std::vector<std::string_view> campi = Campi(testo);
        if (campi.empty() || campi[0][0] == '#') return;
        if (campi.size() < 2) return Scarta(riga, "dopo la data servono la ruota (o il gioco) e i numeri");
        const std::optional<DataEstrazione> data = LeggiData(campi[0]);
        if (!data)
            return Scarta(riga, "data non valida " + Citato(campi[0]) + " (gg/mm/aaaa o aaaa-mm-gg)");
        const std::optional<int> ruota = RuotaDalNome(campi[1]);
        if (!ruota) return Scarta(riga, "ruota o gioco sconosciuto " + Citato(campi[1]));
        std::vector<int> numeri;
        for (size_t i = 2; i < campi.size(); ++i) {
            const std::optional<int> n = Cifre(campi[i]);
            if (!n) return Scarta(riga, Citato(campi[i]) + " non è un numero");
            numeri.push_back(*n);
        }
        if (const std::string motivo = ControllaNumeri(numeri, *ruota); !motivo.empty()) return Scarta(riga, motivo);
        const auto [voce, nuova] = righe_.try_emplace(int64_t(*data) * kRuote + *ruota, riga);
        if (!nuova)
            return Scarta(riga, std::string(kNomiRuote[*ruota]) + " del " + TestoData(*data) + " c'è già alla riga " +
                                    std::to_string(voce->second));
        archivio.estrazioni.push_back(Componi(*data, *ruota, numeri, riga));
    }

    static Estrazione Componi(DataEstrazione data, int ruota, const std::vector<int>& numeri, int32_t riga) {
        Estrazione e;
        e.data = data;
        e.ruota = uint8_t(ruota);
        e.riga = riga;
        e.quanti = uint8_t(NumeriEstratti(GiocoDellaRuota(ruota)));
        for (size_t i = 0; i < e.quanti; ++i) e.numeri[i] = uint8_t(numeri[i]);
        if (numeri.size() > e.quanti) e.jolly = uint8_t(numeri[e.quanti]);
        if (numeri.size() > size_t(e.quanti) + 1) e.superstar = uint8_t(numeri[e.quanti + 1u]);
        return e;
    }

    std::unordered_map<int64_t, int32_t> righe_;  // (date, wheel) -> the line that gave it
};

}  // namespace

int NumeriEstratti(GiocoArchivio gioco) {
    switch (gioco) {
        case GiocoArchivio::kLotto: return 5;
        case GiocoArchivio::kDieciELotto: return 20;
        case GiocoArchivio::kSuperEnalotto: return 6;
    }
    return 0;
}

GiocoArchivio GiocoDellaRuota(int ruota) {
    if (ruota == kRuotaDieciELotto) return GiocoArchivio::kDieciELotto;
    if (ruota == kRuotaSuperEnalotto) return GiocoArchivio::kSuperEnalotto;
    return GiocoArchivio::kLotto;
}

std::optional<int> RuotaDalNome(std::string_view nome) {
    for (int r = 0; r < kRuote; ++r)
        if (UgualeSenzaMaiuscole(nome, kNomiRuote[r])) return r;
    return std::nullopt;
}

std::optional<GiocoArchivio> GiocoDalNome(std::string_view nome) {
    for (int g = 0; g < kGiochiArchivio; ++g)
        if (UgualeSenzaMaiuscole(nome, kNomiGiochi[g])) return GiocoArchivio(g);
    return std::nullopt;
}

std::optional<DataEstrazione> LeggiData(std::string_view testo) {
    std::optional<std::array<int, 3>> p;
    int giorno = 0, mese = 0, anno = 0;
    if ((p = TrePezzi(testo, '/', 2))) {
        giorno = (*p)[0], mese = (*p)[1], anno = (*p)[2];
    } else if ((p = TrePezzi(testo, '-', 0))) {
        anno = (*p)[0], mese = (*p)[1], giorno = (*p)[2];
    } else {
        return std::nullopt;
    }
    if (anno < 1 || mese < 1 || mese > 12 || giorno < 1 || giorno > GiorniDelMese(anno, mese)) return std::nullopt;
    return anno * 10000 + mese * 100 + giorno;
}

std::string TestoData(DataEstrazione data) {
    char testo[16];
    std::snprintf(testo, sizeof testo, "%04d-%02d-%02d", data / 10000, data / 100 % 100, data % 100);
    return testo;
}

Archivio LeggiArchivio(std::string_view testo) {
    Lettore lettore;
    lettore.Leggi(testo);
    return std::move(lettore.archivio);
}

Archivio LeggiFileArchivio(const std::string& percorso) {
    const std::vector<uint8_t> byte = LeggiFileBinario(percorso, kMassimoFileArchivio);
    return LeggiArchivio(std::string_view(reinterpret_cast<const char*>(byte.data()), byte.size()));
}

std::string RigaArchivio(const Estrazione& e) {
    std::string riga = TestoData(e.data) + ";" + kNomiRuote[e.ruota];
    auto aggiungi = [&riga](int n) {
        riga += ';';
        riga += std::to_string(n);
    };
    for (size_t i = 0; i < e.quanti; ++i) aggiungi(e.numeri[i]);
    if (e.jolly) aggiungi(e.jolly);
    if (e.jolly && e.superstar) aggiungi(e.superstar);
    return riga;
}

std::string NumeriComeTesto(const Estrazione& e) {
    std::string testo;
    for (size_t i = 0; i < e.quanti; ++i) {
        if (i) testo += ',';
        testo += std::to_string(e.numeri[i]);
    }
    return testo;
}

}  // namespace combi
