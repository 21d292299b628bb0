#!/bin/sh
# Pictures of a few condition editors, the statistics preview and the
# recovery panel dialog, saved into the folder given as argument.
#   scripts/screenshot-editori.sh /tmp/editori
exec "$(dirname "$0")/screenshot-test.sh" editors "${1:?"uso: $0 CARTELLA"}"
