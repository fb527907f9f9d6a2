#!/bin/sh
# Installs what is missing, builds with sanitizers, runs each fuzzer for a second, and runs the checks and every test
# without a display.
set -eu
cd "$(dirname "$0")"

tools/install_packages
tools/build dev-asan
./fuzz.sh 1
exec ctest --preset dev-asan </dev/null
