#pragma once
// A dialog that runs a long job with its events pumped. While the job runs,
// neither Esc, the window's close button nor reject() closes it: the job
// still writes into its widgets, and its stop is asked through the dialog's
// own button.

#include <QDialog>

class QCloseEvent;

class DialogoConLavoro : public QDialog {
    Q_OBJECT
public:
    using QDialog::QDialog;

    bool Occupato() const { return occupato_; }

public slots:
    void reject() override;

protected:
    void ImpostaOccupato(bool occupato) { occupato_ = occupato; }
    void closeEvent(QCloseEvent* evento) override;

private:
    bool occupato_ = false;
};
