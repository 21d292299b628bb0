#include "ImpaginaSchedine.h"

#include <QFontDatabase>
#include <QPainter>
#include <QPainterPath>
#include <QPrinter>

#include <algorithm>
#include <cmath>

#include "Formato.h"
#include "UtilitaSchermo.h"

namespace {

// Each game's slips have their own colour, as the printed ones do.
QColor ColoreGioco(const QString& gioco) {
    if (gioco == "SuperEnalotto") return QColor(46, 125, 50);
    if (gioco.startsWith("10ELotto")) return QColor(21, 101, 192);
    return QColor(198, 40, 40);
}

const QColor kSegno(33, 33, 33);  // the player's mark

QFont Carattere(double altezza, bool grassetto = false, bool fisso = false) {
    QFont f = fisso ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : QFont();
    f.setPixelSize(std::max(1, int(std::lround(altezza))));
    f.setBold(grassetto);
    return f;
}

bool Segnato(const combi::Colonna& colonna, int classe, int numero) {
    for (int p = 1; p <= classe; ++p)
        if (colonna[p] == numero) return true;
    return false;
}

}  // namespace

ImpaginaSchedine::ImpaginaSchedine(DatiSchedine dati, Impaginazione modo)
    : dati_(std::move(dati)), modo_(modo), griglia_(GrigliaDelGioco(dati_.gioco.toStdString())) {}

// Portrait sheets take two slips across and three down, landscape ones three
// across and two down: a slip stays about as wide as it is tall.
int ImpaginaSchedine::Colonne(const QSizeF& pagina) const { return pagina.width() > pagina.height() ? 3 : 2; }
int ImpaginaSchedine::Righe(const QSizeF& pagina) const { return pagina.width() > pagina.height() ? 2 : 3; }

double ImpaginaSchedine::AltezzaIntestazione(const QRectF& pagina) const { return pagina.height() * 0.06; }

namespace {

double Riga(const QSizeF& pagina) { return pagina.height() / 46.0; }
double Spazio(const QSizeF& pagina) { return std::min(pagina.width(), pagina.height()) * 0.025; }

}  // namespace

int ImpaginaSchedine::PerPagina(const QSizeF& pagina) const {
    if (modo_ == Impaginazione::Schedine) return Colonne(pagina) * Righe(pagina);
    const double disponibile = pagina.height() * (1 - 0.06) - Spazio(pagina);
    return 2 * std::max(1, int(disponibile / Riga(pagina)));
}

int ImpaginaSchedine::Pagine(const QSizeF& pagina) const {
    const int per = PerPagina(pagina);
    return std::max(1, int((dati_.colonne.size() + size_t(per) - 1) / size_t(per)));
}

QString ImpaginaSchedine::IntestazioneSinistra() const {
    const QString sistema = dati_.sistema.isEmpty() ? QString("sistema non salvato") : dati_.sistema;
    return QString("Sistema: %1 \u2013 %2, classe %3").arg(sistema, dati_.gioco).arg(dati_.classe);
}

QString ImpaginaSchedine::IntestazioneDestra(int pagina, int pagine) const {
    return QString("%1 \u2013 pagina %2 di %3").arg(dati_.data.toString("dd/MM/yyyy")).arg(pagina).arg(pagine);
}

QRectF ImpaginaSchedine::RettangoloSchedina(const QRectF& pagina, int posizione) const {
    const int colonne = Colonne(pagina.size()), righe = Righe(pagina.size());
    const double spazio = Spazio(pagina.size());
    const double alto = pagina.top() + AltezzaIntestazione(pagina) + spazio;
    const double larghezza = (pagina.width() - (colonne - 1) * spazio) / colonne;
    const double altezza = (pagina.bottom() - alto - (righe - 1) * spazio) / righe;
    const int c = posizione % colonne, r = posizione / colonne;
    return QRectF(pagina.left() + c * (larghezza + spazio), alto + r * (altezza + spazio), larghezza, altezza);
}

