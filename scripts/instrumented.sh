#!/usr/bin/env bash
# How many of the program's lines the tests run: builds with counters, passes the unit tests and the
# sessions, and prints the share of each folder of src/. What draws on a desktop or runs on Windows
# alone is left out: it has tests of its own kind.
#   scripts/coverage.sh          fails under 95 %
#   scripts/coverage.sh --lines  also prints the lines that no test runs
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

LEAST=95
PROGRAMS="ordex-console base_tests db_tests parse_tests store_tests cases_tests app_tests properties_tests
  sessions_tests console_tests"

need_packages $BUILD_PACKAGES $TEST_PACKAGES $COVERAGE_PACKAGES
build_preset coverage --target $PROGRAMS
find build/coverage -name '*.gcda' -delete
# What sends ever more through the same lines brings no new ones.
ctest --test-dir build/coverage -E '^(abuse|security|sessions-odbc|fuzz):|_NOT_BUILT' -j "$(nproc)" --timeout 300 \
  --output-on-failure --no-tests=error >build/coverage/ctest.log || {
    tail -n 40 build/coverage/ctest.log
    exit 1
  }

report=(gcovr --root . --object-directory build/coverage --filter 'src/' \
  --exclude 'src/ui/desktop/' --exclude 'src/ui/windows/' --exclude-unreachable-branches -j "$(nproc)" \
  build/coverage/src build/coverage/tests)
"${report[@]}" --csv -o build/coverage/lines.csv
[ "${1:-}" != --lines ] || "${report[@]}" --txt

awk -F, -v least="$LEAST" '
  NR > 1 {
    folder = $1
    sub(/\/[^\/]*$/, "", folder)
    all[folder] += $2; run[folder] += $3
    lines += $2; covered += $3
  }
  END {
    for (folder in all)
      printf "%-20s %6d of %6d lines  %5.1f %%\n", folder, run[folder], all[folder], 100 * run[folder] / all[folder] | "sort"
    close("sort")
    if (lines == 0) { print "no lines were counted"; exit 1 }
    printf "%-20s %6d of %6d lines  %5.1f %%\n", "all", covered, lines, 100 * covered / lines
    if (100 * covered < least * lines) { printf "under %d %%\n", least; exit 1 }
  }' build/coverage/lines.csv
