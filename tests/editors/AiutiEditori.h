#pragma once
// Shared by the editor tests: the recorded boxes as texts, and short ways to
// act on an editor's widgets by name.

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "FabbricaEditoriQt.h"
#include "F_PuntiSuBase.h"
#include "../control/FakeDialoghi.h"

// The editors' boxes as one list of texts; a critical box is preceded by its title.
inline QStringList Messaggi(const FakeDialoghi& d) {
    QStringList t;
    for (const BoxMostrato& b : d.boxes) t << (b.tipo == "critico" ? b.titolo + ": " + b.testo : b.testo);
    return t;
}

inline std::unique_ptr<F_PuntiSuBase> Editore(int tipo, FakeDialoghi& dialoghi, int classe = 5,
                                              std::vector<int> numeri = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}) {
    ContestoEditore contesto{classe, std::move(numeri), 0, &dialoghi};
    return CreaEditore(tipo, contesto);
}

template <class T = QWidget>
T* W(QWidget& e, const QString& nome) {
    T* w = e.findChild<T*>(nome);
    EXPECT_NE(w, nullptr) << nome.toStdString();
    return w;
}
inline void Clic(QWidget& e, const QString& nome) { W<QAbstractButton>(e, nome)->click(); }
inline void Scrivi(QWidget& e, const QString& nome, const QString& t) { W<QLineEdit>(e, nome)->setText(t); }
inline void Scegli(QWidget& e, const QString& nome, const QString& t) {
    W<QComboBox>(e, nome)->setCurrentText(t);
}
inline void Quadro(QWidget& e, const QString& t) { Scegli(e, "CmbRecupero", t); }
