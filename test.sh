#!/bin/sh
# Installs what is missing, builds with sanitizers, and runs the checks and every test without a display, and each fuzzer
# for a second.
set -eu
cd "$(dirname "$0")"

tools/install_packages testing
tools/build dev-asan
tools/build fuzz fuzzers
exec ctest --preset dev-asan </dev/null
