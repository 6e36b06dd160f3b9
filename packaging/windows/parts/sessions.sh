# Part of test.sh: the sessions of the suite. Each one passes, and prints byte for byte what it prints on
# Linux.

SESSIONS=$PWD/build/release/tests/sessions/sessions_tests
LINUX_CONSOLE=$PWD/build/release/src/ordex-console

# Sessions that say something about the system below rather than about the program. Their console runs
# as an unprivileged user, since root may write everywhere; Wine refuses to run in another user's
# folder of settings, and on Windows rights are not those of a Unix file.
NOT_UNDER_WINE="database.file_read_only database.program_folder_read_only database.read_only"

session_names() {
  "$SESSIONS" --gtest_list_tests | awk '/^[^ ].*\.$/ { suite = $1 } /^  / { print suite $1 }'
}

# plain_transcript FILE: a folder's name is written with the system's own separators, which an event in
# JSON doubles.
plain_transcript() {
  sed -E '/^\{/ s#\\\\#/#g; /^\{/! s#\\#/#g' "$1"
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

# one_session NAME: on both systems.
one_session() {
  run_recorded "$1" "$WORK/linux/$1" "$LINUX_CONSOLE"
  run_recorded "$1" "$WORK/windows/$1" "$WINE" "$CONSOLE"
  # The runner's own tests run no console.
  if compgen -G "$WORK/linux/$1/*.out" >/dev/null; then
    compare_transcripts "$1"
    touch "$WORK/compared/$1"
  fi
}

test_sessions() {
  local name names count
  need_packages $BUILD_PACKAGES $TEST_PACKAGES
  cmake --preset release >/dev/null
  cmake --build --preset release -j "$(nproc)" --target sessions_tests ordex-console >/dev/null
  names=$(session_names)
  for name in $NOT_UNDER_WINE; do
    grep -qxF "$name" <<<"$names" || fail "there is no session $name to leave out"
  done
  mkdir -p "$WORK/compared"
  export WORK WINE CONSOLE SESSIONS LINUX_CONSOLE
  export -f one_session run_recorded compare_transcripts plain_transcript same fail
  # Whoever fails has told why; the others are still run.
  grep -vxF "${NOT_UNDER_WINE// /$'\n'}" <<<"$names" |
    xargs -P "$(nproc)" -I '{}' bash -euc 'one_session "$1"' one_session '{}' || fail "sessions"
  count=$(find "$WORK/compared" -type f | wc -l)
  [ "$count" -ge 100 ] || fail "only $count sessions ran"
  echo "sessions: $count with the same transcript, left out: $NOT_UNDER_WINE"
}
