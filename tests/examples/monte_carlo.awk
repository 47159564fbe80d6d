# monte_carlo.awk -v dates=N REPORT: the report's figures against prices computed by other means: the geometric one by
# its closed form; of one date, the price of the plain option; of two, the arithmetic one by quadrature over the
# first date's price, given which the second's is lognormal. Every price must lie within 4.5 of its standard errors.
function density(x) { return exp(-x * x / 2) / sqrt(2 * 3.14159265358979323846) }

# Simpson's rule from 0 on.
function phi(x,    n, h, i, sum) {
  if (x > 9) return 1
  if (x < -9) return 0
  n = 200; h = x / n
  sum = density(0) + density(x)
  for (i = 1; i < n; i++) sum += (i % 2 ? 4 : 2) * density(i * h)
  return 0.5 + sum * h / 3
}

# E max(exp(m + s Z) - k, 0) for a standard normal Z.
function expectedExcess(m, s, k,    d) {
  if (k <= 0) return exp(m + s * s / 2) - k
  d = (m - log(k)) / s
  return exp(m + s * s / 2) * phi(d + s) - k * phi(d)
}

function geometric(n,    m, v) {
  m = log(100) + (0.05 - 0.02) * (n + 1) / (2 * n)
  v = 0.04 * (n + 1) * (2 * n + 1) / (6 * n * n)
  return exp(-0.05) * expectedExcess(m, sqrt(v), 100)
}

# (S1 + S2) / 2 - K = S1 / 2 (X - (2 K / S1 - 1)) with X = S2 / S1.
function arithmeticOfTwo(    m, s, n, h, i, z, first, weight, sum) {
  m = (0.05 - 0.02) / 2; s = 0.2 * sqrt(0.5)
  n = 1000; h = 16 / n
  for (i = 0; i <= n; i++) {
    z = -8 + i * h
    first = 100 * exp(m + s * z)
    weight = i == 0 || i == n ? 1 : (i % 2 ? 4 : 2)
    sum += weight * density(z) * first / 2 * expectedExcess(m, s, 200 / first - 1)
  }
  return exp(-0.05) * sum * h / 3
}

function near(what, got, want, tolerance) {
  if (got - want <= tolerance && want - got <= tolerance) return
  printf "%s: %.9g, not %.9g within %.3g\n", what, got, want, tolerance > "/dev/stderr"
  bad = 1
}

/^geometric average/ { seen++; near("closed form", $6, geometric(dates), 2e-6); near("geometric", $3, $6, 4.5 * $4) }
/^arithmetic average/ { seen++; if (dates <= 2) near("arithmetic", $3, dates == 1 ? geometric(1) : arithmeticOfTwo(), 4.5 * $4) }
/^  with the control/ {
  seen++
  if (dates <= 2) near("controlled", $4, dates == 1 ? geometric(1) : arithmeticOfTwo(), 4.5 * $5 + 2e-6)
}
END { exit bad || seen != 3 }
