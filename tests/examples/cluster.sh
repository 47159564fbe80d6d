#!/bin/bash
# cluster.sh PROGRAM SOURCE CASE: runs one case of the library `cluster` in the host; exit status 0 when it holds.
. "$(dirname "$0")/cases.sh"

# agrees FILE COUNT: the report and the file of rows are those that awk computes.
agrees() {
  "$program" "$library" "$1" "$2" rows.csv >out 2>err || fail "exit status $?: $(cat err)"
  [ ! -s err ] || fail "stderr: $(cat err)"
  awk -v count="$2" -f "$here/cluster.awk" "$1" rows.csv out || { cat out; exit 1; }
}

case $case in
the_flowers_fall_into_the_clusters_that_are_published)
  # Three clusters of Fisher's table: 50 of the first species; 48 and 14, 2 and 36 of the others; a sum of 78.8514.
  agrees "$iris" 3
  grep -q '^[0-9]* steps, sum of squared distances 78\.85144' out || fail "$(cat out)"
  [ "$(sed 1,51d rows.csv | cut -d, -f2 | head -n 50 | sort | uniq -c | awk '{ print $1 }' | xargs)" = '2 48' ] || fail rows
  [ "$(sed 1,101d rows.csv | cut -d, -f2 | sort | uniq -c | awk '{ print $1 }' | xargs)" = '36 14' ] || fail rows
  [ "$(sed 1d rows.csv | head -n 50 | cut -d, -f2 | sort -u)" = 1 ] || fail rows
  ;;
any_number_of_clusters_agrees_with_awk) for count in 1 2 4 5 7; do agrees "$iris" $count; done ;;
one_row_is_one_cluster) table 'a,b\n1,2\n' && agrees t.csv 1 && grep -q 'distances 0$' out || fail "$(cat out)" ;;
as_many_clusters_as_rows_leave_no_distance)
  table 'a\n3\n1\n7\n5\n' && agrees t.csv 4 && grep -q 'distances 0$' out || fail "$(cat out)"
  ;;
a_large_table_agrees_with_awk)
  awk -v OFS=, 'BEGIN { srand(9); print "x,y"; for (i = 0; i < 1200; i++) print 10 * rand() + 8 * (i % 3), rand() * 6 + 5 * (i % 2) }' >t.csv
  agrees t.csv 6
  ;;
the_file_of_rows_may_be_left_out)
  "$program" "$library" "$iris" 2 >out 2>err || fail "$(cat err)"
  [ "$(ls)" = $'err\nout' ] || fail "$(ls)"
  grep -q 'distances 152\.34795' out || fail "$(cat out)"
  ;;
a_wrong_number_of_words_is_refused)
  wrong='12: a wrong number of arguments, or an unknown function'$'\n'"usage: $library FILE.csv COUNT [ROWS.csv]"
  refused_with "$wrong" ''
  refused_with "$wrong" '' "$iris"
  refused_with "$wrong" '' "$iris" 2 rows.csv x
  ;;
a_count_out_of_range_is_refused)
  for word in 0 -1 1001 x '' 2x 99999999999999999999; do
    refused_with "$bad" "cluster: COUNT must be an integer of 1 to 1000, not \"$word\"" "$iris" "$word"
  done
  ;;
too_few_different_rows_are_refused)
  table 'a,b\n1,2\n1,2\n3,4\n' && refused_with "$bad" 'cluster: only 2 rows are different, too few for 3 clusters' t.csv 3
  ;;
a_bad_table_is_refused)
  refused_with "$bad" 'cluster: no/such.csv: No such file or directory' no/such.csv 2
  table 'a,b\n1,2\n3\n' &&
    refused_with "$bad" 'cluster: t.csv:3: column 2 (b): the row ends before it; the header names 2 columns' t.csv 2
  ;;
values_whose_squares_are_too_large_fail)
  table 'a\n1e200\n-1e200\n' &&
    refused_with '1001: a sum, product, norm or bound is out of range' '' t.csv 2
  ;;
rows_that_cannot_be_written_are_reported)
  "$program" "$library" "$iris" 2 no/such.csv >out 2>err && fail "exit status 0"
  [ "$(head -n 1 err)" = 'cluster: no/such.csv: No such file or directory' ] || fail "$(cat err)"
  "$program" "$library" "$iris" 2 /dev/full >out 2>err && fail "exit status 0"
  [ "$(head -n 1 err)" = 'cluster: /dev/full: cannot be written' ] || fail "$(cat err)"
  ;;
*) fail "no case $case" ;;
esac
