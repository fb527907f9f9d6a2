#!/bin/sh
# Checks layout and habits of the code: ./lint.sh [FILE... | --changed [COMMIT]]. Layout is checked in all files, and
# that each compiles by itself; habits in all, in these, or in those that have changed since COMMIT. If that is not
# given, it is the first of these that is known and older than the last commit: where this branch left main, what the
# remote branch holds, the last tag, the commit before. clang-format and clang-tidy must find nothing; .clang-format and
# .clang-tidy say what they look at. Takes many minutes for all files.
set -eu
cd "$(dirname "$0")"

# With this linter the headers of the PDF library are right in the language of their time only.
of_its_time='^(src/preview/output/(pdf_(archive|attachments|export|fonts|metadata|resources|structure)|structure_elements)|tests/preview/pdf_(archive|rounding)_test)\.cpp$'
in_its_language='-extra-arg=-std=c++17'

base_of_changes() {
  for known in main '@{upstream}' "$(git describe --tags --abbrev=0 HEAD~1 2>/dev/null)" HEAD~1; do
    base=$(git merge-base HEAD "$known" 2>/dev/null) || continue
    [ "$base" = "$(git rev-parse HEAD)" ] || break
  done
  echo "$base"
}

# The linter takes sources, so a header is looked at through one that includes it, its own if there is one.
source_of_header() {
  own=${1%.h}.cpp
  if [ -e "$own" ]; then
    echo "$own"
  else
    git grep -l "#include \".*\b${1##*/}\"" -- "${1%%/*}/*.cpp" | head -n 1
  fi
}
sources_of() {
  for file; do
    case $file in
      *.cpp) echo "$file" ;;
      *.h) source_of_header "$file" ;;
    esac
  done | sort -u
}

# Looks at those of the chosen sources that the preset builds: their paths match.
lint() {
  preset=$1
  files=$2
  shift 2
  [ -n "$files" ] || return 0
  [ "$preset" = dev ] || tools/build "$preset" >/dev/null
  # The linter can't read what another compiler has precompiled, so it reads those headers as they are.
  mkdir -p "build/lint/$preset"
  sed 's/-Winvalid-pch -include [^ ]*//g' "build/$preset/compile_commands.json" \
    >"build/lint/$preset/compile_commands.json"
  paths=$(echo "$files" | sed 's/[.+]/\\&/g' | paste -sd '|' -)
  run-clang-tidy -p "build/lint/$preset" -j "${TARVIS_JOBS:-$(nproc)}" -quiet "$@" "^$PWD/($paths)\$"
}

tools/install_packages linting
git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run -Werror

# Other builds compile several files at once, which hides that one of them doesn't include a header that it needs.
tools/build dev >/dev/null

case ${1:-} in
  "") chosen=$(git ls-files '*.cpp') ;;
  --changed)
    base=$(git rev-parse --verify "${2:-$(base_of_changes)}^{commit}")
    echo "lint.sh: habits of what has changed since $(git log -1 --format='%h, %s' "$base")"
    # shellcheck disable=SC2046 # paths of the tree hold no blanks
    chosen=$(sources_of $(git diff --name-only --diff-filter=d "$base" -- '*.h' '*.cpp'))
    ;;
  *) chosen=$(sources_of "$@") ;;
esac
of_folder() {
  echo "$chosen" | grep -E "$1" || true
}
lint dev "$(of_folder '^(src|tests)/' | grep -Ev "$of_its_time" || true)"
lint dev "$(of_folder "$of_its_time")" "$in_its_language"
lint bench "$(of_folder '^bench/')"
lint fuzz "$(of_folder '^fuzz/')"
