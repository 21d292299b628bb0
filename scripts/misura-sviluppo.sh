#!/usr/bin/env bash
# Times one development done the three ways the program offers, on the same
# machine in the same run: the engine inside one process (1 thread, then all
# cores), W worker processes each developing its share (what "Sviluppo
# parallelo" starts), and, when built with MPI, `mpirun -np W ... --mpi`.
# The system is the bundled example with 40 picked numbers (3,838,380 columns).
#   scripts/misura-sviluppo.sh [W]
set -euo pipefail
cd "$(dirname "$0")/.."
w=${1:-2}
cli=${CF_BUILD:-build}/bin/combifiltro-cli
lavoro=$(mktemp -d)
trap 'rm -rf "$lavoro"' EXIT

# Picks 40 numbers in the header of a copy of the example (flag -1 at byte
# 11 + 2 * (n - 1) for number n).
cp esempi/Esempio.sic "$lavoro/grande.sic"
for n in $(seq 1 2 79); do
  printf '\xff\xff' | dd of="$lavoro/grande.sic" bs=1 seek=$((11 + 2 * (n - 1))) conv=notrunc status=none
done

secondi() { local t0 t1; t0=$(date +%s.%N); "$@" >/dev/null; t1=$(date +%s.%N); echo "$t1 - $t0" | bc -l; }
lavoratori() {
  local pids=()
  for i in $(seq 1 "$w"); do
    "$cli" sviluppa "$lavoro/grande.sic" --colonne "$lavoro/w$i.col" --quota "$i/$w" --thread 1 --rapporto >/dev/null &
    pids+=($!)
  done
  wait "${pids[@]}"
}

base=$(secondi "$cli" sviluppa "$lavoro/grande.sic" --colonne "$lavoro/a.col" --thread 1)
interno=$(secondi "$cli" sviluppa "$lavoro/grande.sic" --colonne "$lavoro/b.col" --thread "$w")
esterno=$(secondi lavoratori)
printf 'interno, 1 thread        %6.2f s  1.00x\n' "$base"
printf 'interno, %d thread        %6.2f s  %.2fx\n' "$w" "$interno" "$(echo "$base / $interno" | bc -l)"
printf '%d processi lavoratori    %6.2f s  %.2fx\n' "$w" "$esterno" "$(echo "$base / $esterno" | bc -l)"
if command -v mpirun >/dev/null && "$cli" sviluppa 2>&1 | grep -q -- --mpi; then
  mpi=$(OMPI_ALLOW_RUN_AS_ROOT=1 OMPI_ALLOW_RUN_AS_ROOT_CONFIRM=1 \
        secondi mpirun --oversubscribe -np "$w" "$cli" sviluppa "$lavoro/grande.sic" --colonne "$lavoro/m.col" --thread 1 --mpi)
  printf 'mpirun -np %d            %6.2f s  %.2fx\n' "$w" "$mpi" "$(echo "$base / $mpi" | bc -l)"
fi
