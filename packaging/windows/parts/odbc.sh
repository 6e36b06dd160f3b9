# Part of test.sh: a database that is reached through an ODBC driver. The driver manager there passes
# on to the one of this system, whose driver for SQLite stands in for that of SQL Server.

# make_odbc_office FOLDER DRIVER: an office, and settings that name the driver where there is one.
make_odbc_office() {
  make_office "$1/office"
  printf '[startup]\nSecurity=;Integrated Security=SSPI;\nServer=%sData Source=file:office.db\n[Shared]\nId_Utente=7\n' \
    "$2" >"$1/settings.ini"
  # The driver takes a Windows name for a name of this system, in which the "\" parts nothing.
  ln -s office/office.db "$1/office\\office.db"
}

# odbc_session FOLDER PAGE COMMANDS: an import, with what it prints.
odbc_session() {
  printf '%b' "$3" | wine "$CONSOLE" --dir "$1/office" --settings "$1/settings.ini" --json \
    --now "20/02/2026 09:30:00" --clipboard "samples/$2"
}

# odbc_sessions FOLDER: an update, a create with a person that is known, and a history.
odbc_sessions() {
  odbc_session "$1" profilo-contratto.txt 'click cmdAzione\nok\n'
  odbc_session "$1" profilo-lavoro.txt \
    'click cmdAzione\nyes\nselect cmbParti 0 0\nselect cmbParti 1 1\nclick cmdAzione\nclick cmdSi\nok\n'
  odbc_session "$1" storico-unica.txt 'choose 3\nclick cmdAzione\nok\n'
}

# check_error FOLDER SERVER: with that instead of the server, the import ends with a database error.
check_error() {
  local output
  sed -i "s/^Server=.*/Server=$2/" "$1/settings.ini"
  output=$(odbc_session "$1" profilo-contratto.txt '' || true)
  same "end with $2" '{"event":"end","reason":"error"}' "$(tail -n 1 <<<"$output")"
  grep -q 'Errore del database: ' <<<"$output" || fail "no error about the database: $output"
}

test_odbc() {
  local through=$WORK/odbc/through plain=$WORK/odbc/plain
  need_packages $TEST_PACKAGES
  make_odbc_office "$through" 'Driver={SQLite3};'
  make_odbc_office "$plain" ''
  odbc_sessions "$through" >"$through/transcript"
  odbc_sessions "$plain" >"$plain/transcript"
  same "what is printed through ODBC" "$(<"$plain/transcript")" "$(<"$through/transcript")"
  same "finished imports" 3 "$(grep -cF '{"event":"end","reason":"done"}' "$through/transcript")"
  same "cases in the database" $'2|1842/2025|2026-03-12 09:30:00\n11|3056/2025|' \
    "$(sqlite3 "$through/office/office.db" \
      'SELECT ID_PraRel, NumeroRegGenerale, DPUd FROM PraOrdex WHERE NumeroRegGenerale <> "" ORDER BY 1')"
  same "tables" "$(sqlite3 "$plain/office/office.db" .dump)" "$(sqlite3 "$through/office/office.db" .dump)"
  check_error "$through" 'Data Source=127.0.0.1,1'
  # So the driver was asked before.
  check_error "$through" 'Driver={SQLite manca};Data Source=file:office.db'
  echo "odbc: three imports print and write the same as without ODBC"
}
