// The rows of a rotation chart, a player each, and where they stand below each other: which row and which
// stay a place on it means. Draws nothing.
#pragma once

#include "game/CountedGame.h"
#include "insight/Rotation.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

struct RotationRow {
  int player = 0; // entry
  std::string number;
  std::string name;
  int seconds = 0;
  int plusMinus = 0;
  std::vector<Stay> stays;
};
// Those who were on court, by their numbers. Nobody in a game of totals, or without time.
[[nodiscard]] PerSide<std::vector<RotationRow>> rotationRows(const CountedGame& counted);

// The visitors' rows under a head of their own, the home team's below.
class RotationLayout {
 public:
  RotationLayout(PerSide<std::size_t> rows, double top, double headHeight, double rowHeight)
      : m_rows(rows), m_top(top), m_headHeight(headHeight), m_rowHeight(rowHeight) {}

  [[nodiscard]] double rowHeight() const { return m_rowHeight; }
  [[nodiscard]] double headTop(Side team) const;
  [[nodiscard]] double rowTop(Side team, std::size_t row) const;
  [[nodiscard]] double bottom() const;

  struct Place {
    Side team = Side::Visitor;
    std::size_t row = 0;
  };
  [[nodiscard]] std::optional<Place> rowAt(double y) const;
  // The stay of a row that holds a time; of two that meet there the later one. Null for none.
  [[nodiscard]] static const Stay* stayAt(const RotationRow& row, int at);

 private:
  PerSide<std::size_t> m_rows;
  double m_top;
  double m_headHeight;
  double m_rowHeight;
};

} // namespace hooptab
