#!/usr/bin/env bash
# Times one development done the three ways the program offers, on the same
# machine in the same run: the engine inside one process (1 thread, then all
# cores), W worker processes each developing its share (what "Sviluppo
# parallelo" starts), and, when built with MPI, `mpirun -np W ... --mpi`.
# The system is the bundled example with the numbers 1..48 picked
# (12,271,512 columns, 4,170,584 kept).
#   scripts/misura-sviluppo.sh [W]
set -euo pipefail
cd "$(dirname "$0")/.."
w=${1:-2}
cli=${CF_BUILD:-build}/bin/combifiltro-cli
lavoro=$(mktemp -d)
trap 'rm -rf "$lavoro"' EXIT

# Picks the numbers 1..48 in the header of a copy of the example: the
# flag of number n is the 16-bit value at byte 11 + 2 * (n - 1), -1 picked.
cp esempi/Esempio.sic "$lavoro/grande.sic"
head -c 180 /dev/zero | dd of="$lavoro/grande.sic" bs=1 seek=11 conv=notrunc status=none
for n in $(seq 1 48); do
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
# A build without MPI answers --mpi with exit code 2.
if command -v mpirun >/dev/null && "$cli" sviluppa esempi/Esempio.sic --colonne "$lavoro/p.col" --mpi >/dev/null 2>&1; then
  mpi=$(OMPI_ALLOW_RUN_AS_ROOT=1 OMPI_ALLOW_RUN_AS_ROOT_CONFIRM=1 \
        secondi mpirun --oversubscribe -np "$w" "$cli" sviluppa "$lavoro/grande.sic" --colonne "$lavoro/m.col" --thread 1 --mpi)
  printf 'mpirun -np %d            %6.2f s  %.2fx\n' "$w" "$mpi" "$(echo "$base / $mpi" | bc -l)"
fi
