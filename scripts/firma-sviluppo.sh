#!/usr/bin/env bash
# The development benchmark's signature (tested, kept, a hash of the kept
# columns and of every counter) of the fast path must equal the plain loop's
# on both measured workloads: a fast path that drifts fails here.
#   scripts/firma-sviluppo.sh [BUILD]
set -euo pipefail
cd "$(dirname "$0")/.."
bench=${1:-build}/bin/combifiltro_bench
uscita=$("$bench" --benchmark_filter='BM_Firma' 2>/dev/null)
echo "$uscita" | grep BM_Firma
for carico in 0 1; do
  rif=$(echo "$uscita" | grep "BM_Firma/$carico/1/" | grep -o 'firma [0-9]*')
  veloce=$(echo "$uscita" | grep "BM_Firma/$carico/0/" | grep -o 'firma [0-9]*')
  if [ -z "$rif" ] || [ "$rif" != "$veloce" ]; then
    echo "firme diverse sul carico $carico: riferimento '$rif', veloce '$veloce'" >&2
    exit 1
  fi
done
echo "firme uguali"
