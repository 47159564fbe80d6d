#!/bin/bash
# standardise.sh PROGRAM SOURCE CASE: runs one case of the standardise example; exit status 0 when it holds.
. "$(dirname "$0")/cases.sh"

report() { reported_by report.awk "$1"; }

case $case in
the_shipped_table_gives_the_published_figures)
  # Means, deviations and correlations of Fisher's table as statistics texts print them.
  "$program" "$iris" >out || fail "exit status $?"
  line sepal_length 150 5.84333 0.828066
  line sepal_width 150 3.05733 0.435866
  line petal_length 150 3.758 1.7653
  line petal_width 150 1.19933 0.762238
  line sepal_length 1.0000000 -0.1175698 0.8717538 0.8179411
  line sepal_width -0.1175698 1.0000000 -0.4284401 -0.3661259
  line petal_length 0.8717538 -0.4284401 1.0000000 0.9628654
  line petal_width 0.8179411 -0.3661259 0.9628654 1.0000000
  line skipped, not numeric: species
  ;;
the_shipped_table_agrees_with_awk) report "$iris" ;;
text_columns_anywhere_are_skipped_by_name)
  table 'site,depth,note,salt\nA,1,deep,35\nB,2.5,7,34\nC,-4e1,,36.5\n'
  report t.csv
  ;;
two_rows_and_one_column_are_enough) table 'x\n1\n2\n' && report t.csv ;;
a_large_table_agrees_with_awk)
  # Above the parallel threshold of the elementwise routines (32768 elements).
  awk 'BEGIN { srand(7); print "a,b,c"; for (i = 0; i < 20000; i++) { x = rand(); print x "," 1000 + x + rand() "," i } }' >t.csv
  report t.csv
  ;;
carriage_returns_blanks_and_quotes_do_not_matter)
  table 'a,b\n1,2\n3,5\n4,4\n' && "$program" t.csv >plain || fail "plain: $?"
  table '\xef\xbb\xbf"a" , b\r\n\r\n 1,"2"\r\n3 ,5\r\n4,4' && "$program" t.csv >out || fail "dressed: $?"
  cmp plain out
  ;;
no_argument_is_a_usage_error) refused 2 'usage: standardise FILE.csv' ;;
a_missing_file_is_named) refused 1 'standardise: no/such.csv: No such file or directory' no/such.csv ;;
a_directory_is_refused) mkdir d && refused 1 'standardise: d: Is a directory' d ;;
an_empty_file_is_refused) table '' && refused 1 'standardise: t.csv:1: the file is empty' t.csv ;;
a_binary_file_is_refused) table 'a\n1\0\n' && refused 1 'standardise: t.csv: this is not a text file' t.csv ;;
control_characters_are_refused)
  for byte in 001 010 033 037 177; do
    table "a,b\\$byte\n1,2\n3,4\n" && refused 1 'standardise: t.csv: this is not a text file' t.csv
  done
  ;;
letters_beyond_ascii_are_text)
  table 'gr\xc3\xb6\xc3\x9fe,b\n1,2\n3,5\n4,4\n' && "$program" t.csv >out || fail "exit status $?"
  line $(printf 'gr\xc3\xb6\xc3\x9fe') 3 2.66667
  ;;
a_comma_in_quotes_belongs_to_its_field)
  table 'a,"b, or ""c, d""", "e,f" \n1,"2",x\n3,5,"y,z"\n4,4,\n' && "$program" t.csv >out || fail "exit status $?"
  line 't.csv: 3 rows, 2 numeric columns'
  line 'b, or ""c, d"" 3 3.66667'
  line 'skipped, not numeric: e,f'
  table 'a,"b,c\n1,2\n' && refused 1 'standardise: t.csv:2: column 3 (c): the row ends before it; the header names 3 columns' t.csv
  table 'a,5" pipe\n1,2\n3,5\n' && "$program" t.csv >out || fail "exit status $?"
  line '5" pipe 2 3.5'
  ;;
more_columns_than_can_be_correlated_are_refused)
  awk 'BEGIN { for (r = 0; r < 3; r++) for (c = 1; c <= 50000; c++) printf "%s%s", r ? r * c : "c" c, c < 50000 ? "," : "\n" }' >t.csv
  refused 1 'standardise: t.csv:1: 50000 numeric columns are too many to be correlated' t.csv
  ;;
a_header_alone_is_refused)
  table 'a,b\n' && refused 1 'standardise: t.csv:1: there is no row of values below the header' t.csv
  ;;
a_missing_header_is_refused)
  table '1,2\n3,4\n' && refused 1 'standardise: t.csv:1: a header row must name the columns; it has only numbers' t.csv
  ;;
a_nameless_column_is_refused)
  table 'a,,c\n1,2,3\n' && refused 1 'standardise: t.csv:1: column 2: the header has no name here' t.csv
  ;;
a_short_row_is_refused)
  table 'a,b,c\n1,2,3\n4,5\n' &&
    refused 1 'standardise: t.csv:3: column 3 (c): the row ends before it; the header names 3 columns' t.csv
  ;;
a_long_row_is_refused)
  table 'a,b\n1,2\n3,4\n5,6,7\n' &&
    refused 1 'standardise: t.csv:4: column 3: the row goes on; the header names 2 columns' t.csv
  ;;
text_in_a_numeric_column_is_refused)
  table 'a,b\n1,2\n\n3,4.x\n' && refused 1 'standardise: t.csv:4: column 2 (b): "4.x" is not a finite number' t.csv
  ;;
a_missing_value_is_refused)
  table 'a,b\n1,2\n,4\n' && refused 1 'standardise: t.csv:3: column 1 (a): "" is not a finite number' t.csv
  ;;
an_infinite_value_is_refused)
  table 'a\n1\n1e999\n' && refused 1 'standardise: t.csv:3: column 1 (a): "1e999" is not a finite number' t.csv
  ;;
no_numeric_column_is_refused)
  table 'a,b\nx,y\n1,2\n' && refused 1 'standardise: t.csv:1: no column holds numbers' t.csv
  ;;
one_row_is_refused) table 'a\n1\n' && refused 1 'standardise: t.csv:1: a deviation needs two rows or more' t.csv ;;
a_constant_column_is_refused)
  # Three times 0.1, summed and divided, is not 0.1: its computed deviation is not quite 0.
  table 'a,s,b\n1,x,0.1\n2,y,0.1\n5,z,0.1\n' &&
    refused 1 'standardise: t.csv:1: column 3 (b): its deviation is 0, it cannot be standardised' t.csv
  ;;
values_whose_squares_vanish_are_refused)
  table 'a\n1e-200\n2e-200\n' &&
    refused 1 'standardise: t.csv:1: column 1 (a): its deviation is 0, it cannot be standardised' t.csv
  ;;
values_too_large_to_sum_are_refused)
  table 'a,b\n1,1e308\n2,1e308\n' &&
    refused 1 'standardise: t.csv:1: column 2 (b): the values are too large to be summed' t.csv
  ;;
a_full_disk_is_reported)
  "$program" "$iris" >/dev/full 2>err && fail "exit status 0"
  [ "$(cat err)" = 'standardise: cannot write the report: No space left on device' ] || fail "stderr: $(cat err)"
  ;;
*) fail "no case $case" ;;
esac
