#!/bin/sh
# Runs the Screenshot.* tests of one widget-test binary (control, editors or
# tools) under a real X server (xvfb), so that the pictures they save into
# CARTELLA look as on a desktop.
#   scripts/screenshot-test.sh editors /tmp/editori
set -eu
area=${1:?"uso: $0 AREA CARTELLA"}
cartella=${2:?"uso: $0 AREA CARTELLA"}
radice=$(cd "$(dirname "$0")/.." && pwd)
build=${CF_BUILD:-$radice/build}
cmake --build "$build" --target "${area}_tests" >/dev/null
mkdir -p "$cartella"
cartella=$(cd "$cartella" && pwd)
CF_CARTELLA_SCREENSHOT="$cartella" QT_QPA_PLATFORM=xcb \
    xvfb-run -a -s "-screen 0 1280x1024x24" \
    "$build/bin/${area}_tests" --gtest_filter='Screenshot.*'
ls "$cartella"/*.png
