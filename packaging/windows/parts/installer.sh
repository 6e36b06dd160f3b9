# Part of test.sh: installing, upgrading and uninstalling, without a question.

UNINSTALL_KEY='HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Uninstall\Ordex'
WHOLE_PACK="Guida.txt Installazione.txt MapCampi.txt MapDelimitatori.txt MapRestr.txt Mappatura.txt Ordex.exe
  disinstalla.exe licenze ordex-console.exe originali"

# names_in FOLDER: what stands there, in one line.
names_in() {
  (cd "$1" && printf '%s\n' * | LC_ALL=C sort | paste -sd ' ')
}

# registry_value KEY NAME: a text of the registry; empty where there is none.
registry_value() {
  registry_values "$1" | sed -nE "s/^[^\"]*\"$2\"=\"(.*)\"$/\\1/p" | sed -E 's/\\(.)/\1/g'
}

# wait_until COMMAND...: the uninstaller goes on in a process of its own.
wait_until() {
  local begin=$SECONDS
  while [ $((SECONDS - begin)) -lt 60 ]; do
    "$@" && return 0
    sleep 0.2
  done
  fail "waited in vain for: $*"
}

# make_next_setup: the setup of a later version, whose mapping files have all got a line more.
make_next_setup() {
  local pack=$WORK/installer/pack name
  mkdir -p "$WORK/installer"
  cp -r "$BUILD/pack" "$pack"
  for name in MapCampi MapDelimitatori MapRestr; do printf 'NUOVO=novità\r\n' >>"$pack/$name.txt"; done
  makensis -V1 -INPUTCHARSET UTF8 -DVERSION=9.9 "-DPACK=$pack" "-DICON=$BUILD/ordex.ico" \
    "-DOUTPUT=$WORK/installer/next-setup.exe" packaging/windows/installer.nsi
}

check_installed() {
  same "installed files" "$(paste -sd ' ' <<<"$WHOLE_PACK" | tr -s ' ')" "$(names_in "$FOLDER")"
  local name
  for name in Ordex.exe ordex-console.exe MapCampi.txt MapDelimitatori.txt MapRestr.txt Guida.txt; do
    cmp "$BUILD/pack/$name" "$FOLDER/$name" || fail "installed $name"
  done
  same "name in the list of programs" Ordex "$(registry_value "$UNINSTALL_KEY" DisplayName)"
  same "folder in the list of programs" "$WINDOWS_FOLDER" \
    "$(registry_value "$UNINSTALL_KEY" InstallLocation)"
  same "uninstaller" "\"$WINDOWS_FOLDER\\disinstalla.exe\"" \
    "$(registry_value "$UNINSTALL_KEY" UninstallString)"
}

# The link's file holds the shortcut key behind its first 64 bytes: the letter, then 2 for Ctrl and 4 for
# Alt; and the name of the program in wide letters.
check_link() {
  same "shortcut key" "4f 06" "$(od -An -tx1 -j64 -N2 "$LINK" | xargs)"
  iconv -f UTF-16LE -t UTF-8 -c "$LINK" | grep -qaF 'Ordex.exe' ||
    tr -d '\0' <"$LINK" | grep -qaF "$WINDOWS_FOLDER\\Ordex.exe" || fail "the link's program"
}

check_upgrade() {
  printf 'STUDIO=nostro\r\n' >>"$FOLDER/MapCampi.txt"
  rm "$FOLDER/MapRestr.txt"
  cp "$FOLDER/MapCampi.txt" "$WORK/installer/edited.txt"
  wine "$WORK/installer/next-setup.exe" /S || fail "the upgrade: exit code $?"
  cmp "$FOLDER/MapCampi.txt" "$WORK/installer/edited.txt" || fail "an edited file is not kept"
  cmp "$FOLDER/MapCampi.nuovo.txt" "$WORK/installer/pack/MapCampi.txt" || fail "the new one beside it"
  cmp "$FOLDER/MapDelimitatori.txt" "$WORK/installer/pack/MapDelimitatori.txt" ||
    fail "a file that was never edited is not replaced"
  cmp "$FOLDER/MapRestr.txt" "$WORK/installer/pack/MapRestr.txt" || fail "a removed file is not put back"
  [ ! -e "$FOLDER/MapDelimitatori.nuovo.txt" ] || fail "a new file beside one that was replaced"
  same "version" 9.9 "$(registry_value "$UNINSTALL_KEY" DisplayVersion)"
}

# start_program: its box of options stays until the process is ended.
start_program() {
  "$WINE" "$FOLDER/Ordex.exe" --help &
  PROGRAM=$!
  wait_until grep -q Ordex.exe "/proc/$PROGRAM/maps"
}

# A program that runs cannot be replaced: nothing is changed, and the exit code tells. One that is just
# ending is waited for.
check_running() {
  local code=0
  start_program
  wine "$BUILD"/ordex-*-setup.exe /S || code=$?
  same "exit code while the program runs" 2 "$code"
  same "version after that" 9.9 "$(registry_value "$UNINSTALL_KEY" DisplayVersion)"
  { sleep 1; kill "$PROGRAM"; } &
  wine "$BUILD"/ordex-*-setup.exe /S || fail "while the program is ending: exit code $?"
  same "version after that" "$VERSION" "$(registry_value "$UNINSTALL_KEY" DisplayVersion)"
  wait "$PROGRAM" 2>/dev/null || true
}

check_uninstall() {
  wine "$FOLDER/disinstalla.exe" /S || fail "the uninstaller: exit code $?"
  wait_until not_registered
  wait_until test ! -e "$FOLDER/disinstalla.exe"
  same "left behind" MapCampi.txt "$(names_in "$FOLDER")"
  cmp "$FOLDER/MapCampi.txt" "$WORK/installer/edited.txt" || fail "the edited file is not kept"
  [ ! -e "$LINK" ] || fail "the link in the start menu is left behind"
  same "settings of the case application" 7 "$(registry_value "$SETTINGS_KEY\\Shared" Id_Utente)"
}

not_registered() {
  ! wine reg query "$UNINSTALL_KEY" >/dev/null 2>&1
}

test_installer() {
  # Without a blank, for which quotes would be put around the option.
  WINDOWS_FOLDER='C:\Niccolò\Ordex'
  FOLDER=$WINEPREFIX/drive_c/Niccolò/Ordex
  LINK=$(echo "$WINEPREFIX"/drive_c/users/*/AppData/Roaming/Microsoft/Windows)/"Start Menu/Programs/Ordex.lnk"
  VERSION=$(basename "$BUILD"/ordex-*-setup.exe | cut -d- -f2)
  make_next_setup
  set_registry Shared Id_Utente 7
  wine "$BUILD"/ordex-*-setup.exe /S "/D=$WINDOWS_FOLDER" || fail "the installer: exit code $?"
  check_installed
  check_link
  check_upgrade
  check_running
  check_uninstall
  # Where the user names no folder; with nothing of the office's own, nothing is left.
  FOLDER=$(echo "$WINEPREFIX"/drive_c/users/*/AppData/Local)/Programs/Ordex
  wine "$BUILD"/ordex-*-setup.exe /S || fail "the installer without a folder: exit code $?"
  [ -f "$FOLDER/Ordex.exe" ] || fail "the usual folder"
  wine "$FOLDER/disinstalla.exe" /S || fail "the uninstaller: exit code $?"
  wait_until not_registered
  wait_until test ! -e "$FOLDER"
  wine reg delete "$SETTINGS_KEY" /f >/dev/null
  echo "installer: installed, upgraded, uninstalled; edited mapping files kept"
}
