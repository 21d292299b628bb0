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
# Once more on an Italian desktop, where the C library reads "3,7" as a number
# and "3.7" stops at the point: the engine and the control must not care.
LANG=it_IT.UTF-8 LC_ALL=it_IT.UTF-8 build/bin/engine_tests --gtest_brief=1
LANG=it_IT.UTF-8 LC_ALL=it_IT.UTF-8 build/bin/control_tests --gtest_brief=1
# The benchmark's signature: the fast development equals the plain loop.
scripts/firma-sviluppo.sh build
# Every fuzz target built and run for about 20 seconds from its seeds, so
# that none can rot.
SECONDI=20 scripts/fuzz.sh

cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCF_SANITIZE=ON -DCF_GUI=ON -DCF_BENCH=OFF
# combifiltro-cli too: the MPI test and the parallel development run the program.
cmake --build build-asan --target engine_tests cli_tests combifiltro-cli control_tests editors_tests tools_tests app_tests
ctest --test-dir build-asan --output-on-failure -j2
