#include "UtilitaSchermo.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

#include "ServizioDialoghi.h"
#include "Formato.h"

bool SelezionaVoceCombo(const QString& testo, QComboBox* combo) {
    const int quante = combo->count();
    int trovata = -1;
    // The list control's own prefix search starts after the first entry and
    // wraps round, so entry 0 is the last one tried.
    for (int passo = 1; passo <= quante && trovata < 0; ++passo) {
        const int i = passo % quante;
        if (combo->itemText(i).startsWith(testo, Qt::CaseInsensitive)) trovata = i;
    }
    if (trovata < 0) {
        combo->setCurrentIndex(-1);
        return false;
    }
    if (combo->itemText(trovata) != testo) {
        for (int i = trovata + 1; i < quante; ++i) {
            if (combo->itemText(i) == testo) {
                trovata = i;
                break;
            }
        }
    }
    combo->setCurrentIndex(trovata);
    return true;
}

void FiltraTastoNumerico(int& tasto) {
    const bool cifra = tasto >= '0' && tasto <= '9';
    if (!cifra && tasto != ',' && tasto != 13 && tasto != 8) tasto = 0;
}

void InvioComeTab(int tasto, QWidget* campo) {
    if (tasto != 13 || campo == nullptr) return;
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QApplication::sendEvent(campo, &tab);
}

void InPrimoPiano(QWidget* finestra, int16_t flag) {
    if (finestra == nullptr || (flag != -1 && flag != 0)) return;
    finestra->setAttribute(Qt::WA_ShowWithoutActivating, true);
    finestra->setWindowFlag(Qt::WindowStaysOnTopHint, flag == -1);
    finestra->show();  // changing the window flags hides it
}

bool FormCaricato(const QString& nome) {
    const auto finestre = QApplication::topLevelWidgets();
    return std::any_of(finestre.begin(), finestre.end(),
                       [&](const QWidget* w) { return w->objectName() == nome; });
}

QString CartellaProgramma() {
    QString cartella = QCoreApplication::applicationDirPath();
    if (!cartella.endsWith('/')) cartella += '/';
    return cartella;
}

namespace {

void CartellaValida(QString& cartella) {
    if (!QFileInfo(cartella).isDir()) cartella = CartellaProgramma();
}

}  // namespace

QString DialogoSalva(ServizioDialoghi& dialoghi, QString& cartella, const QString& titolo,
                     const QString& filtro, const QString& nome, const QString& estensione) {
    try {
        CartellaValida(cartella);
        return dialoghi.FileDaSalvare(cartella, titolo, filtro, nome, estensione);
    } catch (...) {
        return {};
    }
}

QString DialogoApri(ServizioDialoghi& dialoghi, QString& cartella, const QString& titolo,
                    const QString& filtro, const QString& nome, const QString& estensione) {
    try {
        CartellaValida(cartella);
        return dialoghi.FileDaAprire(cartella, titolo, filtro, nome, estensione);
    } catch (...) {
        return {};
    }
}

QString TestoContatore(double valore) {
    return QString::fromStdString(combi::FormatNumero(valore));
}
