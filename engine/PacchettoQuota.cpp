#include "PacchettoQuota.h"

#include "Errore.h"
#include "FileColonne.h"
#include "FileSistema.h"
#include "LittleEndian.h"

namespace combi {

namespace {

constexpr size_t kLunghezzaTestata = 8 + 1 + 4;

[[noreturn]] void Troncato() {
    throw Errore(kErroreFileTroncato, "Risultato di una quota troncato o non valido");
}

}  // namespace

std::vector<uint8_t> CodificaQuota(const RisultatoSviluppo& quota) {
    FileSistema tabella;
    tabella.condizioni = quota.condizioni;
    const std::vector<uint8_t> blocco = CodificaSistema(tabella);
    LittleEndianWriter w;
    w.I32(int32_t(uint32_t(quota.testate)));
    w.I32(int32_t(uint32_t(quota.testate >> 32)));
    w.U8(quota.interrotto ? 1 : 0);
    w.I32(int32_t(blocco.size()));
    // Shares run to millions of columns: one allocation, no intermediate copy.
    std::vector<uint8_t> dati;
    dati.reserve(w.Dati().size() + blocco.size() + quota.colonne.size() * kLunghezzaColonna);
    dati.assign(w.Dati().begin(), w.Dati().end());
    dati.insert(dati.end(), blocco.begin(), blocco.end());
    for (const Colonna& c : quota.colonne) dati.insert(dati.end(), c.Numeri.begin(), c.Numeri.end());
    return dati;
}

RisultatoSviluppo DecodificaQuota(const uint8_t* dati, size_t lunghezza) {
    LittleEndianReader r(dati, lunghezza);
    int32_t basso{}, alto{}, blocco{};
    uint8_t interrotto{};
    if (!r.I32(basso) || !r.I32(alto) || !r.U8(interrotto) || !r.I32(blocco)) Troncato();
    if (blocco < 0 || size_t(blocco) > r.Resto() || interrotto > 1) Troncato();
    const size_t colonne = lunghezza - kLunghezzaTestata - size_t(blocco);
    if (colonne % kLunghezzaColonna != 0) Troncato();

    RisultatoSviluppo q;
    q.testate = uint64_t(uint32_t(basso)) | (uint64_t(uint32_t(alto)) << 32);
    q.interrotto = interrotto == 1;
    q.condizioni = DecodificaSistema(dati + kLunghezzaTestata, size_t(blocco)).condizioni;
    q.colonne = DecodificaColonne(dati + kLunghezzaTestata + size_t(blocco), colonne);
    return q;
}

}  // namespace combi
