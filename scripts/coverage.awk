# Reads gcovr's table of files (name, lines, lines reached) and prints one line a folder.
NR == 1 || !NF { next }
{
  folder = $1
  if (!sub(/\/[^\/]*$/, "", folder)) folder = "."
  if (!(folder in lines)) order[++count] = folder
  lines[folder] += $2; reached[folder] += $3
  allLines += $2; allReached += $3
}
END {
  printf "%-28s %8s %8s %6s\n", "folder", "lines", "reached", "%"
  for (i = 1; i <= count; ++i) row(order[i], lines[order[i]], reached[order[i]])
  row("all", allLines, allReached)
}
function row(name, all, some) { printf "%-28s %8d %8d %6.1f\n", name, all, some, all ? 100 * some / all : 0 }
