#!/usr/bin/env bash
# Passes the tests, on a bare Debian machine too.
#   ./test.sh        the quick set: unit, contract, session and window tests
#   ./test.sh --all  also format and lint, the benchmarks once, sanitizers and coverage, a short search
#                    by the fuzz targets, and the Windows programs under Wine
set -euo pipefail
export PATH="${PATH:-/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin}" HOME="${HOME:-/root}"
cd "$(dirname "$0")"
. scripts/packages.sh

FUZZ_SECONDS=20

# stage NAME COMMAND...: runs it and tells how long it took.
stage() {
  local name=$1 begin=$SECONDS
  shift
  echo "== $name"
  "$@"
  echo "== $name: done in $((SECONDS - begin)) s"
}

# Real keys and clicks on a real display: on a busy machine a window may lose them once.
window_tests() {
  run_ctest release window-tests -R '^desktop:' --repeat until-pass:2
}

quick() {
  need_packages $BUILD_PACKAGES $DESKTOP_PACKAGES $TEST_PACKAGES $GUI_TEST_PACKAGES
  stage "release build" build_preset release
  stage "tests" run_ctest release tests -E '^desktop:'
  stage "window tests" window_tests
}

all() {
  need_packages $BUILD_PACKAGES $DESKTOP_PACKAGES $TEST_PACKAGES $GUI_TEST_PACKAGES $BENCH_PACKAGES \
    $FUZZ_PACKAGES $LINT_PACKAGES $COVERAGE_PACKAGES
  stage "format" scripts/lint.sh --format
  quick
  stage "lint" scripts/lint.sh
  stage "benchmarks, once each" bench/run.sh --once
  stage "sanitizers and coverage" scripts/instrumented.sh
  stage "fuzz targets" fuzz/run.sh "$FUZZ_SECONDS"
  stage "Windows programs" packaging/windows/build.sh
  stage "Windows programs under Wine" packaging/windows/test.sh
  grep -h "tests passed" build/{release,debug}/*tests.log
}

case "${1:-}" in
  "") quick ;;
  --all) all ;;
  *) echo "usage: ./test.sh [--all]" >&2; exit 2 ;;
esac
