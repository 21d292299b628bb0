#pragma once
// Development by external worker processes on this machine.
//
// The starter saves the system on screen as "SistCond.sic" in a folder of
// the run's own (so that two runs, or two users, never share files, and no
// stale worker file of an earlier run is read), puts the panel into its busy
// state and starts W workers
// (`combifiltro-cli sviluppa ... --quota i/W --rapporto`). Each worker's
// report lines arrive here on the user-interface thread (QProcess signals)
// and are relayed into the control's hidden fields: tested and kept counts
// into TxtPMin(i)/TxtPMax(i) and, once the worker exited cleanly, the path
// of its columns file into txtMsgFromDll(i). The control does the rest: it
// merges the files when every field is filled.
//
// The workers develop without "Riduzione N-K": it compares each column with
// the one kept before, which may lie in another share, so the control
// applies it over the merged columns.
//
// A worker that crashes, fails to start or exits with an error ends the run:
// the others are stopped, nothing is merged and the user is told which worker
// failed. "Stop" ends the run the same way, without a result.

#include <QObject>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <vector>

class CombiFiltroA;
class ServizioDialoghi;

class SviluppoParallelo : public QObject {
    Q_OBJECT

public:
    // `programma` is the worker executable (combifiltro-cli).
    SviluppoParallelo(CombiFiltroA& controllo, ServizioDialoghi& dialoghi, QString programma,
                      QObject* genitore = nullptr);
    ~SviluppoParallelo() override;

    // Starts a run; does nothing while the panel is busy.
    void Avvia();
    // The user's stop: the workers are killed and no result is kept.
    void Ferma();
    bool InCorso() const { return inCorso_; }
    QProcess* Lavoratore(int i) const;

    // The file names of worker i of the current (or last) run.
    QString FileColonneLavoratore(int i) const;
    QString FileContatoriLavoratore(int i) const;
    // The folder of the current (or last) run, kept until the next one: the
    // condition effect report reads the workers' counters there.
    QString CartellaCorsa() const;

private:
    bool PreparaFileSistema(int lavoratori);
    void AvviaLavoratore(int i, int lavoratori);
    void LeggiRapporto(int i);
    void LavoratoreUscito(int i, int codice, QProcess::ExitStatus stato);
    void Fallito(int i, const QString& motivo);
    void Interrompi();

    CombiFiltroA& controllo_;
    ServizioDialoghi& dialoghi_;
    QString programma_;
    std::vector<std::unique_ptr<QProcess>> processi_;  // element 0 unused
    std::vector<QString> fileColonne_;                 // from each worker's "fine" line
    std::unique_ptr<QTemporaryDir> cartella_;          // the run's files
    bool inCorso_ = false;
};
