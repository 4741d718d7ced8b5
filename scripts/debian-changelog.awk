# SPDX-License-Identifier: MIT
# Turns the newest part of CHANGELOG.md into the changes of a Debian package. `date` is when it was made, as mail writes it,
# and `maintainer` is who vouches for it.
function finish_point(    words, count, i, line) {
  count = split(point, words, " ")
  point = ""
  line = "  *"
  for (i = 1; i <= count; i++) {
    if (length(line) + 1 + length(words[i]) > 79) { print line; line = "   " }
    line = line " " words[i]
  }
  if (count > 0) print line
}
/^## / {
  if (version != "") exit
  version = $2
  sub(/,$/, "", version)
  printf "ticklog (%s) unstable; urgency=medium\n\n", version
  next
}
version == "" { next }
NF == 0 { finish_point(); next }
/^- / { finish_point(); sub(/^- /, "") }
{ point = point " " $0 }
END { finish_point(); printf "\n -- %s  %s\n", maintainer, date }
