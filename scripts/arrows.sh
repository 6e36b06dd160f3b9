#!/usr/bin/env bash
# Which way the arrows point: a file may include headers of its own room, of the rooms that the
# room's library KNOWS, and of those that these know in turn. The linker alone would not see an
# arrow that points back to a header without code of its own.
set -euo pipefail
cd "$(dirname "$0")/.."

# "ROOM KNOWN" for each room and each room that its library names.
named_rooms() {
  find src -name CMakeLists.txt -exec cat {} + | sed 's/#.*//' | tr '\n' ' ' | tr ')' '\n' | awk '
    sub(/.*add_room\(/, "") {
      knows = 0
      print $1, $1
      for (i = 2; i <= NF; ++i) {
        if ($i ~ /^(SOURCES|KNOWS|USES)$/) knows = $i == "KNOWS"
        else if (knows) print $1, $i
      }
    }
    sub(/.*target_link_libraries\(ordex_/, "") && $1 ~ /^[a-z]+$/ {
      print $1, $1
      for (i = 2; i <= NF; ++i) if (sub(/^ordex_/, "", $i) && $i != "options") print $1, $i
    }'
}

{ named_rooms; grep -rHn '^ *#include "' src; } | awk '
  # The innermost folder that is a room.
  function room_of(path, parts, i) {
    for (i = split(path, parts, "/") - 1; i > 0; --i) if (parts[i] in rooms) return parts[i]
    return ""
  }
  function close_arrows(a, b, c, found) {
    do {
      found = 0
      for (a in rooms) for (b in rooms) if ((a, b) in knows)
        for (c in rooms) if ((b, c) in knows && !((a, c) in knows)) { knows[a, c]; found = 1 }
    } while (found)
  }
  !/#include/ { rooms[$1]; knows[$1, $2]; next }
  !closed { close_arrows(); closed = 1 }
  {
    split($0, include, "\"")
    from = room_of(substr($0, 1, index($0, ":") - 1))
    to = room_of(include[2])
    if ((from, to) in knows) next
    print $0 ": the room \"" from "\" may not know \"" to "\""
    ++wrong
  }
  END { if (!closed) { print "arrows: no includes found"; exit 1 } exit wrong > 0 }'
echo "arrows: clean"
