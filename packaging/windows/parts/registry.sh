# Part of test.sh: the user's settings.

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
  )" "$(registry_values "$SETTINGS_KEY")"
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
  )" "$(registry_values "$SETTINGS_KEY")"
  same "case in the database" "1842/2025" \
    "$(sqlite3 "$office/office.db" "SELECT NumeroRegGenerale FROM PraOrdex")"
  # A value that is no text is told, not taken for an absent one.
  set_registry Shared Id_Utente 7 REG_DWORD
  output=$(wine "$CONSOLE" --dir "$office" --json --clipboard samples/profilo-contratto.txt || true)
  grep -qF "valore \\\"Id_Utente\\\" non è un testo" <<<"$output" || fail "a number as Id_Utente"
  wine reg delete "$SETTINGS_KEY" /f >/dev/null
  echo "registry: values before and after an update"
}

