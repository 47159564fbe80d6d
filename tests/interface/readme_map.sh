#!/bin/bash
# readme_map.sh SOURCE: the README's map names folders and files that exist, and every folder under src, tests
# and the root that holds a committed file. The map is the block under the heading "Map";
# lines that begin with a space go on with the one before.
set -u
cd "$1" || exit 1
map=$(awk '/^## / { inside = $0 == "## Map" } inside && /^[^ `#]/ && fenced { print $1 } /^```/ { fenced = !fenced }' README.md)
[ "$(wc -l <<<"$map")" -ge 10 ] || { echo "the README has no map"; exit 1; }
bad=0
for entry in $map; do
  [ -e "$entry" ] || { echo "in the map, but not there: $entry"; bad=1; }
done
for folder in src/*/ tests/*/ */; do
  case $folder in build/ | demo-out/ | tests/*/) continue ;; esac
  [ -n "$(find "$folder" -type f -print -quit)" ] || continue
  grep -q "^$folder" <<<"$map" || { echo "not in the map: $folder"; bad=1; }
done
exit $bad
