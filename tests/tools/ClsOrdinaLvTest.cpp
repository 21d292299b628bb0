// The list sorter. The height of the small arrow drawn in a sorted column's
// heading is left unchecked: its tip one pixel of twelve higher or lower is
// nothing a user can tell.
#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>
#include <QTreeWidget>

#include <algorithm>
#include <string>
#include <vector>

#include "ClsOrdinaLv.h"
#include "Errore.h"
#include "OrdinaLv.h"

namespace {

struct Riga {
    Riga(QStringList t = {}, QString k = {}, QString g = {}) : testi(std::move(t)), chiave(std::move(k)), tag(std::move(g)) {}
    QStringList testi;
    QString chiave, tag;
    bool operator==(const Riga&) const = default;
};

QIcon Tinta(Qt::GlobalColor colore) {
    QPixmap p(8, 8);
    p.fill(colore);
    return QIcon(p);
}

void Riempi(QTreeWidget& lista, const std::vector<Riga>& righe) {
    lista.clear();
    for (const Riga& r : righe) lista.addTopLevelItem(CreaRiga(r.testi, r.chiave, r.tag));
}

std::vector<Riga> Righe(const QTreeWidget& lista) {
    std::vector<Riga> righe;
    for (int i = 0; i < lista.topLevelItemCount(); ++i) {
        const QTreeWidgetItem* v = lista.topLevelItem(i);
        Riga r;
        for (int c = 0; c < lista.columnCount(); ++c) r.testi << v->text(c);
        r.chiave = v->data(0, kRuoloChiave).toString();
        r.tag = v->data(0, kRuoloTag).toString();
        righe.push_back(r);
    }
    return righe;
}

QStringList Colonna(const QTreeWidget& lista, int c) {
    QStringList testi;
    for (int i = 0; i < lista.topLevelItemCount(); ++i) testi << lista.topLevelItem(i)->text(c);
    return testi;
}

std::vector<int> Icone(const QTreeWidget& lista) {
    std::vector<int> icone;
    // Columns outside the list have no icon: 0 around the real ones.
    for (int c = 0; c <= lista.columnCount() + 1; ++c) icone.push_back(IconaIntestazione(lista, c));
    EXPECT_EQ(icone.front(), 0);
    EXPECT_EQ(icone.back(), 0);
    return std::vector<int>(icone.begin() + 1, icone.end() - 1);
}

}  // namespace

TEST(ClsOrdinaLv, NumericAndTextKeysInBothOrders) {
    QTreeWidget lista;
    lista.setHeaderLabels({"Nome", "Valore"});
    Riempi(lista, {{{"x", "99"}, "k1", "t1"}, {{"y", "1.234,5"}, "k2", "t2"}, {{"z", "abc"}, "k3", "t3"},
                   {{"w", "-3"}, "k4", "t4"}, {{"v", "99,00004"}, "k5", "t5"}});
    const std::vector<Riga> prima = Righe(lista);
    ClsOrdinaLv ordina;

    ordina.Ordina(lista, 2, combi::kOrdinaNumero, combi::kDecrescente);
    // "1.234,5" is 1234.5 (dots group thousands), "abc" is 0; 99,00004
    // rounds to 99 at four decimals, so it ties with 99.
    EXPECT_EQ(Colonna(lista, 1).mid(0, 1), QStringList{"1.234,5"});
    EXPECT_EQ(Colonna(lista, 1).mid(3), (QStringList{"abc", "-3"}));
    // Sub-items, keys and tags travel with their rows.
    for (const Riga& r : Righe(lista)) EXPECT_NE(std::find(prima.begin(), prima.end(), r), prima.end()) << r.chiave.toStdString();

    ordina.Ordina(lista, 1, combi::kOrdinaTesto, combi::kDecrescente);
    const QStringList decrescente = Colonna(lista, 0);
    EXPECT_EQ(decrescente, (QStringList{"z", "y", "x", "w", "v"}));
    ordina.Ordina(lista, 1, combi::kOrdinaTesto, combi::kCrescente);
    QStringList rovescia(decrescente.rbegin(), decrescente.rend());
    EXPECT_EQ(Colonna(lista, 0), rovescia) << "distinct keys: the two orders are mirror images";

    // Character codes, case-sensitive: lower case sorts above upper case.
    Riempi(lista, {{{"a", "1"}}, {{"B", "2"}}, {{"b", "3"}}});
    ordina.Ordina(lista, 1, combi::kOrdinaTesto, combi::kDecrescente);
    EXPECT_EQ(Colonna(lista, 0), (QStringList{"b", "a", "B"}));
    // Numbers as text compare digit by digit; as numbers by value.
    Riempi(lista, {{{"9", ""}}, {{"10", ""}}, {{"100", ""}}});
    ordina.Ordina(lista, 1, combi::kOrdinaTesto, combi::kDecrescente);
    EXPECT_EQ(Colonna(lista, 0), (QStringList{"9", "100", "10"}));
    ordina.Ordina(lista, 1, combi::kOrdinaNumeroBis, combi::kDecrescente);
    EXPECT_EQ(Colonna(lista, 0), (QStringList{"100", "10", "9"}));
}

