#include "GrigliaCondizioni.h"

#include <QHeaderView>
#include <QScrollBar>

namespace {

const char* const kIntestazioni[GrigliaCondizioni::kRighe] = {
    "Numero", "Condizione", "Parametri", "Punti", "Recupero", "Quadro Rec."};

// Raw texts live in the user role; the display role holds the same text with
// plain line feeds, which is what Qt's text layout breaks lines on.
constexpr int kRuoloTesto = Qt::UserRole;

bool RigaFissa(int riga) { return riga <= 1; }

}  // namespace

GrigliaCondizioni::GrigliaCondizioni(QWidget* genitore) : QTableWidget(genitore) {
    setObjectName("GrdCond");
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setWordWrap(true);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    horizontalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(1);  // the width limits are ours
    connect(this, &QTableWidget::currentCellChanged, this, [this] { Evidenzia(); });
    connect(this, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* cella) {
        if (cella->row() == 1) SegnaColonnaVuota();
    });
    LayOut();
}

QTableWidgetItem* GrigliaCondizioni::Cella(int riga, int colonna) const {
    if (riga < 0 || riga >= rowCount() || colonna < 0 || colonna >= columnCount()) return nullptr;
    return item(riga, colonna);
}

QString GrigliaCondizioni::Testo(int riga, int colonna) const {
    const QTableWidgetItem* cella = Cella(riga, colonna);
    return cella ? cella->data(kRuoloTesto).toString() : QString();
}

void GrigliaCondizioni::ImpostaTesto(int riga, int colonna, const QString& testo) {
    if (riga < 1 || colonna < 1) return;
    QTableWidgetItem* cella = Cella(riga, colonna);
    if (cella == nullptr) return;
    cella->setData(kRuoloTesto, testo);
    cella->setData(Qt::DisplayRole, QString(testo).replace("\r\n", "\n"));
}

void GrigliaCondizioni::SvuotaColonna(int colonna) {
    for (int riga = 1; riga < kRighe; ++riga) ImpostaTesto(riga, colonna, QString());
}

void GrigliaCondizioni::LayOut() {
    occupata_ = true;
    colonnaEvidenziata_ = 0;
    colonnaVuotaSegnata_ = 0;
    setUpdatesEnabled(false);
    // The grid was drawn in "MS Sans Serif" at its 8 points: the platform's
    // sans-serif family at the same size, so rows and widths keep their
    // proportions. Word wrap stays on.
    QFont carattere;
    carattere.setStyleHint(QFont::SansSerif);
    carattere.setFamily(carattere.defaultFamily());
    carattere.setPointSize(8);
    setFont(carattere);
    clear();
    setRowCount(kRighe);
    setColumnCount(kColonne);

    const QFontMetrics metriche(font());
    const int altezzaW = metriche.height();
    QFont grassetto = font();
    grassetto.setBold(true);
    const QBrush sfondoFisso = palette().button();

    QStringList intestazioni;
    for (const char* testo : kIntestazioni) intestazioni << testo;
    setVerticalHeaderLabels(intestazioni);

    for (int colonna = 0; colonna < kColonne; ++colonna) {
        for (int riga = 0; riga < kRighe; ++riga) {
            auto* cella = new QTableWidgetItem;
            cella->setTextAlignment(Qt::AlignCenter);
            QString testo;
            if (colonna == 0) testo = kIntestazioni[riga];
            else if (riga == 0) testo = QString::number(colonna);
            cella->setData(kRuoloTesto, testo);
            cella->setData(Qt::DisplayRole, testo);
            if (RigaFissa(riga) || colonna == 0) {
                cella->setFlags(Qt::ItemIsEnabled);
                cella->setBackground(sfondoFisso);
            } else {
                cella->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            }
            if (riga == 0) cella->setFont(grassetto);
            setItem(riga, colonna, cella);
        }
        setColumnWidth(colonna, metriche.horizontalAdvance("XXXXXXXXXXXXXXXXX"));
    }
    setColumnHidden(0, true);
    for (int riga = 0; riga < kRighe; ++riga) setRowHeight(riga, altezzaW + 6);
    setRowHeight(0, 2 * altezzaW);
    setRowHeight(2, 15 * altezzaW);
    AdattaAltezza();
    setCurrentItem(nullptr);  // no condition selected, none highlighted
    horizontalScrollBar()->setValue(0);
    setUpdatesEnabled(true);
    occupata_ = false;
}

void GrigliaCondizioni::AdattaAltezza() {
    int altezza = 2 * frameWidth();
    for (int riga = 0; riga < kRighe; ++riga) altezza += rowHeight(riga);
    altezza += horizontalScrollBar()->sizeHint().height();
    setMinimumHeight(altezza);
}

int GrigliaCondizioni::PrimaColonnaLibera() const {
    const int c = ColonnaCorrente();
    if (c >= 1 && !Testo(1, c - 1).isEmpty() && Testo(1, c).isEmpty()) return c;
    // Column 0's heading "Condizione" counts as filled: an empty grid gives 1.
    for (int i = kUltimaColonna; i >= 1; --i) {
        if (Testo(1, i).isEmpty() && !Testo(1, i - 1).isEmpty()) return i;
    }
    return 0;
}

int GrigliaCondizioni::UltimaColonnaUsata() const {
    for (int i = kUltimaColonna; i >= 1; --i) {
        if (!Testo(1, i).isEmpty()) return i;
    }
    return 0;
}

int GrigliaCondizioni::ContaCondizioniInLink(int colonna) const {
    int quante = 0;
    for (int i = std::min(colonna, int(kUltimaColonna)); i >= 1; --i) {
        if (Testo(1, i) == "LinkOpen") break;
        ++quante;
    }
    return quante;
}

