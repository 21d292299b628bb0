#!/usr/bin/env bash
# Installs the Debian packages the project builds with (run as root).
set -euo pipefail
# Open MPI: the development across machines (combifiltro-cli sviluppa --mpi),
# built whenever it is installed.
# Qt Charts: the chart of "Verifica su archivio".
pacchetti=(cmake ninja-build g++ qt6-base-dev libgtest-dev libgmock-dev libbenchmark-dev
           libopenmpi-dev openmpi-bin qt6-charts-dev)
mancanti=()
for p in "${pacchetti[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || mancanti+=("$p")
done
if [ ${#mancanti[@]} -gt 0 ]; then
  apt-get update -qq
  DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${mancanti[@]}"
fi
