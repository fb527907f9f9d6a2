#!/bin/sh
# Builds the programs for Windows on Debian and tries them under wine: ./windows.sh, or ./windows.sh core for the check of
# files and the tests of the core alone, which need no toolkit. Installs what is missing first. Libraries are built once,
# the toolkit for an hour, and kept (tools/windows_parts). The programs are in build/windows/programs, with their DLLs,
# installer and zip in build/windows/packages.
set -eu
cd "$(dirname "$0")"

say() {
  echo "windows.sh: $*"
}

case "${1:-all}" in
  all) preset=windows parts="icu googletest libdeflate qpdf qtbase" targets="tarvis-check core_tests tarvis-pdf tarvis" ;;
  core) preset=windows-core parts="icu googletest" targets="tarvis-check core_tests" ;;
  *)
    sed -n '2,5s/^# //p' "$0" >&2
    exit 2
    ;;
esac
programs=build/$preset/programs

say "1 of 6: packages"
tools/install_packages crossing

say "2 of 6: libraries"
# shellcheck disable=SC2086 # a list of names
TARVIS_WINDOWS_PARTS=$(tools/windows_parts $parts)
export TARVIS_WINDOWS_PARTS

say "3 of 6: programs"
# shellcheck disable=SC2086
tools/build "$preset" $targets
tools/collect_windows_programs "$preset" "$programs"

say "4 of 6: tests of the core under wine"
tools/with_wine "$programs/core_tests.exe" --gtest_brief=1
[ "$preset" = windows ] || exit 0

say "5 of 6: the PDFs of this machine and of wine"
tools/build release tarvis-pdf
TARVIS_PDF=$PWD/build/release/src/tarvis-pdf TARVIS_PDF_EXE=$PWD/$programs/tarvis-pdf.exe TARVIS_WINE=$PWD/tools/with_wine \
  python3 tests/tools/windows_pdf.py

say "6 of 6: installer and zip"
tools/make_windows_installer "$programs" build/windows/packages build/windows/packaging/tarvis.ico
TARVIS_SETUP=$(echo "$PWD"/build/windows/packages/*-setup.exe) TARVIS_WINE=$PWD/tools/with_wine \
  python3 tests/tools/windows_installer.py
