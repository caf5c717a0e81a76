#!/usr/bin/env bash
# Names each text of ours that no source asks for; the fixed ones, below 1501, stay whatever becomes of them. Exit status 1 when
# there is any.
set -u
cd "$(dirname "$0")/../../src" || exit 1

asked=$(grep -rhoE --include='*.cpp' --include='*.h' '\bText::[A-Za-z0-9]+' . | sed 's/.*:://' | sort -u)
unused=$(sed -nE 's/^([0-9]+) ([A-Za-z0-9]+) ".*/\1 \2/p' resources/texts_en.txt | awk '$1 > 1500 { print $2 }' | sort |
  comm -23 - <(printf '%s\n' "$asked"))
[ -z "$unused" ] && echo "Every text is asked for." && exit 0
for name in $unused; do
  echo "nothing asks for this text: $(grep -E "^[0-9]+ $name " resources/texts_en.txt)"
done
exit 1
