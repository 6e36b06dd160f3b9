# Wine with a screen and settings of its own; to be sourced.

# start_wine FOLDER: a user's new settings in FOLDER, an X server, and a program that keeps the
# services up: without it every start would wait for them.
start_wine() {
  WINE=$(dpkg -L wine64 | grep -E '/wine64$' | head -n 1)
  export WINEPREFIX=$1/prefix WINEARCH=win64 WINEDEBUG=-all
  # What this machine would be asked about otherwise.
  export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
  local display=$1/display
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$display" 2>/dev/null &
  XVFB=$!
  while [ ! -s "$display" ]; do
    kill -0 "$XVFB" || return 1
    sleep 0.1
  done
  DISPLAY=:$(cat "$display")
  export DISPLAY
  # Boxes and windows get a title bar and the keyboard as on a desktop.
  openbox >/dev/null 2>&1 &
  OPENBOX=$!
  "$WINE" wineboot -i >"$1/wineboot.log" 2>&1
  mkfifo "$1/idle"
  "$WINE" cmd.exe <"$1/idle" >/dev/null 2>&1 &
  # Held open until stop_wine.
  exec 8>"$1/idle"
}

wine() {
  "$WINE" "$@"
}

# The name under which a program there knows a file of this system.
windows_path() {
  printf 'Z:%s' "${1//\//\\}"
}

stop_wine() {
  exec 8>&-
  [ -z "${WINEPREFIX:-}" ] || "$(dirname "$WINE")/wineserver" -k >/dev/null 2>&1 || true
  [ -z "${OPENBOX:-}" ] || kill "$OPENBOX" 2>/dev/null || true
  [ -z "${XVFB:-}" ] || kill "$XVFB" 2>/dev/null || true
}
