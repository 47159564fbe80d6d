#!/bin/bash
# soname.sh LIBRARY SONAME VERSION: the library's file carries the version, and its soname the major part.
set -u
[[ $1 == *.so.$3 ]] || { echo "$1 is not versioned $3"; exit 1; }
readelf -d "$1" | grep -F "[$2]" || { echo "the soname is not $2"; exit 1; }
