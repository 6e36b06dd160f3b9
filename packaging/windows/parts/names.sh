# Part of test.sh: names with other letters than those of English.

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

