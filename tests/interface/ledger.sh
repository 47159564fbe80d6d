#!/bin/bash
# ledger.sh CMAKE SOURCE VERSION: a changed declaration stops the build until the ledger has a line for it; a
# comment does not.
set -eu
cmake=$1 source=$2 version=$3
work=$(mktemp -d) && trap 'rm -rf "$work"' EXIT
mkdir -p "$work/include/torvane" "$work/data"
cp "$source"/include/torvane/*.h* "$work/include/torvane"
cp "$source"/data/exports.txt "$source"/data/interface.ledger "$work/data"

check() { "$cmake" -D SOURCE="$work" -D VERSION="$version" -P "$source/cmake/interface_ledger.cmake" >"$work/log" 2>&1; }
fail() { echo "$1"; cat "$work/log"; exit 1; }

check || fail "the ledger does not know the interface as it is"
echo '/* A comment. */' >>"$work/include/torvane/types.h"
check || fail "a comment counts as a change"
sed -i 's/typedef int32_t mint;/typedef int64_t mint;/' "$work/include/torvane/types.h"
! check || fail "another width of mint passes"
line=$(grep -oE "$version [0-9a-f]{64}" "$work/log") || fail "the line to add is not told"
echo "$line a wider mint" >>"$work/data/interface.ledger"
check || fail "the line that was asked for does not help"
! "$cmake" -D SOURCE="$work" -D VERSION=9.9.9 -P "$source/cmake/interface_ledger.cmake" >"$work/log" 2>&1 ||
  fail "another version passes without a line"
