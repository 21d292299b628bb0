#pragma once
// Dialogs for an unattended run (the screenshot): messages go to the error
// stream, questions are answered Yes, file dialogs are cancelled.

#include <QTextStream>

#include "ServizioDialoghi.h"

class ServizioDialoghiSilenzioso : public ServizioDialoghi {
public:
    void Informazione(const QString& titolo, const QString& testo) override { Scrivi(titolo, testo); }
    void Esclamazione(const QString& titolo, const QString& testo) override { Scrivi(titolo, testo); }
    void Critico(const QString& titolo, const QString& testo) override { Scrivi(titolo, testo); }
    bool Domanda(const QString& titolo, const QString& testo) override {
        Scrivi(titolo, testo);
        return true;
    }
    Salvataggio ChiediSalvataggio(const QString& titolo, const QString& testo) override {
        Scrivi(titolo, testo);
        return Salvataggio::NonSalvare;
    }
    QString FileDaSalvare(const QString&, const QString&, const QString&, const QString&, const QString&) override {
        return {};
    }
    QString FileDaAprire(const QString&, const QString&, const QString&, const QString&, const QString&) override {
        return {};
    }

private:
    static void Scrivi(const QString& titolo, const QString& testo) {
        QTextStream(stderr) << (titolo.isEmpty() ? QString("CombiFiltro") : titolo) << ": "
                            << QString(testo).replace("\r\n", " ") << "\n";
    }
};
