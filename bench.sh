#!/bin/sh
# Builds the program for speed and measures it: ./bench.sh [--runs N] [--peers] prints its tables.
set -eu
cd "$(dirname "$0")"

tools/install_packages measuring
case " $* " in *" --peers "*)
  tools/install_packages peers
  tools/install_packages kreport || echo "bench.sh: goes on without KReport" >&2
  ;;
esac
tools/build bench >&2  # so that the table can be kept by itself
exec python3 bench/program_bench.py "$@"
