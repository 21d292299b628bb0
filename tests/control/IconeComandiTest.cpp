// The toolbar icons: drawn for every command, sharp at any size, and told
// apart from one another, "<>" from "< >" above all.

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

#include <set>

#include "ComandiPannello.h"
#include "IconeComandi.h"

namespace {

QImage Immagine(const QIcon& icona, int lato, qreal rapporto = 1.0) {
    return icona.pixmap(QSize(lato, lato), rapporto).toImage().convertToFormat(QImage::Format_ARGB32);
}

double QuotaDisegnata(const QImage& immagine) {
    int piene = 0;
    for (int y = 0; y < immagine.height(); ++y)
        for (int x = 0; x < immagine.width(); ++x) piene += qAlpha(immagine.pixel(x, y)) > 128;
    return double(piene) / (immagine.width() * immagine.height());
}

// Share of the pixels whose colour differs clearly between two pictures.
double QuotaDiversa(const QImage& a, const QImage& b) {
    int diverse = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            diverse += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q)) +
                           std::abs(qAlpha(p) - qAlpha(q)) > 120;
        }
    return double(diverse) / (a.width() * a.height());
}

}  // namespace

TEST(IconeComandi, EveryCommandHasItsOwnVectorIcon) {
    const QImage sconosciuta = Immagine(IconaComando("nessuna-immagine"), 24);
    ASSERT_FALSE(sconosciuta.isNull());
    std::vector<std::pair<QString, QImage>> disegni;
    for (const ComandoPannello& comando : ComandiPannello()) {
        const QString chiave = comando.immagine;
        SCOPED_TRACE(chiave.toStdString());
        const QIcon icona = IconaComando(chiave);
        ASSERT_FALSE(icona.isNull());
        for (int lato : {16, 24, 32}) {
            const QImage immagine = Immagine(icona, lato);
            ASSERT_EQ(immagine.size(), QSize(lato, lato));
            EXPECT_GT(QuotaDisegnata(immagine), 0.12) << lato << " px: hardly anything drawn";
        }
        // Drawn anew for a high-DPI screen, not a small picture stretched.
        EXPECT_EQ(Immagine(icona, 24, 2.0).size(), QSize(48, 48));
        EXPECT_GT(QuotaDiversa(Immagine(icona, 24), sconosciuta), 0.08) << "the neutral icon";
        disegni.emplace_back(chiave, Immagine(icona, 24));
    }
    for (size_t i = 0; i < disegni.size(); ++i)
        for (size_t j = i + 1; j < disegni.size(); ++j)
            EXPECT_GT(QuotaDiversa(disegni[i].second, disegni[j].second), 0.08)
                << disegni[i].first.toStdString() << " and " << disegni[j].first.toStdString() << " look alike";
    // The two width commands side by side: no pair is closer to be confused.
    EXPECT_GT(QuotaDiversa(Immagine(IconaComando("decrgrid"), 16), Immagine(IconaComando("incrgrid"), 16)), 0.2);
    EXPECT_EQ(Immagine(IconaComando("VisCol"), 24), Immagine(IconaComando("viscol"), 24)) << "keys in any case";
}
