#!/bin/sh
# Checks layout and habits of the code: ./lint.sh [FILE...], all of src/ if not told. clang-format and clang-tidy must
# find nothing; what they look at stands in .clang-format and .clang-tidy. Takes many minutes for all files.
set -eu
cd "$(dirname "$0")"

tools/install_packages
tools/build dev-asan >/dev/null
git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run -Werror
exec run-clang-tidy -p build/dev-asan -j "${TARVIS_JOBS:-$(nproc)}" -quiet "${@:-^$PWD/src/}"
