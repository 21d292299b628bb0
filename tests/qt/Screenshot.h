#pragma once
// Pictures for the README and for looking at the dialogs, not checks: a
// SCREENSHOT(Nome) { ... } body is run only when the widget-test binary is
// started as "<area>_tests --screenshot CARTELLA" (scripts/screenshot-*.sh),
// as the test Screenshot.Nome, and receives CARTELLA (created) as `cartella`.
// Without the option the bodies are not even listed, so ctest never sees them.

#include <QString>

namespace combi::test {

using Fotografia = void (*)(const QString& cartella);

// Records a body under its name; the return value only lets it run at load.
bool RegistraScreenshot(const char* nome, Fotografia corpo);

}  // namespace combi::test

#define SCREENSHOT(nome)                                                                            \
    static void Screenshot_##nome(const QString& cartella);                                        \
    [[maybe_unused]] static const bool registrato_##nome =                                         \
        ::combi::test::RegistraScreenshot(#nome, Screenshot_##nome);                               \
    static void Screenshot_##nome(const QString& cartella)
