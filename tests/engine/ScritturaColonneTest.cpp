// Columns written as a run produces them, and held past the memory: the file
// on disk and the mapped temporary file must hold exactly the columns given,
// in order; a full disk must leave the old file and no partial one. Whether a
// batch of exactly 65,536 bytes (or any size up to 128 KB) goes straight to
// the file or through the buffer, and whether a batch that just fills the
// buffer empties it first, change only when the bytes reach it, never which.
// The full disk is brought about with a file size limit (EFBIG); a real
// ENOSPC, which no test can cause, is read by the same comparison, and a
// write of 0 bytes, which a disk never answers, by either branch.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "../CartellaDiProva.h"
#include "ColonnaDiProva.h"
#include "ColonneSviluppate.h"
#include "Errore.h"
#include "FileColonne.h"
#include "ScritturaColonne.h"

namespace combi {
namespace {

namespace fs = std::filesystem;
using test::Col;

class ScritturaColonneTest : public test::TestConCartella {
protected:
    ScritturaColonneTest() : TestConCartella("cf-scrittura-") {}
    size_t FileNellaCartella() const {
        return size_t(std::distance(fs::directory_iterator(cartella_), fs::directory_iterator{}));
    }
};

// Columns with distinct contents: column i holds i % 90 + 1, 90 - i % 90 and i / 90 % 90 + 1.
std::vector<Colonna> Numerate(size_t n) {
    std::vector<Colonna> v;
    for (size_t i = 0; i < n; ++i) v.push_back(Col({int(i % 90) + 1, 90 - int(i % 90), int(i / 90 % 90) + 1}));
    return v;
}

// The file's length and first bytes written out by hand: 20 bytes a column,
// the numbers first, zeros after.
TEST_F(ScritturaColonneTest, BatchesOfAnySizeLandInOrder) {
    const std::string percorso = Percorso("a.col");
    const std::vector<Colonna> colonne = Numerate(120'000);  // 2.4 MB, past the 1 MB buffer
    {
        ScritturaColonne s(percorso);
        s.Accoda(std::span(colonne).first(7));
        s.Accoda(std::span(colonne).subspan(7, 60'000));  // straight to the file
        s.Accoda({});
        s.Accoda(std::span(colonne).subspan(60'007));
        EXPECT_FALSE(fs::exists(percorso)) << "nothing in place before the end";
        s.Concludi();
    }
    EXPECT_EQ(fs::file_size(percorso), 2'400'000u);
    std::ifstream in(percorso, std::ios::binary);
    std::vector<char> testa(24);
    in.read(testa.data(), 24);
    EXPECT_EQ(std::vector<int>(testa.begin(), testa.end()),
              (std::vector<int>{1, 90, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2, 89, 1, 0}));
    EXPECT_EQ(LeggiFileColonne(percorso), colonne);
    EXPECT_EQ(FileNellaCartella(), 1u) << "no temporary file left";
}

// A writer dropped before its end (a failed run) leaves the old file as it was.
TEST_F(ScritturaColonneTest, AnUnfinishedWriteLeavesTheOldFile) {
    const std::string percorso = Percorso("b.col");
    ScriviFileColonne(percorso, {Col({1, 2, 3})});
    {
        ScritturaColonne s(percorso);
        s.Accoda(Numerate(5000));
    }
    EXPECT_EQ(LeggiFileColonne(percorso), std::vector<Colonna>{Col({1, 2, 3})});
    EXPECT_EQ(FileNellaCartella(), 1u);
}

// New files take the user's umask, as any program's do.
TEST_F(ScritturaColonneTest, FilesTakeTheUmask) {
    for (mode_t maschera : {mode_t(022), mode_t(077), mode_t(002)}) {
        const mode_t prima = ::umask(maschera);
        const std::string percorso = Percorso("u" + std::to_string(maschera) + ".col");
        ScriviFileColonne(percorso, {Col({4})});
        ::umask(prima);
        struct stat st {};
        ASSERT_EQ(::stat(percorso.c_str(), &st), 0);
        EXPECT_EQ(st.st_mode & 0777, 0666 & ~maschera) << std::oct << maschera;
    }
}

// A process that may write no file longer than `byte`: the kernel refuses
// the write past it (EFBIG) as a full disk would (ENOSPC).
class LimiteDimensione {
public:
    explicit LimiteDimensione(rlim_t byte) {
        ::getrlimit(RLIMIT_FSIZE, &prima_);
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit nuovo = prima_;
        nuovo.rlim_cur = byte;
        ::setrlimit(RLIMIT_FSIZE, &nuovo);
    }
    ~LimiteDimensione() { ::setrlimit(RLIMIT_FSIZE, &prima_); }

private:
    rlimit prima_{};
};

int NumeroErrore(const std::function<void()>& f) {
    try {
        f();
    } catch (const Errore& e) {
        return e.numero();
    }
    return 0;
}

// The open descriptors of this process: a failed write closes its own.
size_t DescrittoriAperti() {
    return size_t(std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator{}));
}

TEST_F(ScritturaColonneTest, AFullDiskSaysSoAndLosesNothing) {
    const std::string percorso = Percorso("c.col");
    ScriviFileColonne(percorso, {Col({7, 8})});
    const std::vector<Colonna> molte = Numerate(200'000);  // 4 MB
    const size_t aperti = DescrittoriAperti();
    {
        LimiteDimensione limite(1'000'000);
        EXPECT_EQ(NumeroErrore([&] {
                      ScritturaColonne s(percorso);
                      s.Accoda(molte);
                      s.Concludi();
                  }),
                  kErroreDiscoPieno);
        EXPECT_EQ(NumeroErrore([&] { ScriviFileColonne(percorso, molte); }), kErroreDiscoPieno);
    }
    {
        ScritturaColonne abbandonata(percorso);  // never concluded, as a stopped save
        abbandonata.Accoda(std::vector<Colonna>{Col({1, 2})});
    }
    EXPECT_EQ(LeggiFileColonne(percorso), std::vector<Colonna>{Col({7, 8})});
    EXPECT_EQ(FileNellaCartella(), 1u);
    EXPECT_EQ(DescrittoriAperti(), aperti);
}

// Below the threshold in memory, past it in a mapped file: the same columns
// in the same order either way, and a full disk keeps what came before.
TEST_F(ScritturaColonneTest, DevelopedColumnsMoveToAFilePastTheThreshold) {
    const std::vector<Colonna> colonne = Numerate(30'000);
    ColonneSviluppate c(10'000, cartella_.string() + "/");
    c.Accoda(std::span(colonne).first(9'000));
    EXPECT_FALSE(c.SuFile());
    c.Accoda(std::span(colonne).subspan(9'000, 2'000));  // passes 10000
    EXPECT_TRUE(c.SuFile());
    EXPECT_EQ(std::vector<Colonna>(c.Colonne().begin(), c.Colonne().end()),
              std::vector<Colonna>(colonne.begin(), colonne.begin() + 11'000));
    c.Accoda(std::span(colonne).subspan(11'000));
    ASSERT_EQ(c.Quante(), 30'000u);
    EXPECT_TRUE(std::equal(colonne.begin(), colonne.end(), c.Colonne().begin()));
    EXPECT_EQ(FileNellaCartella(), 0u) << "the temporary file has no name";
    {
        LimiteDimensione limite(700'000);  // 35000 columns at most
        EXPECT_EQ(NumeroErrore([&] { c.Accoda(colonne); }), kErroreDiscoPieno);
    }
    EXPECT_EQ(c.Quante(), 30'000u);
    EXPECT_TRUE(std::equal(colonne.begin(), colonne.end(), c.Colonne().begin()));

    c.Sostituisci({Col({5, 6})});
    EXPECT_FALSE(c.SuFile());
    EXPECT_EQ(std::vector<Colonna>(c.Colonne().begin(), c.Colonne().end()), std::vector<Colonna>{Col({5, 6})});
    c.Svuota();
    EXPECT_EQ(c.Quante(), 0u);
    EXPECT_TRUE(c.Colonne().empty());

    // A folder that is not there: refused with its name when the file is needed.
    const std::string manca = cartella_.string() + "/manca/";
    ColonneSviluppate senza(10, manca);
    senza.Accoda(std::span(colonne).first(10));
    try {
        senza.Accoda(std::span(colonne).first(1));
        ADD_FAILURE() << "a file in a missing folder";
    } catch (const Errore& e) {
        EXPECT_EQ(e.numero(), kErroreAccessoFile);
        EXPECT_EQ(std::string(e.what()).rfind("Impossibile creare il file temporaneo delle colonne in " + manca + " (", 0), 0u);
    }
    EXPECT_EQ(senza.Quante(), 10u);
}

}  // namespace
}  // namespace combi
