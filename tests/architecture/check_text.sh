#!/usr/bin/env bash
# Names are text: holds the windows to the classes and procedures that show a text letter by letter, where Qt's own would take
# what looks like HTML, a key's letter or a mark of what is not saved for such. Tool tips are made plain by the program's style,
# so they need nothing where they are set. Prints each line that goes past them; exit status 1 when there is any.
set -u
cd "$(dirname "$0")/../../src" || exit 1

broken=0
# What may not stand in a line, the only files where it may, and what to use instead.
forbid() {
  local pattern="$1" allowed="$2" instead="$3" found
  found=$(grep -rnE --include='*.h' --include='*.cpp' "$pattern" . | sed 's|^\./||' | grep -vE "^($allowed):" | grep -vE ':[[:space:]]*//')
  [ -z "$found" ] && return
  echo "$found" | sed "s|\$|    <- $instead|"
  broken=1
}

forbid 'new QLabel\b|public QLabel\b|<QLabel>\(|\bQLabel [A-Za-z_]+ *[;({=]' 'appearance/PlainLabel\.h' 'PlainLabel'
forbid '\bQMessageBox\b|\bQErrorMessage\b|\bQInputDialog\b' 'appearance/Dialogs\.cpp' 'Dialogs'
forbid '\bQProgressDialog\b|setLabelText' 'shell/InstanceLock\.cpp' 'a PlainLabel'
forbid 'setLabelText' 'none' 'setLabel with a PlainLabel'
forbid 'QMessageBox::(about|information|warning|critical|question)\(' 'none' 'a box with setTextFormat(Qt::PlainText)'
# The only rich text is made of our own words and numbers.
forbid 'RichText|AutoText|MarkdownText|fromHtml|[sS]etHtml|insertHtml|QTextDocument\b|QTextBrowser|QStaticText' \
  'scorecard/ShotChartPanel\.cpp|keypad/KeySheet\.cpp' 'plain text'
forbid 'setWhatsThis|WhatsThisRole|QTipLabel' 'appearance/ProgramStyle\.cpp' 'a tool tip'
forbid '\bsetStyle\(' 'appearance/Theme\.cpp' 'the style that makes tool tips plain'
forbid '"&&"' 'appearance/PlainText\.cpp' 'withoutMnemonic'
forbid '\.(windowTitle|setWindowTitle)\(|>windowTitle\(\)' 'appearance/PlainText\.cpp|appearance/relabel\.cpp|shell/(Rehearsal|InstanceLock)\.cpp' 'shownTitle'

# Titles that are no text of the table go through asTitle().
titles=$(grep -rnE --include='*.cpp' 'setWindowTitle\(' . | sed 's|^\./||' | grep -vE 'asTitle\(|caption\(|"HOOPTAB')
if [ -n "$titles" ]; then
  echo "$titles" | sed 's|$|    <- asTitle|'
  broken=1
fi
[ "$broken" -eq 0 ] && echo "Names are text."
exit "$broken"
