# The libraries of the Windows programs, built from the sources of this system's own packages; to be
# sourced. They stand outside the tree, in a folder that is named after their versions, so that they
# are built once.

TRIPLET=x86_64-w64-mingw32
SOURCE_PACKAGES="wxwidgets3.2 sqlite3 utf8proc"
HEADER_PACKAGES="libcli11-dev nlohmann-json3-dev"

PACKAGING=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
CACHE=${XDG_CACHE_HOME:-$HOME/.cache}/ordex-windows
JOBS=${ORDEX_JOBS:-$(nproc)}

# The package tool with lists of its own: those of the system's sources, asked for source packages.
# The system's own configuration stays as it is, and no rights are needed.
source_apt() {
  local tool=$1
  shift
  "$tool" -qq -o "Dir::Etc::SourceList=/dev/null" -o "Dir::Etc::SourceParts=$CACHE/apt/sources" \
    -o "Dir::State::Lists=$CACHE/apt/lists" -o "Dir::Cache=$CACHE/apt/cache" \
    -o "APT::Sandbox::User=$(id -un)" "$@"
}

# Fetches the lists of source packages, once a day.
update_source_lists() {
  local stamp=$CACHE/apt/updated file
  [ -n "$(find "$stamp" -mmin -1440 2>/dev/null)" ] && return 0
  rm -rf "$CACHE/apt/sources"
  mkdir -p "$CACHE/apt/sources" "$CACHE/apt/lists/partial" "$CACHE/apt/cache/archives/partial"
  for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [ -f "$file" ] || continue
    sed -n 's/^deb\(-src\)\{0,1\} /deb-src /p' "$file" >"$CACHE/apt/sources/$(basename "$file" .list).list"
  done
  for file in /etc/apt/sources.list.d/*.sources; do
    [ -f "$file" ] || continue
    sed 's/^Types:.*/Types: deb-src/' "$file" >"$CACHE/apt/sources/$(basename "$file")"
  done
  source_apt apt-get update
  touch "$stamp"
}

# source_version PACKAGE: the newest version that there is.
source_version() {
  local versions
  versions=$(source_apt apt-cache showsrc "$1" | sed -n 's/^Version: //p' | sort -V)
  if [ -z "$versions" ]; then
    echo "No source package $1 is known to this system's package lists." >&2
    return 1
  fi
  tail -n 1 <<<"$versions"
}

# fetch_source PACKAGE VERSION FOLDER: the unpacked source, with the distribution's patches, as FOLDER.
fetch_source() {
  local package=$1 version=$2 folder=$3 downloads=$CACHE/downloads
  mkdir -p "$downloads"
  (cd "$downloads" && source_apt apt-get source --download-only "$package=$version")
  rm -rf "$folder"
  # An epoch is no part of a file's name.
  dpkg-source --no-check -x "$downloads/${package}_${version#*:}.dsc" "$folder" >/dev/null
}

# cmake_build SOURCE FOLDER OPTION...: builds with CMake and installs into the library folder.
cmake_build() {
  local source=$1 folder=$2
  shift 2
  cmake -S "$source" -B "$folder" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$PACKAGING/toolchain.cmake" \
    -DORDEX_WINDOWS_LIBRARIES="$LIBRARIES" -DCMAKE_INSTALL_PREFIX="$LIBRARIES" \
    -DCMAKE_BUILD_TYPE=MinSizeRel -DBUILD_SHARED_LIBS=OFF \
    -DCMAKE_C_FLAGS="-ffunction-sections -fdata-sections" \
    -DCMAKE_CXX_FLAGS="-ffunction-sections -fdata-sections" "$@" >"$folder.log" 2>&1 ||
    { tail -n 40 "$folder.log" >&2; return 1; }
  cmake --build "$folder" -j "$JOBS" --target install >>"$folder.log" 2>&1 ||
    { tail -n 40 "$folder.log" >&2; return 1; }
}

build_utf8proc() {
  cmake_build "$WORK/utf8proc" "$WORK/utf8proc-build" -DUTF8PROC_ENABLE_TESTING=OFF
  mkdir -p "$LIBRARIES/lib/pkgconfig"
  cat >"$LIBRARIES/lib/pkgconfig/libutf8proc.pc" <<PC
prefix=\${pcfiledir}/../..
Name: libutf8proc
Description: Unicode processing
Version: $(sed -E 's/^[0-9]+://; s/[-+].*//' <<<"$1")
Libs: -L\${prefix}/lib -lutf8proc
Cflags: -I\${prefix}/include -DUTF8PROC_STATIC
PC
}

