#!/usr/bin/env bash
# Runs the Windows programs that build.sh has made, under Wine, on a bare Debian machine.
#   packaging/windows/test.sh            all of it
#   packaging/windows/test.sh NAME...    parts of it: the names of the files in parts/
# Each part has a Wine of its own. On a busy machine a program there may fail to start or miss its keys
# once: a part that fails is tried once more, and the output says so.
#   packaging/windows/test.sh --once NAME
set -euo pipefail
export PATH="${PATH:-/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin}" HOME="${HOME:-/root}"
export LC_ALL=C.UTF-8
cd "$(dirname "$0")/../.."
. scripts/packages.sh
. packaging/windows/wine.sh

PARTS="units registry names window odbc installer sessions"
BUILD=$PWD/build/windows
CONSOLE=$BUILD/pack/ordex-console.exe
SETTINGS_KEY='HKEY_CURRENT_USER\Software\VB and VBA Program Settings\Zelmo32'
for part in $PARTS; do . "packaging/windows/parts/$part.sh"; done

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# same WHAT EXPECTED FOUND
same() {
  [ "$2" = "$3" ] && return 0
  diff <(printf '%s\n' "$2") <(printf '%s\n' "$3") >&2 || true
  fail "$1"
}

# registry_values KEY: what stands in and below it, as lines like: Shared "Id_Utente"="7"
registry_values() {
  rm -f "$WORK/export.reg"
  wine regedit.exe /E "$(windows_path "$WORK/export.reg")" "$1" >/dev/null
  [ -f "$WORK/export.reg" ] || return 0
  iconv -f UTF-16 -t UTF-8 "$WORK/export.reg" | tr -d '\r' |
    awk '/^\[/ { section = $0; sub(/.*\\/, "", section); sub(/\]$/, "", section) } /^"/ { print section, $0 }' |
    sort
}

set_registry() {
  wine reg add "$SETTINGS_KEY\\$1" /v "$2" /t "${4:-REG_SZ}" /d "$3" /f >/dev/null
}

# make_office FOLDER
make_office() {
  mkdir -p "$1"
  cp mapping/*.txt "$1"
  (cd "$1" && wine "$CONSOLE" db create office.db --sample)
}

# build_tests TARGET...: test programs for Windows.
build_tests() {
  need_packages $TEST_PACKAGES
  cmake -S . -B "$BUILD" -DORDEX_TESTS=ON >/dev/null
  cmake --build "$BUILD" -j "$(nproc)" --target "$@" >"$WORK/build.log" 2>&1 ||
    { tail -n 40 "$WORK/build.log" >&2; fail "building the tests"; }
}

# run_tests PROGRAM [ARGUMENT...]: a test program under Wine; shows what failed.
run_tests() {
  wine "$@" --gtest_brief=1 >"$WORK/tests.log" 2>&1 || { cat "$WORK/tests.log" >&2; fail "$1"; }
  echo "$(basename "$1"): $(grep -F '[  PASSED  ]' "$WORK/tests.log" | tr -d '\r')"
}

run_part() {
  local begin=$SECONDS
  WORK=$(mktemp -d)
  trap 'stop_wine; rm -rf "$WORK"' EXIT
  start_wine "$WORK"
  "test_$1"
  echo "== $1: $((SECONDS - begin)) s"
}

main() {
  local part
  need_packages $WINDOWS_TEST_PACKAGES
  [ -f "$CONSOLE" ] || fail "no programs there; packaging/windows/build.sh makes them"
  for part in "$@"; do
    packaging/windows/test.sh --once "$part" && continue
    echo "== $part: failed, tried once more"
    packaging/windows/test.sh --once "$part"
  done
}

if [ $# -eq 0 ]; then set -- $PARTS; fi
if [ "$1" = --once ]; then run_part "$2"; else main "$@"; fi
