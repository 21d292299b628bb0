#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QListWidget>
#include <QTemporaryDir>

#include "Banco.h"

namespace {

QByteArray Byte(const QString& percorso) {
    QFile f(percorso);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void SistemaDiProva(Banco& b) {
    b.c.CmbTipoGioco()->setCurrentText("SuperEnalotto");
    b.c.CmbRid()->setCurrentText("2");
    b.Numeri({2, 11, 23, 34, 45, 56, 67, 78, 89, 90});
    b.Condizione(1, "LinkOpen", "L\r\ni\r\nn\r\nk\r\nO\r\np\r\ne\r\nn");
    b.Condizione(2, "Punti Col.", "02-11-23-34-\r\n45", "0-1-2", "3", "1");
    b.Condizione(3, "Ampiezza", "A\r\nm\r\np", "30-80", "20-29", "1");
    b.Condizione(4, "LinkClose", "L\r\ni\r\nn\r\nk\r\nC\r\nl\r\no\r\ns\r\ne", "1-2");
    b.Condizione(5, "Sequenze", "P\r\nD", "1-2");
    b.c.GetLbQuadroRec()->addItem("1,2,-1");
    for (int i = 2; i <= 20; ++i) b.c.GetLbQuadroRec()->addItem("-1,-1,-0");
    b.c.SegnaModificato();
}

}  // namespace

TEST(FileSistemaControllo, SaveAndReopenByteExact) {
    QTemporaryDir cartella;
    const QString primo = cartella.filePath("Prova.sic");
    const QString secondo = cartella.filePath("Copia.sic");
    Banco b;
    b.c.setDirSistemi(cartella.path());
    SistemaDiProva(b);
    b.dialoghi.fileScelti = {primo};
    b.c.EseguiComando("Save");
    ASSERT_EQ(b.dialoghi.dialoghiFile.size(), 1u) << "no file yet: the save dialog asks";
    const DialogoFile& dialogo = b.dialoghi.dialoghiFile[0];
    EXPECT_EQ(dialogo.titolo, "Salva sistema");
    EXPECT_EQ(dialogo.filtro, "Sistemi condizionati (*.sic)|*.sic");
    EXPECT_EQ(dialogo.estensione, ".sic");
    EXPECT_EQ(dialogo.cartella, cartella.path());
    EXPECT_EQ(b.c.FileSistema(), primo);
    EXPECT_FALSE(b.c.SistemaModificato());
    EXPECT_EQ(Byte(primo).size(), 317 + 5 * 270);

    Banco altro;
    altro.dialoghi.fileScelti = {primo, secondo};
    altro.c.EseguiComando("Open");
    EXPECT_EQ(altro.dialoghi.dialoghiFile[0].titolo, "Apri sistema");
    EXPECT_TRUE(altro.dialoghi.boxes.empty());
    EXPECT_EQ(altro.c.CmbClasse()->currentText(), "6");
    EXPECT_EQ(altro.c.CmbRid()->currentText(), "2");
    EXPECT_EQ(altro.c.ContaNumeriSel(), 10);
    EXPECT_EQ(altro.Cella(1, 3), "Ampiezza");
    EXPECT_EQ(altro.Cella(3, 3), "30-80");
    EXPECT_EQ(altro.Cella(3, 4), "1-2");
    EXPECT_EQ(altro.c.GetLbQuadroRec()->count(), 20);
    EXPECT_EQ(altro.c.GetLbQuadroRec()->item(0)->text(), "1,2,-1");
    EXPECT_EQ(altro.c.GetLbQuadroRec()->item(1)->text(), "-1,-1,0") << "minimum, maximum, active";
    EXPECT_EQ(altro.c.GetGridCond()->ColonnaCorrente(), 1);
    EXPECT_TRUE(altro.c.VoceMenu("Salva")->isEnabled());
    EXPECT_FALSE(altro.c.SistemaModificato());

    altro.c.EseguiComando("SalvaConNome");
    EXPECT_EQ(Byte(secondo), Byte(primo));
}

TEST(FileSistemaControllo, EmptySystemCancelAndBlankReduction) {
    QTemporaryDir cartella;
    const QString vuoto = cartella.filePath("Vuoto.sic");
    Banco b;
    b.dialoghi.fileScelti = {vuoto};
    b.c.EseguiComando("SalvaConNome");
    EXPECT_EQ(Byte(vuoto).size(), 587) << "an empty grid saves one zeroed record";
    EXPECT_EQ(Byte(vuoto).mid(9, 2), QByteArray(2, '\0')) << "no reduction chosen stores 0";

    b.c.EseguiComando("SalvaConNome");  // cancelled
    EXPECT_EQ(b.c.FileSistema(), "");
    b.dialoghi.fileScelti = {cartella.filePath("Dopo.sic")};
    b.c.EseguiComando("Salva");
    EXPECT_EQ(b.dialoghi.dialoghiFile.size(), 3u) << "after a cancel the next Salva asks again";

    Banco altro;
    altro.c.CmbRid()->setCurrentIndex(3);
    altro.dialoghi.fileScelti = {vuoto};
    altro.c.Apri();
    EXPECT_EQ(altro.c.CmbRid()->currentIndex(), -1) << "no entry reads 0";
    ASSERT_EQ(altro.c.GetLbQuadroRec()->count(), 20);
    EXPECT_EQ(altro.c.GetLbQuadroRec()->item(19)->text(), "0,0,0");
    EXPECT_EQ(altro.c.LabGaranzia()->text(), "A condizioni superate garanzia 5");
}

TEST(FileSistemaControllo, FailuresAreReported) {
    QTemporaryDir cartella;
    const QString corto = cartella.filePath("Corto.sic");
    {
        QFile f(corto);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(QByteArray(400, '\0'));
    }
    Banco b;
    b.Condizione(1, "LinkOpen");
    b.dialoghi.fileScelti = {corto};
    b.c.Apri();
    ASSERT_NE(b.dialoghi.Ultimo(), nullptr);
    EXPECT_EQ(b.dialoghi.Ultimo()->tipo, "critico");
    EXPECT_EQ(b.dialoghi.Ultimo()->titolo, "CombiFiltro.Apri");
    EXPECT_TRUE(b.dialoghi.Ultimo()->testo.startsWith("62- "));
    EXPECT_EQ(b.Cella(1, 1), "LinkOpen") << "a failed load keeps the grid";
    EXPECT_EQ(b.c.FileSistema(), corto);

    b.c.SegnaModificato();
    QString impossibile = cartella.filePath("manca/x.sic");
    b.c.Salva(impossibile);
    EXPECT_EQ(b.dialoghi.Ultimo()->titolo, "CombiFiltro.Salva");
    EXPECT_TRUE(b.c.SistemaModificato());
}

TEST(FileSistemaControllo, ColumnsFile) {
    QTemporaryDir cartella;
    Banco b;
    b.c.setDirSistemi(cartella.path());
    b.NumeriDa1A(7);
    b.c.GestSviluppo();
    ASSERT_EQ(b.c.QuantitaColonne(), 21);
    const QString colonne = cartella.filePath("Colonne.col");
    b.dialoghi.fileScelti = {colonne};
    b.c.EseguiComando("SalvaColonne");
    const DialogoFile& dialogo = b.dialoghi.dialoghiFile.back();
    EXPECT_EQ(dialogo.titolo, "Salva colonne");
    EXPECT_EQ(dialogo.nome, "NuovoSistema.col");
    EXPECT_EQ(dialogo.filtro, "File colonne (*.col)|*.col");
    const QByteArray byte = Byte(colonne);
    ASSERT_EQ(byte.size(), 21 * 20);
    EXPECT_EQ(byte.left(6), QByteArray("\x01\x02\x03\x04\x05\x00", 6));

    b.dialoghi.fileScelti = {cartella.filePath("Mio.sic")};
    b.c.EseguiComando("SalvaConNome");
    b.c.EseguiComando("SalvaColonne");  // cancelled
    EXPECT_EQ(b.dialoghi.dialoghiFile.back().nome, "Mio.col");
}
