// Months, days and the order of letters in the language of the program, which need not be the system's.
#pragma once

#include "appearance/relabel.h"
#include "settings/Language.h"

#include <QLocale>

namespace hooptab {

[[nodiscard]] inline QLocale localeOf(Language language) {
  return QLocale(toQt(factsOf(language).code));
}
// With dates as they are written in Canada.
[[nodiscard]] inline QLocale canadianLocaleOf(Language language) {
  return QLocale(localeOf(language).language(), QLocale::Canada);
}

} // namespace hooptab
