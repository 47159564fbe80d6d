#!/bin/bash
# links.sh SOURCE: every relative link of README.md, CONTRIBUTING.md, docs and examples leads to a file that exists,
# and docs/README.md links every page beside it.
set -u
cd "$1" || exit 1
bad=0 seen=0
for page in README.md CONTRIBUTING.md $(find docs examples -name '*.md'); do
  for target in $(grep -oE '\]\([^)#]+' "$page" | cut -c3- | grep -v '^[a-z]*:'); do
    seen=$((seen + 1))
    [ -e "$(dirname "$page")/$target" ] || { echo "$page: no $target"; bad=1; }
  done
done
for page in docs/*.md; do
  [ "$page" = docs/README.md ] || grep -qF "](${page#docs/})" docs/README.md ||
    { echo "docs/README.md does not name $page"; bad=1; }
done
[ $seen -gt 0 ] || { echo "no links found"; exit 1; }
exit $bad
