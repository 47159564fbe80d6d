#!/bin/bash
# links.sh SOURCE: every relative link of README.md, CONTRIBUTING.md and docs leads to a file that exists.
set -u
cd "$1" || exit 1
bad=0 seen=0
for page in README.md CONTRIBUTING.md $(find docs examples -name '*.md'); do
  for target in $(grep -oE '\]\([^)#]+' "$page" | cut -c3- | grep -v '^[a-z]*:'); do
    seen=$((seen + 1))
    [ -e "$(dirname "$page")/$target" ] || { echo "$page: no $target"; bad=1; }
  done
done
[ $seen -gt 0 ] || { echo "no links found"; exit 1; }
exit $bad
