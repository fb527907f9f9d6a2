#!/bin/sh
# Builds the program for speed and measures it: ./bench.sh [--runs N] prints one table.
set -eu
cd "$(dirname "$0")"

tools/install_packages measuring
tools/build bench >&2  # so that the table can be kept by itself
exec python3 bench/program_bench.py "$@"
