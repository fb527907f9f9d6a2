#!/bin/sh
# The table by groff: groff_table.sh ROWS OUT.pdf
set -eu
awk -v rows="$1" 'BEGIN {
  for (row = 0; row < rows; ++row) {
    if (row % 48 == 0) printf "%s.TS\nallbox;\nl l l l l.\n", row ? ".TE\n.bp\n" : ""
    printf "S-%d\tSpeed Loop Gain of Axis %d\t%d\tmin-1\t100\n", row, row % 61, row * 7 % 9973
  }
  print ".TE"
}' | groff -t -Tpdf -P-pa4 >"$2"
