# Holds a report of `principal_components` (second file) against figures computed here from the table (first file):
# the eigenvalues and eigenvectors of its covariance by Jacobi's rotations. Vectors are compared where their eigenvalue
# is apart from the others. Runs behind table.awk.

# One rotation that makes m[p, q] zero, carried along in v, whose columns become the vectors.
function rotate(p, q,   theta, t, c, s, k, x, y) {
  if (m[p, q] == 0) return
  theta = (m[q, q] - m[p, p]) / (2 * m[p, q])
  t = (theta < 0 ? -1 : 1) / (size(theta) + sqrt(theta * theta + 1))
  c = 1 / sqrt(t * t + 1); s = t * c
  for (k = 1; k <= n; k++) { x = m[k, p]; y = m[k, q]; m[k, p] = c * x - s * y; m[k, q] = s * x + c * y }
  for (k = 1; k <= n; k++) { x = m[p, k]; y = m[q, k]; m[p, k] = c * x - s * y; m[q, k] = s * x + c * y }
  for (k = 1; k <= n; k++) { x = v[k, p]; y = v[k, q]; v[k, p] = c * x - s * y; v[k, q] = s * x + c * y }
}
function jacobi(   sweep, p, q) {
  for (sweep = 0; sweep < 60; sweep++)
    for (p = 1; p < n; p++) for (q = p + 1; q <= n; q++) rotate(p, q)
}
# order[1], order[2], ... are the columns of v by falling eigenvalue.
function sort(   i, j, o) {
  for (i = 1; i <= n; i++) {
    o = i
    for (j = i - 1; j >= 1 && m[order[j], order[j]] < m[o, o]; j--) order[j + 1] = order[j]
    order[j + 1] = o
  }
}
function solve(   a, b) {
  for (a = 1; a <= n; a++) centre[a] = mean(a)
  for (a = 1; a <= n; a++) for (b = 1; b <= n; b++) { m[a, b] = covariance(a, b); v[a, b] = a == b }
  for (a = 1; a <= n; a++) whole += m[a, a]
  jacobi(); sort()
  for (a = 1; a <= n; a++) { eigenvalue[a] = m[order[a], order[a]]; wanted += eigenvalue[a] > 1e-12 * whole }
}
function isApart(k) {
  return (k == 1 || eigenvalue[k - 1] - eigenvalue[k] > 1e-3 * whole) &&
         (k == n || eigenvalue[k] - eigenvalue[k + 1] > 1e-3 * whole)
}
# The printed vector k against the computed one, which may be its opposite; its largest part is positive.
function compare(k,   i, product, low, high) {
  for (i = 1; i <= n; i++) {
    product += loading[i, k] * v[i, order[k]]
    square[k] += loading[i, k] ^ 2
    if (loading[i, k] < low) low = loading[i, k]
    if (loading[i, k] > high) high = loading[i, k]
  }
  near("length of " k, square[k], 1, 1e-5)
  if (high < -low - 1e-6) { print "component " k " points the wrong way"; bad = 1 }
  for (i = 1; i <= n && isApart(k); i++) near(name[i] " in " k, loading[i, k], v[i, order[k]] * (product < 0 ? -1 : 1), 1e-6)
}

/^no variance is left$/ { ended = 1; next }
/^$/ { row = 0; next }
$1 == "component" { section = 1; next }
$1 == "loading" { section = 2; next }
{ row++ }
section == 1 {
  if ($1 != row) { print "component " row ": " $1; bad = 1 }
  found++
  sum += eigenvalue[row]
  near("variance " row, $2, eigenvalue[row], 1e-7 * eigenvalue[1])
  near("explained " row, $3, eigenvalue[row] / whole, 2e-7)
  near("cumulative " row, $4, sum / whole, 2e-7)
  near("residual " row, $5, 0, 1e-9 * eigenvalue[1])
}
section == 2 {
  if ($1 != name[row]) { print "row " row ": " $1 ", not " name[row]; bad = 1 }
  for (k = 1; k <= found; k++) { loading[row, k] = $(k + 1); vectors += isApart(k) }
}
END {
  for (k = 1; k <= found; k++) compare(k)
  if (found != wanted) { print found " components, not " wanted; bad = 1 }
  if (ended != (wanted < n)) { print "an end of the variance: " ended; bad = 1 }
  if (compared != 5 * wanted + vectors) { print compared " figures compared, not " 5 * wanted + vectors; bad = 1 }
  if (row != n) { print row " rows of loadings"; bad = 1 }
  finish()
}
