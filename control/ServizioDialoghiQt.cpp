#include "ServizioDialoghiQt.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace {

// A box without a title of its own shows the application's name, as users
// have always seen it.
QString TitoloBox(const QString& titolo) {
    return titolo.isEmpty() ? QApplication::applicationName() : titolo;
}

QString Percorso(const QString& cartella, const QString& nome) {
    if (nome.isEmpty()) return cartella;
    if (QDir::isAbsolutePath(nome)) return nome;
    return QDir(cartella).filePath(nome);
}

}  // namespace

QStringList FiltriQt(const QString& filtro) {
    const QStringList pezzi = filtro.split('|');
    QStringList filtri;
    for (int i = 0; i + 1 < pezzi.size(); i += 2) {
        const QString& descrizione = pezzi[i];
        const QString& modello = pezzi[i + 1];
        filtri << (descrizione.contains('(') ? descrizione : descrizione + " (" + modello + ")");
    }
    if (pezzi.size() % 2 == 1 && !pezzi.last().isEmpty()) filtri << pezzi.last();
    return filtri;
}

void ServizioDialoghiQt::Informazione(const QString& titolo, const QString& testo) {
    QMessageBox::information(proprietario_, TitoloBox(titolo), testo);
}

void ServizioDialoghiQt::Esclamazione(const QString& titolo, const QString& testo) {
    QMessageBox::warning(proprietario_, TitoloBox(titolo), testo);
}

void ServizioDialoghiQt::Critico(const QString& titolo, const QString& testo) {
    QMessageBox::critical(proprietario_, TitoloBox(titolo), testo);
}

bool ServizioDialoghiQt::Domanda(const QString& titolo, const QString& testo) {
    // The buttons are named here, so they read Italian even where Qt's own
    // translations are not installed.
    QMessageBox domanda(QMessageBox::Question, TitoloBox(titolo), testo, QMessageBox::NoButton, proprietario_);
    QPushButton* si = domanda.addButton("Sì", QMessageBox::YesRole);
    domanda.addButton("No", QMessageBox::NoRole);
    domanda.setDefaultButton(si);
    domanda.exec();
    return domanda.clickedButton() == si;
}

QString ServizioDialoghiQt::FileDaSalvare(const QString& cartella, const QString& titolo,
                                          const QString& filtro, const QString& nome,
                                          const QString& estensione) {
    QFileDialog dialogo(proprietario_, titolo, Percorso(cartella, nome));
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setNameFilters(FiltriQt(filtro));
    dialogo.setDefaultSuffix(estensione.startsWith('.') ? estensione.mid(1) : estensione);
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return {};
    return dialogo.selectedFiles().first();
}

QString ServizioDialoghiQt::FileDaAprire(const QString& cartella, const QString& titolo,
                                         const QString& filtro, const QString& nome,
                                         const QString& estensione) {
    QFileDialog dialogo(proprietario_, titolo, Percorso(cartella, nome));
    dialogo.setAcceptMode(QFileDialog::AcceptOpen);
    dialogo.setFileMode(QFileDialog::ExistingFile);
    dialogo.setNameFilters(FiltriQt(filtro));
    dialogo.setDefaultSuffix(estensione.startsWith('.') ? estensione.mid(1) : estensione);
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return {};
    return dialogo.selectedFiles().first();
}
