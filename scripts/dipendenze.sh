#!/usr/bin/env bash
# Installs the Debian packages the project builds with (run as root).
set -euo pipefail
# Open MPI: the development across machines (combifiltro-cli sviluppa --mpi),
# built whenever it is installed.
# Qt Charts: the chart of "Verifica su archivio".
pacchetti=(cmake ninja-build g++ qt6-base-dev libgtest-dev libgmock-dev libbenchmark-dev
           libopenmpi-dev openmpi-bin locales qt6-charts-dev)
mancanti=()
for p in "${pacchetti[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || mancanti+=("$p")
done
if [ ${#mancanti[@]} -gt 0 ]; then
  apt-get update -qq
  DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${mancanti[@]}"
fi

# An Italian desktop's locale: the tests read numbers under it too (a decimal
# comma must not change how "3.7" is read).
if ! locale -a 2>/dev/null | grep -qi '^it_IT\.utf-\?8$'; then
  sed -i 's/^# *\(it_IT.UTF-8 UTF-8\)/\1/' /etc/locale.gen
  grep -q '^it_IT.UTF-8 UTF-8' /etc/locale.gen || echo 'it_IT.UTF-8 UTF-8' >> /etc/locale.gen
  locale-gen >/dev/null
fi
