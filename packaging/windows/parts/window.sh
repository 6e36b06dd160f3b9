# Part of test.sh: the window, as a user and other programs deal with it.

test_window() {
  build_tests window_tests
  wine reg delete "$SETTINGS_KEY" /f >/dev/null 2>&1 || true
  ORDEX_EXE=$(windows_path "$BUILD/pack/Ordex.exe") run_tests "$BUILD/tests/windows/window_tests.exe"
}
