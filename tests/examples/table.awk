# Sourced before report.awk and components.awk: reads the table, which is the first file, and the report's heading. Numeric
# columns are those whose first value is a number; the table must be plain (no quotes). The script behind it has `solve`,
# which computes its figures when the table is read, and reads the rest of the report. One line a difference; fails on any.

function number(text) { return text ~ /^[-+]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][-+]?[0-9]+)?$/ }
function size(x) { return x < 0 ? -x : x }
function near(what, got, want, bound) {
  compared++
  if (got !~ /[0-9]/ || size(got - want) > bound) { print what ": " got ", not " want; bad = 1 }
}
function mean(c,   r, s) { for (r = 1; r <= rows; r++) s += value[r, c]; return s / rows }
function covariance(a, b,   r, s) {
  for (r = 1; r <= rows; r++) s += (value[r, a] - centre[a]) * (value[r, b] - centre[b])
  return s / (rows - 1)
}
function finish() {
  for (t in text) { print "not named as skipped: " t; bad = 1 }
  exit bad
}

BEGIN { FS = "," }
{ sub(/\r$/, "") }
FNR == NR && FNR == 1 { for (f = 1; f <= NF; f++) header[f] = $f; next }
FNR == NR {
  if (FNR == 2) for (f = 1; f <= NF; f++) if (number($f)) { n++; field[n] = f; name[n] = header[f] } else text[header[f]] = 1
  rows++
  for (c = 1; c <= n; c++) value[rows, c] = $field[c]
  next
}
FNR == 1 {
  FS = " "; $0 = $0
  solve()
  if ($0 !~ (": " rows " rows, " n " numeric columns$")) { print "heading: " $0; bad = 1 }
  next
}
/^skipped, not numeric: / { $0 = substr($0, 23); if (!($0 in text)) { print "skipped: " $0; bad = 1 }; delete text[$0]; next }
