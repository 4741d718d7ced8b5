#!/usr/bin/env bash
# translations.sh LUPDATE: brings resources/translations up to date with the texts in the sources: new ones are added
# without a translation, those no longer shown are taken out, and what has been translated stays as it is.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# lupdate knows tr() and its kin, whose context is a class; ours is one for all. So it is shown the texts alone: those
# in localized("…"), and those that tables keep for it, marked QT_TRANSLATE_NOOP("Ticklog", "…").
texts=$(mktemp --suffix=.cpp)
trap 'rm -f "$texts"' EXIT
find Classes app helpers interface platform \( -name '*.cpp' -o -name '*.h' \) -print0 | LC_ALL=C sort -z |
  xargs -0 grep -hPzo '(\blocalized\(|QT_TRANSLATE_NOOP\("Ticklog",)\s*\K("(?:[^"\\]|\\.)*"\s*)+(?=\))' |
  while IFS= read -r -d '' text; do printf 'QT_TRANSLATE_NOOP("Ticklog", %s);\n' "$text"; done >"$texts"

for catalogue in resources/translations/ticklog_*.ts; do
  # No guesses: a text that only looks like another may mean something else.
  "$1" -silent -locations none -no-obsolete -no-ui-lines -disable-heuristic sametext -disable-heuristic similartext \
    "$texts" -ts "$catalogue"
  missing=$(grep -c 'type="unfinished"' "$catalogue" || true)
  echo "$catalogue: $missing of $(grep -c '<source>' "$catalogue") texts without a translation"
done
