#!/usr/bin/env bash
# Runs the Windows programs that build.sh has made, under Wine, on a bare Debian machine.
#   packaging/windows/test.sh            all of it
#   packaging/windows/test.sh NAME...    parts of it: units, sessions, registry, names
set -euo pipefail
export PATH="${PATH:-/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin}" HOME="${HOME:-/root}"
export LC_ALL=C.UTF-8
cd "$(dirname "$0")/../.."
. scripts/packages.sh
. packaging/windows/wine.sh

BUILD=$PWD/build/windows
CONSOLE=$BUILD/pack/ordex-console.exe
SESSIONS=$PWD/build/release/tests/sessions/sessions_tests
SETTINGS_KEY='HKEY_CURRENT_USER\Software\VB and VBA Program Settings\Zelmo32'
UNIT_TESTS="base_tests db_tests parse_tests store_tests cases_tests app_tests windows_tests"

# Sessions that say something about the system below rather than about the program. Their console runs
# as an unprivileged user, since root may write everywhere; Wine refuses to run in another user's
# folder of settings, and on Windows rights are not those of a Unix file.

NOT_UNDER_WINE="database.file_read_only database.program_folder_read_only database.read_only"

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

session_names() {
  "$SESSIONS" --gtest_list_tests | awk '/^[^ ].*\.$/ { suite = $1 } /^  / { print suite $1 }'
}

# A folder's name is written with the system's own separators.
plain_transcript() {
  sed -E 's#\\\\#/#g' "$@"
}

# run_recorded NAME FOLDER CONSOLE...: the session through that console, its transcripts in FOLDER.
run_recorded() {
  local name=$1 folder=$2
  shift 2
  mkdir -p "$folder"
  RECORD=$folder ORDEX_CONSOLE="$PWD/packaging/windows/record.sh $*" \
    "$SESSIONS" --gtest_filter="$name" >"$folder/log" 2>&1 ||
    { cat "$folder/log" >&2; fail "session $name with $*"; }
}

compare_transcripts() {
  local name=$1 file
  for file in "$WORK/linux/$name"/*.{out,err}; do
    cmp -s <(plain_transcript "$file") <(plain_transcript "$WORK/windows/$name/${file##*/}") ||
      { diff <(plain_transcript "$file") <(plain_transcript "$WORK/windows/$name/${file##*/}") >&2 || true
        fail "session $name prints something else under Windows (${file##*/})"; }
  done
  same "runs of session $name" "$(ls "$WORK/linux/$name")" "$(ls "$WORK/windows/$name")"
}

# Every session passes, and prints byte for byte what it prints on Linux.
test_sessions() {
  local name names count=0
  need_packages $BUILD_PACKAGES $TEST_PACKAGES
  cmake --preset release >/dev/null
  cmake --build --preset release -j "$(nproc)" --target sessions_tests ordex-console >/dev/null
  names=$(session_names)
  for name in $NOT_UNDER_WINE; do
    grep -qxF "$name" <<<"$names" || fail "there is no session $name to leave out"
  done
  for name in $names; do
    grep -qwF "$name" <<<"$NOT_UNDER_WINE" && continue
    run_recorded "$name" "$WORK/linux/$name" "$PWD/build/release/src/ordex-console"
    run_recorded "$name" "$WORK/windows/$name" "$WINE" "$CONSOLE"
    # The runner's own tests run no console.
    if compgen -G "$WORK/linux/$name/*.out" >/dev/null; then
      compare_transcripts "$name"
      count=$((count + 1))
    fi
  done
  [ "$count" -ge 100 ] || fail "only $count sessions ran"
  echo "sessions: $count with the same transcript, left out: $NOT_UNDER_WINE"
}

# The unit and contract tests, built for Windows.
test_units() {
  local program
  need_packages $TEST_PACKAGES
  cmake -S . -B "$BUILD" -DORDEX_TESTS=ON >/dev/null
  cmake --build "$BUILD" -j "$(nproc)" --target $UNIT_TESTS >"$WORK/units.log" 2>&1 ||
    { tail -n 40 "$WORK/units.log" >&2; fail "building the tests"; }
  for program in $UNIT_TESTS; do
    run_units "$BUILD/tests/${program%_tests}/$program.exe"
  done
  # Once more as the case application, which is then running.
  cp "$BUILD/tests/windows/windows_tests.exe" "$WORK/ProvaPraxion.exe"
  run_units "$WORK/ProvaPraxion.exe" --gtest_filter='SystemProcesses.*'
}

run_units() {
  wine "$@" >"$WORK/units.log" 2>&1 || { grep -vE '^\[ +(RUN|OK)' "$WORK/units.log" >&2; fail "$1"; }
  echo "$(basename "$1"): $(grep -F '[  PASSED  ]' "$WORK/units.log" | tr -d '\r')"
}

