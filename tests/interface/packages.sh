#!/bin/bash
# packages.sh FOLDER SOURCE: the Debian packages in FOLDER hold what they should and nothing else, and say what they need. The
# folder has other files too.
set -eu
cd "$1"
source=$2
export LC_ALL=C
fail() { echo "$@"; exit 1; }

version=$(sed -n 's/^project(TorvaneRTL VERSION \([0-9.]*\) .*/\1/p' "$source/CMakeLists.txt")
major=${version%%.*} architecture=$(dpkg --print-architecture)
runtime=libtorvane-rtl$major development=libtorvane-rtl-dev library=libTorvaneRTL_Minimal.so
[ "$(ls ./*.deb)" = "./${development}_${version}_$architecture.deb
./${runtime}_${version}_$architecture.deb" ] || fail "packages: $(ls ./*.deb)"

# holds PACKAGE: its files and links, from /usr, in order.
holds() { (cd "$1" && find usr ! -type d -printf '%P\n' | sort); }
for package in $runtime $development; do
  dpkg-deb -R ${package}_*.deb $package
  ! dpkg-deb -c ${package}_*.deb | grep -vE '^(drwxr-xr-x|-rw-r--r--|lrwxrwxrwx) root/root ' || fail "$package: owners or modes"
  dpkg-deb -f ${package}_*.deb Maintainer | grep -qE '^[^<]+ <[^@ ]+@[^@ ]+>$' || fail "$package: no maintainer"
  dpkg-deb -f ${package}_*.deb Description | sed 1d | grep -q . || fail "$package: no description"
  cmp $package/usr/share/doc/$package/copyright "$source/LICENSE"
  gzip -dc $package/usr/share/doc/$package/changelog.gz | head -n 1 | grep -qF "($version)" || fail "$package: changelog"
done

# The library and the link by its soname are the one, headers and the link for the linker the other.
diff - <(holds $runtime) <<EOF
lib/$library.$major
lib/$library.$version
share/doc/$runtime/changelog.gz
share/doc/$runtime/copyright
EOF
[ "$(readlink $development/usr/lib/$library)" = $library.$major ] || fail "$development: no link to $library.$major"
diff <(ls "$source/include/torvane" | grep -v '^detail$') <(ls $development/usr/include/torvane | grep -v '^detail$')
for file in lib/pkgconfig/torvane-rtl.pc lib/cmake/TorvaneRTL/TorvaneRTLConfig.cmake share/torvane/exports.{txt,json} share/torvane/torvane.ll; do
  [ -s $development/usr/$file ] || fail "$development has no $file"
done
strange=$(holds $development | grep -vE "^(include/torvane/|lib/pkgconfig/torvane-rtl\.pc$|lib/cmake/TorvaneRTL/|share/torvane/|share/doc/$development/|lib/$library$)") || true
[ -z "$strange" ] || fail "$development has $strange"

# Each library that is loaded with this one is named by a package that holds it, or by what that provides; the other package
# needs this one, of its version.
depends=$(dpkg-deb -f ${runtime}_*.deb Depends | tr ',|' '\n\n' | awk '{ print $1 }')
needed=$(readelf -d $runtime/usr/lib/$library.$version | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
[ -n "$needed" ] || fail "the library needs nothing"
for name in $needed; do
  owners=$(dpkg -S "*/$name" | sed 's/: .*//')
  [ -n "$owners" ] || fail "no package has $name"
  dpkg-query -W -f '${Package}\n${Provides}\n' $owners | tr ',' '\n' | awk 'NF > 0 { print $1 }' |
    grep -qxFf - <(echo "$depends") || fail "$runtime needs $name, but depends on" $depends
done
[ "$(dpkg-deb -f ${development}_*.deb Depends)" = "$runtime (= $version)" ] || fail "$development depends on something else"

# Who is linked to it learns the package's name, and the loader hears of it.
[ "$(cat $runtime/DEBIAN/shlibs)" = "${library%.so} $major $runtime (>= $version)" ] || fail "shlibs: $(cat $runtime/DEBIAN/shlibs)"
grep -q '^activate-noawait ldconfig$' $runtime/DEBIAN/triggers || fail "the loader is not told"
