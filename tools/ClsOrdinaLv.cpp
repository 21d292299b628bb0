#include "ClsOrdinaLv.h"

#include <QHeaderView>
#include <QPainter>
#include <QPixmap>

#include <QTreeWidget>
#include <QVariant>

#include <string>
#include <vector>

#include "OrdinaLv.h"

namespace {

// The image list travels with the list itself, as the headers' pictures do.
constexpr const char* kProprietaImmagini = "ImmaginiIntestazioni";

QList<QIcon> ImmaginiDi(const QTreeWidget& lista) {
    return lista.property(kProprietaImmagini).value<QList<QIcon>>();
}

combi::RigaLista Copia(const QTreeWidgetItem& voce, int colonne) {
    combi::RigaLista riga;
    riga.testi.reserve(size_t(colonne));
    for (int c = 0; c < colonne; ++c) riga.testi.push_back(voce.text(c).toStdString());
    riga.chiave = voce.data(0, kRuoloChiave).toString().toStdString();
    riga.tag = voce.data(0, kRuoloTag).toString().toStdString();
    return riga;
}

QTreeWidgetItem* Ricrea(const combi::RigaLista& riga) {
    QStringList testi;
    for (const std::string& t : riga.testi) testi << QString::fromStdString(t);
    return CreaRiga(testi, QString::fromStdString(riga.chiave), QString::fromStdString(riga.tag));
}

void AggiornaIcone(QTreeWidget& lista, int colonna, int ordine) {
    const QList<QIcon> immagini = ImmaginiDi(lista);
    if (immagini.size() < 2) return;
    const std::vector<int> icone =
        combi::IconeIntestazioni(lista.columnCount(), size_t(lista.topLevelItemCount()), colonna, ordine);
    QTreeWidgetItem* intestazione = lista.headerItem();
    for (size_t c = 0; c < icone.size(); ++c)
        intestazione->setIcon(int(c), icone[c] == 0 ? QIcon() : immagini[icone[c] - 1]);
}

}  // namespace

void ImpostaIconeIntestazioni(QTreeWidget& lista, const QIcon& crescente, const QIcon& decrescente) {
    lista.setProperty(kProprietaImmagini, QVariant::fromValue(QList<QIcon>{crescente, decrescente}));
}

int IconaIntestazione(const QTreeWidget& lista, int colonna) {
    if (colonna < 1 || colonna > lista.columnCount()) return 0;
    const QIcon mostrata = lista.headerItem()->icon(colonna - 1);
    if (mostrata.isNull()) return 0;
    const QList<QIcon> immagini = ImmaginiDi(lista);
    for (int i = 0; i < immagini.size(); ++i)
        if (immagini[i].cacheKey() == mostrata.cacheKey()) return i + 1;
    return 0;
}

QTreeWidget* CreaLista(QWidget* padre, const char* nome, const QStringList& intestazioni) {
    auto* lista = new QTreeWidget(padre);
    lista->setObjectName(nome);
    lista->setRootIsDecorated(false);
    lista->setUniformRowHeights(true);
    lista->setSortingEnabled(false);
    lista->setHeaderLabels(intestazioni);
    lista->header()->setSectionsClickable(true);
    lista->header()->setSortIndicatorShown(false);
    return lista;
}

QTreeWidgetItem* CreaRiga(const QStringList& testi, const QString& chiave, const QString& tag) {
    auto* voce = new QTreeWidgetItem(testi);
    if (!chiave.isEmpty()) voce->setData(0, kRuoloChiave, chiave);
    if (!tag.isEmpty()) voce->setData(0, kRuoloTag, tag);
    return voce;
}

void ClsOrdinaLv::Ordina(QTreeWidget& lista, int16_t colonna, int32_t tipo, int32_t ordine) {
    const int colonne = lista.columnCount();
    std::vector<combi::RigaLista> righe;
    righe.reserve(size_t(lista.topLevelItemCount()));
    for (int r = 0; r < lista.topLevelItemCount(); ++r) righe.push_back(Copia(*lista.topLevelItem(r), colonne));
    // Sorted before anything changes: a refused kind or order leaves the list as it was.
    righe = combi::OrdinaRighe(std::move(righe), colonna, tipo, ordine);
    if (righe.size() < 2) return;

    lista.setUpdatesEnabled(false);
    lista.clear();
    QList<QTreeWidgetItem*> voci;
    voci.reserve(qsizetype(righe.size()));
    for (const combi::RigaLista& riga : righe) voci << Ricrea(riga);
    lista.addTopLevelItems(voci);
    lista.scrollToTop();  // a rebuilt list starts from its first row
    lista.setUpdatesEnabled(true);
    AggiornaIcone(lista, colonna, ordine);
}

namespace {

// The pictures of the header image list: a triangle up (ascending) or down.
QIcon Freccia(bool crescente) {
    QPixmap immagine(12, 12);
    immagine.fill(Qt::transparent);
    QPainter pittore(&immagine);
    pittore.setRenderHint(QPainter::Antialiasing);
    pittore.setPen(Qt::NoPen);
    pittore.setBrush(QColor(64, 64, 64));
    pittore.drawPolygon(crescente ? QPolygonF{{6, 2}, {11, 10}, {1, 10}} : QPolygonF{{1, 2}, {11, 2}, {6, 10}});
    return QIcon(immagine);
}

}  // namespace

void ImpostaFrecceIntestazioni(QTreeWidget& lista) { ImpostaIconeIntestazioni(lista, Freccia(true), Freccia(false)); }