// Under the slip's title band and above its line of numbers.
QRectF ImpaginaSchedine::AreaGriglia(const QRectF& s) const {
    const double margine = s.width() * 0.05, titolo = s.height() * 0.12, piede = s.height() * 0.11;
    return QRectF(s.left() + margine, s.top() + titolo + margine * 0.6, s.width() - 2 * margine,
                  s.height() - titolo - piede - margine * 0.6);
}

QRectF ImpaginaSchedine::RettangoloCasella(const QRectF& schedina, int numero) const {
    const QRectF area = AreaGriglia(schedina);
    const double lato = std::min(area.width() / griglia_.colonne, area.height() / griglia_.righe);
    const double x0 = area.left() + (area.width() - lato * griglia_.colonne) / 2;
    const double y0 = area.top() + (area.height() - lato * griglia_.righe) / 2;
    const double bordo = lato * 0.1;
    return QRectF(x0 + griglia_.Colonna(numero) * lato + bordo, y0 + griglia_.Riga(numero) * lato + bordo,
                  lato - 2 * bordo, lato - 2 * bordo);
}

// Two lines: the system, the game and the class; then the columns of the
// page on the left and the date and page number on the right.
void ImpaginaSchedine::DisegnaIntestazione(QPainter& pittore, const QRectF& pagina, int indice, int pagine) const {
    const double alto = AltezzaIntestazione(pagina);
    const QRectF prima(pagina.left(), pagina.top(), pagina.width(), alto * 0.55);
    const QRectF seconda(pagina.left(), pagina.top() + alto * 0.55, pagina.width(), alto * 0.4);
    pittore.setPen(Qt::black);
    pittore.setFont(Carattere(alto * 0.34, true));
    pittore.drawText(prima, Qt::AlignLeft | Qt::AlignVCenter,
                     pittore.fontMetrics().elidedText(IntestazioneSinistra(), Qt::ElideMiddle, int(prima.width())));
    const int per = PerPagina(pagina.size()), quante = int(dati_.colonne.size());
    const int da = std::min(quante, indice * per + 1), a = std::min(quante, (indice + 1) * per);
    pittore.setFont(Carattere(alto * 0.27));
    pittore.drawText(seconda, Qt::AlignLeft | Qt::AlignVCenter,
                     QString("Colonne %1\u2013%2 di %3").arg(TestoContatore(da), TestoContatore(a), TestoContatore(quante)));
    pittore.drawText(seconda, Qt::AlignRight | Qt::AlignVCenter, IntestazioneDestra(indice + 1, pagine));
    pittore.setPen(QPen(Qt::black, std::max(1.0, alto * 0.02)));
    pittore.drawLine(QPointF(pagina.left(), pagina.top() + alto), QPointF(pagina.right(), pagina.top() + alto));
}

