#!/bin/sh
# Installs what is missing, builds with sanitizers, and runs the checks and every test without a display.
set -eu
cd "$(dirname "$0")"

tools/install_packages
tools/build dev-asan
exec ctest --preset dev-asan </dev/null
