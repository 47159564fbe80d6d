#!/bin/bash
# installed.sh WAY BUILD SOURCE COMPILER FLAGS: installs the build to a scratch prefix, moves the prefix, and there does
# what the documents tell a user to do, by the commands that stand in them: the README's program by pkg_config or
# find_package, with debian_packages by both from where the packages put it, which are looked at first; the compiled
# libraries of the page for hosts; the LLVM programs of the page on calls.
set -eu
way=$1 build=$2 source=$3 compiler=$4 flags=${5-}
flags=${flags//;/ }
. "$source/tests/interface/readme.sh"
work=$(mktemp -d) && trap 'rm -rf "$work"' EXIT

install_build() { cmake --install "$build" --prefix "$work/scratch"; }
unpack_packages() {
  cd "$build" && cpack -B "$work/packages" && "$source/tests/interface/packages.sh" "$work/packages" "$source" || return
  for package in "$work"/packages/*.deb; do dpkg-deb -x "$package" "$work/root" || return; done
  mv "$work/root/usr" "$work/scratch"
}
install=install_build
[ "$way" != debian_packages ] || install=unpack_packages
($install) >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
mv "$work/scratch" "$work/moved"
! grep -rIl "$work/scratch" "$work/moved" || { echo "installed text names the prefix"; exit 1; }
diff -r -x detail "$source/include/torvane" "$work/moved/include/torvane"
# The bodies behind the inline header come along.
[ ! -x "$(command -v g++)" ] || g++ $flags -std=c++20 -fsyntax-only -I "$work/moved/include" -x c++ "$work/moved/include/torvane/scalars_inline.hpp"

cd "$work"
PKG_CONFIG_PATH=$(dirname "$(find "$work/moved" -name torvane-rtl.pc)")
export PKG_CONFIG_PATH
LD_LIBRARY_PATH=$(pkg-config --variable=libdir torvane-rtl)
export LD_LIBRARY_PATH
cc() { "$compiler" $flags -Wall -Wextra -Werror "$@"; }
clang-19() { command clang-19 $flags "$@"; }

# run LANGUAGE N PAGE: the N-th block of a page, as commands of this shell.
run() {
  block "$2" "$1" "$source/$3" >commands
  [ -s commands ] || { echo "$3 has no block $2 in $1"; exit 1; }
  . ./commands
}

readme_program() {
  block 1 c "$source/README.md" >program.c
  block 2 text "$source/README.md" >wanted
  [ -s program.c ] && [ -s wanted ] || { echo "the README has no program or no output"; exit 1; }
}

by_pkg_config() {
  readme_program
  run sh 3 README.md
  ./a.out >got
  diff wanted got
}

by_find_package() {
  readme_program
  { echo 'cmake_minimum_required(VERSION 3.25)'
    echo 'project(user LANGUAGES C)'
    echo 'add_executable(program program.c)'
    block 1 cmake "$source/README.md"; } >CMakeLists.txt
  cmake -G Ninja -S . -B build -DCMAKE_PREFIX_PATH="$work/moved" -DCMAKE_C_COMPILER="$compiler" \
    -DCMAKE_C_FLAGS="$flags" >log && cmake --build build >>log || { cat log; exit 1; }
  build/program >got
  diff wanted got
}

# A library built so does in the host what the one of the build does.
same_library() {
  local library=$2
  echo "#include \"$source/examples/libraries/$library.c\"" >library.c
  rm -f library.so
  run sh "$1" docs/hosts.md
  shift 2
  "$build/examples/host" "$build/examples/libraries/$library.so" "$@" >wanted
  "$build/examples/host" ./library.so "$@" >got
  [ -s wanted ] && diff wanted got
}

by_hosts_page() {
  block 2 c "$source/docs/hosts.md" >library.c
  run sh 1 docs/hosts.md
  diff <("$build/examples/host" ./library.so 3 1 2) <(printf '1\n2\n3\n')
  same_library 1 pagerank "$source/examples/data/documents.links" 0.85 3
  same_library 2 ball 3 4096 7
}

# The bitcode is that of 64-bit targets: without it the commands that name it are not run.
by_calling_page() {
  local number commands
  for number in 1 2 3; do
    block "$number" llvm "$source/docs/calling.md" >definitions.ll
    [ -s definitions.ll ] || { echo "no LLVM program $number"; exit 1; }
    for commands in 1 2; do
      [ "$commands" = 1 ] || [ -e "$build/torvane_scalars.bc" ] || continue
      rm -f program
      run sh "$commands" docs/calling.md
    done
  done
}

by_debian_packages() {
  (by_pkg_config)
  (by_find_package)
}

by_"$way"
