#pragma once
// ClsOrdinaLv: sorts the rows of a report list (a QTreeWidget used as a flat
// list) by one of its columns and marks that column's header with the
// direction icon. The order comes from combi::OrdinaRighe, the quicksort that
// users have always had, not from Qt's sort: rows with equal keys must come
// out where that procedure puts them.
//
// The rows are copied out, sorted and rebuilt, so a row keeps exactly its
// texts, its key and its tag; anything else set on an item (colours, icons)
// does not survive a sort.

#include <QIcon>
#include <QStringList>

#include <cstdint>

class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

// Where a row keeps its key and its tag: data of column 0 under these roles.
inline constexpr int kRuoloChiave = Qt::UserRole;
inline constexpr int kRuoloTag = Qt::UserRole + 1;

// Gives the list an image list for its column headers: icon 1 ascending,
// icon 2 descending. Only lists that have one get header icons when sorted.
void ImpostaIconeIntestazioni(QTreeWidget& lista, const QIcon& crescente, const QIcon& decrescente);
// The same with the usual pictures: a small triangle up or down.
void ImpostaFrecceIntestazioni(QTreeWidget& lista);

// Which icon of the list's image list header `colonna` (1-based) shows:
// 1, 2, or 0 for none (or a picture not from the image list).
int IconaIntestazione(const QTreeWidget& lista, int colonna);

// A new report list: flat, named `nome`, with these headers, clickable for a
// sort whose order is ClsOrdinaLv's alone (Qt's own sort stays off).
QTreeWidget* CreaLista(QWidget* padre, const char* nome, const QStringList& intestazioni);

// A new row (not yet in a list): `testi` are the main text and the
// sub-items in order; key and tag as the sort keeps them.
QTreeWidgetItem* CreaRiga(const QStringList& testi, const QString& chiave = {}, const QString& tag = {});

class ClsOrdinaLv {
public:
    // Sorts `lista` by `colonna` (1 = main text, c > 1 = sub-item c - 1) as
    // text (kind 1, by character code, case-sensitive) or as a number (kinds
    // 2 and 3, the text read as "1.234,5"), descending for order 1 and
    // ascending for order 0 (combi::TipoOrdinamento, combi::VersoOrdinamento
    // in OrdinaLv.h). Lists with fewer than 2 rows are left untouched,
    // headers included. Throws combi::Errore for an unknown kind or order.
    void Ordina(QTreeWidget& lista, int16_t colonna, int32_t tipo, int32_t ordine);
};
