#pragma once
// The unattended run behind --screenshot: an example system is generated,
// saved, reopened and developed, and the window is saved as a PNG picture.

#include <QString>

// Returns the process exit code: 0 when the picture was written.
int EseguiFotografia(const QString& fileImmagine);