# The settings in the user's registry, as lines like: Shared "Id_Utente"="7"
registry_values() {
  rm -f "$WORK/export.reg"
  wine regedit.exe /E "$(windows_path "$WORK/export.reg")" "$SETTINGS_KEY"
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

# The settings of an office, the registry as the case application leaves it.
test_registry() {
  local office=$WORK/registry/office output
  make_office "$office"
  wine reg delete "$SETTINGS_KEY" /f >/dev/null 2>&1 || true
  set_registry startup Security ';Integrated Security=SSPI;'
  set_registry startup Server 'Data Source=file:office.db'
  set_registry Shared Id_Utente 7
  set_registry Altro Città 'Forlì, Łódź'
  same "registry before" "$(sort <<'END'
Altro "Città"="Forlì, Łódź"
Shared "Id_Utente"="7"
startup "Security"=";Integrated Security=SSPI;"
startup "Server"="Data Source=file:office.db"
END
  )" "$(registry_values)"
  output=$(printf 'click cmdAzione\nok\n' | wine "$CONSOLE" --dir "$office" --json \
    --clipboard samples/profilo-contratto.txt)
  grep -qF '"idUtente":7' <<<"$output" || fail "the user of the registry is not the window's"
  same "end" '{"event":"end","reason":"done"}' "$(tail -n 1 <<<"$output")"
  same "registry after" "$(sort <<'END'
Altro "Città"="Forlì, Łódź"
Shared "Id_Utente"="-1"
Shared "OrdexHandle"="0"
startup "Security"=";Integrated Security=SSPI;"
startup "Server"="Data Source=file:office.db"
END
  )" "$(registry_values)"
  same "case in the database" "1842/2025" \
    "$(sqlite3 "$office/office.db" "SELECT NumeroRegGenerale FROM PraOrdex")"
  # A value that is no text is told, not taken for an absent one.
  set_registry Shared Id_Utente 7 REG_DWORD
  output=$(wine "$CONSOLE" --dir "$office" --json --clipboard samples/profilo-contratto.txt || true)
  grep -qF "valore \\\"Id_Utente\\\" non è un testo" <<<"$output" || fail "a number as Id_Utente"
  wine reg delete "$SETTINGS_KEY" /f >/dev/null
  echo "registry: values before and after an update"
}

# A user whose folder is named with accents and letters of other alphabets.
test_names() {
  local folder="$WORK/Niccolò Żółć 日本語" output
  make_office "$folder/studio è"
  mv "$folder/studio è/office.db" "$folder/studio è/pratiche ąę.db"
  cp samples/profilo-contratto.txt "$folder/pagina è ж.txt"
  printf '[startup]\nSecurity=;Integrated Security=SSPI;\nServer=Data Source=file:pratiche ąę.db\n[Shared]\nId_Utente=7\n' \
    >"$folder/impostazioni ж.ini"
  printf 'click cmdAzione\nok\n' >"$folder/comandi è.txt"
  output=$(wine "$CONSOLE" --dir "$folder/studio è" --settings "$folder/impostazioni ж.ini" --json \
    --clipboard "$folder/pagina è ж.txt" --script "$folder/comandi è.txt")
  same "end" '{"event":"end","reason":"done"}' "$(tail -n 1 <<<"$output")"
  same "user after" "Id_Utente=-1" "$(grep Id_Utente "$folder/impostazioni ж.ini")"
  same "case in the database" "1842/2025" \
    "$(sqlite3 "$folder/studio è/pratiche ąę.db" "SELECT NumeroRegGenerale FROM PraOrdex")"
  # The program's own folder, without any option, and the one that the environment names.
  cp "$CONSOLE" "$folder/studio è"
  wine "$folder/studio è/ordex-console.exe" check >"$WORK/check" || fail "check beside the program"
  same "check" "I file di mappatura sono in ordine." "$(cat "$WORK/check")"
  rm "$folder/studio è/ordex-console.exe"
  ORDEX_DIR="$folder/studio è" wine "$CONSOLE" check >"$WORK/check" || fail "check with ORDEX_DIR"
  # A file that is not there is named as it is written.
  output=$(wine "$CONSOLE" explain --dir "$folder/studio è" "$folder/manca ж.txt" 2>&1 || true)
  grep -qF 'manca ж.txt' <<<"$output" || fail "the name in a message: $output"
  echo "names: accents and other alphabets in every path"
}

main() {
  local part
  need_packages $WINDOWS_TEST_PACKAGES
  [ -f "$CONSOLE" ] || fail "no programs there; packaging/windows/build.sh makes them"
  WORK=$(mktemp -d)
  trap 'stop_wine; rm -rf "$WORK"' EXIT
  start_wine "$WORK"
  for part in "$@"; do "test_$part"; done
}

if [ $# -eq 0 ]; then set -- units registry names sessions; fi
main "$@"
