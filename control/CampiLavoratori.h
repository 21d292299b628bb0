#pragma once
// The hidden fields through which external development workers report to
// the control: for worker i (1..W) its count of tested columns, its count of
// kept columns and, when it has finished, the path of its columns file. The
// workers (or whoever relays them) set the texts; every change arrives here
// on the user-interface thread, one at a time.

#include <QObject>
#include <QStringList>

#include <cstdint>
#include <vector>

class QLineEdit;
class QWidget;

class CampiLavoratori : public QObject {
    Q_OBJECT
public:
    // Workers beyond this many get no fields: a mistyped count must not
    // build thousands of hidden widgets.
    static constexpr int kMassimo = 256;

    explicit CampiLavoratori(QWidget* contenitore);

    // Fields for `quanti` workers (clamped to 0..kMassimo), all empty.
    void Ricrea(int quanti);
    int Quanti() const { return int(testate_.size()) - 1; }

    QLineEdit* TxtPMin(int i) const;
    QLineEdit* TxtPMax(int i) const;
    QLineEdit* txtMsgFromDll(int i) const;

    // A new run: every count "0", every completion field empty.
    void Azzera();
    // Empties the completion fields; `silenzioso` raises no change notice.
    void SvuotaCompletamento(bool silenzioso);
    // The paths of the completion fields in field order when all W are
    // filled; empty while some worker is still running.
    QStringList FileCompleti() const;

signals:
    // The sums over the workers of the tested and kept counts.
    void ContatoriCambiati(double testate, double tenute);
    // A completion field changed.
    void CompletamentoCambiato();

private:
    void Somma();

    QWidget* contenitore_;
    std::vector<QLineEdit*> txtPMin_, txtPMax_, txtMsgFromDll_;  // element 0 unused
    std::vector<int32_t> testate_, tenute_;
};
