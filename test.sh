#!/bin/sh
# Installs what is missing, builds with sanitizers, and runs the checks and every test without a display, and each fuzzer
# for a second. Where nothing has changed since all of it passed, it only says so: ./test.sh --again runs it all the same.
set -eu
cd "$(dirname "$0")"

tools/install_packages testing
passed=build/dev-asan/passed # holds the state of the tree with which everything passed last
state=$(tools/tree_state)
if [ "${1:-}" != --again ] && [ -n "$state" ] && [ "$state" = "$(cat "$passed" 2>/dev/null)" ]; then
  echo "Nothing has changed since all tests passed ($(date -r "$passed")). ./test.sh --again runs them all the same."
  exit 0
fi
rm -f "$passed"
tools/build dev-asan
tools/build fuzz fuzzers
ctest --preset dev-asan </dev/null
if [ "$state" = "$(tools/tree_state)" ]; then
  echo "$state" >"$passed"
fi
