#!/usr/bin/env bash
# translations.sh LUPDATE: updates resources/translations from the texts in the sources. New texts are added
# untranslated, texts that are no longer shown are removed, translations are kept. The English catalogue is kept by
# hand: it has only the texts that people read otherwise than the sources have them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# lupdate knows tr() and its relatives, whose context is a class; ours is the same for all. So it is given
# only the texts: those in localized("…"), and those in tables, marked QT_TRANSLATE_NOOP("Ticklog", "…").
texts=$(mktemp --suffix=.cpp)
trap 'rm -f "$texts"' EXIT
find Classes app helpers interface platform \( -name '*.cpp' -o -name '*.h' \) -print0 | LC_ALL=C sort -z |
  xargs -0 grep -hPzo '(\blocalized\(|QT_TRANSLATE_NOOP\("Ticklog",)\s*\K("(?:[^"\\]|\\.)*"\s*)+(?=\))' |
  while IFS= read -r -d '' text; do printf 'QT_TRANSLATE_NOOP("Ticklog", %s);\n' "$text"; done >"$texts"

for catalogue in resources/translations/ticklog_*.ts; do
  [[ $catalogue = *_en.ts ]] && continue
  # Without heuristics: a similar text may mean something else.
  "$1" -silent -locations none -no-obsolete -no-ui-lines -disable-heuristic sametext -disable-heuristic similartext \
    "$texts" -ts "$catalogue"
  missing=$(grep -c 'type="unfinished"' "$catalogue" || true)
  echo "$catalogue: $missing of $(grep -c '<source>' "$catalogue") texts without a translation"
done
