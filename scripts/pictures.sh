#!/usr/bin/env bash
# Takes the pictures of the window for README.md and docs/: the built program on a virtual screen,
# driven by keys. Writes docs/pictures/*.png.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
need_packages xvfb openbox xdotool xclip imagemagick x11-utils

console=$PWD/build/release/src/ordex-console
ordex=$PWD/build/release/src/ui/desktop/ordex
work=$(mktemp -d)
pids=()
trap 'kill "${pids[@]}" 2>/dev/null; rm -rf "$work"' EXIT
export XDG_RUNTIME_DIR=$work DISPLAY=:97 NO_AT_BRIDGE=1
Xvfb "$DISPLAY" -screen 0 1280x800x24 >/dev/null 2>&1 &
pids+=($!)
until xdpyinfo >/dev/null 2>&1; do sleep 0.1; done
openbox >/dev/null 2>&1 &
pids+=($!)

# open PAGE: the program on a fresh office, with that sample page on the clipboard.
open() {
  rm -rf "$work/office"
  mkdir "$work/office"
  cp mapping/*.txt "$work/office"
  "$console" db create "$work/office/office.db" --sample
  printf '%s\n' '[startup]' 'Security=;' 'Server=Data Source=file:office.db' '[Shared]' \
    'Id_Utente=3' >"$work/office/settings.ini"
  xclip -selection clipboard -i "$1" >/dev/null 2>&1
  "$ordex" --dir "$work/office" --settings "$work/office/settings.ini" >/dev/null 2>&1 &
  program=$!
  window=$(xdotool search --sync --onlyvisible --name 'Ordex - ' | tail -1)
  xdotool windowactivate --sync "$window" mousemove 5 5
  sleep 1
}

keys() {
  local key
  for key in "$@"; do
    xdotool key "$key"
    sleep 1
  done
}

# shoot NAME WINDOW: the window with its frame.
shoot() {
  import -window "$(xwininfo -id "$2" -tree | awk '/Parent window id/ {print $4}')" \
    "docs/pictures/$1.png"
}

close() {
  kill "$program"
  wait "$program" 2>/dev/null || true
}

dialog() { xdotool search --sync --onlyvisible --name "$1" | tail -1; }

open samples/profilo-contratto.txt
shoot profilo "$window"
keys alt+d
shoot dettagli "$window"
close

open samples/profilo-lavoro.txt
keys Return Return Down Tab Down Down
shoot crea "$window"
close

open samples/giudice-di-pace-sinistro.txt
keys Return Return
shoot parti "$(dialog '^Parti$')"
close

open samples/agenda-settimana.txt
shoot agenda "$window"
close

open samples/storico-pagina-1.txt
xdotool type 1842
sleep 1
keys Down Return alt+d
shoot storico "$window"
close

open samples/profilo-lavoro.txt
keys Return Return Down Tab Down Down Tab Tab Return
shoot persona "$(dialog 'Info Anagrafica')"
close
ls docs/pictures
