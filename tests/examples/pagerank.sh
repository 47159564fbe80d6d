#!/bin/bash
# pagerank.sh PROGRAM SOURCE CASE: runs one case of the library `pagerank` in the host; exit status 0 when it holds.
. "$(dirname "$0")/cases.sh"
links=$source/examples/data/documents.links

# agrees FILE [DAMPING]: the scores are those that awk computes from the file with a dense matrix.
agrees() {
  "$program" "$library" "$@" >out 2>err || fail "exit status $?: $(cat err)"
  [ ! -s err ] || fail "stderr: $(cat err)"
  awk -v damping="${2:-0.85}" -f "$here/pagerank.awk" "$1" out || fail "$(cat out)"
}

case $case in
the_shipped_links_agree_with_a_dense_iteration) agrees "$links" && agrees "$links" 0.5 && agrees "$links" 0 && agrees "$links" 0.99 ;;
two_pages_that_link_to_each_other_are_alike)
  table 'a b\nb a\n' && agrees t.csv && grep -q '^   1 a  *0.500000000     1     1$' out || fail "$(cat out)"
  ;;
a_star_has_its_closed_form)
  # n leaves link to a hub, which links nowhere: hub = (b + d n leaf), leaf = b, b = (1 - d + d hub) / (n + 1).
  for i in 1 2 3 4 5 6 7; do echo "leaf$i hub"; done >t.csv
  agrees t.csv
  awk 'BEGIN { n = 7; d = 0.85; b = (1 - d) / (n + 1 - d - d * d * n); want = b + d * n * b }
    /^ +1 hub / { seen = 1; if ($3 - want > 2e-9 || want - $3 > 2e-9) bad = 1 } END { exit bad || !seen }' out ||
    fail "$(cat out)"
  ;;
a_link_that_stands_twice_counts_twice) table 'a b\na b\na c\nc a\n' && agrees t.csv ;;
pages_that_link_to_themselves_and_nowhere_are_pages) table 'a a\na b\nc a\n' && agrees t.csv ;;
a_random_graph_agrees_with_a_dense_iteration)
  awk 'BEGIN { srand(5); for (i = 0; i < 500; i++) print "p" int(70 * rand() * rand()), "p" int(70 * rand()) }' >t.csv
  agrees t.csv
  ;;
comments_blanks_and_carriage_returns_do_not_matter)
  printf 'a b\nb c\nc a\nc b\n' >plain
  printf '# head\r\n\n  a\t b # x\r\nb c\r\n\t\nc  a\nc b' >dressed
  "$program" "$library" plain | tail -n +2 >one || fail "plain"
  "$program" "$library" dressed | tail -n +2 >other || fail "dressed"
  [ "$(wc -l <one)" -eq 4 ] && cmp one other
  ;;
only_as_many_pages_are_shown_as_asked_for)
  "$program" "$library" "$links" 0.85 3 >out && [ "$(wc -l <out)" -eq 5 ] || fail "$(cat out)"
  ;;
the_library_is_linked_to_nothing_of_the_runtime)
  nm -D --undefined-only "$library" >names || fail "no names"
  grep -q ' fopen' names || fail "$(cat names)"
  ! grep -E 'Torvane|MTensor|Runtime_|checked_|_fun$' names
  ;;
a_wrong_number_of_words_is_refused)
  wrong='12: a wrong number of arguments, or an unknown function'$'\n'"usage: $library LINKS [DAMPING [SHOWN]]"
  refused_with "$wrong" ''
  refused_with "$wrong" '' a 0.5 1 x
  ;;
numbers_out_of_range_are_refused)
  for word in x 1 -0.1 nan '' 0.5x; do
    refused_with "$bad" "pagerank: DAMPING must be a number of 0 to 0.999, not \"$word\"" "$links" "$word"
  done
  refused_with "$bad" 'pagerank: SHOWN must be a number of 0 to 100000, not "-1"' "$links" 0.5 -1
  ;;
a_missing_file_is_named) refused_with "$bad" 'pagerank: no/such: No such file or directory' no/such ;;
a_directory_is_refused) mkdir d && refused_with "$bad" 'pagerank: d: Is a directory' d ;;
a_file_without_links_is_refused)
  table '' && refused_with "$bad" 'pagerank: t.csv: no link' t.csv
  table '# nothing\n\n' && refused_with "$bad" 'pagerank: t.csv: no link' t.csv
  ;;
a_malformed_line_is_named)
  table 'a b\n\na\n' && refused_with "$bad" 'pagerank: t.csv:3: a link is two names' t.csv
  table 'a b\nb c d\n' && refused_with "$bad" 'pagerank: t.csv:2: a link is two names' t.csv
  ;;
names_and_lines_that_are_too_long_are_refused)
  echo "a $(printf '%064d' 0)" >t.csv && refused_with "$bad" 'pagerank: t.csv:1: a name is longer than 63 bytes' t.csv
  echo "a $(printf '%063d' 0)" >t.csv && agrees t.csv
  echo "$(printf '%064d' 0) a" >t.csv && refused_with "$bad" 'pagerank: t.csv:1: a name is longer than 63 bytes' t.csv
  printf '%01023d' 0 >t.csv && refused_with "$bad" 'pagerank: t.csv:1: the line is longer than 1022 bytes' t.csv
  ;;
bytes_of_any_kind_do_no_harm)
  for seed in 1 2 3 4; do
    LC_ALL=C awk -v seed=$seed 'BEGIN { srand(seed); for (i = 0; i < 20000; i++) printf "%c", int(256 * rand() * rand()) }' >t.csv
    "$program" "$library" t.csv >out 2>err
    [ $? -le 1 ] || fail "seed $seed: $(tail -n 3 err)"
  done
  ;;
*) fail "no case $case" ;;
esac
