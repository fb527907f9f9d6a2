#!/bin/sh
# Builds the fuzzers and runs each from its corpus: ./fuzz.sh [SECONDS-EACH [READER...]], 10 seconds if not told.
# New inputs go to build/fuzz/found/READER; what breaks a reader is kept in build/fuzz as crash-READER-*. Ends with a
# line for each reader that tells how many executions ran clean.
set -eu
cd "$(dirname "$0")"
seconds=${1:-10}
[ $# -gt 0 ] && shift
readers=${*:-options user upwizard trace real_trace mecha sim idx_tbl zone_tbl jog_tbl}

tools/build fuzz fuzzers >/dev/null
for reader in $readers; do
  found=build/fuzz/found/$reader
  mkdir -p "$found"
  log=build/fuzz/$reader.log
  if ! build/fuzz/fuzz/fuzz_"$reader" -max_total_time="$seconds" -max_len=16384 -timeout=10 -dict=fuzz/files.dict \
    -artifact_prefix="build/fuzz/crash-$reader-" -print_final_stats=1 \
    "$found" "fuzz/corpus/$reader" docs/examples >"$log" 2>&1; then
    tail -n 40 "$log"
    echo "fuzz.sh: $reader: broken, see $log"
    exit 1
  fi
  echo "$reader: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") executions ran clean"
done
