#pragma once
// The toolbar images: one SVG drawing per image key, kept in the control's
// resources (control/icone), so they are sharp at any size and on high-DPI
// screens and look the same whatever icon theme the desktop has.

#include <QIcon>
#include <QString>

// The icon of a toolbar image key ("open", "save", ...; any letter case); a
// neutral one for an unknown key.
QIcon IconaComando(const QString& immagine);
