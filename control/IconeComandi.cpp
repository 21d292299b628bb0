#include "IconeComandi.h"

#include <QFile>

// The icons are compiled into the control's static library: its resource is
// registered by name before the first use, or the linker could leave it out.
static void RegistraIcone() { Q_INIT_RESOURCE(icone); }

QIcon IconaComando(const QString& immagine) {
    static const bool registrate = (RegistraIcone(), true);
    (void)registrate;
    const QString percorso = ":/icone/" + immagine.toLower() + ".svg";
    return QIcon(QFile::exists(percorso) ? percorso : QString(":/icone/sconosciuta.svg"));
}