void GrigliaCondizioni::InserisciColonna(int colonna) {
    if (colonna < 1 || colonna > kUltimaColonna) return;
    for (int j = kUltimaColonna; j > colonna; --j) {
        for (int riga = 1; riga < kRighe; ++riga) ImpostaTesto(riga, j, Testo(riga, j - 1));
    }
    SvuotaColonna(colonna);
}

void GrigliaCondizioni::EliminaColonna(int colonna) {
    if (colonna < 1 || colonna > kUltimaColonna) return;
    const int ultima = UltimaColonnaUsata();
    SvuotaColonna(colonna);
    // An empty column right of the last condition has nothing to close up;
    // emptying the last condition there would delete what the user did not
    // select.
    if (colonna > ultima) return;
    for (int j = colonna; j < ultima; ++j) {
        for (int riga = 1; riga < kRighe; ++riga) ImpostaTesto(riga, j, Testo(riga, j + 1));
    }
    SvuotaColonna(ultima);
}

void GrigliaCondizioni::ColoraColonna(int colonna, const QColor& colore) {
    for (int riga = 2; riga < kRighe; ++riga) {
        if (QTableWidgetItem* cella = Cella(riga, colonna)) {
            cella->setBackground(colore.isValid() ? QBrush(colore) : QBrush());
        }
    }
}

int GrigliaCondizioni::ColonnaVuotaInterna() const {
    const int ultima = UltimaColonnaUsata();
    for (int c = 1; c < ultima; ++c)
        if (Testo(1, c).trimmed().isEmpty()) return c;
    return 0;
}

void GrigliaCondizioni::SegnaColonnaVuota() {
    if (occupata_) return;
    const int vuota = ColonnaVuotaInterna();
    if (vuota == colonnaVuotaSegnata_) return;
    occupata_ = true;  // the colours below change cells too
    for (const int c : {colonnaVuotaSegnata_, vuota}) {
        const bool segna = c == vuota;
        for (int riga = 0; riga <= 1 && c > 0; ++riga) {
            QTableWidgetItem* cella = Cella(riga, c);
            if (!cella) continue;
            cella->setBackground(segna ? QBrush(ColoreColonnaVuota()) : QBrush());
            cella->setToolTip(segna ? "Colonna vuota: le condizioni alla sua destra non vengono considerate"
                                    : QString());
        }
    }
    colonnaVuotaSegnata_ = vuota;
    occupata_ = false;
}

void GrigliaCondizioni::Evidenzia() {
    if (occupata_) return;
    occupata_ = true;
    const int c = ColonnaCorrente();
    if (c != colonnaEvidenziata_) {
        if (colonnaEvidenziata_ > 0) ColoraColonna(colonnaEvidenziata_, QColor());
        if (c > 0) {
            // The current cell is drawn selected: in the same colour, so the
            // whole condition reads as one highlighted column.
            const QColor colore = ColoreSelezione();
            QPalette tavolozza = palette();
            tavolozza.setColor(QPalette::Highlight, colore);
            tavolozza.setColor(QPalette::HighlightedText, tavolozza.color(QPalette::Text));
            setPalette(tavolozza);
            ColoraColonna(c, colore);
        }
        colonnaEvidenziata_ = c;
    }
    occupata_ = false;
}

QColor GrigliaCondizioni::ColoreSelezione() const {
    if (fonteColore_) return fonteColore_->palette().color(fonteColore_->backgroundRole());
    return QColor(204, 228, 255);  // a pale blue that leaves the black texts readable
}

int GrigliaCondizioni::LarghezzaW() const { return QFontMetrics(font()).horizontalAdvance("W"); }

bool GrigliaCondizioni::CambiaLarghezzaColonne(int passo) {
    const int w = LarghezzaW();
    const int larghezza = columnWidth(1) + (passo > 0 ? w : -w);
    if (larghezza <= w || larghezza > 50 * w) return false;
    for (int colonna = 1; colonna <= kUltimaColonna; ++colonna) setColumnWidth(colonna, larghezza);
    return true;
}

int GrigliaCondizioni::ColonnaSinistra() const {
    const int colonna = columnAt(0);
    return colonna < 1 ? 1 : colonna;
}

void GrigliaCondizioni::ImpostaColonnaSinistra(int colonna) {
    if (colonna < 1 || colonna > kUltimaColonna) return;
    horizontalScrollBar()->setValue(horizontalHeader()->sectionPosition(colonna));
}

bool GrigliaCondizioni::ColonnaInteramenteVisibile(int colonna) const {
    if (colonna < 1 || colonna > kUltimaColonna) return false;
    const int x = columnViewportPosition(colonna);
    return x >= 0 && x + columnWidth(colonna) <= viewport()->width();
}

void GrigliaCondizioni::PortaInVista(int colonna) {
    if (colonna < 1 || colonna > kUltimaColonna) return;
    if (colonna < ColonnaSinistra()) {
        ImpostaColonnaSinistra(colonna);
    } else {
        // Keep one more column in sight to the right, as far as the grid can
        // scroll and without pushing the column itself out on the left.
        const int destra = std::min(colonna + 1, int(kUltimaColonna));
        while (!ColonnaInteramenteVisibile(destra) && ColonnaSinistra() < colonna) {
            const int prima = horizontalScrollBar()->value();
            ImpostaColonnaSinistra(ColonnaSinistra() + 1);
            if (horizontalScrollBar()->value() == prima) break;
        }
    }
    const int riga = currentRow() >= 2 ? currentRow() : 2;
    setCurrentCell(riga, colonna);
}

int GrigliaCondizioni::ColonnaCorrente() const {
    const int c = currentColumn();
    return c < 1 ? 0 : c;
}
