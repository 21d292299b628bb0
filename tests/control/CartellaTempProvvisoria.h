#pragma once
// Points the temporary folder (TMPDIR, where the run's "SistCond" files and
// the workers' files go) into a scratch folder for one test; child processes
// inherit it. The previous value comes back when the object goes.

#include <QByteArray>
#include <QTemporaryDir>
#include <QtGlobal>

class CartellaTempProvvisoria {
public:
    CartellaTempProvvisoria() : vecchia_(qgetenv("TMPDIR")) { qputenv("TMPDIR", dir_.path().toLocal8Bit()); }
    ~CartellaTempProvvisoria() { qputenv("TMPDIR", vecchia_); }
    CartellaTempProvvisoria(const CartellaTempProvvisoria&) = delete;
    CartellaTempProvvisoria& operator=(const CartellaTempProvvisoria&) = delete;

    QString Percorso(const QString& nome) const { return dir_.filePath(nome); }

private:
    QTemporaryDir dir_;
    QByteArray vecchia_;
};
