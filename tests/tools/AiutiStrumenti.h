#pragma once
// Shared by the tools' tests: the texts of a list, a click on one of its
// rows, a spy on the event loop and a columns file written into a folder.

#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <functional>
#include <vector>

#include "FileColonne.h"

// A row's (or the heading's) text in every column of its list.
inline QStringList Testi(const QTreeWidgetItem* riga) {
    QStringList t;
    for (int c = 0; c < riga->treeWidget()->columnCount(); ++c) t << riga->text(c);
    return t;
}

inline std::vector<QStringList> Righe(const QTreeWidget* lista) {
    std::vector<QStringList> righe;
    for (int r = 0; r < lista->topLevelItemCount(); ++r) righe.push_back(Testi(lista->topLevelItem(r)));
    return righe;
}

// The summary of a winnings check: one row per score from `massimo` down.
inline std::vector<QStringList> Riepilogo(int massimo, std::initializer_list<int> conteggi) {
    std::vector<QStringList> righe;
    for (int n : conteggi) righe.push_back({QString("Vincite con %1 punti ").arg(massimo--), QString::number(n)});
    return righe;
}

inline void Clicca(QTreeWidget* lista, QTreeWidgetItem* riga) {
    lista->scrollToItem(riga);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(riga).center());
}

// Runs `ogni` at every pass of the event loop while it lives.
struct Spia {
    explicit Spia(std::function<void()> ogni) {
        QObject::connect(&timer, &QTimer::timeout, std::move(ogni));
        timer.start(0);
    }
    QTimer timer;
};

inline QString ScriviColonne(const QTemporaryDir& cartella, const QString& nome,
                             const std::vector<combi::Colonna>& colonne) {
    const QString percorso = cartella.filePath(nome);
    combi::ScriviFileColonne(percorso.toStdString(), colonne);
    return percorso;
}
