#pragma once
// The number-pick window: the 90 numbers as toggles, nine rows of ten.
// It is a tool window of its own, shown and hidden by the "SelNumeri" button;
// closing it is reported so that the panel can release that button.

#include <QWidget>

#include <array>

class QLabel;
class QToolButton;

class GrigliaNumeri : public QWidget {
    Q_OBJECT
public:
    explicit GrigliaNumeri(QWidget* genitore = nullptr);

    // How many numbers are picked.
    int Conta() const;
    // Whether number n (1..90) is picked; false outside 1..90.
    bool Selezionato(int n) const;
    // Picks or releases number n (1..90; other values are ignored).
    void ImpostaNumero(int n, bool selezionato);
    // Releases every number.
    void Pulisci();

    // A number made unavailable cannot be picked by the user (an editor that
    // offers only the system's numbers switches the others off).
    void ImpostaDisponibile(int n, bool disponibile);
    bool Disponibile(int n) const;

signals:
    // After every change of the picks, by the user or by the program.
    void SelezioneCambiata();
    // The user ended the selection: closed the window, or pressed Enter in
    // it (also when the grid is embedded in a dialog, which takes it as its
    // confirmation).
    void Chiusa();

protected:
    void closeEvent(QCloseEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void AggiornaConteggio();

    std::array<QToolButton*, 91> pulsanti_{};  // 1..90
    QLabel* conteggio_ = nullptr;
    bool silenzioso_ = false;
};
