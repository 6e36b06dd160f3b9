#!/usr/bin/env bash
# Passes the tests, on a bare Debian machine too.
#   ./test.sh        the quick set: unit, contract and session tests
#   ./test.sh --all  also the format, the benchmarks once and the unit tests under the sanitizers
set -euo pipefail
export PATH="${PATH:-/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin}" HOME="${HOME:-/root}"
cd "$(dirname "$0")"
. scripts/packages.sh

# run_tests PRESET [further options]
run_tests() {
  local preset=$1
  shift
  ctest --test-dir "build/$preset" --output-on-failure -j "$(nproc)" --timeout 300 --no-tests=error "$@"
}

quick() {
  need_packages $BUILD_PACKAGES $DESKTOP_PACKAGES $TEST_PACKAGES
  echo "== release build"
  build_preset release
  echo "== tests"
  run_tests release
}

all() {
  need_packages $BUILD_PACKAGES $DESKTOP_PACKAGES $TEST_PACKAGES $BENCH_PACKAGES $LINT_PACKAGES
  echo "== format"
  scripts/lint.sh --format
  quick
  echo "== benchmarks, once each"
  bench/run.sh --once
  echo "== tests under the address and undefined-behaviour sanitizers"
  # The sessions drive the program from outside and have run above.
  build_preset debug
  run_tests debug -E '^sessions:'
}

case "${1:-}" in
  "") quick ;;
  --all) all ;;
  *) echo "usage: ./test.sh [--all]" >&2; exit 2 ;;
esac
