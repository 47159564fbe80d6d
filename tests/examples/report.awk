# Holds a report of `standardise` (second file) against figures computed here from the table (first file):
# mean, sample deviation, extremes of the standardised values, correlations. Runs behind table.awk.

function spread(c, m,   r, s) { for (r = 1; r <= rows; r++) s += (value[r, c] - m) ^ 2; return sqrt(s / (rows - 1)) }
function extreme(c, sign,   r, e) {
  e = sign * value[1, c]
  for (r = 2; r <= rows; r++) if (sign * value[r, c] > e) e = sign * value[r, c]
  return sign * e
}
function correlation(a, b) { return covariance(a, b) / deviation[a] / deviation[b] }
function solve(   c) { for (c = 1; c <= n; c++) { centre[c] = mean(c); deviation[c] = spread(c, centre[c]) } }

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
  if (compared != 7 * n + n * n) { print compared " figures compared, not " 7 * n + n * n; bad = 1 }
  finish()
}
