#!/usr/bin/env bash
# The development shared among MPI processes must give the same columns file
# and the same counters file, byte for byte, as the single-process one, with
# and without "Riduzione N-K", for an even and an uneven split.
# Usage: SviluppaMpi.sh COMBIFILTRO-CLI MPIRUN SISTEMA.sic
set -uo pipefail
cli=$1 mpirun=$2 sistema=$3
cartella=$(mktemp -d)
trap 'rm -rf "$cartella"' EXIT
errori=0

fallito() { echo "FALLITO: $*"; errori=$((errori + 1)); }

# The system file again with another "Riduzione N-K" (16-bit field at byte 9).
con_riduzione() {
    cp "$sistema" "$2"
    printf "\\$(printf '%03o' "$1")\\000" | dd of="$2" bs=1 seek=9 conv=notrunc status=none
}

confronta() {  # name, system file, processes
    local nome=$1 sic=$2 np=$3
    "$cli" sviluppa "$sic" --colonne "$cartella/$nome-1.col" --contatori "$cartella/$nome-1.sic" --thread 1 \
        > /dev/null || { fallito "$nome: sviluppo in un solo processo"; return; }
    "$mpirun" --oversubscribe -np "$np" "$cli" sviluppa "$sic" --colonne "$cartella/$nome-$np.col" \
        --contatori "$cartella/$nome-$np.sic" --thread 1 --mpi > "$cartella/$nome-$np.txt" 2>&1 ||
        { cat "$cartella/$nome-$np.txt"; fallito "$nome: sviluppo MPI con $np processi"; return; }
    cmp "$cartella/$nome-1.col" "$cartella/$nome-$np.col" || fallito "$nome: colonne diverse con $np processi"
    cmp "$cartella/$nome-1.sic" "$cartella/$nome-$np.sic" || fallito "$nome: contatori diversi con $np processi"
    grep -q "Processi MPI : $np" "$cartella/$nome-$np.txt" || fallito "$nome: numero di processi non riportato"
}

con_riduzione 0 "$cartella/k0.sic"
con_riduzione 2 "$cartella/k2.sic"
confronta k0 "$cartella/k0.sic" 2
confronta k2 "$cartella/k2.sic" 2
confronta k2 "$cartella/k2.sic" 3
# The reduction must have dropped columns, or the second case proves nothing.
[ "$(stat -c %s "$cartella/k2-1.col")" -lt "$(stat -c %s "$cartella/k0-1.col")" ] ||
    fallito "la Riduzione N-K non ha scartato colonne"

# A process that cannot read the system: process 0 reports it, nothing is written.
if "$mpirun" --oversubscribe -np 1 "$cli" sviluppa "$cartella/k0.sic" --colonne "$cartella/no.col" --mpi : \
    -np 1 "$cli" sviluppa "$cartella/manca.sic" --colonne "$cartella/no.col" --mpi > "$cartella/no.txt" 2>&1; then
    fallito "un processo senza file di sistema non fa fallire il lavoro"
fi
grep -q "Processo 1: File non trovato" "$cartella/no.txt" || { cat "$cartella/no.txt"; fallito "messaggio del processo 1 assente"; }
[ ! -e "$cartella/no.col" ] || fallito "scritto un file di colonne nonostante l'errore"

[ "$errori" -eq 0 ] && echo "Sviluppo MPI uguale allo sviluppo in un solo processo"
exit $((errori > 0))
