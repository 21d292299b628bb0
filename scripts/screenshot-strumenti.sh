#!/bin/sh
# Pictures of the analysis tools (reduction, winnings check, ...), saved into
# the folder given as argument.
#   scripts/screenshot-strumenti.sh /tmp/strumenti
exec "$(dirname "$0")/screenshot-test.sh" tools "${1:?"uso: $0 CARTELLA"}"
