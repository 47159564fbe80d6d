#!/bin/bash
# level_objects.sh NM LEVEL OBJECT...: the objects of a processor level define nothing that the linker could
# give to another level: no name without the level in it, and for others only the records of loops.
set -eu
nm=$1 level=$2
shift 2
status=0
[ $# -gt 0 ] || { echo "no objects of level $level"; exit 1; }

complain() {
  echo "$1"
  status=1
}

for object in "$@"; do
  defined=$("$nm" -C --defined-only "$object" | sed 's/^[0-9a-f]* *//')
  records=$(grep -c "^[BDR] torvane_loops::[a-z]*_$level\$" <<<"$defined" || true)
  [ "$records" -eq 1 ] || complain "$object: $records records of loops"
  # Upper case is global, as are weak (v, w) and unique (u) ones. The sanitizers' own names begin with __.
  strays=$(grep '^[A-Zuvw] ' <<<"$defined" | grep -v "^[A-Zuvw] .*torvane_$level::" |
    grep -v "^[BDR] torvane_loops::[a-z]*_$level\$" | grep -v '^[A-Zuvw] \(__\|DW\.ref\.\)' || true)
  [ -z "$strays" ] || complain "$object: $strays"
  grep -q "torvane_$level::" <<<"$defined" || complain "$object: no code of level $level"
done
exit $status
