# Debian packages by what they are needed for; to be sourced.

BUILD_PACKAGES="g++ cmake ninja-build pkg-config ccache libsqlite3-dev libutf8proc-dev libcli11-dev nlohmann-json3-dev"
DESKTOP_PACKAGES="libwxgtk3.2-dev libgtk-3-dev libx11-dev"
DEMO_PACKAGES="sqlite3"
TEST_PACKAGES="libgtest-dev libgmock-dev"
BENCH_PACKAGES="libbenchmark-dev"
FUZZ_PACKAGES="clang libclang-rt-14-dev"
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
