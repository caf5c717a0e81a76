// The program's look: Fusion with a light and a dark palette of our own, one accent colour, tabular figures,
// and the colours of meaning (made, missed, deleted). Windows take colours from here and from palette roles,
// never literally.
#pragma once

#include "appearance/ColourScheme.h"

#include <QColor>
#include <QFont>
#include <QPalette>

#include <cstdint>

class QApplication;

namespace hooptab {

class Theme {
 public:
  static QPalette palette(ColourScheme scheme);
  // Style, palette and style sheet of the whole program.
  static void apply(QApplication& application, ColourScheme scheme);
  static ColourScheme current();

  static QColor accent();
  static QColor made();                                   // green, always beside a filled circle
  static QColor madeOnPaper();                            // the same on a white page, whatever the look
  static QColor missed();                                 // red, always beside a cross
  static QColor doubtful();                               // ground of what was marked to be looked at again
  static QColor muted();                                  // secondary text, still readable
  static QFont figures(int pointSize, bool bold = false); // tabular digits, for clocks and scores
};

// A stored colour (red + 256 * green + 65536 * blue) as a QColor and back.
[[nodiscard]] QColor colourOf(std::uint32_t stored);
[[nodiscard]] std::uint32_t storedColour(const QColor& colour);
// Black or white, whichever reads better on that background.
[[nodiscard]] QColor textOn(const QColor& background);

} // namespace hooptab
