#!/bin/bash
# llvm_declarations.sh CLANG ROOT SCRATCH [TARGET-FLAG...]: torvane.ll declares every export as Clang itself does
# from the headers: same types, and the same extension of narrow integers, on which the calling convention rests.
set -euo pipefail
clang=$1 root=$2 scratch=$3
shift 3
mkdir -p "$scratch"

# Every export, referred to once, makes Clang write its declaration.
{
  echo '#include <torvane/torvane.h>'
  echo 'const void *const all[] = {'
  grep -v '^#' "$root/data/exports.txt" | awk '{print "(const void *)&" $2 ","}'
  echo '};'
} >"$scratch/all.c"
"$clang" "$@" -std=c11 -w -S -emit-llvm -O0 -I "$root/include" -o "$scratch/all.ll" "$scratch/all.c"

# Both sides without what is no part of the convention.
normalised() {
  sed -n -E '/^declare |^@[A-Za-z_0-9]+ = external/p' "$1" |
    sed -E -e 's/ (noundef|dso_local|local_unnamed_addr|returns_twice)//g' -e 's/ #[0-9]+//' -e 's/, align [0-9]+$//' \
      -e 's/ +$//' | sort
}
normalised "$scratch/all.ll" >"$scratch/clang.txt"
normalised "$root/data/torvane.ll" >"$scratch/ours.txt"
[ -s "$scratch/ours.txt" ]
diff "$scratch/clang.txt" "$scratch/ours.txt"
echo "$(wc -l <"$scratch/ours.txt") declarations agree"
