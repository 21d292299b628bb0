#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each until it has made
# RUNS executions or spent SECONDI seconds (defaults: 10 million, 30 minutes),
# starting from a scratch copy of its seed corpus in fuzz/semi/<target>.
#   scripts/fuzz.sh [target ...]          (no target: all of them, in turn)
#   RUNS=100000 SECONDI=60 scripts/fuzz.sh FuzzSpoglio
# Logs go to build-fuzz/log/<target>.log, crash files to build-fuzz/crash/.
# The runs are niced: the machine is shared with compilers. The script fails
# when any target left a crash file (CI runs every target for a few seconds).
set -euo pipefail
cd "$(dirname "$0")/.."
runs=${RUNS:-10000000}
secondi=${SECONDI:-1800}
tutti=(FuzzFileSistema FuzzFileColonne FuzzRiduzione FuzzTestiGriglia FuzzParametri FuzzSpoglio FuzzArgomenti
       FuzzArchivio)
targets=("$@")
[ ${#targets[@]} -eq 0 ] && targets=("${tutti[@]}")

# Without MPI: it starts once per process, and OpenMPI's allocations kept
# past the end would read as leaks; `--mpi` then meets its refusal.
CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCF_FUZZ=ON -DCF_GUI=OFF \
  -DCF_BENCH=OFF -DCF_MPI=OFF >/dev/null
nice -n 19 ninja -j2 -C build-fuzz "${targets[@]}"
rm -rf build-fuzz/crash
mkdir -p build-fuzz/crash build-fuzz/log
for target in "${targets[@]}"; do
  corpus=build-fuzz/corpus/$target
  rm -rf "$corpus"
  mkdir -p "$corpus"
  cp fuzz/semi/"$target"/* "$corpus"/
  log=build-fuzz/log/$target.log
  echo "== $target (log: $log)"
  nice -n 19 build-fuzz/bin/"$target" "$corpus" -runs="$runs" -max_total_time="$secondi" \
    -print_final_stats=1 -artifact_prefix=build-fuzz/crash/"$target"- >"$log" 2>&1 &
  pid=$!
  wait "$pid" || true
  rm -f /tmp/FuzzRiduzione-"$pid".col  # the reduction target's scratch columns file
  grep -E '^Done|stat::number_of_executed_units|stat::peak_rss|ERROR|SUMMARY' "$log" || true
done
if [ -n "$(ls -A build-fuzz/crash)" ]; then
  echo "fuzz: file di crash in build-fuzz/crash:" >&2
  ls build-fuzz/crash >&2
  exit 1
fi
