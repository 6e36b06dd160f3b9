#!/usr/bin/env bash
# Builds the benchmarks and prints one table of ratios, each pair measured in one run; then the start
# of the window against an empty one, and the memory that pages of 100 MB take.
#   bench/run.sh            in full (1,000,000 cases, several repetitions)
#   bench/run.sh --once     small and short: only to see that they work
#   bench/run.sh OPTION...  the table alone, with options of Google Benchmark
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need_packages $BUILD_PACKAGES $BENCH_PACKAGES
build_preset bench

full=(--cases=1000000 --benchmark_min_time=0.3 --benchmark_repetitions=7
  --benchmark_enable_random_interleaving=true)
case "${1:-}" in
  "")
    build/bench/bench/ordex_bench "${full[@]}"
    bench/startup.sh
    build_preset release --target process_abuse_tests
    echo "Memory that a page of 100 MB takes (aim: 3 times its size)"
    build/release/tests/abuse/process_abuse_tests --gtest_brief=1 --gtest_filter='*BigPage*' | grep times
    ;;
  --once)
    build/bench/bench/ordex_bench --cases=10000 --benchmark_min_time=0.01 --benchmark_repetitions=1
    bench/startup.sh 1
    ;;
  *) exec build/bench/bench/ordex_bench "${full[@]}" "$@" ;;
esac
