#!/bin/sh
# Prints how much of the core the core's tests run: a line for each file and the sum. Fails below 95 % of the lines. The
# lines that no test runs are marked in build/coverage/report/index.html.
set -eu
cd "$(dirname "$0")"

tools/install_packages covering
tools/build coverage core_tests
find build/coverage -name '*.gcda' -delete
build/coverage/tests/core_tests --gtest_brief=1
mkdir -p build/coverage/report
exec gcovr --root . --object-directory build/coverage --filter src/ --exclude-throw-branches \
  --html-details build/coverage/report/index.html --print-summary --txt --fail-under-line 95
