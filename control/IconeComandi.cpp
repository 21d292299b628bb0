#include "IconeComandi.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace {

struct Disegno {
    const char* immagine;
    QColor colore;
    const char* segno;  // a short glyph; empty for the drawn shapes
};

const Disegno kDisegni[] = {
    {"open", QColor(214, 160, 40), "Ap"},
    {"save", QColor(40, 90, 180), "S"},
    {"new", QColor(90, 150, 90), "N"},
    {"selnumeri", QColor(160, 60, 160), "90"},
    {"condizioni", QColor(50, 120, 140), "C"},
    {"inserisci", QColor(60, 140, 60), "+"},
    {"edit", QColor(120, 100, 40), "E"},
    {"delete", QColor(180, 40, 40), "X"},
    {"quadrorec", QColor(110, 80, 160), "Q"},
    {"linkopen", QColor(70, 110, 170), "("},
    {"linkclose", QColor(70, 110, 170), ")"},
    {"sviluppo", QColor(30, 150, 60), ""},
    {"stop", QColor(200, 30, 30), ""},
    {"viscol", QColor(60, 100, 160), "V"},
    {"decrgrid", QColor(100, 100, 100), "<>"},
    {"incrgrid", QColor(100, 100, 100), "< >"},
    {"naviga", QColor(40, 130, 130), "Nv"},
    {"effettocond", QColor(150, 90, 40), "%"},
    {"confrontocondizioni", QColor(120, 60, 120), "="},
    {"riduci", QColor(60, 60, 150), "R"},
    {"printsk", QColor(80, 80, 80), "P"},
};

}  // namespace

QIcon IconaComando(const QString& immagine) {
    const Disegno* disegno = nullptr;
    for (const Disegno& d : kDisegni) {
        if (immagine.compare(d.immagine, Qt::CaseInsensitive) == 0) disegno = &d;
    }
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::transparent);
    QPainter pittore(&pixmap);
    pittore.setRenderHint(QPainter::Antialiasing);
    const QColor colore = disegno ? disegno->colore : QColor(128, 128, 128);
    pittore.setPen(colore.darker(140));
    pittore.setBrush(colore);
    pittore.drawRoundedRect(QRectF(1.5, 1.5, 21, 21), 4, 4);
    pittore.setPen(Qt::white);
    pittore.setBrush(Qt::white);
    const QString chiave = immagine.toLower();
    if (chiave == "sviluppo") {
        QPainterPath triangolo;
        triangolo.moveTo(8, 6);
        triangolo.lineTo(18, 12);
        triangolo.lineTo(8, 18);
        triangolo.closeSubpath();
        pittore.drawPath(triangolo);
    } else if (chiave == "stop") {
        pittore.drawRect(QRectF(7, 7, 10, 10));
    } else {
        QFont carattere = pittore.font();
        carattere.setBold(true);
        carattere.setPixelSize(11);
        pittore.setFont(carattere);
        pittore.drawText(QRect(0, 0, 24, 24), Qt::AlignCenter, disegno ? disegno->segno : "?");
    }
    return QIcon(pixmap);
}
