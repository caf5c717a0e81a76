// How the program's text fields behave: they select their content on focus, and take no more than the file
// will give back.
#pragma once

#include "settings/Texts.h"
#include "storage/cinifile.h"

#include <cstddef>
#include <functional>
#include <string>

class QAbstractItemView;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QWidget;

namespace hooptab {

// A label for a field, its buddy; the same text names the field for screen readers and in its tool tip.
[[nodiscard]] QLabel* captionFor(QWidget& field, Text text);
// A push button with icon; Enter presses it where it has the focus, outside dialogs too.
[[nodiscard]] QPushButton* iconButton(const char* name, Text text, Text toolTip, const char* iconName,
                                      QWidget* parent);
// One of the answers in the last row of a dialog, at its right end.
QPushButton* addAnswer(QBoxLayout& answers, const char* name, Text text, QWidget* parent);
// A line above a window's content that stands out, hidden at first.
[[nodiscard]] QLabel* noticeLabel(QWidget* parent);

// Every line edit below `window` selects its whole content when it receives the focus, by mouse too, if it
// holds more than one character.
void selectOnFocus(QWidget& window);

// The field refuses input that `fits` refuses, and says why in a tip beside it. A longer text that is in the
// field already is shown whole. `texts` must outlive the field.
void limitField(QLineEdit& field, std::function<bool(const std::string& text)> fits, const Texts& texts);
// The same for a value of its own: `bytes` of the code page, the whole of a value where nothing is given.
void limitField(QLineEdit& field, const Texts& texts, std::size_t bytes = cinifile::kLongestValue);

// Calls `act` when another row of a view was selected: by key at once, by mouse when the button is let go, so
// that a question it asks does not come while the button is held down.
void whenSelected(QAbstractItemView& view, std::function<void()> act);

} // namespace hooptab
