#pragma once
// Every message box and file dialog of the control goes through this one
// interface, so that the host shows real dialogs and the tests answer them.

#include <QString>

class QWidget;

class ServizioDialoghi {
public:
    virtual ~ServizioDialoghi() = default;

    // Boxes with an OK button; `titolo` may be empty (the application's title).
    virtual void Informazione(const QString& titolo, const QString& testo) = 0;
    virtual void Esclamazione(const QString& titolo, const QString& testo) = 0;
    virtual void Critico(const QString& titolo, const QString& testo) = 0;

    // Question icon, Yes and No buttons: true for Yes. No is the default
    // button: the answer that changes nothing.
    virtual bool Domanda(const QString& titolo, const QString& testo) = 0;

    // Before something unsaved is dropped: "Salva", "Non salvare" or
    // "Annulla" (the default and the Escape key's: nothing is lost).
    enum class Salvataggio { Salva, NonSalvare, Annulla };
    virtual Salvataggio ChiediSalvataggio(const QString& titolo, const QString& testo) = 0;

    // File dialogs. `filtro` keeps the "descrizione|modello" pairs that the
    // system has always used ("Sistemi condizionati (*.sic)|*.sic");
    // `estensione` is the default one with its dot (".sic"). The save dialog
    // asks before overwriting, the open dialog accepts existing files only.
    // The result is the chosen path, or empty when the user cancels.
    virtual QString FileDaSalvare(const QString& cartella, const QString& titolo, const QString& filtro,
                                  const QString& nome, const QString& estensione) = 0;
    virtual QString FileDaAprire(const QString& cartella, const QString& titolo, const QString& filtro,
                                 const QString& nome, const QString& estensione) = 0;
};
