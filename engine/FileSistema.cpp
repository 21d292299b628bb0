#include "FileSistema.h"

#include <cmath>

#include "Errore.h"
#include "FileBinario.h"
#include "LittleEndian.h"

namespace combi {

namespace {

constexpr uint64_t kMassimaLunghezzaFile =
    kInizioCondizioni + kLunghezzaCondizione * (kMassimoCondizioniFile + 1);

void ScriviCondizione(LittleEndianWriter& w, const Condizione& c) {
    w.I16(c.Tipo);
    for (int16_t v : c.Numeri) w.I16(v);
    for (int16_t v : c.Punti) w.I16(v);
    for (int16_t v : c.Recupero) w.I16(v);
    w.I16(c.Parametro);
    w.I32(c.MinPunti);
    w.I32(c.MaxPunti);
    w.I32(c.MinRecupero);
    w.I32(c.MaxRecupero);
    w.I16(c.QuadroRec);
    w.I32(c.Valore);
    w.I32(c.ContaFallite);
    w.I32(c.ContaSuperate);
    w.I32(c.ContaRecuperabili);
    w.I16(c.Superata);
    w.I16(c.Recuperabile);
    w.I16(c.EsitoGruppo);
}

bool LeggiCondizione(LittleEndianReader& r, Condizione& c) {
    bool ok = r.I16(c.Tipo);
    for (int16_t& v : c.Numeri) ok = ok && r.I16(v);
    for (int16_t& v : c.Punti) ok = ok && r.I16(v);
    for (int16_t& v : c.Recupero) ok = ok && r.I16(v);
    return ok && r.I16(c.Parametro) && r.I32(c.MinPunti) && r.I32(c.MaxPunti) &&
           r.I32(c.MinRecupero) && r.I32(c.MaxRecupero) && r.I16(c.QuadroRec) &&
           r.I32(c.Valore) && r.I32(c.ContaFallite) && r.I32(c.ContaSuperate) &&
           r.I32(c.ContaRecuperabili) && r.I16(c.Superata) && r.I16(c.Recuperabile) &&
           r.I16(c.EsitoGruppo);
}

std::string FirmaDiSetteByte(const std::string& firma) {
    std::string f = firma.substr(0, 7);
    f.resize(7, ' ');
    return f;
}

}  // namespace

int64_t NumeroCondizioniInFile(uint64_t lunghezza) {
    const double n = (double(lunghezza) - double(kInizioCondizioni)) / double(kLunghezzaCondizione);
    return int64_t(std::nearbyint(n));
}

std::vector<uint8_t> CodificaSistema(const FileSistema& s) {
    LittleEndianWriter w;
    w.Testo(FirmaDiSetteByte(s.intestazione.firma));
    w.I16(s.intestazione.classe);
    w.I16(s.intestazione.riduzione);
    for (int n = 1; n <= kMaxNumero; ++n) w.I16(s.intestazione.numeri[n]);
    for (const QuadroRecupero& q : s.quadri) {
        w.I16(q.Attivo);
        w.I16(q.Minimo);
        w.I16(q.Massimo);
    }
    if (s.condizioni.empty()) ScriviCondizione(w, Condizione{});
    for (const Condizione& c : s.condizioni) ScriviCondizione(w, c);
    return w.Dati();
}

void ControllaLunghezzaSistema(uint64_t lunghezza) {
    if (lunghezza < kLunghezzaMinimaSistema)
        throw Errore(kErroreFileTroncato,
                     "File di sistema troppo corto: servono almeno 587 byte, ne ha " +
                         std::to_string(lunghezza));
    const int64_t n = NumeroCondizioniInFile(lunghezza);
    if (n > int64_t(kMassimoCondizioniFile))
        throw Errore(kErroreFormatoFile, "Il file contiene " + std::to_string(n) +
                                             " condizioni: al massimo 200");
}

FileSistema DecodificaSistema(const uint8_t* dati, size_t lunghezza) {
    ControllaLunghezzaSistema(lunghezza);
    const int64_t n = NumeroCondizioniInFile(lunghezza);
    FileSistema s;
    LittleEndianReader r(dati, lunghezza);
    r.Testo(s.intestazione.firma, 7);
    r.I16(s.intestazione.classe);
    r.I16(s.intestazione.riduzione);
    for (int i = 1; i <= kMaxNumero; ++i) r.I16(s.intestazione.numeri[i]);
    for (QuadroRecupero& q : s.quadri) r.I16(q.Attivo), r.I16(q.Minimo), r.I16(q.Massimo);
    s.condizioni.resize(size_t(n));
    for (int64_t i = 0; i < n; ++i)
        if (!LeggiCondizione(r, s.condizioni[size_t(i)]))
            throw Errore(kErroreFileTroncato, "File di sistema troncato nella condizione " +
                                                  std::to_string(i + 1));
    return s;
}

FileSistema LeggiFileSistema(const std::string& percorso) {
    ControllaLunghezzaSistema(LunghezzaFile(percorso));
    const std::vector<uint8_t> dati = LeggiFileBinario(percorso, kMassimaLunghezzaFile);
    return DecodificaSistema(dati.data(), dati.size());
}

void ScriviFileSistema(const std::string& percorso, const FileSistema& s) {
    ScriviFileSicuro(percorso, CodificaSistema(s));
}

ParametriSviluppo ParametriDalFile(const FileSistema& s) {
    ParametriSviluppo p;
    for (int n = 1; n <= kMaxNumero; ++n)
        if (s.intestazione.numeri[n] != 0) p.numeri.push_back(n);
    p.classe = s.intestazione.classe;
    p.riduzione = s.intestazione.riduzione;
    p.condizioni = s.condizioni;
    p.quadri = s.quadri;
    return p;
}

}  // namespace combi
