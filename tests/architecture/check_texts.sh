#!/usr/bin/env bash
# Names each text of ours that no source asks for; the fixed ones, below 1501, stay whatever becomes of them. Pages ask for the
# texts that begin with "Web" by the rest of the name, with a small first letter: one that they lack is named, too. Exit status 1
# when there is any.
set -u
cd "$(dirname "$0")/../../src" || exit 1

asked=$(grep -rhoE --include='*.cpp' --include='*.h' '\bText::[A-Za-z0-9]+' . | sed 's/.*:://' | sort -u)
quoted=$(grep -rhoE "['\`\"][a-z][A-Za-z0-9]*['\`\"]|\b[a-z][A-Za-z0-9]*:" publish/pages | tr -d "'\`\":" | sort -u)
quoted=$(printf '%s\n' $quoted $(sed 's/$/Page/' <<<"$quoted"))
asked=$(printf '%s\n' "$asked" $(sed -E 's/^(.)/Web\U\1/' <<<"$quoted") | sort -u)
lacking=$(grep -rhoE "\bt\('[A-Za-z0-9]+'" publish/pages | sed -E "s/.*'(.)([A-Za-z0-9]*)'/Web\U\1\E\2/" | sort -u |
  comm -23 - <(sed -nE 's/^[0-9]+ ([A-Za-z0-9]+) ".*/\1/p' resources/texts_en.txt | sort))
for name in $lacking; do
  echo "a page asks for this text, and there is none: $name"
done
unused=$(sed -nE 's/^([0-9]+) ([A-Za-z0-9]+) ".*/\1 \2/p' resources/texts_en.txt | awk '$1 > 1500 { print $2 }' | sort |
  comm -23 - <(printf '%s\n' "$asked"))
[ -z "$unused$lacking" ] && echo "Every text is asked for." && exit 0
for name in $unused; do
  echo "nothing asks for this text: $(grep -E "^[0-9]+ $name " resources/texts_en.txt)"
done
exit 1
