#!/bin/sh
# Checks layout and habits of the code: ./lint.sh [FILE...], all of src/ and tests/ if not told. clang-format and
# clang-tidy must find nothing; what they look at stands in .clang-format and .clang-tidy. Takes many minutes for all
# files.
set -eu
cd "$(dirname "$0")"

tools/install_packages
tools/build dev-asan >/dev/null
git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run -Werror

lint() {
  run-clang-tidy -p build/dev-asan -j "${TARVIS_JOBS:-$(nproc)}" -quiet "$@"
}
if [ $# -gt 0 ]; then
  lint "$@"
  exit
fi
# With this linter the headers of the PDF library are right in the language of their time only.
of_its_time='preview/pdf_(export|resources)\.cpp'
lint "^$PWD/(src|tests)/(?!$of_its_time)"
lint -extra-arg=-std=c++17 "^$PWD/src/$of_its_time"
