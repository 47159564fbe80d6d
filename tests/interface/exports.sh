#!/bin/bash
# exports.sh LIBRARY LIST: the library exports the names of the list, and nothing else. A line of the list is
# `family name`. The version node (type A) is no export; the members and tables of the exception class are its own.
set -u
export LC_ALL=C
library=$1 list=$2
names=$(nm -D --defined-only "$library") || exit 1
have=$(awk '$(NF - 1) != "A" { sub(/@.*/, "", $NF); print $NF }' <<<"$names" |
  grep -vE '^(_ZT[ISV]|_ZNK?)23TorvaneRuntimeException' | sort -u)
want=$(awk '!/^#/ && NF == 2 { print $2 }' "$list" | sort -u)
[ -n "$want" ] || { echo "no names in $list"; exit 1; }
missing=$(comm -13 <(echo "$have") <(echo "$want"))
beyond=$(comm -23 <(echo "$have") <(echo "$want"))
[ -z "$missing" ] || awk -v missing="$missing" '
  BEGIN { n = split(missing, list, "\n"); for (i = 1; i <= n; i++) gone[list[i]] = 1 }
  $2 in gone { count[$1]++; if (count[$1] <= 6) names[$1] = names[$1] " " $2 }
  END { for (f in count) print "missing of " f ": " count[f] ":" names[f] (count[f] > 6 ? " ..." : "") }' "$list"
[ -z "$beyond" ] || printf 'not in the list: %s\n' $beyond
echo "$(wc -l <<<"$want") names in the list, $(wc -l <<<"$have") exported"
[ -z "$missing$beyond" ]
