#!/bin/sh
# Regenerates the README's pictures under docs/immagini, under Xvfb (Debian
# package xvfb): the main window after a development, an editor beside its
# statistics chart, the reduction and a printed page of slips.
#   scripts/screenshot-readme.sh            (CF_BUILD: the build folder, default ./build)
set -eu
radice=$(cd "$(dirname "$0")/.." && pwd)
export CF_BUILD=${CF_BUILD:-$radice/build}
cmake --build "$CF_BUILD" --target combifiltro >/dev/null
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
"$radice/scripts/screenshot-main.sh" "$tmp/finestra-principale.png" >/dev/null
"$radice/scripts/screenshot-editori.sh" "$tmp/editori" >/dev/null
"$radice/scripts/screenshot-strumenti.sh" "$tmp/strumenti" >/dev/null
mkdir -p "$radice/docs/immagini"
cp "$tmp/finestra-principale.png" "$tmp/editori/editore-grafico.png" \
   "$tmp/strumenti/riduzione.png" "$tmp/strumenti/schedine.png" "$radice/docs/immagini/"
ls -l "$radice/docs/immagini"
