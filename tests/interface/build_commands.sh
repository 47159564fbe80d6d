#!/bin/bash
# build_commands.sh BUILD SOURCE: what the documents run in the build itself. The README's commands: a compiled library
# turns a picture in the host, and the small compiler runs a program; then the program on the compiler's own page.
set -eu
build=$1 source=$2
. "$source/tests/interface/readme.sh"
work=$(mktemp -d) && trap 'rm -rf "$work"' EXIT
cd "$work"
mkdir build
ln -s "$build" build/release
ln -s "$source/examples" examples

run() {
  block "$1" sh "$source/README.md" >commands
  [ -s commands ] || { echo "the README has no commands $1"; exit 1; }
  . ./commands
}

run 1
head -c 2 turned.ppm | grep -qE '^P[56]$'
run 2 >printed
diff "$source/examples/compiler/programs/factorial.out" printed

block 1 torvane "$source/docs/compiler.md" >page.tn
[ -s page.tn ]
"$build/examples/compiler/torvanec" page.tn --run >printed
head -n 1 printed | grep -q '^120 6 4 '
