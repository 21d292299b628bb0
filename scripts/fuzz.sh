#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each for a bounded time
# (seconds per target, default 60), seeding the system-file reader with the
# bundled example. Crash files are left in build-fuzz/crash/.
set -euo pipefail
cd "$(dirname "$0")/.."
secondi=${1:-60}
CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCF_FUZZ=ON -DCF_GUI=OFF -DCF_BENCH=OFF
cmake --build build-fuzz --target FuzzFileSistema FuzzFileColonne FuzzTestiGriglia FuzzArgomenti
mkdir -p build-fuzz/crash
for target in FuzzFileSistema FuzzFileColonne FuzzTestiGriglia FuzzArgomenti; do
  corpus=build-fuzz/corpus/$target
  mkdir -p "$corpus"
  [ "$target" = FuzzFileSistema ] && cp esempi/Esempio.sic "$corpus/"
  echo "== $target"
  build-fuzz/bin/$target "$corpus" -max_total_time="$secondi" -artifact_prefix=build-fuzz/crash/ 2>&1 | grep -E '^Done|ERROR' || true
done
