#!/usr/bin/env bash
# Builds the program and measures its start against the least program of the toolkit.
#   bench/startup.sh [STARTS]   so many of each, 15 where not said
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need_packages $BUILD_PACKAGES $DESKTOP_PACKAGES $TEST_PACKAGES $GUI_TEST_PACKAGES $STARTUP_BENCH_PACKAGES
build_preset release --target startup_bench
exec build/release/bench/startup/startup_bench "$@"
