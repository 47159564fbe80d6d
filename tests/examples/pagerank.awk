# pagerank.awk -v damping=D LINKS REPORT: holds a report of `pagerank` against power iteration with the whole matrix of
# chances, the random starts included: so many steps that damping^steps is below a billionth.
function near(a, b) { return a - b < 2e-9 && b - a < 2e-9 }
function number(name) { if (!(name in numbers)) { numbers[name] = ++n; } return numbers[name] }
function iterate(   step, i, j, steps) {
  for (i = 1; i <= n; i++) for (j = 1; j <= n; j++)
    chance[i, j] = (1 - damping) / n + damping * (out[j] ? links[i, j] / out[j] : 1 / n)
  for (i = 1; i <= n; i++) score[i] = 1 / n
  steps = damping > 0.9 ? 2500 : damping > 0.7 ? 160 : 60
  for (step = 1; step <= steps; step++) {
    for (i = 1; i <= n; i++) { next_[i] = 0; for (j = 1; j <= n; j++) next_[i] += chance[i, j] * score[j] }
    for (i = 1; i <= n; i++) score[i] = next_[i]
  }
}
FNR == NR { sub(/#.*/, ""); sub(/\r$/, ""); if (NF == 2) { a = number($1); b = number($2); links[b, a]++; out[a]++; into[b]++; all++ } next }
FNR == 1 { iterate(); if ($0 !~ (": " n " pages, " all " links,")) { print "heading: " $0; bad = 1 } next }
FNR == 2 { next }
{
  k = numbers[$2]
  if (!k || seen[k]++) { print "page " $2; bad = 1 }
  if (!near($3, score[k])) { print $2 ": " $3 ", not " score[k]; bad = 1 }
  if ($4 != into[k] + 0 || $5 != out[k] + 0) { print $2 ": links " $4 " " $5; bad = 1 }
  if ($1 != FNR - 2) { print "rank " $1; bad = 1 }
  if (FNR > 3 && $3 > last) { print "order at " $2; bad = 1 }
  last = $3
  shown++
}
END { if (shown != n || n == 0) { print shown " pages of " n; bad = 1 } exit bad }
