// Names in places where Qt reads some letters as signs: what is shown is the name as it is.
#pragma once

#include <QString>

class QWidget;

namespace hooptab {

// For menus, buttons, tabs, and labels with a buddy, where "&" marks the letter of a key.
[[nodiscard]] QString withoutMnemonic(QString text);

// For a part of a window's title, where "[*]" stands for the mark of what is not saved.
[[nodiscard]] QString asTitle(QString text);
// A window's title as it is shown, without that mark.
[[nodiscard]] QString shownTitle(const QWidget& window);

} // namespace hooptab
