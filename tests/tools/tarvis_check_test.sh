#!/bin/sh
# Runs tarvis-check as the host's developers do: tarvis_check_test.sh PROGRAM SOURCE-FOLDER
set -eu
program=$1
examples=$2/docs/examples
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

fail() {
  echo "$*"
  exit 1
}

# expect STATUS LAST-LINE ARGUMENT...
expect() {
  status=$1
  line=$2
  shift 2
  found=0
  "$program" "$@" >"$folder/out" 2>"$folder/err" || found=$?
  [ "$found" -eq "$status" ] || fail "tarvis-check $*: exit status $found, not $status"
  [ "$(cat "$folder/out" "$folder/err" | tail -n 1)" = "$line" ] || fail "tarvis-check $*: $(cat "$folder/out" "$folder/err")"
}

expect 0 "UPWizard.tmp: diagram 'C:\\Host\\bin\\wizard\\base.bmp', 2 relays, 4 output numbers, 7 output names" \
  "$examples/User.tmp" "$examples/UPWizard.tmp"

printf 'File-Spec,3\r\nCursolselect,1\r\n' >"$folder/Trace.tmp"
cp "$folder/Trace.tmp" "$folder/before"
expect 1 "Trace.tmp:2: unknown key 'Cursolselect'" "$examples/User.tmp" "$folder/Trace.tmp"
expect 1 "IdxJogTbl.tmp: 2 jog speeds, no comment" "$folder/Trace.tmp" "$examples/IdxJogTbl.tmp"
cmp "$folder/Trace.tmp" "$folder/before" || fail "the file was changed"

printf 'Comment,\225\134\r\n' >"$folder/User.tmp"
expect 0 "User.tmp: 0 parameters, 0 switch parameters, comment '表'" --code-page 932 "$folder/User.tmp"
expect 1 "tarvis-check: CodePage: no such code page: '7'" --code-page 7 "$folder/User.tmp"
expect 1 "tarvis-check: CodePage: not a code page that holds ASCII: '1200'" --code-page 1200 "$folder/User.tmp"
expect 1 "tarvis-check: CodePage: not a code page number: '932x'" --code-page 932x "$folder/User.tmp"
printf 'Comment,\303\244\r\n' >"$folder/User.tmp"
expect 0 "User.tmp: 0 parameters, 0 switch parameters, comment 'ä'" --code-page 65001 "$folder/User.tmp"
usage="Sim.tmp, Sim1.tmp, IdxIdxTbl.tmp, IdxZoneTbl.tmp, IdxJogTbl.tmp, PrintOption.ToT. The code page is 1252 by default."
expect 1 "$usage"
[ ! -s "$folder/out" ] || fail "a wrong call writes to standard output"
expect 0 "$usage" --help
[ ! -s "$folder/err" ] || fail "help that was asked for is no error"

# What stops the program only when the pages are made, and nothing else; the file stays.
printf 'PatternSetting,Pattern,,Trapezoid,1\r\n' >"$folder/Sim.tmp"
expect 1 "Sim.tmp:1: PatternSetting: element 2: not a number: ''" "$folder/Sim.tmp"
[ -f "$folder/Sim.tmp" ] || fail "the file was deleted"
echo "tarvis-check: all as expected"
