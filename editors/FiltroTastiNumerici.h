#pragma once
// The key filter of the numeric boxes: only digits, ",", Enter and
// Backspace reach the box. Keys that type nothing (arrows, Delete, Tab)
// pass untouched, as they never were typed characters.

#include <QObject>

class FiltroTastiNumerici : public QObject {
    Q_OBJECT
public:
    // `invioAvanza`: Enter moves the focus to the next field.
    FiltroTastiNumerici(bool invioAvanza, QObject* genitore);

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    bool invioAvanza_;
};
