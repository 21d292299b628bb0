#pragma once
// A control with an in-memory property store and scripted dialogs, plus
// helpers that write conditions into the grid the way an editor would.

#include <QLineEdit>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "ArchivioProprieta.h"
#include "CombiFiltroA.h"
#include "FakeDialoghi.h"
#include "GrigliaCondizioni.h"
#include "GrigliaNumeri.h"

struct Banco {
    ArchivioMemoria archivio;
    FakeDialoghi dialoghi;
    CombiFiltroA c{&archivio, &dialoghi};

    Banco() { c.setThreadMotore(2); }

    void Numeri(std::initializer_list<int> numeri) {
        for (int n : numeri) c.SelezionaNumero(static_cast<int16_t>(n), true);
    }
    // Picks 1..quanti, and then the class when one is given.
    void NumeriDa1A(int quanti, int classe = 0) {
        for (int n = 1; n <= quanti; ++n) c.SelezionaNumero(static_cast<int16_t>(n), true);
        if (classe > 0) c.setClasse(classe);
    }
    void Condizione(int colonna, const QString& nome, const QString& parametri = {}, const QString& punti = {},
                    const QString& recupero = {}, const QString& quadro = {}) {
        GrigliaCondizioni* g = c.GetGridCond();
        g->ImpostaTesto(1, colonna, nome);
        g->ImpostaTesto(2, colonna, parametri);
        g->ImpostaTesto(3, colonna, punti);
        g->ImpostaTesto(4, colonna, recupero);
        g->ImpostaTesto(5, colonna, quadro);
    }
    QString Cella(int riga, int colonna) const { return c.GetGridCond()->Testo(riga, colonna); }
};

// Digits only: counters are compared whatever the locale's separator.
inline QString Cifre(QString testo) {
    testo.remove(QRegularExpression("[^0-9]"));
    return testo;
}
