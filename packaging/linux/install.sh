#!/usr/bin/env bash
# Installs the built program for the user who runs this: programs and mapping files in one folder
# that the user may write to, and an entry in the desktop's menu. Mapping files that are there
# already stay as they are; the new ones are put beside them as MapCampi.nuovo.txt and so on.
#   packaging/linux/install.sh [FOLDER]     default: ~/.local/opt/ordex
set -euo pipefail
cd "$(dirname "$0")/../.."
folder=${1:-$HOME/.local/opt/ordex}
share=${XDG_DATA_HOME:-$HOME/.local/share}
built=build/release/src
[ -x "$built/ui/desktop/ordex" ] || { echo "Build first: ./demo.sh or ./test.sh" >&2; exit 1; }

mkdir -p "$folder" "$share/applications" "$share/icons/hicolor/scalable/apps"
install -m 755 "$built/ui/desktop/ordex" "$built/ordex-console" "$folder"
for file in mapping/*.txt; do
  name=$(basename "$file" .txt)
  if [ ! -e "$folder/$name.txt" ]; then
    install -m 644 "$file" "$folder/$name.txt"
  elif ! cmp -s "$file" "$folder/$name.txt"; then
    install -m 644 "$file" "$folder/$name.nuovo.txt"
  fi
done
install -m 644 resources/icons/ordex.svg "$share/icons/hicolor/scalable/apps/ordex.svg"
sed "s|^Exec=.*|Exec=\"$folder/ordex\"|" packaging/linux/ordex.desktop >"$share/applications/ordex.desktop"
echo "Ordex is in $folder"
