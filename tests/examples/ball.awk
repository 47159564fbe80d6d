# ball.awk -v dimension=D -v points=N REPORT: holds a report of `ball` against the volume by its recurrence and against the
# error that so many points leave; every estimate must lie within 5 of its own standard errors.
function volume(d) { return d == 0 ? 1 : d == 1 ? 2 : volume(d - 2) * 2 * 3.14159265358979323846 / d }
function size(x) { return x < 0 ? -x : x }
FNR == 1 { if ($0 != "volume of the ball of dimension " dimension) { print; bad = 1 } next }
FNR == 2 { next }
{
  exact = volume(dimension); share = exact / 2 ^ dimension
  expected = 2 ^ dimension * sqrt(share * (1 - share) / $1)
  if (size($4 - exact) > 1e-8) { print "exact " $4 ", not " exact; bad = 1 }
  if (size($2 - exact) > 5 * $3) { print $1 " points: " $2 " +- " $3 ", not " exact; bad = 1 }
  if ($1 >= 65536 && ($3 > 1.4 * expected || $3 < 0.7 * expected)) { print $1 " points: error " $3 ", not " expected; bad = 1 }
  if ($1 <= last) { print "order"; bad = 1 }
  last = $1; lines++
}
END { if (last != points || !lines) { print last " points"; bad = 1 } exit bad }
