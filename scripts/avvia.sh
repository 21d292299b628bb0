#!/usr/bin/env bash
# Installs what is missing, builds, and starts the program. Without a display
# it develops the bundled example system with the command-line program.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/dipendenze.sh
scripts/compila.sh
if [ -x build/bin/combifiltro ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec build/bin/combifiltro "$@"
fi
build/bin/combifiltro-cli info esempi/Esempio.sic
exec build/bin/combifiltro-cli sviluppa esempi/Esempio.sic --colonne "${TMPDIR:-/tmp}/Esempio.col"
