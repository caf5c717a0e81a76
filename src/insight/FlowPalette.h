// The colours and the type of the charts of a game's flow, on screen and on paper. Two teams whose colours
// are alike are told apart by a pattern.
#pragma once

#include "appearance/Look.h"
#include "game/Side.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>

#include <cstdint>

namespace hooptab {

struct FlowPalette {
  Look look;
  PerSide<QColor> teams = {};
  bool areAlike = false;

  // On the look's surface; paper has the light one.
  FlowPalette(const Look& worn, const PerSide<std::uint32_t>& stored);
  // Of the area in which a team leads.
  [[nodiscard]] QColor area(Side team) const;
  [[nodiscard]] QColor words(Side team) const;
  [[nodiscard]] QColor stroke(Side team) const;
  // How a stay went: blue where the team won by it, orange where it lost, stronger the more, and nearly the
  // surface where it was level.
  [[nodiscard]] QColor stay(int plusMinus) const;
};
inline constexpr int kFullPlusMinus = 10; // from which on a stay is as strong as can be

// Ready to measure; `pixel` is the size of a common screen's pixel in the painter's units.
struct FlowType {
  QFont text;
  QFont strong;
  double pixel = 1;
  [[nodiscard]] QFontMetricsF metrics() const { return QFontMetricsF(text); }
  [[nodiscard]] QFontMetricsF strongMetrics() const { return QFontMetricsF(strong); }
};

} // namespace hooptab
