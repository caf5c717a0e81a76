// How the program's text fields behave: they select their content on focus, and take no more than the file
// will give back.
#pragma once

#include "storage/Texts.h"

#include <functional>
#include <string>

class QLineEdit;
class QWidget;

namespace hooptab {

// Every line edit below `window` selects its whole content when it receives the focus, by mouse too, if it
// holds more than one character.
void selectOnFocus(QWidget& window);

// The field refuses input that `fits` refuses, and says why in a tip beside it (text 1810). What is in the
// field already may stay and be shortened, however long. `texts` must outlive the field.
void limitField(QLineEdit& field, std::function<bool(const std::string& text)> fits, const Texts& texts);
// The same for a value of its own: `bytes` of the code page, the whole of a value where nothing is given.
void limitField(QLineEdit& field, const Texts& texts, std::size_t bytes = 254);

} // namespace hooptab
