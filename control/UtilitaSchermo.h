#pragma once
// Helpers for combos, keys, windows and the two file dialogs, shared by the
// control and by every dialog of the system. None keeps state.

#include <QString>

#include <cstdint>

class QComboBox;
class QWidget;
class ServizioDialoghi;

// Selects the first entry that begins with `testo` (case-insensitive, searching
// from entry 1 and wrapping round to entry 0); when that entry is not exactly
// `testo`, a later entry that is (case-sensitive) wins. No prefix match clears
// the selection. True when the prefix search found an entry.
bool SelezionaVoceCombo(const QString& testo, QComboBox* combo);

// Key codes of the numeric boxes: digits, ",", Enter (13) and Backspace (8)
// pass; any other key becomes 0 (dropped).
void FiltraTastoNumerico(int& tasto);

// Enter (13) moves the focus from `campo` to the next field, like Tab.
void InvioComeTab(int tasto, QWidget* campo);

// -1: keep the window above the others; 0: no longer; other values: nothing.
// The window is shown, neither moved nor activated.
void InPrimoPiano(QWidget* finestra, int16_t flag);

// True when a top-level window named exactly `nome` (objectName) exists.
bool FormCaricato(const QString& nome);

// The folder of the running program, with a trailing separator.
QString CartellaProgramma();

// The two file dialogs. When `cartella` is not an existing folder it becomes
// the program's folder (and the caller's variable is updated). Cancelling, or
// any failure, gives the empty text.
QString DialogoSalva(ServizioDialoghi& dialoghi, QString& cartella, const QString& titolo,
                     const QString& filtro, const QString& nome, const QString& estensione);
QString DialogoApri(ServizioDialoghi& dialoghi, QString& cartella, const QString& titolo,
                    const QString& filtro, const QString& nome, const QString& estensione);

// The counters of the panel: "0", or the value with thousands separators.
QString TestoContatore(double valore);
