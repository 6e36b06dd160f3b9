#!/usr/bin/env bash
# The main job on two sample pages, from a bare Debian machine: one case of the sample office is
# updated, another is created, and the tables are shown before and after.
set -euo pipefail
export PATH="${PATH:-/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin}" HOME="${HOME:-/root}"
cd "$(dirname "$0")"
. scripts/packages.sh

need_packages $BUILD_PACKAGES $DESKTOP_PACKAGES $DEMO_PACKAGES
cmake --preset release -DORDEX_TESTS=OFF >/dev/null
cmake --build --preset release -j "$(nproc)" --target ordex-console ordex

console=$PWD/build/release/src/ordex-console
office=$(mktemp -d)
trap 'rm -rf "$office"' EXIT
cp mapping/*.txt "$office"
"$console" db create "$office/office.db" --sample
cat >"$office/settings.ini" <<'INI'
[startup]
Security=;Integrated Security=SSPI;
Server=Data Source=file:office.db
[Shared]
Id_Utente=3
INI

show() {
  echo
  echo "--- $1"
  sqlite3 -header -column "$office/office.db" "
    SELECT ID_Pra, NumeroRegGenerale, Sezione, Istruttore, substr(Oggetto, 1, 40) AS Oggetto
      FROM Pratica WHERE NumeroRegGenerale IN ('1842/2025', '3056/2025');
    SELECT Codice_Pra, substr(Scadenza, 1, 44) AS Scadenza, date(Data_End) AS Data_End, Ora, Parti
      FROM SCADENZE ORDER BY ID_Scadenza;
    SELECT ID_PraRel, NumeroRegGenerale, StatoFascicolo, DPUd, DUUd FROM PraOrdex;"
}

# import PAGE: the page goes through the program, with the commands on standard input.
import() {
  echo
  echo "=== $1"
  "$console" --dir "$office" --settings "$office/settings.ini" --clipboard "$1"
}

show "the office's tables before"

import samples/profilo-contratto.txt <<'COMMANDS'
click cmdAzione
ok
COMMANDS
show "after the update"

import samples/profilo-lavoro.txt <<'COMMANDS'
click cmdAzione
yes
select cmbParti 0 0
select cmbParti 1 1
click cmdAzione
click cmdSi
ok
COMMANDS
show "after the create"

# The window, where there is a display to show it on.
echo
if [ -n "${DISPLAY:-}" ]; then
  need_packages xclip
  xclip -selection clipboard -i samples/profilo-condominio.txt >/dev/null 2>&1
  echo "=== the window opens on samples/profilo-condominio.txt; press Return to update, Esc to close"
  build/release/src/ui/desktop/ordex --dir "$office" --settings "$office/settings.ini"
  show "after the window"
else
  cat <<'TEXT'
There is no display here, so the window stays closed. On a desktop: copy a page and start
build/release/src/ui/desktop/ordex, or run ./demo.sh again there. The console does the same work:
build/release/src/ordex-console --help
TEXT
fi
