// Draws numbers game by game with a QPainter, on screen and on paper alike: a line through points or bars
// with the average across, or margins as bars above and below zero. Computes none of the numbers.
#pragma once

#include "settings/Texts.h"

#include <QColor>
#include <QPainter>
#include <QStringList>

#include <cstdint>
#include <optional>
#include <vector>

namespace hooptab {

struct SeriesDrawing {
  enum class Style : std::uint8_t { Line, Bars, Margins };
  enum class Unit : std::uint8_t { Count, Percent, Time }; // seconds

  Style style = Style::Line;
  Unit unit = Unit::Count;
  std::size_t latest = 0; // of bars, how many at the end stand out
  QString title;
  QString averageText;
  std::vector<std::optional<double>> values; // a gap where there is none; a percentage as a fraction of 1
  QStringList labels;                        // under the values, as many as have room
  std::optional<double> average;
};

struct SeriesColours {
  QColor ground, text, muted, grid, line, average, above, below;

  static SeriesColours ofScreen(); // those of the look in use
  static SeriesColours ofPaper();
};

class SeriesPicture {
 public:
  explicit SeriesPicture(const SeriesColours& colours) : m_colours(colours) {}

  void paint(QPainter& painter, const QRectF& area, const SeriesDrawing& drawing,
             std::optional<std::size_t> highlighted = std::nullopt) const;
  // The value at a place of the picture, the nearest sideways.
  [[nodiscard]] static std::optional<std::size_t> valueAt(const QPaintDevice& device, const QFont& font,
                                                          const QRectF& area, const SeriesDrawing& drawing,
                                                          const QPointF& place);
  // A value as the axis writes it.
  [[nodiscard]] static QString valueText(double value, SeriesDrawing::Unit unit);

 private:
  SeriesColours m_colours;
};

} // namespace hooptab
