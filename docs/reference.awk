# Presents a header to doxygen: the plain comments become its own. What opens a file is the file's, what stands above
# declarations is theirs, up to the next comment or blank line, and what stands behind a field is that field's. A
# comment by itself, above a blank line, stays a plain one. An export without a comment gets a command that doxygen does
# not know, and warns of.
{ line[NR] = $0 }

# A comment says what it means literally: no markup, no commands.
function literal(text) {
  gsub(/&/, "\\&amp;", text)
  gsub(/</, "\\&lt;", text)
  gsub(/>/, "\\&gt;", text)
  gsub(/[\\@#%`]/, "\\\\&", text)
  return text
}

# The text between the marks of a comment, on one line of it.
function plain(text) {
  sub(/^ *(\/\*|\*|\/\/) ?/, "", text)
  sub(/ *\*\/ *$/, "", text)
  gsub(/\*/, "\\*", text)
  return literal(text)
}

function lastOfComment(first,   k) {
  if (line[first] ~ /^ *\/\//) {
    for (k = first; line[k + 1] ~ /^ *\/\//;) ++k
    return k
  }
  for (k = first; k < NR && line[k] !~ /\*\//;) ++k
  return k
}

# Two declarations without a blank line or a comment between them share the comment above.
function isShared(from,   k, count) {
  for (k = from; k <= NR && line[k] != "" && line[k] !~ /^\/[*\/]/; ++k) {
    if (line[k] ~ /\{$/) return 0
    if (line[k] ~ /;/) ++count
  }
  return count > 1
}

function leave() {
  if (shared) print "/**@}*/"
  shared = covered = 0
}

function comment(first, last,   k) {
  if (line[last + 1] == "" && first > 1) {
    for (k = first; k <= last; ++k) print line[k]
    return
  }
  if (first > 1 && line[first] ~ /^\// && isShared(last + 1)) {
    print "/**@{*/"
    shared = 1
  }
  covered = first > 1
  print first == 1 ? "/** @file" : "/**"
  for (k = first; k <= last; ++k) print " * " plain(line[k])
  print " */"
}

# Code with a comment behind it.
function trailing(text,   at) {
  at = index(text, "/*")
  if (at && substr(text, 1, at - 1) ~ /[;,)0-9A-Za-z] *$/ && text ~ /\*\/$/)
    text = substr(text, 1, at - 1) "/**< " plain(substr(text, at)) " */"
  return text
}

END {
  for (n = 1; n <= NR; ++n) {
    if (line[n] ~ /^ *\/[*\/]/) {
      if (line[n] ~ /^\//) leave()
      last = lastOfComment(n)
      comment(n, last)
      n = last
    } else {
      if (line[n] == "") leave()
      if (!covered && line[n] ~ /^(extern |class )?TORVANE_API/) print "/** \\export_without_a_comment */"
      print trailing(line[n])
    }
  }
  leave()
}
