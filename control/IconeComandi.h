#pragma once
// The toolbar images, drawn with QPainter: the control ships no image files
// and looks the same whatever icon theme the desktop has.

#include <QIcon>
#include <QString>

// The icon of a toolbar image key ("open", "save", ...); a neutral one for
// an unknown key.
QIcon IconaComando(const QString& immagine);
