#!/bin/sh
# Runs one widget-test binary (editors or tools) in its picture mode,
# "--screenshot CARTELLA", under a real X server (xvfb), so that the pictures
# its SCREENSHOT bodies save into CARTELLA look as on a desktop. The bodies
# are not tests: ctest never lists them.
#   scripts/screenshot-test.sh editors /tmp/editori
set -eu
area=${1:?"uso: $0 AREA CARTELLA"}
cartella=${2:?"uso: $0 AREA CARTELLA"}
radice=$(cd "$(dirname "$0")/.." && pwd)
build=${CF_BUILD:-$radice/build}
cmake --build "$build" --target "${area}_tests" >/dev/null
mkdir -p "$cartella"
cartella=$(cd "$cartella" && pwd)
QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1280x1024x24" \
    "$build/bin/${area}_tests" --screenshot "$cartella"
ls "$cartella"/*.png
