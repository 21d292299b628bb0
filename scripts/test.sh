#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite; then the
# whole suite again under AddressSanitizer and UndefinedBehaviorSanitizer in a
# build folder of their own.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/dipendenze.sh
scripts/compila.sh
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure -j2

cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCF_SANITIZE=ON -DCF_GUI=ON -DCF_BENCH=OFF
# combifiltro-cli too: the MPI test and the parallel development run the program.
cmake --build build-asan --target engine_tests cli_tests combifiltro-cli control_tests editors_tests tools_tests
ctest --test-dir build-asan --output-on-failure -j2
