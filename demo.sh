#!/bin/sh
# Builds the program and shows it with the data of a fictional host: ./demo.sh [MODE] [--cover] [--headless].
# Installs what is missing first.
set -eu
cd "$(dirname "$0")"

tools/install_packages
tools/build release tarvis
exec python3 demo/run_demo.py "$@"
