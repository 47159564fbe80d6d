#!/bin/bash
# monte_carlo.sh PROGRAM SOURCE CASE: runs one case of the Monte Carlo example; exit status 0 when it holds.
. "$(dirname "$0")/cases.sh"

# run FILE ARGUMENTS...: runs the program, its report to FILE; it must succeed and say nothing else.
run() {
  local file=$1
  shift
  "$program" "$@" >"$file" 2>err || fail "exit status $?: $(cat err)"
  [ ! -s err ] || fail "stderr: $(cat err)"
}

# prices DATES ARGUMENTS...: the report agrees with prices computed by other means.
prices() {
  run out "$2" 2 "$3" "$1"
  awk -v dates="$1" -f "$here/monte_carlo.awk" out || { cat out; exit 1; }
}

case $case in
the_answer_is_the_same_for_any_number_of_workers)
  run one 20000 1
  for workers in 2 3 4 64; do
    run other 20000 $workers
    cmp one other || fail "$workers workers"
  done
  ;;
another_seed_gives_another_answer)
  run one 20000 2 1
  run other 20000 2 2
  ! cmp -s <(tail -n +3 one) <(tail -n +3 other) || fail "the same"
  ;;
one_date_is_the_plain_option) prices 1 200000 1 && prices 1 200000 2 ;;
two_dates_agree_with_quadrature) prices 2 200000 1 && prices 2 200000 2 ;;
fifty_dates_agree_with_the_closed_form) prices 50 50000 1 && prices 50 50000 2 ;;
four_times_the_paths_halve_the_error)
  run one 20000 2 1 10
  run other 80000 2 1 10
  awk '/^arithmetic/ { e[FILENAME] = $4 } END { r = e["one"] / e["other"]; exit !(r > 1.9 && r < 2.1) }' one other ||
    fail "$(cat one other)"
  ;;
paths_that_the_streams_do_not_divide_are_all_run)
  run out 20001
  [ "$(head -1 out)" = '20001 paths over 50 dates, 64 streams of seed 1' ] || fail "$(head -1 out)"
  ;;
fewer_paths_than_streams) run out 2 4 && grep -q '^2 paths' out || fail "$(cat out)" ;;
no_argument_takes_the_defaults) run out && grep -q '^262144 paths over 50 dates, 64 streams of seed 1$' out || fail "$(cat out)" ;;
text_is_refused)
  refused 2 'monte_carlo: PATHS must be an integer of 2 to 1000000000, not "many"' many
  refused 2 'monte_carlo: PATHS must be an integer of 2 to 1000000000, not ""' ''
  refused 2 'monte_carlo: PATHS must be an integer of 2 to 1000000000, not "5x"' 5x
  ;;
numbers_out_of_range_are_refused)
  refused 2 'monte_carlo: PATHS must be an integer of 2 to 1000000000, not "1"' 1
  refused 2 'monte_carlo: PATHS must be an integer of 2 to 1000000000, not "99999999999999999999"' 99999999999999999999
  refused 2 'monte_carlo: WORKERS must be an integer of 1 to 64, not "0"' 100 0
  refused 2 'monte_carlo: WORKERS must be an integer of 1 to 64, not "65"' 100 65
  refused 2 'monte_carlo: SEED must be an integer of 0 to 2147483647, not "-1"' 100 1 -1
  refused 2 'monte_carlo: DATES must be an integer of 1 to 100000, not "0"' 100 1 1 0
  ;;
too_many_arguments_are_a_usage_error)
  refused 2 'usage: monte_carlo [PATHS [WORKERS [SEED [DATES]]]]' 1 2 3 4 5
  ;;
a_full_device_is_reported)
  "$program" 100 >/dev/full 2>err && fail "exit status 0"
  [ "$(cat err)" = 'monte_carlo: cannot write the report: No space left on device' ] || fail "stderr: $(cat err)"
  ;;
*) fail "no such case: $case" ;;
esac
