#!/bin/sh
# On a system that is thrown away: builds the Debian package, installs it with what it depends on, plays the demo with the
# installed program, and asks the checker of packages.
set -eu
cd "$(dirname "$0")/../.."

tools/make_package
DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends ./build/packages/tarvis_*.deb
tarvis-check docs/examples/*
tools/install_packages testing
python3 demo/run_demo.py --headless --program /usr/bin/tarvis
lintian --fail-on error,warning build/packages/tarvis_*.deb
