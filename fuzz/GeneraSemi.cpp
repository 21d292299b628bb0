// Writes the seed corpora of the fuzz targets, one folder per target, with
// the project's own writers: the example system and variants of it, its grid
// texts, columns it develops, typical texts of the host and the user, and the
// synthetic archive of draws that sits beside the example.
//   GeneraSemi ESEMPIO.sic CARTELLA
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "Errore.h"
#include "FileColonne.h"
#include "FileSistema.h"
#include "Ingressi.h"
#include "ScritturaCondizioni.h"
#include "Sviluppo.h"

namespace {

using namespace combi;
namespace fs = std::filesystem;
using Byte = std::vector<uint8_t>;

fs::path cartella;

void Scrivi(const std::string& target, const std::string& nome, const Byte& dati) {
    fs::create_directories(cartella / target);
    std::ofstream(cartella / target / nome, std::ios::binary)
        .write(reinterpret_cast<const char*>(dati.data()), std::streamsize(dati.size()));
}

Byte Testo(const std::string& s) { return Byte(s.begin(), s.end()); }

Byte Unisci(std::initializer_list<Byte> pezzi) {
    Byte tutto;
    for (const Byte& p : pezzi) tutto.insert(tutto.end(), p.begin(), p.end());
    return tutto;
}

// The first kept columns of the example's conditions on its first `quanti` numbers.
std::vector<Colonna> Sviluppati(const FileSistema& s, size_t quanti, int classe) {
    ParametriSviluppo p = ParametriDalFile(s);
    p.numeri.resize(std::min(quanti, p.numeri.size()));
    p.classe = classe;
    OsservatoreSviluppo o;
    std::vector<Colonna> colonne = SviluppaSistemaRiferimento(p, o).colonne;
    colonne.resize(std::min<size_t>(colonne.size(), 40));  // a seed stays small
    return colonne;
}

std::vector<Colonna> Integrale(int n, int classe) {
    ParametriSviluppo p;
    for (int i = 1; i <= n; ++i) p.numeri.push_back(i * 7 % 90 + 1);
    std::sort(p.numeri.begin(), p.numeri.end());
    p.classe = classe;
    p.condizioni.resize(1);
    OsservatoreSviluppo o;
    return SviluppaSistemaRiferimento(p, o).colonne;
}

void SemiSistema(const FileSistema& esempio) {
    Scrivi("FuzzFileSistema", "esempio.sic", CodificaSistema(esempio));
    FileSistema piccolo = esempio;
    piccolo.condizioni.resize(4);
    piccolo.intestazione.classe = 5;
    Scrivi("FuzzFileSistema", "quattro-condizioni.sic", CodificaSistema(piccolo));
    Scrivi("FuzzFileSistema", "vuoto.sic", CodificaSistema(FileSistema{}));
}

Byte CampiGriglia(const TestiGriglia& g) {
    std::string s;
    for (const TestiCondizione& t : g.colonne) {
        // Row 1 travels as the type code's byte: the target maps it back to the name.
        const std::string codice(1, char(CodiceTipoCondizione(t[kRigaCondizione])));
        for (const std::string& campo : {t[0], codice, t[2], t[3], t[4], t[5]})
            s += campo + fuzz::kSeparatoreCampi;
    }
    for (const std::string& riga : g.quadri) s += riga + fuzz::kSeparatoreCampi;
    if (!s.empty()) s.pop_back();
    return Testo(s);
}

void SemiGriglia(const FileSistema& esempio) {
    Scrivi("FuzzTestiGriglia", "esempio", CampiGriglia(TestiDaSistema(esempio.condizioni, esempio.quadri)));
    TabellaCondizioni tre(esempio.condizioni.begin(), esempio.condizioni.begin() + 3);
    TestiGriglia g = TestiDaSistema(tre, esempio.quadri);
    g.quadri.resize(2);
    Scrivi("FuzzTestiGriglia", "tre-condizioni", CampiGriglia(g));
}

void SemiColonne(const FileSistema& esempio) {
    Scrivi("FuzzFileColonne", "esempio-12-numeri.col", CodificaColonne(Sviluppati(esempio, 12, 6)));
    Scrivi("FuzzFileColonne", "integrale-7-5.col", CodificaColonne(Integrale(7, 5)));
    const Byte otto = CodificaColonne(Integrale(8, 6));
    Scrivi("FuzzRiduzione", "integrale-8-6-punti-5", Unisci({{5, 0}, otto}));
    Scrivi("FuzzRiduzione", "integrale-8-6-punti-3-stop", Unisci({{3, 4}, otto}));
    Scrivi("FuzzRiduzione", "esempio-punti-4", Unisci({{4, 0}, CodificaColonne(Sviluppati(esempio, 12, 6))}));
}

// Class 6 and minimum 2 as the target reads its first two bytes.
void SemiSpoglio(const FileSistema& esempio) {
    const Byte colonne = CodificaColonne(Sviluppati(esempio, 12, 6));
    const Byte classe6Minimo2{7, 3};
    const Byte separatore{uint8_t(fuzz::kSeparatoreParole)};
    Scrivi("FuzzSpoglio", "tre-numeri", Unisci({classe6Minimo2, Testo("5,12,90"), separatore, colonne}));
    Scrivi("FuzzSpoglio", "sei-numeri", Unisci({classe6Minimo2, Testo("3,7,11,14,18,22"), separatore, colonne}));
    Scrivi("FuzzSpoglio", "ripetuto", Unisci({{6, 2}, Testo("7, 7,25.5"), separatore, colonne}));
    Scrivi("FuzzSpoglio", "venti-numeri",
           Unisci({{11, 6}, Testo("1,5,9,13,17,21,25,29,33,37,41,45,49,53,57,61,65,69,73,77")}));
}

// The first months of the synthetic archive beside the example (a seed
// stays small: long inputs slow every run), a mix of separators and date
// forms, and one line of every refusal.
void SemiArchivio(const fs::path& sintetico) {
    std::ifstream in(sintetico, std::ios::binary);
    std::string inizio, riga;
    for (int n = 0; n < 50 && std::getline(in, riga); ++n) inizio += riga + "\n";
    Scrivi("FuzzArchivio", "sintetico.txt", Testo(inizio));
    Scrivi("FuzzArchivio", "forme.txt",
           Testo("\xEF\xBB\xBF# commento\r\n12/03/2024 , roma\t1 2 3 4 5\r\n\n"
                 "2024-3-2;SuperEnalotto;1;2;3;4;5;6;7;1\n2024-03-02;10ELotto;1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;"
                 "16;17;18;19;20\n"));
    Scrivi("FuzzArchivio", "scartate.txt",
           Testo("2024-02-30;Bari;1;2;3;4;5\n2024-03-14;Bar;1;2;3;4;5\n2024-03-14;Bari;1;2;3;4\n"
                 "2024-03-14;Bari;1;2;3;4;91\n2024-03-14;Bari;1;2;3;4;4\n2024-03-14;Bari;1;2;x;4;5\n2024-03-14\n"
                 "2024-03-14;Bari;1;2;3;4;5\n2024-03-14;Bari;6;7;8;9;10\n"));
}

void SemiParametri() {
    const std::pair<int, std::string> testi[] = {
        {kPariDispari, "Pari\r\n2,3,4|1,5"}, {kResto, "3\r\n0,1|2"}, {kVortice, "Diretto\r\n2,3,4"},
        {kSequenze, "PDP\r\n1,2"},           {kConsecutivi, "0,1|2"}, {kAmpiezza, "25,60|20,70"},
        {kPosizioni, "1,3"},
    };
    for (const auto& [tipo, testo] : testi)
        Scrivi("FuzzParametri", NomeTipoCondizione(tipo), Unisci({{uint8_t(tipo)}, Testo(testo)}));
}

void SemiArgomenti() {
    const std::vector<std::vector<std::string>> righe = {
        {"sviluppa", "S.sic", "--colonne", "O.col", "--contatori", "C.sic", "--thread", "2", "--quota", "1/3"},
        {"info", "F.col"},
        {"riduci", "I.col", "--punti", "5", "--colonne", "O.col", "--riferimento"},
        {"spoglio", "I.col", "--estrazione", "5,12,90", "--minimo", "2", "--classe", "6"},
        {"storico", "I.col", "--archivio", "A.txt", "--gioco", "Lotto", "--ruota", "Bari", "--dal", "2020-01-01",
         "--al", "2024-12-31", "--minimo", "2", "--posta", "0.5", "--premi", "2=10,3=100"},
    };
    for (const auto& parole : righe) {
        std::string s;
        for (const std::string& p : parole) s += p + fuzz::kSeparatoreParole;
        s.pop_back();
        Scrivi("FuzzArgomenti", parole[0], Testo(s));
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "Uso: GeneraSemi ESEMPIO.sic CARTELLA\n");
        return 2;
    }
    cartella = argv[2];
    try {
        const FileSistema esempio = LeggiFileSistema(argv[1]);
        SemiSistema(esempio);
        SemiGriglia(esempio);
        SemiColonne(esempio);
        SemiSpoglio(esempio);
        SemiArchivio(fs::path(argv[1]).parent_path() / "ArchivioSintetico.txt");
        SemiParametri();
        SemiArgomenti();
    } catch (const Errore& e) {
        std::fprintf(stderr, "Errore %d- %s\n", e.numero(), e.descrizione().c_str());
        return 1;
    }
    return 0;
}
