// Alt keys for the controls of a window: each caption gets a letter of its own in the language in use, so
// that every field and button is reached without the mouse. The texts themselves carry none.
#pragma once

#include <QStringList>

#include <vector>

class QAction;
class QWidget;

namespace hooptab {

// For each caption the place of its letter, -1 where none can be found: no letter twice, none of those that
// are `taken` (in small letters), as many captions with one as can be, the first letters of words before
// others.
[[nodiscard]] std::vector<qsizetype> mnemonicPlaces(const QStringList& captions, const QString& taken = {});

// Gives menus or entries of one menu their letters, in place of those that they have; the letters.
QString giveMnemonics(const QList<QAction*>& actions);

// Gives the tabs of `window`, its buttons and its labels with a buddy that have a text by number their
// Alt keys, in this order; in a window with a menu bar, none of its letters. To be called behind relabel(),
// which takes them away.
void giveMnemonics(QWidget& window);

} // namespace hooptab
