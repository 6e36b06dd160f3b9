#!/usr/bin/env bash
# Passes the tests through programs that are built with the address and undefined-behaviour sanitizers
# and with counters, and prints the share of each folder's lines that they have run. What draws on a
# desktop or runs on Windows alone is left out: it has tests of its own kind.
#   scripts/instrumented.sh          fails under 95 %
#   scripts/instrumented.sh --lines  also prints the lines that no test runs
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

LEAST=95

need_packages $BUILD_PACKAGES $TEST_PACKAGES $COVERAGE_PACKAGES
build_preset debug
find build/debug -name '*.gcda' -delete
# The sessions through ODBC run the same code but for the driver, which has its own tests here; what is
# abused is measured in memory and in time.
run_ctest debug tests -E '^(sessions-odbc|abuse):'

report=(gcovr --root . --object-directory build/debug --filter 'src/' \
  --exclude 'src/ui/desktop/' --exclude 'src/ui/windows/' --exclude-unreachable-branches -j "$(nproc)" \
  build/debug/src)
"${report[@]}" --csv -o build/debug/lines.csv
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
  }' build/debug/lines.csv
