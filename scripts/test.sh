#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite; then the
# engine and command-line tests again under AddressSanitizer and
# UndefinedBehaviorSanitizer in a build folder of their own.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/dipendenze.sh
scripts/compila.sh
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure -j2

cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCF_SANITIZE=ON -DCF_GUI=OFF -DCF_BENCH=OFF
# combifiltro-cli too: the MPI test (when MPI is installed) runs the program.
cmake --build build-asan --target engine_tests cli_tests combifiltro-cli
ctest --test-dir build-asan --output-on-failure -j2
