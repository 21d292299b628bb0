#!/bin/sh
# Saves a picture of the main window with a developed example system.
# Usage: scripts/screenshot-main.sh [FILE.png]   (CF_BUILD: the build folder, default ./build)
set -eu
RADICE=$(cd "$(dirname "$0")/.." && pwd)
BUILD=${CF_BUILD:-$RADICE/build}
FILE=${1:-$RADICE/screenshot-main.png}
PROGRAMMA="$BUILD/bin/combifiltro"
if [ ! -x "$PROGRAMMA" ]; then
    echo "manca $PROGRAMMA: compilare prima (cmake --build \"$BUILD\")" >&2
    exit 1
fi
QT_QPA_PLATFORM=xcb exec xvfb-run -a -s "-screen 0 1400x900x24" "$PROGRAMMA" --screenshot "$FILE"
