#pragma once
// The pages of "Stampa schedine": the kept columns drawn as play slips (each
// column marked on its game's number grid, six slips a page) or as a
// compact list, every page under a header with the system file, the game,
// the class, the date and "pagina n di m". One drawing serves the printer,
// the PDF file and a picture: everything is sized from the page it is given.

#include <QDate>
#include <QRectF>
#include <QString>

#include <vector>

#include "Colonna.h"
#include "GrigliaSchedina.h"

class QPainter;
class QPrinter;

struct DatiSchedine {
    QString sistema;  // the system file's name; empty for a system never saved
    QString gioco;    // as in the game combo: "Lotto", "10ELotto", ...
    int classe = 0;
    QDate data;
    std::vector<combi::Colonna> colonne;  // the kept columns, first one first
};

enum class Impaginazione {
    Schedine,  // the slips, marks on the number grid
    Elenco,    // one line per column, two columns of lines a page
};

class ImpaginaSchedine {
public:
    ImpaginaSchedine(DatiSchedine dati, Impaginazione modo);

    // Slips, or list lines, on one page of that size.
    int PerPagina(const QSizeF& pagina) const;
    // Pages for every column; at least one.
    int Pagine(const QSizeF& pagina) const;

    // "Sistema: Esempio.sic – Lotto, classe 5"
    QString IntestazioneSinistra() const;
    // "23/11/2025 – pagina 1 di 3"
    QString IntestazioneDestra(int pagina, int pagine) const;

    // Page `indice` (0-based) inside `pagina`, in the painter's units.
    void DisegnaPagina(QPainter& pittore, const QRectF& pagina, int indice) const;
    // Every page, each on its own sheet of the printer (paper or PDF).
    void Stampa(QPrinter& stampante) const;

    // Where slip `posizione` (0-based on its page) lies on the page, and
    // where the box of number n lies on a slip.
    QRectF RettangoloSchedina(const QRectF& pagina, int posizione) const;
    QRectF RettangoloCasella(const QRectF& schedina, int numero) const;

private:
    int Colonne(const QSizeF& pagina) const;
    int Righe(const QSizeF& pagina) const;
    double AltezzaIntestazione(const QRectF& pagina) const;
    void DisegnaIntestazione(QPainter& pittore, const QRectF& pagina, int indice, int pagine) const;
    void DisegnaSchedina(QPainter& pittore, const QRectF& riquadro, int id) const;
    void DisegnaElenco(QPainter& pittore, const QRectF& pagina, int indice) const;
    QRectF AreaGriglia(const QRectF& schedina) const;

    DatiSchedine dati_;
    Impaginazione modo_;
    GrigliaSchedina griglia_;
};
