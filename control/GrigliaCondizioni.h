#pragma once
// The conditions grid GrdCond: one condition per grid column (1..200), one
// attribute per row ("Numero", "Condizione", "Parametri", "Punti",
// "Recupero", "Quadro Rec."). It is both the display and the store of the
// conditions: the engine reads its texts before every development.
//
// Column 0 holds the row headings. It is kept as a real (hidden) column so
// that grid indices are the ones everybody uses, and the headings are shown
// by the vertical header, which never scrolls sideways. Rows 0 and 1 are not
// selectable, and the grid is made tall enough never to scroll vertically, so
// they stay in sight: together they behave as the fixed rows and column.
//
// Texts keep their CR LF line breaks exactly as written (the engine reads
// them); only the displayed copy uses Qt's line feeds.

#include <QColor>
#include <QPointer>
#include <QTableWidget>

class GrigliaCondizioni : public QTableWidget {
    Q_OBJECT
public:
    static constexpr int kRighe = 6;
    static constexpr int kColonne = 201;  // 0: headings, 1..200: conditions
    static constexpr int kUltimaColonna = kColonne - 1;

    explicit GrigliaCondizioni(QWidget* genitore = nullptr);

    // Text of a cell; empty outside the grid.
    QString Testo(int riga, int colonna) const;
    // Writes a cell (rows 1..5 of columns 1..200; ignored elsewhere).
    void ImpostaTesto(int riga, int colonna, const QString& testo);
    // Rows 1..5 of a column emptied.
    void SvuotaColonna(int colonna);

    // Empties and re-shapes the grid: headings, numbers 1..200 in bold, the
    // tall "Parametri" row, default widths. No column stays highlighted.
    void LayOut();

    // The next free column: the current one when it is empty and its left
    // neighbour is not, else the first empty column after the last run of
    // filled ones (scanning from the right); 0 when all 200 are used.
    int PrimaColonnaLibera() const;
    // Highest column with a condition; 0 for an empty grid.
    int UltimaColonnaUsata() const;
    // Columns from `colonna` (included) back to the nearest "LinkOpen"
    // (excluded), or back to column 1 when there is none.
    int ContaCondizioniInLink(int colonna) const;

    // Opens an empty column at `colonna`, moving the later ones right (the
    // content of column 200 is lost).
    void InserisciColonna(int colonna);
    // Removes the condition of `colonna`, moving the later ones left.
    void EliminaColonna(int colonna);

    // Background of rows 2..5 of a column.
    void ColoraColonna(int colonna, const QColor& colore);

    // The first column without a condition that has conditions after it:
    // the development reads no further, so the grid marks it (its number and
    // name cells in red, with a tooltip); 0 when there is none. The mark is
    // kept up to date as the texts change.
    int ColonnaVuotaInterna() const;
    static QColor ColoreColonnaVuota() { return QColor(255, 190, 190); }
    // The selected condition is painted in the background colour of
    // `etichetta` (the panel's hidden LabColoreColSel), read at every change;
    // without one, a pale blue.
    void ImpostaFonteColoreSelezione(const QWidget* etichetta) { fonteColore_ = etichetta; }
    QColor ColoreSelezione() const;
    int ColonnaEvidenziata() const { return colonnaEvidenziata_; }

    // Column widths changed by one "W" (step > 0 wider, else narrower),
    // within (1, 50] "W" widths. True when they changed.
    bool CambiaLarghezzaColonne(int passo);
    int LarghezzaW() const;

    // Leftmost visible condition column, and the test of a fully visible one.
    int ColonnaSinistra() const;
    void ImpostaColonnaSinistra(int colonna);
    bool ColonnaInteramenteVisibile(int colonna) const;
    // Brings a column into view and makes it current.
    void PortaInVista(int colonna);

    // The current column (the selected condition); 0 when there is none.
    int ColonnaCorrente() const;

private:
    void Evidenzia();
    void SegnaColonnaVuota();
    QTableWidgetItem* Cella(int riga, int colonna) const;
    void AdattaAltezza();

    QPointer<const QWidget> fonteColore_;
    bool occupata_ = false;   // rebuilding or recolouring: cell changes are not followed
    int colonnaEvidenziata_ = 0;
    int colonnaVuotaSegnata_ = 0;
};
