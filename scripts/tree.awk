# Prints the record of a store in XML, one element a line, as a table: applications and their windows, the longest first.
function text(line) {
  sub(/^[ \t]*<[a-z]+>/, "", line); sub(/<\/[a-z]+>[ \t\r]*$/, "", line)
  gsub(/&lt;/, "<", line); gsub(/&gt;/, ">", line); gsub(/&quot;/, "\"", line); gsub(/&apos;/, "'", line)
  gsub(/&amp;/, "\\&", line)
  return line
}
function clock(seconds,   tenths) {
  tenths = int(seconds * 10 + 0.5)
  return sprintf("%02d:%02d:%02d.%d", tenths / 36000, tenths / 600 % 60, tenths / 10 % 60, tenths % 10)
}
# Puts the indexes 1..count into order[], by falling time in seconds[prefix, index].
function rank(prefix, count, order,   i, j, k) {
  for (i = 1; i <= count; ++i) {
    for (j = i - 1; j >= 1 && seconds[prefix, order[j]] < seconds[prefix, i]; --j) order[j + 1] = order[j]
    order[j + 1] = i
  }
}
/<dict>/ && inside == "windows" { ++windows[apps]; next }
/<key>App<\/key>/ { ++apps; windows[apps] = 0; inside = "app"; next }
/<key>Windows<\/key>/ { inside = "windows"; next }
/<\/array>/ { inside = ""; next }
/<key>/ { key = text($0); next }
inside == "app" && key == "Name" { name["app", apps] = text($0) }
inside == "app" && key == "ActiveTime" { seconds["app", apps] = text($0) + 0; all += text($0) }
inside == "windows" && key == "Name" { name[apps, windows[apps]] = text($0) }
inside == "windows" && key == "ActiveTime" { seconds[apps, windows[apps]] = text($0) + 0 }
{ key = "" }
END {
  rank("app", apps, order)
  for (a = 1; a <= apps; ++a) {
    app = order[a]
    printf "%s  %s\n", clock(seconds["app", app]), name["app", app]
    rank(app, windows[app], inner)
    for (w = 1; w <= windows[app]; ++w) printf "    %s  %s\n", clock(seconds[app, inner[w]]), name[app, inner[w]]
  }
  printf "%s  together\n", clock(all)
}