void ImpaginaSchedine::DisegnaSchedina(QPainter& pittore, const QRectF& s, int id) const {
    const QColor colore = ColoreGioco(dati_.gioco);
    const combi::Colonna& colonna = dati_.colonne[size_t(id) - 1];
    const double tratto = std::max(1.0, s.width() * 0.004);
    // The frame and the title band.
    QPainterPath cornice;
    cornice.addRoundedRect(s, s.width() * 0.03, s.width() * 0.03);
    pittore.fillPath(cornice, QColor(255, 253, 245));
    const QRectF banda(s.left(), s.top(), s.width(), s.height() * 0.12);
    pittore.save();
    pittore.setClipPath(cornice);
    pittore.fillRect(banda, colore);
    pittore.restore();
    pittore.setPen(QPen(colore, tratto * 1.5));
    pittore.drawPath(cornice);
    const QRectF testoBanda = banda.adjusted(s.width() * 0.04, 0, -s.width() * 0.04, 0);
    pittore.setPen(Qt::white);
    pittore.setFont(Carattere(banda.height() * 0.55, true));
    pittore.drawText(testoBanda, Qt::AlignLeft | Qt::AlignVCenter, "Colonna " + TestoContatore(id));
    pittore.setFont(Carattere(banda.height() * 0.45));
    pittore.drawText(testoBanda, Qt::AlignRight | Qt::AlignVCenter, dati_.gioco);

    // The grid: every number in its box, the column's numbers marked.
    const double lato = RettangoloCasella(s, 1).width();
    for (int n = 1; n <= combi::kMaxNumero; ++n) {
        const QRectF casella = RettangoloCasella(s, n);
        const bool segnato = Segnato(colonna, dati_.classe, n);
        if (segnato) {
            pittore.setPen(Qt::NoPen);
            pittore.setBrush(kSegno);
            pittore.drawRoundedRect(casella, lato * 0.15, lato * 0.15);
            pittore.setPen(Qt::white);
            pittore.setFont(Carattere(lato * 0.55, true));
        } else {
            pittore.setPen(QPen(colore.lighter(130), tratto * 0.6));
            pittore.setBrush(Qt::NoBrush);
            pittore.drawRoundedRect(casella, lato * 0.15, lato * 0.15);
            pittore.setPen(colore);
            pittore.setFont(Carattere(lato * 0.5));
        }
        pittore.drawText(casella, Qt::AlignCenter, QString::number(n));
    }
    pittore.setBrush(Qt::NoBrush);
    // The numbers once more in words, for reading and checking.
    const QRectF piede(s.left(), s.bottom() - s.height() * 0.11, s.width(), s.height() * 0.1);
    pittore.setPen(Qt::black);
    pittore.setFont(Carattere(piede.height() * 0.5, true, true));
    pittore.drawText(piede, Qt::AlignCenter, QString::fromStdString(combi::TestoColonna(colonna, false)));
}

void ImpaginaSchedine::DisegnaElenco(QPainter& pittore, const QRectF& pagina, int indice) const {
    const double riga = Riga(pagina.size());
    const double alto = pagina.top() + AltezzaIntestazione(pagina) + Spazio(pagina.size());
    const int per = PerPagina(pagina.size()), perColonna = per / 2;
    pittore.setPen(Qt::black);
    pittore.setFont(Carattere(riga * 0.7, false, true));
    const int larghezzaId = int(TestoContatore(double(dati_.colonne.size())).size());
    for (int i = 0; i < per; ++i) {
        const int id = indice * per + i + 1;
        if (id > int(dati_.colonne.size())) break;
        const double x = pagina.left() + (i / perColonna) * pagina.width() / 2;
        const QRectF linea(x, alto + (i % perColonna) * riga, pagina.width() / 2, riga);
        pittore.drawText(linea, Qt::AlignLeft | Qt::AlignVCenter,
                         QString("%1)  %2").arg(TestoContatore(id), larghezzaId)
                             .arg(QString::fromStdString(combi::TestoColonna(dati_.colonne[size_t(id) - 1], false))));
    }
}

void ImpaginaSchedine::DisegnaPagina(QPainter& pittore, const QRectF& pagina, int indice) const {
    pittore.save();
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setRenderHint(QPainter::TextAntialiasing);
    DisegnaIntestazione(pittore, pagina, indice, Pagine(pagina.size()));
    if (modo_ == Impaginazione::Elenco) {
        DisegnaElenco(pittore, pagina, indice);
    } else {
        const int per = PerPagina(pagina.size());
        for (int i = 0; i < per; ++i) {
            const int id = indice * per + i + 1;
            if (id > int(dati_.colonne.size())) break;
            DisegnaSchedina(pittore, RettangoloSchedina(pagina, i), id);
        }
    }
    pittore.restore();
}

void ImpaginaSchedine::Stampa(QPrinter& stampante) const {
    QPainter pittore(&stampante);
    const QRectF area = stampante.pageLayout().paintRectPixels(stampante.resolution());
    const QRectF pagina(0, 0, area.width(), area.height());
    const int pagine = Pagine(pagina.size());
    for (int p = 0; p < pagine; ++p) {
        if (p > 0) stampante.newPage();
        DisegnaPagina(pittore, pagina, p);
    }
}
