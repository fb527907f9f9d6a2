#!/bin/sh
# Builds the program for speed and measures it: ./bench.sh [--runs N] prints one table.
set -eu
cd "$(dirname "$0")"

tools/install_packages
tools/build release
exec python3 bench/program_bench.py "$@"
