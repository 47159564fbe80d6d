#!/bin/bash
# installed.sh WAY BUILD SOURCE COMPILER FLAGS: installs the build to a scratch prefix, moves the prefix, and
# there builds and runs the README's program as a user would, by pkg_config or by find_package; with
# debian_packages the same, by both, from where the packages put it.
set -eu
way=$1 build=$2 source=$3 compiler=$4 flags=${5-}
flags=${flags//;/ }
. "$source/tests/interface/readme.sh"
work=$(mktemp -d) && trap 'rm -rf "$work"' EXIT

install_build() { cmake --install "$build" --prefix "$work/scratch"; }
unpack_packages() {
  cd "$build" && cpack -B "$work/packages" || return
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
block 1 c "$source/README.md" >program.c
block 1 text "$source/README.md" >wanted
[ -s program.c ] && [ -s wanted ] || { echo "the README has no program or no output"; exit 1; }

by_pkg_config() {
  PKG_CONFIG_PATH=$(dirname "$(find "$work/moved" -name torvane-rtl.pc)")
  export PKG_CONFIG_PATH
  "$compiler" $flags -std=c11 -Wall -Wextra -Werror program.c -o program $(pkg-config --cflags --libs torvane-rtl)
  LD_LIBRARY_PATH=$(pkg-config --variable=libdir torvane-rtl) ./program >got
}

by_find_package() {
  cat >CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.25)
project(user LANGUAGES C)
find_package(TorvaneRTL 0.1 REQUIRED)
add_executable(program program.c)
target_link_libraries(program PRIVATE TorvaneRTL::TorvaneRTL_Minimal)
END
  cmake -G Ninja -S . -B build -DCMAKE_PREFIX_PATH="$work/moved" -DCMAKE_C_COMPILER="$compiler" \
    -DCMAKE_C_FLAGS="$flags" >log && cmake --build build >>log || { cat log; exit 1; }
  build/program >got
}

ways=$way
[ "$way" != debian_packages ] || ways="pkg_config find_package"
for way in $ways; do
  by_"$way"
  diff wanted got
done
