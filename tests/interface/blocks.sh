#!/bin/bash
# blocks.sh SOURCE (PAGE LANGUAGE COUNT)...: the fenced blocks of the README, CONTRIBUTING and docs are those that the
# arguments count, each of which a test runs, and texts. No block is merely indented, and none is without a language.
set -eu
cd "$1"
shift
work=$(mktemp -d) && trap 'rm -rf "$work"' EXIT
printf '%s %s %s\n' "$@" | sort >"$work/run"

awk '
  FNR == 1 { fenced = 0; before = "" }
  /^ *```/ {
    if (!fenced && $0 !~ /^```[a-z]+$/) print FILENAME ":" FNR " no-language"
    else if (!fenced && $0 != "```text") ++count[FILENAME " " substr($0, 4)]
    fenced = !fenced
  }
  !fenced && /^(    |\t)/ && before == "" { print FILENAME ":" FNR " indented" }
  { before = $0 }
  END { for (block in count) print block, count[block] }
' README.md CONTRIBUTING.md docs/*.md | sort >"$work/there"

diff "$work/run" "$work/there" || { echo "left: blocks that tests run; right: blocks that are there"; exit 1; }
