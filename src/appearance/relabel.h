// Captions by name: a widget or action keeps its text, and one procedure writes all captions
// of a window in the language in use, when the window is made and whenever the language changes.
#pragma once

#include "settings/Texts.h"

#include <QString>

class QAction;
class QObject;
class QWidget;

namespace hooptab {

[[nodiscard]] QString toQt(std::string_view utf8);
[[nodiscard]] std::string fromQt(const QString& text);
[[nodiscard]] QString caption(const Texts& texts,
                              Text number); // with its number in front in the diagnostic display

// Texts are kept as dynamic properties; none takes one away. Any widget with a "text", "title" or
// "windowTitle" property, and actions.
void setTextNumber(QObject& object, Text number);
[[nodiscard]] bool hasTextNumber(const QObject& object);
[[nodiscard]] bool hasTabTextNumber(const QObject& page);
void setToolTipNumber(QObject& object, Text number);
void setAccessibleNumber(QWidget& widget, Text number); // name for screen readers, where there is no caption
void setPlaceholderNumber(QWidget& field, Text number); // what an empty line edit shows
void setTabTextNumber(QWidget& page, Text number);      // the tab of a page of a QTabWidget

// Relabels `root` and all its children, widgets and actions alike. The tool tip of an action or a button
// names its key, "Open a Game (Ctrl+O)".
void relabel(QObject& root, const Texts& texts);

} // namespace hooptab
