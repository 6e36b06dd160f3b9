#!/usr/bin/env bash
# Builds the benchmarks and prints one table of ratios, each pair measured in one run.
#   bench/run.sh         in full (1,000,000 cases, several repetitions)
#   bench/run.sh --once  small and short: only to see that they work
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need_packages $BUILD_PACKAGES $BENCH_PACKAGES
build_preset bench
if [ "${1:-}" = --once ]; then
  exec build/bench/bench/ordex_bench --cases=10000 --benchmark_min_time=0.01 --benchmark_repetitions=1
fi
exec build/bench/bench/ordex_bench --cases=1000000 --benchmark_min_time=0.3 \
  --benchmark_repetitions=7 --benchmark_enable_random_interleaving=true "$@"