# The one-file form is made by the source's own makefile, for this machine; then the cross compiler
# takes it.
build_sqlite() {
  local folder=$WORK/sqlite-build
  mkdir -p "$folder" "$LIBRARIES/include" "$LIBRARIES/lib"
  (cd "$folder" && ../sqlite3/configure --disable-tcl --disable-readline && make sqlite3.c) \
    >"$folder.log" 2>&1 || { tail -n 40 "$folder.log" >&2; return 1; }
  "$TRIPLET-gcc-posix" -O2 -c -DSQLITE_THREADSAFE=1 -DSQLITE_ENABLE_COLUMN_METADATA \
    -DSQLITE_OMIT_LOAD_EXTENSION "$folder/sqlite3.c" -o "$folder/sqlite3.o"
  "$TRIPLET-ar" rcs "$LIBRARIES/lib/libsqlite3.a" "$folder/sqlite3.o"
  cp "$folder/sqlite3.h" "$LIBRARIES/include"
}

# Only what a window with lists, boxes and buttons needs.
build_wx() {
  local off=() name
  for name in LIBPNG ZLIB LIBJPEG LIBTIFF EXPAT XML XRC REGEX STC WEBVIEW AUI RIBBON RICHTEXT \
    PROPGRID MEDIACTRL OPENGL SVG ARTPROVIDER_TANGO; do
    off+=("-DwxUSE_$name=OFF")
  done
  cmake_build "$WORK/wxwidgets3.2" "$WORK/wx-build" "${off[@]}" -DwxBUILD_SHARED=OFF \
    -DwxUSE_NANOSVG=builtin -DwxUSE_HTML=ON -DwxUSE_ACCESSIBILITY=ON -DwxBUILD_PRECOMP=OFF
}

# Whoever passes the programs on passes these texts on too.
copy_licences() {
  local package
  mkdir -p "$LIBRARIES/licences"
  for package in $SOURCE_PACKAGES; do
    cp "$WORK/$package/debian/copyright" "$LIBRARIES/licences/$package.txt"
  done
  for package in $HEADER_PACKAGES mingw-w64-common gcc-mingw-w64-base; do
    cp "/usr/share/doc/$package/copyright" "$LIBRARIES/licences/$package.txt"
  done
}

# Headers alone: those of this system serve, taken out of the folder in which its own C library's stand.
copy_headers() {
  local package file
  for package in $HEADER_PACKAGES; do
    while read -r file; do
      [ -f "$file" ] || continue
      mkdir -p "$LIBRARIES$(dirname "${file#/usr}")"
      cp "$file" "$LIBRARIES${file#/usr}"
    done < <(dpkg -L "$package" | grep -E '^/usr/(include|share/cmake)/')
  done
}

# Sets LIBRARIES to the folder of the libraries, which are built where they are missing. Several builds
# may ask at the same time: one builds, the others wait.
need_libraries() {
  update_source_lists
  local package key="" WORK
  declare -A version
  for package in $SOURCE_PACKAGES; do
    version[$package]=$(source_version "$package")
    key+="$package-${version[$package]}_"
  done
  for package in $HEADER_PACKAGES; do
    key+="$package-$(dpkg-query -W -f '${Version}' "$package")_"
  done
  # How they are built is part of the key, and with which compiler.
  key+=$({
    "$TRIPLET-g++-posix" --version
    cat "$PACKAGING/toolchain.cmake"
    declare -f cmake_build build_utf8proc build_sqlite build_wx copy_headers copy_licences
  } | sha256sum | cut -c1-12)
  LIBRARIES=$CACHE/${key//[^A-Za-z0-9._+-]/-}
  exec 9>"$CACHE/lock"
  flock 9
  if [ ! -f "$LIBRARIES/complete" ]; then
    echo "== libraries for Windows (once for these versions)"
    rm -rf "$LIBRARIES"
    mkdir -p "$LIBRARIES"
    WORK=$(mktemp -d "$CACHE/work.XXXXXX")
    for package in $SOURCE_PACKAGES; do
      fetch_source "$package" "${version[$package]}" "$WORK/$package"
    done
    copy_headers
    copy_licences
    build_utf8proc "${version[utf8proc]}"
    build_sqlite
    build_wx
    touch "$LIBRARIES/complete"
    rm -rf "$WORK"
  fi
  flock -u 9
}
