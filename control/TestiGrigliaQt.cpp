#include "TestiGrigliaQt.h"

#include <QListWidget>

#include "GrigliaCondizioni.h"

combi::TestiGriglia LeggiTestiGriglia(const GrigliaCondizioni& griglia, const QListWidget& quadri) {
    combi::TestiGriglia testi;
    const int ultima = griglia.UltimaColonnaUsata();
    testi.colonne.resize(ultima);
    for (int colonna = 1; colonna <= ultima; ++colonna) {
        for (int riga = 0; riga < combi::kRigheGriglia; ++riga) {
            testi.colonne[colonna - 1][riga] = griglia.Testo(riga, colonna).toStdString();
        }
    }
    for (int i = 0; i < quadri.count(); ++i) testi.quadri.push_back(quadri.item(i)->text().toStdString());
    return testi;
}

void RiempiGriglia(GrigliaCondizioni& griglia, QListWidget& quadri, const combi::TestiGriglia& testi) {
    const int quante = std::min<int>(testi.colonne.size(), GrigliaCondizioni::kUltimaColonna);
    for (int colonna = 1; colonna <= quante; ++colonna) {
        for (int riga = 1; riga < combi::kRigheGriglia; ++riga) {
            griglia.ImpostaTesto(riga, colonna, QString::fromStdString(testi.colonne[colonna - 1][riga]));
        }
    }
    quadri.clear();
    for (const std::string& riga : testi.quadri) quadri.addItem(QString::fromStdString(riga));
}
