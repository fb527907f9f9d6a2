#!/bin/sh
# Builds the program and shows it with the data of a fictional host: ./demo.sh [MODE] [--cover] [--overlap] [--headless].
# Installs what is missing first.
set -eu
cd "$(dirname "$0")"

player=playing
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || player=headless
case " $* " in *" --headless "*) player=headless ;; esac

tools/install_packages building "$player"
tools/build release tarvis
exec python3 demo/run_demo.py "$@"
