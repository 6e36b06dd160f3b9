#!/usr/bin/env bash
# Format and lint: every source must be as clang-format leaves it and clean for clang-tidy.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need_packages $BUILD_PACKAGES $TEST_PACKAGES $BENCH_PACKAGES $LINT_PACKAGES

mapfile -t files < <(git ls-files -co --exclude-standard '*.cpp' '*.h')
clang-format --dry-run --Werror "${files[@]}"

# clang-tidy wants to know how each file is compiled, and the generated sources to be there.
cmake --preset release -DORDEX_BENCH=ON >/dev/null
cmake --build --preset release --target embedded_sql >/dev/null
run-clang-tidy -quiet -p build/release -j "$(nproc)" "^$PWD/(src|tests|bench)/" \
  >build/clang-tidy.log 2>build/clang-tidy.err || { cat build/clang-tidy.log; exit 1; }
echo "format and lint: clean"
