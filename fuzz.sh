#!/bin/sh
# Builds the fuzzers and runs each from its corpus: ./fuzz.sh [SECONDS-EACH [FUZZER...]], 10 seconds if not given.
# New inputs go to build/fuzz/found/FUZZER; what breaks one is kept in build/fuzz as crash-FUZZER-*. Ends with a line
# for each fuzzer that says how many executions ran clean.
set -eu
cd "$(dirname "$0")"
seconds=${1:-10}
[ $# -gt 0 ] && shift
fuzzers=${*:-options user upwizard trace real_trace mecha sim idx_tbl zone_tbl jog_tbl pictures emf emf_plus wmf}

# What the toolkit's libraries keep is no finding, nor are thread-local blocks that the sanitizer takes for its own.
export ASAN_OPTIONS=intercept_tls_get_addr=0
export LSAN_OPTIONS="suppressions=$PWD/fuzz/lsan.supp:print_suppressions=0"

tools/install_packages fuzzing
tools/build fuzz fuzzers >/dev/null
fuzz/make_picture_seeds.py build/fuzz/seeds

# Pictures: whole charts as seeds and as inputs, and limits that no picture may pass: 256 MB at a time, and time beyond
# the 2 seconds of computing after which a load must give up by itself. The sanitizer needs as much again.
picture_options() {
  case $1 in
  pictures | emf | emf_plus | wmf) echo "-max_len=400000 -timeout=4 -malloc_limit_mb=256 -rss_limit_mb=1024" ;;
  *) echo "-max_len=16384 -timeout=10" ;;
  esac
}
picture_seeds() {
  case $1 in
  pictures | emf | wmf | emf_plus) echo "build/fuzz/seeds/$1" ;;
  esac
  case $1 in
  pictures | emf | wmf) echo tests/pictures/data ;;
  esac
}
for fuzzer in $fuzzers; do
  found=build/fuzz/found/$fuzzer
  mkdir -p "$found"
  log=build/fuzz/$fuzzer.log
  # The options and folders are words of their own.
  # shellcheck disable=SC2046
  if ! build/fuzz/fuzz/fuzz_"$fuzzer" -max_total_time="$seconds" $(picture_options "$fuzzer") -dict=fuzz/files.dict \
    -artifact_prefix="build/fuzz/crash-$fuzzer-" -print_final_stats=1 \
    "$found" "fuzz/corpus/$fuzzer" $(picture_seeds "$fuzzer") docs/examples >"$log" 2>&1; then
    tail -n 40 "$log"
    echo "fuzz.sh: $fuzzer: broken, see $log"
    exit 1
  fi
  edges=$(sed -n 's/.* cov: \([0-9]*\) .*/\1/p' "$log" | tail -n 1)
  echo "$fuzzer: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") executions ran clean, $edges edges"
done
