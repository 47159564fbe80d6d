# Sourced by the script of an example, which is run as SCRIPT PROGRAM SOURCE CASE: what its cases share.
set -u
program=$1 source=$2 case=$3
iris=$source/examples/data/iris.csv
here=$source/tests/examples
work=$(mktemp -d) && trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1

fail() { echo "$@" >&2; exit 1; }

# line NAME FIGURES...: the report's last row that begins with NAME holds these figures, in this order.
line() {
  awk -v want="$*" '{ gsub(/ +/, " "); sub(/ $/, "") } index($0, want) == 1 { found = 1 } END { exit !found }' out ||
    fail "no row \"$*\" in: $(cat out)"
}

# reported_by SCRIPT FILE: the report of FILE agrees with the figures that this awk script computes from it.
reported_by() {
  "$program" "$2" >out 2>err || fail "exit status $?: $(cat err)"
  [ ! -s err ] || fail "stderr: $(cat err)"
  awk -f "$here/table.awk" -f "$here/$1" "$2" out || { cat out; exit 1; }
}

# refused STATUS MESSAGE ARGUMENTS...: exactly this message on stderr, this exit status, nothing on stdout.
refused() {
  local want=$1 message=$2
  shift 2
  "$program" "$@" >out 2>err
  local got=$?
  [ "$(cat err)" = "$message" ] || fail "stderr: $(cat err)"
  [ $got -eq "$want" ] || fail "exit status $got, not $want"
  [ ! -s out ] || fail "stdout: $(cat out)"
}

# table TEXT: writes t.csv.
table() { printf "$1" >t.csv; }

# The script of a compiled library runs it in the host: "$program" "$library" WORD...
library=$(dirname "$program")/libraries/$(basename "$0" .sh).so
bad='4: a value is out of range, or a kernel failed'

# refused_with STATUS MESSAGE WORDS...: the library's message, if there is one, then the host's own about the status.
refused_with() {
  local status=$1 message=$2
  shift 2
  refused 1 "$message${message:+$'\n'}host: $library: status $status" "$library" "$@"
}
