#!/bin/bash
# reference.sh DOXYGEN FOLDER: writes the reference into FOLDER/html. A warning fails it, and so does an export that the
# reference does not show, or a page of docs.
set -euo pipefail
doxygen=$1 folder=$2
root=$(cd "$(dirname "$0")/.." && pwd)
rm -rf "$folder"
mkdir -p "$folder"
folder=$(cd "$folder" && pwd)
cd "$root"
TORVANE_REFERENCE=$folder "$doxygen" docs/Doxyfile
cp -r docs/performance "$folder/html" # plots, which doxygen links but does not take along

missing=$(comm -23 <(awk '!/^#/ { print $2 }' data/exports.txt | sort) \
  <(cat "$folder"/html/*_8h.html | grep -oE '\b[A-Za-z_][A-Za-z_0-9]*\b' | sort -u))
[ -z "$missing" ] || { echo "not in the reference: $missing"; exit 1; }
for page in docs/*.md; do
  title=$(sed -n '1s/^# //p' "$page")
  grep -qF "$title" "$folder"/html/index.html "$folder"/html/md_*.html || { echo "not in the reference: $page"; exit 1; }
done
echo "$folder/html/index.html"
