#!/bin/bash
# principal_components.sh PROGRAM SOURCE CASE: runs one case of the example; exit status 0 when it holds.
. "$(dirname "$0")/cases.sh"

report() { reported_by components.awk "$1"; }
prefix='principal_components: t.csv'

case $case in
the_shipped_table_gives_the_published_figures)
  # Variances, their shares and the loadings of Fisher's table as statistics texts print them.
  "$program" "$iris" >out || fail "exit status $?"
  line 1 4.2282417 0.9246187 0.9246187
  line 2 0.24267075 0.0530665 0.9776852
  line 3 0.0782095 0.0171026 0.9947878
  line 4 0.023835093 0.0052122 1.0000000
  line sepal_length 0.3613866 0.6565888 -0.5820299 0.3154872
  line sepal_width -0.0845225 0.7301614 0.5979108 -0.3197231
  line petal_length 0.8566706 -0.1733727 0.0762361 -0.4798390
  line petal_width 0.3582892 -0.0754810 0.5458314 0.7536574
  line skipped, not numeric: species
  ;;
the_shipped_table_agrees_with_awk) report "$iris" ;;
text_columns_anywhere_are_skipped_by_name)
  table 'site,depth,note,salt\nA,1,deep,35\nB,2.5,7,34\nC,-4e1,,36.5\n'
  report t.csv
  ;;
two_rows_and_one_column_are_enough) table 'x\n1\n2\n' && report t.csv ;;
a_line_has_one_component)
  table 'a,b,c\n1,2,-3\n2,4,-6\n4,8,-12\n5,10,-15\n' && report t.csv
  line 'no variance is left'
  ;;
constant_columns_have_no_part) table 'a,b,c\n1,0.1,3\n2,0.1,5\n4,0.1,1\n9,0.1,2\n' && report t.csv ;;
isolated_columns_do_not_hide_a_common_direction)
  # One column varies more than any of the four that vary most together.
  table 'a,b,c,d,e\n0,1,1,1,1\n0,-1,-1,-1,-1\n1.9,0,0,0,0\n-1.9,0,0,0,0\n0,0.1,0,0,-0.1\n' && report t.csv
  ;;
equal_variances_settle_at_once)
  table 'a,b,c\n1,0,0\n-1,0,0\n0,1,0\n0,-1,0\n0,0,1\n0,0,-1\n' && report t.csv
  ;;
opposite_loadings_are_found) table 'a,b\n1,-1.1\n-1,0.9\n2,-2\n-3,3.3\n' && report t.csv ;;
a_large_table_agrees_with_awk)
  # Above the limit from which products go to the BLAS, and above the parallel threshold.
  awk 'BEGIN { srand(7); print "a,b,c,d"; for (i = 0; i < 20000; i++) { x = rand(); print x "," 10 + x + 2 * rand() "," i / 2e4 "," 3 * rand() + i / 1e4 } }' >t.csv
  report t.csv
  ;;
many_columns_agree_with_awk)
  awk 'BEGIN { srand(3); for (c = 1; c <= 12; c++) printf "c%d%s", c, c < 12 ? "," : "\n"
    for (r = 0; r < 40; r++) for (c = 1; c <= 12; c++) printf "%.6f%s", rand() * c * c, c < 12 ? "," : "\n" }' >t.csv
  report t.csv
  ;;
the_scale_does_not_matter)
  table 'a,b\n1e-100,2e-100\n2e-100,3e-100\n4e-100,9e-100\n' && "$program" t.csv >out || fail "exit status $?"
  tail -n 3 out >small
  table 'a,b\n1e100,2e100\n2e100,3e100\n4e100,9e100\n' && "$program" t.csv >out || fail "exit status $?"
  tail -n 3 out >large
  cmp small large
  ;;
no_argument_is_a_usage_error) refused 2 'usage: principal_components FILE.csv' ;;
two_arguments_are_a_usage_error) refused 2 'usage: principal_components FILE.csv' "$iris" "$iris" ;;
a_missing_file_is_named) refused 1 'principal_components: no/such.csv: No such file or directory' no/such.csv ;;
an_empty_file_is_refused) table '' && refused 1 "$prefix:1: the file is empty" t.csv ;;
text_in_a_numeric_column_is_refused)
  table 'a,b\n1,2\n\n3,4.x\n' && refused 1 "$prefix:4: column 2 (b): \"4.x\" is not a finite number" t.csv
  ;;
no_numeric_column_is_refused)
  table 'a,b\nx,y\n1,2\n' && refused 1 "$prefix:1: no column holds numbers" t.csv
  ;;
one_row_is_refused) table 'a\n1\n' && refused 1 "$prefix:1: a variance needs two rows or more" t.csv ;;
a_table_that_does_not_vary_is_refused)
  table 'a,b\n1,5\n1,5\n1,5\n' && refused 1 "$prefix:1: no column varies" t.csv
  ;;
values_whose_squares_vanish_are_refused)
  table 'a\n1e-200\n2e-200\n' && refused 1 "$prefix:1: no column varies" t.csv
  ;;
values_too_large_to_sum_are_refused)
  table 'a,b\n1,1e308\n2,1e308\n' &&
    refused 1 "$prefix:1: column 2 (b): the values are too large to be summed" t.csv
  ;;
values_too_large_to_square_are_refused)
  table 'a,b\n1,1e200\n2,-1e200\n' && refused 1 "$prefix:1: the values are too large for their covariance" t.csv
  table 'a,b\n1e154,1e154\n-1e154,-1e154\n' &&
    refused 1 "$prefix:1: the values are too large for their covariance" t.csv
  ;;
more_columns_than_have_a_covariance_are_refused)
  awk 'BEGIN { for (r = 0; r < 3; r++) for (c = 1; c <= 50000; c++) printf "%s%s", r ? r * c : "c" c, c < 50000 ? "," : "\n" }' >t.csv
  refused 1 "$prefix:1: 50000 numeric columns are too many for their covariance" t.csv
  ;;
components_that_are_almost_equal_are_refused)
  # Two directions whose variances differ by a part in 10^9 or so.
  table 'a,b\n1,0\n-1,0\n0,1.000000001\n0,-1.000000001\n' &&
    refused 1 "$prefix:1: component 1 does not settle: the next one varies as much" t.csv
  ;;
a_full_disk_is_reported)
  "$program" "$iris" >/dev/full 2>err && fail "exit status 0"
  [ "$(cat err)" = 'principal_components: cannot write the report: No space left on device' ] ||
    fail "stderr: $(cat err)"
  ;;
*) fail "no case $case" ;;
esac
