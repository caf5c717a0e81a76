// The program's look in use: light or dark, its measure, and its type. Windows take colours from the palette
// and from here, never literally.
#pragma once

#include "appearance/ColourScheme.h"
#include "appearance/Contrast.h"
#include "appearance/Look.h"
#include "appearance/Measure.h"

#include <QColor>
#include <QFont>
#include <QPalette>

#include <cstdint>

class QApplication;
class QWidget;

namespace hooptab {

// What a text is for: its size and weight follow from it.
enum class Type {
  Caption, // of a button
  Dense,   // the small lines of the rosters
  Small,   // labels, the clock of an event
  Body,
  Name, // names, tabs, shooting figures
  Count,
  Jersey,
  Points,
  Score,
  Clock,
  Title,
};

// How strongly the court is painted in the colours of the settings.
enum class CourtStrength : std::uint8_t { Calm, AsSet };

class Theme {
 public:
  static QPalette palette(ColourScheme scheme);
  // Fonts, style, palette of the whole program.
  static void apply(QApplication& application, ColourScheme scheme);
  static ColourScheme current();
  static const Look& look() { return lookOf(current()); }
  // The type follows at once; windows that keep lengths are to be told.
  static void setMeasure(QApplication& application, const Measure& measure);
  static const Measure& measure();

  static CourtStrength courtStrength();
  static void setCourtStrength(CourtStrength strength); // windows are to be told

  static QFont font(Type use);
  static QFont font(Type use, QFont::Weight weight);
  // Gives a widget that type, now and whenever the measure changes.
  static void setType(QWidget& widget, Type use);
  static void setType(QWidget& widget, Type use, QFont::Weight weight);

  static QColor accent() { return look().accent; }
  static QColor made() { return look().made; }
  static QColor madeOnPaper() { return lookOf(ColourScheme::Light).made; } // whatever the look
  static QColor missed() { return look().missed; }
  static QColor doubtful() { return look().doubtfulGround; }
  static QColor muted() { return look().muted; }
};

// A stored colour (red + 256 * green + 65536 * blue) as a QColor and back.
[[nodiscard]] QColor colourOf(std::uint32_t stored);
[[nodiscard]] std::uint32_t storedColour(const QColor& colour);

} // namespace hooptab
