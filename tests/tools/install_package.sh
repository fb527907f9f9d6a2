#!/bin/sh
# On a system that is thrown away: builds the Debian package without a warning of the compiler, installs it with what it
# depends on, plays the demo with the installed program, and asks the checker of packages.
set -eu
cd "$(dirname "$0")/../.."

log=$(mktemp)
status=0
tools/make_package >"$log" 2>&1 || status=$?
cat "$log"
[ "$status" -eq 0 ] || exit "$status"
if grep 'warning: .*\[-W' "$log"; then
  echo "install_package: the compiler has warned" >&2
  exit 1
fi
DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends ./build/packages/tarvis_*.deb
tarvis-check docs/examples/*
tools/install_packages testing
python3 demo/run_demo.py --headless --program /usr/bin/tarvis
lintian --fail-on error,warning build/packages/tarvis_*.deb
