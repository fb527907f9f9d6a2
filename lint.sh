#!/bin/sh
# Checks layout and habits of the code: ./lint.sh [FILE...], all of it if not told. clang-format and clang-tidy must
# find nothing; what they look at stands in .clang-format and .clang-tidy. Takes many minutes for all files.
set -eu
cd "$(dirname "$0")"

# Looks at the files of a preset whose path matches.
lint() {
  preset=$1
  files=$2
  shift 2
  tools/build "$preset" >/dev/null
  run-clang-tidy -p "build/$preset" -j "${TARVIS_JOBS:-$(nproc)}" -quiet "$@" "^$PWD/$files"
}

tools/install_packages linting
git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run -Werror

# With this linter the headers of the PDF library are right in the language of their time only.
of_its_time='preview/output/pdf_(export|resources)\.cpp'
in_its_language='-extra-arg=-std=c++17'

if [ $# -gt 0 ]; then
  for file; do
    case $file in
      bench/*) lint release "$file" ;;
      fuzz/*) lint fuzz "$file" ;;
      *)
        if echo "$file" | grep -Eq "$of_its_time"; then
          lint dev-asan "$file" "$in_its_language"
        else
          lint dev-asan "$file"
        fi
        ;;
    esac
  done
  exit
fi
lint dev-asan "(src|tests)/(?!$of_its_time)"
lint dev-asan "src/$of_its_time" "$in_its_language"
lint bench bench/
lint fuzz fuzz/
