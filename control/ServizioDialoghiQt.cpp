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

// A box is at least as wide as its title, so that a long one
// ("CombiFiltro.GetNumeroColonneInFile") is read whole in the title bar.
void LargoQuantoIlTitolo(QMessageBox& box) {
    const int larghezza = box.fontMetrics().horizontalAdvance(box.windowTitle()) + 60;
    box.setStyleSheet(QString("QLabel#qt_msgbox_label { min-width: %1px; }").arg(larghezza));
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

void ServizioDialoghiQt::Mostra(int icona, const QString& titolo, const QString& testo) {
    QMessageBox box(QMessageBox::Icon(icona), TitoloBox(titolo), testo, QMessageBox::Ok, proprietario_);
    LargoQuantoIlTitolo(box);
    box.exec();
}

void ServizioDialoghiQt::Informazione(const QString& titolo, const QString& testo) {
    Mostra(QMessageBox::Information, titolo, testo);
}

void ServizioDialoghiQt::Esclamazione(const QString& titolo, const QString& testo) {
    Mostra(QMessageBox::Warning, titolo, testo);
}

void ServizioDialoghiQt::Critico(const QString& titolo, const QString& testo) {
    Mostra(QMessageBox::Critical, titolo, testo);
}

bool ServizioDialoghiQt::Domanda(const QString& titolo, const QString& testo) {
    // The buttons are named here, so they read Italian even where Qt's own
    // translations are not installed.
    QMessageBox domanda(QMessageBox::Question, TitoloBox(titolo), testo, QMessageBox::NoButton, proprietario_);
    LargoQuantoIlTitolo(domanda);
    QPushButton* si = domanda.addButton("Sì", QMessageBox::YesRole);
    QPushButton* no = domanda.addButton("No", QMessageBox::NoRole);
    domanda.setDefaultButton(no);
    domanda.setEscapeButton(no);
    domanda.exec();
    return domanda.clickedButton() == si;
}

ServizioDialoghi::Salvataggio ServizioDialoghiQt::ChiediSalvataggio(const QString& titolo, const QString& testo) {
    QMessageBox domanda(QMessageBox::Question, TitoloBox(titolo), testo, QMessageBox::NoButton, proprietario_);
    LargoQuantoIlTitolo(domanda);
    QPushButton* salva = domanda.addButton("Salva", QMessageBox::AcceptRole);
    QPushButton* nonSalvare = domanda.addButton("Non salvare", QMessageBox::DestructiveRole);
    QPushButton* annulla = domanda.addButton("Annulla", QMessageBox::RejectRole);
    domanda.setDefaultButton(annulla);
    domanda.setEscapeButton(annulla);
    domanda.exec();
    if (domanda.clickedButton() == salva) return Salvataggio::Salva;
    if (domanda.clickedButton() == nonSalvare) return Salvataggio::NonSalvare;
    return Salvataggio::Annulla;
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
