# Part of test.sh: the unit and contract tests, built for Windows.

UNIT_TESTS="base_tests db_tests parse_tests store_tests cases_tests app_tests windows_tests"

# The driver for the embedded database is one of this system, and takes a Windows name for a name here;
# the part odbc gets round that.
NO_DRIVER_FOR_FILES='-DatabaseCheckTest.*:OdbcEngine/*:OdbcConnectionTest.*:SetUpSessionTest.*'
NO_DRIVER_FOR_FILES+=':OpenConnection.ANamedDriverReachesTheFileToo'
NO_DRIVER_FOR_FILES+=':Strings/TranslateToOdbcTable.GivesTheDriversWords/TheEmbeddedFileThroughItsDriver'

test_units() {
  local program
  build_tests $UNIT_TESTS
  for program in $UNIT_TESTS; do
    run_tests "$BUILD/tests/${program%_tests}/$program.exe" \
      --gtest_filter="$NO_DRIVER_FOR_FILES"
  done
  # Once more as the case application, which is then running.
  cp "$BUILD/tests/windows/windows_tests.exe" "$WORK/ProvaPraxion.exe"
  run_tests "$WORK/ProvaPraxion.exe" --gtest_filter='SystemProcesses.*'
}
