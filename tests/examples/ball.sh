#!/bin/bash
# ball.sh PROGRAM SOURCE CASE: runs one case of the library `ball` in the host; exit status 0 when it holds.
. "$(dirname "$0")/cases.sh"

# agrees DIMENSION POINTS THROWN [SEED]: THROWN are the points in whole blocks.
agrees() {
  "$program" "$library" "$1" "$2" ${4:+"$4"} >out 2>err || fail "exit status $?: $(cat err)"
  [ ! -s err ] || fail "stderr: $(cat err)"
  awk -v dimension="$1" -v points="$3" -f "$here/ball.awk" out || { cat out; exit 1; }
}

case $case in
the_volume_agrees_with_the_closed_form)
  for seed in 1 2 3; do
    for dimension in 2 3 4 5; do agrees $dimension 262144 262144 $seed; done
  done
  ;;
every_point_of_a_line_is_inside) agrees 1 4096 4096 && [ "$(tail -n 1 out | xargs)" = '4096 2.00000000 0.00000000 2.00000000' ] || fail "$(cat out)" ;;
points_are_rounded_up_to_whole_blocks) agrees 3 65537 66560 && agrees 3 2048 2048 ;;
the_volume_is_shown_at_each_doubling_and_at_the_end)
  agrees 3 200000 200704
  [ "$(awk 'NR > 2 { print $1 }' out | xargs)" = '65536 131072 200704' ] || fail "$(cat out)"
  ;;
the_same_seed_gives_the_same_answer_and_another_one_another)
  agrees 3 65536 65536 7 && mv out one
  agrees 3 65536 65536 7 && mv out same
  agrees 3 65536 65536 8 && mv out other
  cmp one same || fail "$(cat one same)"
  ! cmp -s one other || fail "the same"
  ;;
runs_in_one_host_do_not_notice_each_other)
  agrees 3 65536 65536 7 && cat out out >twice
  "$program" "$library" 3 65536 7 -- "$library" 3 65536 7 >out || fail "exit status $?"
  cmp twice out
  ;;
the_style_does_not_matter_to_a_run_that_succeeds)
  agrees 3 65536 65536 && mv out one
  for style in 0 2; do
    "$program" --style $style "$library" 3 65536 >out || fail "exit status $?"
    cmp one out || fail "style $style"
  done
  ;;
a_cube_that_overflows_raises_the_code_in_every_style)
  for style in 0 1 2; do
    refused 1 "host: $library: error 1, INTEGER_OVERFLOW: an integer result does not fit its type" --style $style "$library" 31 4096
  done
  agrees 12 65536 65536
  "$program" "$library" 30 2048 >out || fail "dimension 30"
  ;;
an_interrupt_ends_a_long_run_with_the_code_of_an_abort)
  for style in 0 1 2; do
    "$program" --style $style "$library" 8 2000000000 -- "$library" 1 2048 >out 2>err &
    host=$!
    for _ in $(seq 300); do [ -s out ] && break; sleep 0.1; done
    kill -INT $host
    wait $host
    [ $? -eq 1 ] || fail "style $style: exit status: $(cat out err)"
    [ "$(cat err)" = "host: $library: error 33, ABORT: the host asked for an abort" ] || fail "style $style: $(cat err)"
    tail -n 1 out | grep -q '^ *2048 *2.00000000' || fail "style $style: the next library did not run: $(cat out)"
  done
  ;;
a_wrong_number_of_words_is_refused)
  wrong='12: a wrong number of arguments, or an unknown function'$'\n'"usage: $library DIMENSION POINTS [SEED]"
  refused_with "$wrong" ''
  refused_with "$wrong" '' 3
  refused_with "$wrong" '' 3 4096 1 x
  ;;
numbers_out_of_range_are_refused)
  for word in 0 1001 x '' 3x; do
    refused_with "$bad" "ball: DIMENSION must be an integer of 1 to 1000, not \"$word\"" "$word" 4096
  done
  for word in 2047 2147483648 99999999999999999999 many; do
    refused_with "$bad" "ball: POINTS must be an integer of 2048 to 2147483647, not \"$word\"" 3 "$word"
  done
  refused_with "$bad" 'ball: SEED must be an integer of 0 to 2147483647, not "-1"' 3 4096 -1
  ;;
*) fail "no case $case" ;;
esac
