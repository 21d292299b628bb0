#!/usr/bin/env bash
# Installs the Debian packages the project builds with (run as root).
set -euo pipefail
# Open MPI: the development across machines (combifiltro-cli sviluppa --mpi),
# built whenever it is installed.
# Qt SVG draws the toolbar icons, Qt Charts the statistics preview and the
# chart of "Verifica su archivio".
# clang with its libFuzzer runtime: the fuzz targets, built and run briefly in CI.
pacchetti=(cmake ninja-build g++ qt6-base-dev qt6-svg-dev qt6-charts-dev libgtest-dev libgmock-dev
           libbenchmark-dev libopenmpi-dev openmpi-bin locales clang libclang-rt-14-dev)
mancanti=()
for p in "${pacchetti[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || mancanti+=("$p")
done
if [ ${#mancanti[@]} -gt 0 ]; then
  apt-get update -qq
  DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${mancanti[@]}"
fi

# An Italian desktop's locale: the tests read numbers under it too (a decimal
# comma must not change how "3.7" is read); an English one groups thousands
# with ",", so the tests see counts follow the user's locale.
for nome in it_IT en_US; do
  if ! locale -a 2>/dev/null | grep -qi "^${nome}\.utf-\?8$"; then
    sed -i "s/^# *\(${nome}.UTF-8 UTF-8\)/\1/" /etc/locale.gen
    grep -q "^${nome}.UTF-8 UTF-8" /etc/locale.gen || echo "${nome}.UTF-8 UTF-8" >> /etc/locale.gen
    locale-gen >/dev/null
  fi
done
