#!/usr/bin/env bash
# Holds the user guide and the help pages to the program: check_docs.sh SHARE, where SHARE is the folder of the built guide
# and pages. Names every key, menu entry and message that a document promises and the program does not have, and every key that a
# document forgets. Exit status 1 when there is any.
set -u
export LC_ALL=C.UTF-8
cd "$(dirname "$0")/../.." || exit 1
share=$1
failed=0
complain() {
  echo "$1"
  failed=1
}
# With ordinary blanks for those that hold a line together, as the string tables have them.
plain() { sed 's/\xc2\xa0/ /g' "$1"; }

# The guide is a whole PDF of some pages.
pdf=$share/guide.pdf
if [ -s "$pdf" ]; then
  [ "$(head -c 5 "$pdf")" = "%PDF-" ] || complain "guide.pdf is no PDF"
  [ "$(tail -c 6 "$pdf" | tr -d '\n')" = "%%EOF" ] || complain "guide.pdf is cut off"
  pages=$(grep -a -c '^/Type /Page$' "$pdf")
  [ "$pages" -ge 6 ] || complain "guide.pdf has only $pages pages"
  if command -v pdftotext >/dev/null; then
    text=$(pdftotext "$pdf" -)
    for title in "User Guide" "Guide d'usager"; do
      grep -q "$title" <<<"$text" || complain "guide.pdf lacks its title: $title"
    done
  fi
else
  complain "guide.pdf was not made"
fi

# What the program has: the keys of its commands and those of the menus.
shortcut='"((Ctrl|Shift|Alt)\+)*(F[0-9]+|[A-Z])"'
mapfile -t keys < <(
  { grep '^ *{[A-Z][A-Za-z0-9]*, "' src/shell/Commands.cpp; grep 'QStringLiteral("\(Ctrl\|Alt\|Shift\|F[0-9]\)' src/shell/MainMenu.cpp; } |
    grep -oE "$shortcut" | grep -E '\+|F[0-9]' | tr -d '"' | sort -u)
[ "${#keys[@]}" -ge 5 ] || complain "no keys found in src/shell: does this script still read them?"
has_key() {
  local key
  for key in "${keys[@]}"; do [ "$key" = "$1" ] && return 0; done
  return 1
}

for language in en fr; do
  guide=docs/guide/guide_$language.md
  page=$share/help/$language.html
  texts=src/resources/texts_$language.txt
  [ -s "$page" ] || complain "the help page $language.html is missing"
  cmp -s "$page" "docs/help/$language.html" || complain "$language.html is not the page of docs/help"

  named=$(sed -n '/^## \(Keys\|Touches\)$/,/^## [^KT]/p' "$guide" | sed -n 's/^| `\([^`]*\)` |.*/\1/p')
  [ -n "$named" ] || complain "$guide: no table of keys"
  while read -r key; do
    has_key "$key" || complain "$guide: $key is no key of the program"
  done <<<"$named"
  for key in "${keys[@]}"; do
    grep -qxF -- "$key" <<<"$named" || complain "$guide: the key $key is not in the table"
  done
  while read -r key; do
    has_key "$key" || complain "$page: $key is no key of the program"
  done < <(grep -o '<kbd>[^<]*' "$page" | sed 's/<kbd>//')

  # Paths through the menus: "Help › Sample Games".
  while read -r entry; do
    plain "$texts" | grep -qF "\"$entry\"" || complain "$language: no menu entry \"$entry\""
  done < <({ plain "$guide" | grep -oE '\*\*[^*]+ › [^*]+\*\*' | tr -d '*'
             plain "$page" | grep -oE '<b>[^<]+ › [^<]+</b>' | sed 's/<[^>]*>//g'; } | sed 's/ › /\n/g' | sort -u)

  # Messages, by the pieces between what the program puts in.
  messages=$(plain "$guide" | sed -n '/^| Message |/,/^$/p' | sed -n '3,$s/^| \([^|]*\) |.*/\1/p' | sed 's/ (en anglais.*//')
  [ -n "$messages" ] || complain "$guide: no table of messages"
  while read -r piece; do
    { plain "$texts"; cat src/shell/ProgramFolder.cpp; } | grep -qF -- "$piece" ||
      complain "$guide: no message says \"$piece\""
  done < <(sed 's/ *… */\n/g' <<<"$messages" | grep -v '^$')
done

# The two languages tell the same: as many headings, rows and points.
shape() { sed -E 's/^(#+|[0-9]+\.|[|-]).*/\1/; /^[^#0-9|-]/d; /^$/d; /[A-Za-z]/d' "$1"; }
[ "$(shape docs/guide/guide_en.md)" = "$(shape docs/guide/guide_fr.md)" ] ||
  complain "the guide's two languages have different headings, rows or lists"

[ "$failed" -eq 0 ] && echo "The documents agree with the program."
exit "$failed"
