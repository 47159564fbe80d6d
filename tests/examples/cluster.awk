# cluster.awk -v count=K TABLE ROWS REPORT: holds a report of `cluster` and its file of rows against the method of k means
# done here record by record: the first centre is the first row, each further one the row farthest from those chosen.
# The table must be plain, its numeric columns those whose first value is a number.
function number(text) { return text ~ /^[-+]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][-+]?[0-9]+)?$/ }
function near(what, got, want) {
  compared++
  if (got - want > 1e-6 * (1 + want) || want - got > 1e-6 * (1 + want)) { print what ": " got ", not " want; bad = 1 }
}
function distance(r, j,   c, s) { for (c = 1; c <= n; c++) s += (value[r, c] - centre[j, c]) ^ 2; return s }
function nearest(r, k,   j, best) { best = 1; for (j = 2; j <= k; j++) if (distance(r, j) < distance(r, best)) best = j; return best }
function choose(   j, c, r, far, d, most) {
  for (c = 1; c <= n; c++) centre[1, c] = value[1, c]
  for (j = 2; j <= count; j++) {
    most = -1
    for (r = 1; r <= rows; r++) { d = distance(r, nearest(r, j - 1)); if (d > most) { most = d; far = r } }
    for (c = 1; c <= n; c++) centre[j, c] = value[far, c]
  }
}
function assign(   r, j, moved) {
  for (r = 1; r <= rows; r++) { j = nearest(r, count); moved += j != cluster[r]; cluster[r] = j }
  return moved
}
function move(   r, j, c) {
  for (j = 1; j <= count; j++) { size[j] = 0; for (c = 1; c <= n; c++) centre[j, c] = 0 }
  for (r = 1; r <= rows; r++) { size[cluster[r]]++; for (c = 1; c <= n; c++) centre[cluster[r], c] += value[r, c] }
  for (j = 1; j <= count; j++) for (c = 1; c <= n; c++) centre[j, c] /= size[j]
}
function solve(   r) {
  choose(); assign()
  do { move(); steps++ } while (assign())
  for (r = 1; r <= rows; r++) whole += distance(r, cluster[r])
}
BEGIN { FS = "," }
FNR == 1 { file++ }
file == 1 && FNR == 1 { next }
file == 1 {
  if (FNR == 2) for (f = 1; f <= NF; f++) if (number($f)) field[++n] = f
  rows++
  for (c = 1; c <= n; c++) value[rows, c] = $field[c]
  next
}
file == 2 && FNR == 1 { solve(); if ($0 != "row,cluster") { print $0; bad = 1 } next }
file == 2 { written++; if ($1 != FNR - 1 || $2 != cluster[FNR - 1]) { print "row " $0 ", not " cluster[FNR - 1]; bad = 1 } next }
FNR == 1 { FS = " "; $0 = $0; if ($0 !~ (": " rows " rows, " n " numeric columns$")) { print "heading: " $0; bad = 1 } next }
$1 ~ /^[0-9]+$/ && $2 ~ /^[0-9]+$/ {
  found++
  if ($1 != found || $2 != size[found]) { print "cluster " $1 " of " $2 ", not " size[found]; bad = 1 }
  for (c = 1; c <= n; c++) near("centre " found " " c, $(c + 2), centre[found, c])
}
/sum of squared distances/ { ended++; near("sum", $NF, whole); if ($1 != steps) { print "steps " $1 ", not " steps; bad = 1 } }
END {
  if (written != rows || found != count || ended != 1 || compared != count * n + 1) { print "rows or clusters are missing"; bad = 1 }
  exit bad
}