TEST(ClsOrdinaLv, EqualKeysComeOutInTheQuicksortOrder) {
    // Four equal keys: the list quicksort's pivot exchanges leave the rows as
    // 3, 4, 1, 2 going down and 2, 1, 4, 3 going up, where a stable sort (or
    // Qt's) would keep 1, 2, 3, 4. Tags travel with their rows.
    QTreeWidget lista;
    lista.setHeaderLabels({"Punti", "Riga"});
    std::vector<Riga> righe;
    for (int i = 1; i <= 4; ++i) righe.push_back({{"5", QString::number(i)}, {}, QString("t%1").arg(i)});
    struct Caso { int ordine; QStringList righe; } casi[] = {{combi::kDecrescente, {"3", "4", "1", "2"}},
                                                              {combi::kCrescente, {"2", "1", "4", "3"}}};
    for (const Caso& caso : casi) {
        Riempi(lista, righe);
        ClsOrdinaLv().Ordina(lista, 1, combi::kOrdinaNumeroBis, caso.ordine);
        EXPECT_EQ(Colonna(lista, 1), caso.righe) << caso.ordine;
        for (const Riga& r : Righe(lista)) EXPECT_EQ(r.tag, "t" + r.testi[1]);
    }
}

TEST(ClsOrdinaLv, HeaderIconsShowTheSortedColumnAndItsDirection) {
    QTreeWidget lista;
    lista.setHeaderLabels({"Colonna", "Numeri", "Punti"});
    Riempi(lista, {{{"1", "01 02", "2"}}, {{"2", "03 04", "1"}}});

    // Without an image list the headers stay as they are.
    ClsOrdinaLv().Ordina(lista, 3, combi::kOrdinaNumeroBis, combi::kDecrescente);
    EXPECT_EQ(Icone(lista), (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(Colonna(lista, 2), (QStringList{"2", "1"}));

    ImpostaIconeIntestazioni(lista, Tinta(Qt::green), Tinta(Qt::red));
    ClsOrdinaLv().Ordina(lista, 3, combi::kOrdinaNumeroBis, combi::kDecrescente);
    EXPECT_EQ(Icone(lista), (std::vector<int>{0, 0, 2}));
    ClsOrdinaLv().Ordina(lista, 3, combi::kOrdinaNumeroBis, combi::kCrescente);
    EXPECT_EQ(Icone(lista), (std::vector<int>{0, 0, 1}));
    ClsOrdinaLv().Ordina(lista, 2, combi::kOrdinaTesto, combi::kDecrescente);
    EXPECT_EQ(Icone(lista), (std::vector<int>{0, 2, 0})) << "the previous column loses its icon";

    // One row: nothing is touched, not even the headers.
    Riempi(lista, {{{"7", "05 06", "0"}, "chiave", "tag"}});
    ClsOrdinaLv().Ordina(lista, 1, combi::kOrdinaNumeroBis, combi::kCrescente);
    EXPECT_EQ(Icone(lista), (std::vector<int>{0, 2, 0}));
    EXPECT_EQ(Righe(lista), (std::vector<Riga>{{{"7", "05 06", "0"}, "chiave", "tag"}}));

    // A refused kind or order throws and leaves rows and headers alone.
    Riempi(lista, {{{"1", "a", "1"}}, {{"2", "b", "2"}}});
    const std::vector<Riga> prima = Righe(lista);
    EXPECT_THROW(ClsOrdinaLv().Ordina(lista, 1, 4, combi::kDecrescente), combi::Errore);
    EXPECT_THROW(ClsOrdinaLv().Ordina(lista, 1, combi::kOrdinaTesto, 2), combi::Errore);
    EXPECT_EQ(Righe(lista), prima);
    EXPECT_EQ(Icone(lista), (std::vector<int>{0, 2, 0}));
}

// The arrows of the sorted heading: each mirrors itself across the middle of
// its twelve pixels (a lopsided arrow is a glitch one sees), the ascending
// one wide at the bottom, the descending one at the top.
TEST(ClsOrdinaLv, TheArrowsAreSymmetricAndPointTheirWay) {
    QTreeWidget lista;
    lista.setHeaderLabels({"A"});
    ImpostaFrecceIntestazioni(lista);
    Riempi(lista, {{{"2"}}, {{"1"}}});
    for (int ordine : {combi::kCrescente, combi::kDecrescente}) {
        ClsOrdinaLv().Ordina(lista, 1, combi::kOrdinaTesto, ordine);
        const QImage freccia = lista.headerItem()->icon(0).pixmap(12, 12).toImage();
        ASSERT_EQ(freccia.width(), 12);
        const auto Inchiostro = [&](int x, int y) { return qAlpha(freccia.pixel(x, y)); };
        int riga3 = 0, riga9 = 0;
        for (int x = 0; x < 12; ++x) {
            riga3 += Inchiostro(x, 3), riga9 += Inchiostro(x, 9);
            for (int y = 0; y < 12; ++y) EXPECT_NEAR(Inchiostro(x, y), Inchiostro(11 - x, y), 8) << x << "," << y;
        }
        EXPECT_EQ(riga9 > 2 * riga3, ordine == combi::kCrescente);
        EXPECT_EQ(riga3 > 2 * riga9, ordine == combi::kDecrescente);
    }
}
