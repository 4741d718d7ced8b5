# Prints the skipped tests from ctest's report and their reasons, one on a line, with their number first.
/<testcase / { name = $0; sub(/.*<testcase name="/, "", name); sub(/( +# GetParam.*)?".*/, "", name); skipped = 0 }
/<skipped/ { skipped = 1 }
skipped && sub(/^.*SKIPPED: /, "") {
  sub(/<.*/, "")
  gsub(/&quot;/, "\""); gsub(/&apos;/, "'"); gsub(/&lt;/, "<"); gsub(/&gt;/, ">"); gsub(/&amp;/, "\\&")
  lines[++count] = "  " name ": " $0
  skipped = 0
}
END {
  if (count) printf "%d skipped:\n", count
  for (i = 1; i <= count; ++i) print lines[i]
}
