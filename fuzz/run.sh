#!/usr/bin/env bash
# Searches for inputs that fail.
#   fuzz/run.sh SECONDS [TARGET…]   replays each target's corpus, then searches so long; all targets
#                                   where none is named
# Prints a line for each target. An input that fails is kept under build/fuzz/failures, and the script
# fails; "build/fuzz/fuzz/fuzz_TARGET FILE" runs it again. FUZZ_JOBS targets run at once (default 2).
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

seconds=${1:?"usage: fuzz/run.sh SECONDS [TARGET…]"}
shift
targets=("$@")
[ ${#targets[@]} -gt 0 ] || mapfile -t targets < <(ls fuzz/corpus)

need_packages $BUILD_PACKAGES $FUZZ_PACKAGES
build_preset fuzz --target "${targets[@]/#/fuzz_}"
mkdir -p build/fuzz/failures

search() {
  local target=$1 seconds=$2 binary=build/fuzz/fuzz/fuzz_$1 log=build/fuzz/$1.log
  local found=build/fuzz/found/$target
  # Quarantined memory would count as the target's own.
  export ASAN_OPTIONS=quarantine_size_mb=32
  mkdir -p "$found"
  if ! "$binary" -runs=0 "fuzz/corpus/$target" >"$log" 2>&1; then
    echo "$target: an input of fuzz/corpus/$target fails, see $log"
    return 1
  fi
  # What earlier runs have found is not thrown away.
  if ! "$binary" -max_total_time="$seconds" -max_len=4096 -timeout=20 -rss_limit_mb=2048 \
      -print_final_stats=1 -artifact_prefix="build/fuzz/failures/$target-" \
      "$found" "fuzz/corpus/$target" >"$log" 2>&1; then
    echo "$target: fails, see $log"
    grep -E "does not hold|ERROR|runtime error|Test unit written" "$log" || true
    return 1
  fi
  local executed rate last
  executed=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  rate=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log")
  last=$(grep -aE "^#[0-9]+\s+DONE" "$log" | sed -E 's/.*cov: ([0-9]+) ft: ([0-9]+) corp: ([0-9]+).*/\1 \2 \3/')
  # shellcheck disable=SC2086
  printf '%-18s %10s %8s %6s %8s %6s\n' "$target" "$executed" "$rate" $last
}
export -f search

printf '%-18s %10s %8s %6s %8s %6s\n' target executions "a sec." edges features corpus
printf '%s\n' "${targets[@]}" | xargs -P "${FUZZ_JOBS:-2}" -I{} bash -c "search {} $seconds"
