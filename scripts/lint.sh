#!/usr/bin/env bash
# Format and lint: every source must be as clang-format leaves it, include nothing of a room that
# its own may not know, and be clean for clang-tidy.
#   scripts/lint.sh           all of that
#   scripts/lint.sh --format  without clang-tidy
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need_packages $BUILD_PACKAGES $DESKTOP_PACKAGES $TEST_PACKAGES $LINT_PACKAGES

mapfile -t files < <(git ls-files -co --exclude-standard '*.cpp' '*.h')
clang-format --dry-run --Werror "${files[@]}"
echo "format: clean"
scripts/arrows.sh
[ "${1:-}" != --format ] || exit 0

# Tests and benchmarks are formatted but not linted: with their frameworks' headers that takes longer
# than all the rest together. clang-tidy wants to know how each file is compiled, and the generated
# sources to be there.
cmake --preset release >/dev/null
cmake --build --preset release --target embedded_sql >/dev/null
run-clang-tidy -quiet -p build/release -j "$(nproc)" "^$PWD/src/" \
  >build/clang-tidy.log 2>build/clang-tidy.err || { cat build/clang-tidy.log; exit 1; }
echo "lint: clean"
