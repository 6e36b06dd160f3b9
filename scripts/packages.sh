# Debian packages by what they are needed for, and the steps that the scripts share; to be sourced.

BUILD_PACKAGES="g++ cmake ninja-build pkg-config ccache libsqlite3-dev unixodbc-dev libutf8proc-dev libcli11-dev nlohmann-json3-dev"
DESKTOP_PACKAGES="libwxgtk3.2-dev libgtk-3-dev libx11-dev"
DEMO_PACKAGES="sqlite3"
# With two ODBC drivers that are loaded when the program runs: one for the embedded database, over which
# the tests pass through ODBC too, and FreeTDS, the one for SQL Server.
TEST_PACKAGES="libgtest-dev libgmock-dev libsqliteodbc tdsodbc"
# A display of the tests' own, a window manager, and hands and eyes for it.
GUI_TEST_PACKAGES="xvfb openbox xdotool xclip x11-utils"
BENCH_PACKAGES="libbenchmark-dev"
# To press keys in the window whose start is measured.
STARTUP_BENCH_PACKAGES="libxtst-dev"
# For the Windows programs: the compiler, and what their libraries' sources and icon are made with.
WINDOWS_PACKAGES="g++-mingw-w64-x86-64-posix gcc g++ make cmake ninja-build pkg-config ccache dpkg-dev tcl
  libcli11-dev nlohmann-json3-dev librsvg2-bin imagemagick nsis zip"
# To run them here.
WINDOWS_TEST_PACKAGES="wine64 xvfb openbox sqlite3 nsis"
FUZZ_PACKAGES="clang libclang-rt-14-dev"
COVERAGE_PACKAGES="gcovr"
LINT_PACKAGES="clang-format clang-tidy"

# Installs those of the named packages that are not there yet.
need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  echo "Installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Configures and builds one of the presets; further arguments go to the build.
build_preset() {
  local preset=$1
  shift
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -j "$(nproc)" "$@"
}

# run_ctest PRESET LOG [further options for ctest]
run_ctest() {
  local preset=$1 log=$2
  shift 2
  ctest --test-dir "build/$preset" --output-on-failure -j "$(nproc)" --timeout 300 --no-tests=error "$@" |
    tee "build/$preset/$log.log"
}
