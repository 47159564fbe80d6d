# Presents a page to doxygen, whose labels are one for all pages: each heading gets the one that a link to it names, with the
# page's name before it.
function page(path) {
  sub(/.*\//, "", path)
  sub(/\.md$/, "", path)
  return path
}

function label(heading) {
  heading = tolower(heading)
  gsub(/[^a-z0-9 _-]/, "", heading)
  gsub(/ /, "-", heading)
  return heading
}

/^```/ { fenced = !fenced }

!fenced && /^##+ / {
  heading = $0
  sub(/^#+ /, "", heading)
  $0 = $0 " {#" page(FILENAME) "-" label(heading) "}"
}

!fenced {
  while (match($0, /\]\([a-z_.\/]*#[^)]*\)/)) {
    target = substr($0, RSTART + 2, RLENGTH - 3)
    split(target, part, "#")
    $0 = substr($0, 1, RSTART - 1) "](\001" page(part[1] == "" ? FILENAME : part[1]) "-" part[2] ")" substr($0, RSTART + RLENGTH)
  }
  gsub(/\001/, "#")
}

{ print }
