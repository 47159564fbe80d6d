# Writes broken0.tn ... broken199.tn from the words of the programs given: a program cut off anywhere, with some of
# its words changed for others, or words at random. The same seed gives the same programs.
BEGIN { srand(seed) }
FNR == 1 { texts++ }
{
  text[texts] = text[texts] $0 "\n"
  rest = $0
  while (match(rest, /[A-Za-z_][A-Za-z_0-9]*|[0-9.]+|==|!=|<=|>=|\/\/|"[^"]*"|[^ ]/)) {
    word[++words] = substr(rest, RSTART, RLENGTH)
    rest = substr(rest, RSTART + RLENGTH)
  }
}
function pick(n) { return 1 + int(rand() * n) }
function changed(source, times,   at) {
  while (times-- > 0) {
    at = pick(length(source))
    source = substr(source, 1, at) (rand() < 0.8 ? " " word[pick(words)] " " : "") substr(source, at + pick(3))
  }
  return source
}
function babble(count,   made) {
  while (count-- > 0) made = made word[pick(words)] (rand() < 0.2 ? "\n" : " ")
  return made
}
END {
  for (i = 0; i < 200; i++) {
    file = "broken" i ".tn"
    source = text[pick(texts)]
    if (i % 4 == 0) source = substr(source, 1, pick(length(source)))
    else if (i % 4 == 3) source = babble(pick(60))
    else source = changed(source, pick(3))
    printf "%s", source >file
    close(file)
  }
}
