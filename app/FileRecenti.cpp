#include "FileRecenti.h"

#include <QFileInfo>

void FileRecenti::Aggiungi(const QString& percorso) {
    if (percorso.isEmpty()) return;
    const QString assoluto = QFileInfo(percorso).absoluteFilePath();
    QStringList elenco = Elenco();
    elenco.removeAll(assoluto);
    elenco.prepend(assoluto);
    while (elenco.size() > kMassimo) elenco.removeLast();
    impostazioni_.setValue(kChiave, elenco);
}

void FileRecenti::Togli(const QString& percorso) {
    QStringList elenco = Elenco();
    elenco.removeAll(percorso);
    impostazioni_.setValue(kChiave, elenco);
}
