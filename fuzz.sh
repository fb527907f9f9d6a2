#!/bin/sh
# Builds the fuzzers and runs each from its corpus: ./fuzz.sh [SECONDS-EACH [FUZZER...]], 10 seconds if not told.
# New inputs go to build/fuzz/found/FUZZER; what breaks one is kept in build/fuzz as crash-FUZZER-*. Ends with a line
# for each fuzzer that tells how many executions ran clean.
set -eu
cd "$(dirname "$0")"
seconds=${1:-10}
[ $# -gt 0 ] && shift
fuzzers=${*:-options user upwizard trace real_trace mecha sim idx_tbl zone_tbl jog_tbl pictures emf emf_plus wmf}

# What the toolkit's libraries keep is no finding, nor are thread-local blocks that the sanitizer takes for its own.
export ASAN_OPTIONS=intercept_tls_get_addr=0
export LSAN_OPTIONS="suppressions=$PWD/cmake/lsan.supp:print_suppressions=0"

tools/install_packages fuzzing
tools/build fuzz fuzzers >/dev/null
for fuzzer in $fuzzers; do
  found=build/fuzz/found/$fuzzer
  mkdir -p "$found"
  log=build/fuzz/$fuzzer.log
  if ! build/fuzz/fuzz/fuzz_"$fuzzer" -max_total_time="$seconds" -max_len=16384 -timeout=10 -dict=fuzz/files.dict \
    -artifact_prefix="build/fuzz/crash-$fuzzer-" -print_final_stats=1 \
    "$found" "fuzz/corpus/$fuzzer" docs/examples >"$log" 2>&1; then
    tail -n 40 "$log"
    echo "fuzz.sh: $fuzzer: broken, see $log"
    exit 1
  fi
  echo "$fuzzer: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") executions ran clean"
done
