#!/bin/bash
# host.sh PROGRAM SOURCE CASE: runs one case of the host; exit status 0 when it holds.
. "$(dirname "$0")/cases.sh"
libraries=$(dirname "$program")/libraries
ln -s "$libraries"/*.so .
libraries_text='usage: host [--style 0|1|2] LIBRARY.so [WORD...] [-- LIBRARY.so [WORD...]]...
       host --codes'

# told STATUS STDOUT STDERR ARGUMENTS...: exactly this, to the byte.
told() {
  local want=$1 output=$2 message=$3
  shift 3
  "$program" "$@" >out 2>err
  local got=$?
  [ "$(cat out)" = "$output" ] || fail "stdout: $(cat out err)"
  [ "$(cat err)" = "$message" ] || fail "stderr: $(cat err)"
  [ $got -eq "$want" ] || fail "exit status $got, not $want"
}

# await TEXT: until the host that runs has printed it.
await() {
  for _ in $(seq 300); do
    grep -q "$1" out && return
    sleep 0.1
  done
  fail "no \"$1\": $(cat out err)"
}

# interrupted STYLE HOW: the library polls; one interrupt ends it with code 33, and the next one runs.
interrupted() {
  "$program" --style "$1" faulty.so "$2" -- faulty.so flag >out 2>err &
  local host=$!
  await running
  kill -INT $host
  wait $host
  local got=$?
  [ $got -eq 1 ] || fail "style $1: exit status $got"
  [ "$(cat out)" = $'running\nflag 0' ] || fail "style $1: stdout: $(cat out)"
  [ "$(cat err)" = 'host: faulty.so: error 33, ABORT: the host asked for an abort' ] || fail "style $1: $(cat err)"
}

case $case in
a_library_gets_the_words_behind_its_name) told 0 '[a][b c][]' '' faulty.so a 'b c' '' ;;
every_library_gets_its_own_words)
  told 0 $'[a][b]\n[c]\n[--style][0]' '' faulty.so a b -- faulty.so c -- faulty.so --style 0
  ;;
a_library_is_found_by_its_path) told 0 '[x]' '' "$libraries/faulty.so" x ;;
names_that_two_libraries_share_stay_each_ones_own) told 0 $'1\n2\n1' '' namesake_1.so -- namesake_2.so -- namesake_1.so ;;
each_library_has_a_record_of_its_own)
  "$program" faulty.so bag >one || fail "exit status $?"
  told 0 "$(cat one one)" '' faulty.so bag -- faulty.so bag
  ;;
a_code_is_reported_by_name_in_every_style)
  for style in 0 1 2; do
    after=$([ $style = 1 ] && echo 'went on')
    told 1 "$after" 'host: faulty.so: error 1, INTEGER_OVERFLOW: an integer result does not fit its type' \
      --style $style faulty.so overflow
    told 1 "$after" 'host: faulty.so: error 17, UNDEFINED_FOR_TYPE: the operation has no meaning for this type' \
      --style $style faulty.so raise 17
    told 1 "$after" 'host: faulty.so: error 77, unknown: unknown' --style $style faulty.so raise 77
  done
  ;;
the_style_is_1_where_none_is_asked_for)
  told 1 'went on' 'host: faulty.so: error 14, DOMAIN: an argument is outside the domain of the operation' faulty.so raise 14
  ;;
a_status_is_reported_by_its_meaning)
  told 1 '' 'host: faulty.so: status 403: a size overflow, or out of memory' faulty.so status 403
  told 1 '' 'host: faulty.so: status 77: unknown' faulty.so status 77
  ;;
a_wrong_number_of_words_is_told_with_the_usage)
  told 1 '' $'host: faulty.so: status 12: a wrong number of arguments, or an unknown function\nusage: faulty.so HOW [NUMBER]' faulty.so
  ;;
a_library_that_fails_leaves_the_host_alive)
  for style in 0 1 2; do
    "$program" --style $style faulty.so raise 6 -- faulty.so status 3 -- faulty.so overflow -- faulty.so alive >out 2>err
    [ $? -eq 1 ] || fail "style $style: exit status"
    [ "$(tail -n 1 out)" = '[alive]' ] || fail "style $style: $(cat out)"
    [ "$(cut -d: -f3 err)" = $' error 6, INFINITE\n status 3\n error 1, INTEGER_OVERFLOW' ] || fail "style $style: $(cat err)"
  done
  ;;
an_interrupt_aborts_a_library_that_polls) for style in 0 1 2; do interrupted $style poll; done ;;
an_interrupt_aborts_a_library_that_watches_the_flag) for style in 0 1 2; do interrupted $style handle; done ;;
a_second_interrupt_ends_a_host_whose_library_is_deaf)
  "$program" faulty.so ignore >out 2>err &
  host=$!
  await running
  kill -INT $host
  await interrupted
  kill -INT $host
  wait $host
  [ $? -eq 130 ] || fail "exit status: $(cat out err)"
  ;;
misuse_of_record_and_registry_gives_the_statuses_promised)
  "$program" misuse.so >out 2>err || fail "$(cat out err)"
  grep -q '^[5-9][0-9] calls, 0 wrong$' out || fail "$(cat out)"
  ;;
the_codes_are_those_of_the_documents)
  # Numbers and names of the first table, numbers of the second; 1300 to 1305 stand in one row.
  awk -F ' *[|] *' '/^## /{ part = /^## Error/ ? "error" : /^## Status/ ? "status" : "" }
    part != "" && $2 ~ /^-?[0-9]/ {
      split($2, range, " to ")
      if (part == "error") { gsub("`", "", $3); print part, $2, $3 }
      else for (n = range[1]; n <= (2 in range ? range[2] : range[1]); n++) print part, n
    }' "$source/docs/errors.md" | sort >documents
  "$program" --codes | awk -F: '{ print $1 }' | sort >codes
  [ "$(wc -l <codes)" -ge 30 ] || fail "$(cat codes)"
  cmp documents codes || fail "$(diff documents codes)"
  ;;
a_missing_library_is_named)
  told 2 '' 'host: ./no.so: cannot open shared object file: No such file or directory' no.so
  told 2 '' 'host: no/such.so: cannot open shared object file: No such file or directory' no/such.so x
  ;;
a_file_that_is_no_shared_object_is_refused)
  echo text >text.so
  "$program" text.so >out 2>err
  [ $? -eq 2 ] || fail "exit status"
  grep -q '^host: ./text.so: ' err || fail "$(cat err)"
  [ ! -s out ] || fail "$(cat out)"
  ;;
a_shared_object_without_entry_is_refused)
  told 2 '' 'host: no_entry.so: not a compiled library: it has no TorvaneLibrary_entry' no_entry.so
  ;;
nothing_runs_unless_all_can_be_loaded)
  told 2 '' 'host: ./no.so: cannot open shared object file: No such file or directory' faulty.so x -- no.so
  ;;
bad_options_are_a_usage_error)
  told 2 '' "$libraries_text"
  told 2 '' "$libraries_text" --style
  told 2 '' "$libraries_text" --style 1
  told 2 '' "$libraries_text" --style 3 faulty.so
  told 2 '' "$libraries_text" --style 01 faulty.so
  told 2 '' "$libraries_text" --style '' faulty.so
  told 2 '' "$libraries_text" --other faulty.so
  told 2 '' "$libraries_text" -- faulty.so
  ;;
a_separator_without_a_library_is_refused)
  told 2 '' 'host: no library behind --' faulty.so x --
  told 2 '' 'host: no library behind --' faulty.so x -- -- faulty.so
  ;;
a_full_device_is_reported)
  "$program" faulty.so x >/dev/full 2>err && fail "exit status 0"
  [ "$(cat err)" = 'host: cannot write the output: No space left on device' ] || fail "$(cat err)"
  ;;
*) fail "no case $case" ;;
esac
