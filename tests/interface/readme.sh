# Sourced: block N LANGUAGE FILE prints the N-th fenced block of that language in a Markdown file.
block() {
  awk -v n="$1" -v fence="\`\`\`$2" '
    inside && /^```/ { exit }
    inside { print }
    $0 == fence && ++seen == n { inside = 1 }' "$3"
}
