# Holds a report of `standardise` (second file) against figures computed here from the table (first file):
# mean, sample deviation, extremes of the standardised values, correlations. Numeric columns are those whose
# first value is a number; the file must be plain (no quotes). Prints one line a difference; fails on any.

function number(text) { return text ~ /^[-+]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][-+]?[0-9]+)?$/ }
function near(what, got, want, bound) {
  compared++
  if (got !~ /[0-9]/ || got - want > bound || want - got > bound) { print what ": " got ", not " want; bad = 1 }
}
function mean(c,   r, s) { for (r = 1; r <= rows; r++) s += value[r, c]; return s / rows }
function spread(c, m,   r, s) { for (r = 1; r <= rows; r++) s += (value[r, c] - m) ^ 2; return sqrt(s / (rows - 1)) }
function extreme(c, sign,   r, e) {
  e = sign * value[1, c]
  for (r = 2; r <= rows; r++) if (sign * value[r, c] > e) e = sign * value[r, c]
  return sign * e
}
function correlation(a, b,   r, s) {
  for (r = 1; r <= rows; r++) s += (value[r, a] - centre[a]) * (value[r, b] - centre[b])
  return s / (rows - 1) / deviation[a] / deviation[b]
}
function figures(   c) { for (c = 1; c <= n; c++) { centre[c] = mean(c); deviation[c] = spread(c, centre[c]) } }
function size(x) { return x < 0 ? -x : x }

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
  figures()
  if ($0 !~ (": " rows " rows, " n " numeric columns$")) { print "heading: " $0; bad = 1 }
  next
}
/^skipped, not numeric: / { $0 = substr($0, 23); if (!($0 in text)) { print "skipped: " $0; bad = 1 }; delete text[$0]; next }
/^$/ { line = 0; next }
$1 == "column" { section = 1; next }
$1 == "correlation" { section = 2; next }
{
  c = ++line
  if ($1 != name[c]) { print "row " c ": " $1 ", not " name[c]; bad = 1 }
}
section == 1 {
  near(name[c] " count", $2, rows, 0)
  near(name[c] " mean", $3, centre[c], 1e-5 * size(centre[c]))
  near(name[c] " deviation", $4, deviation[c], 1e-5 * deviation[c])
  near(name[c] " z min", $5, (extreme(c, -1) - centre[c]) / deviation[c], 1e-5)
  near(name[c] " z max", $6, (extreme(c, 1) - centre[c]) / deviation[c], 1e-5)
  near(name[c] " z mean", $7, 0, 1e-12)
  near(name[c] " z deviation", $8, 1, 1e-9)
}
section == 2 { for (k = 1; k <= n; k++) near(name[c] " with " name[k], $(k + 1), correlation(c, k), 1e-6) }
END {
  for (t in text) { print "not named as skipped: " t; bad = 1 }
  if (compared != 7 * n + n * n) { print compared " figures compared, not " 7 * n + n * n; bad = 1 }
  exit bad
}
