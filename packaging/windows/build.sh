#!/usr/bin/env bash
# Builds the Windows programs on a bare Debian machine, and packs them:
#
#   build/windows/pack/             what an office gets
#   build/windows/ordex-VERSION-windows.zip
#   build/windows/ordex-VERSION-setup.exe
#
# The libraries are built once and kept outside the tree (see libraries.sh).
set -euo pipefail
export PATH="${PATH:-/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin}" HOME="${HOME:-/root}"
export LC_ALL=C.UTF-8
cd "$(dirname "$0")/../.."
. scripts/packages.sh
. packaging/windows/libraries.sh

BUILD=build/windows
MOST_BYTES=$((15 * 1024 * 1024))
# The system's own; whatever else a program asked for would have to come along with it.
SYSTEM_DLLS="advapi32 comctl32 comdlg32 gdi32 gdiplus imm32 kernel32 msimg32 msvcrt odbc32 ole32 oleacc
  oleaut32 rpcrt4 shell32 shlwapi user32 uxtheme version winmm winspool.drv ws2_32 wsock32"

has_target() {
  ninja -C "$BUILD" -t query "$1" >/dev/null 2>&1
}

# check_resources FILE: the system reads icon, version and manifest (types 14, 16 and 24) out of the
# program; the manifest has to say that the program knows sharp screens, UTF-8 and the newer controls.
check_resources() {
  local types word
  types=$("$TRIPLET-objdump" -p "$1" | sed -n 's/^[0-9a-f]*   Entry: ID: 0x0*\([0-9a-f]*\),.*/\1/p')
  for word in e 10 18; do
    grep -qx "$word" <<<"$types" || { echo "$1 lacks the resource type 0x$word." >&2; return 1; }
  done
  for word in Microsoft.Windows.Common-Controls PerMonitorV2 '>UTF-8<' asInvoker; do
    grep -qaF "$word" "$1" || { echo "The manifest of $1 lacks $word." >&2; return 1; }
  done
}

# pack_program TARGET NAME: strips the program into the pack, and makes sure that it can stand alone.
pack_program() {
  local file=$BUILD/pack/$2 dll size
  "$TRIPLET-strip" -o "$file" "$(find "$BUILD" -path "$BUILD/pack" -prune -o -name "$1.exe" -print -quit)"
  while read -r dll; do
    if ! grep -qxi "${dll%.dll}" <<<"${SYSTEM_DLLS// /$'\n'}"; then
      echo "$2 needs $dll, which is none of the system's." >&2
      return 1
    fi
  done < <("$TRIPLET-objdump" -p "$file" | sed -n 's/^\tDLL Name: //p' | tr '[:upper:]' '[:lower:]')
  check_resources "$file"
  size=$(stat -c %s "$file")
  if [ "$size" -gt "$MOST_BYTES" ]; then
    echo "$2 has $size bytes, and may have $MOST_BYTES." >&2
    return 1
  fi
  echo "$2: $size bytes"
}

# as_windows_text FILE TARGET: with the line ends that every editor there knows.
as_windows_text() {
  sed 's/\r$//; s/$/\r/' "$1" >"$2"
}

make_pack() {
  rm -rf "$BUILD/pack"
  mkdir -p "$BUILD/pack/licenze"
  pack_program ordex-console ordex-console.exe
  if has_target ordex; then pack_program ordex Ordex.exe; fi
  cp mapping/Map*.txt "$BUILD/pack"
  as_windows_text docs/installazione.md "$BUILD/pack/Installazione.txt"
  as_windows_text docs/guida.md "$BUILD/pack/Guida.txt"
  as_windows_text docs/mappatura.md "$BUILD/pack/Mappatura.txt"
  cp "$LIBRARIES"/licences/*.txt "$BUILD/pack/licenze"
}

make_archives() {
  local version name
  version=$(sed -n 's/^CMAKE_PROJECT_VERSION:.*=//p' "$BUILD/CMakeCache.txt")
  name=$PWD/$BUILD/ordex-$version
  rm -f "$PWD/$BUILD"/ordex-*-windows.zip "$PWD/$BUILD"/ordex-*-setup.exe
  (cd "$BUILD/pack" && zip -qr9 "$name-windows.zip" .)
  echo "$(basename "$name")-windows.zip: $(stat -c %s "$name-windows.zip") bytes"
  has_target ordex || return 0
  makensis -V2 -WX -INPUTCHARSET UTF8 "-DVERSION=$version" "-DPACK=$PWD/$BUILD/pack" \
    "-DICON=$PWD/$BUILD/ordex.ico" "-DOUTPUT=$name-setup.exe" packaging/windows/installer.nsi
  echo "$(basename "$name")-setup.exe: $(stat -c %s "$name-setup.exe") bytes"
}

need_packages $WINDOWS_PACKAGES
need_libraries
export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
# What was found in another folder of libraries must not be used again.
if ! grep -qsF "ORDEX_WINDOWS_LIBRARIES:UNINITIALIZED=$LIBRARIES" "$BUILD/CMakeCache.txt"; then
  rm -f "$BUILD/CMakeCache.txt"
fi
cmake -S . -B "$BUILD" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$PACKAGING/toolchain.cmake" \
  -DORDEX_WINDOWS_LIBRARIES="$LIBRARIES" -DCMAKE_BUILD_TYPE=Release -DORDEX_TESTS=OFF >/dev/null
targets=(ordex-console)
if has_target ordex; then targets+=(ordex); fi
cmake --build "$BUILD" -j "$JOBS" --target "${targets[@]}"
make_pack
make_archives
