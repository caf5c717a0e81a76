// Where the parts of a flow chart stand in a rectangle: its axes, the runs and time-outs that have room, and
// which play a place on it means. Measures no text and draws nothing.
#pragma once

#include "insight/MarginFlow.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace hooptab {

// What one can point at: a score or a time-out.
struct FlowPlay {
  std::size_t event = 0; // place in the game's list
  int at = 0;            // as in MarginFlow
  PerSide<int> score = {};
  [[nodiscard]] int margin() const { return score[Side::Visitor] - score[Side::Home]; }
};
// In the order of the game.
[[nodiscard]] std::vector<FlowPlay> playsOf(const MarginFlow& flow);

class FlowLayout {
 public:
  struct Plot {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    [[nodiscard]] double right() const { return left + width; }
    [[nodiscard]] double bottom() const { return top + height; }
  };
  // The flow must outlive it.
  FlowLayout(const MarginFlow& flow, Plot plot);

  const Plot& plot() const { return m_plot; }
  [[nodiscard]] double x(int at) const;
  [[nodiscard]] double y(int margin) const; // visitors ahead are above
  [[nodiscard]] int timeAt(double x) const; // within the game, wherever that is
  // The margins of the grid's lines, from the top; those of them that are labelled where two labels need that
  // distance.
  [[nodiscard]] std::vector<int> gridLines() const;
  [[nodiscard]] std::vector<int> labels(double least) const;

  struct Bracket {
    const MarginFlow::Run* run = nullptr;
    double left = 0;
    double right = 0;
  };
  // From the last score before a run to its last one, in the order of the game. Where two would stand on each
  // other with their texts the larger run has the place; of equal ones the first.
  [[nodiscard]] std::vector<Bracket> brackets(double textWidth) const;
  // Where a text of that size stands at the outer edge of the half in which a team leads: as far left as it
  // hides nothing of the curve; at the left where it always would.
  [[nodiscard]] double textPlace(Side team, double width, double height) const;
  // For each time-out in which row it stands, from 0, so that none covers another. In the first row a text
  // stands between `from` and `to`.
  [[nodiscard]] std::vector<int> timeOutRows(double width, double from, double to) const;
  // The play at that place or nearest to it: of several at one time the last.
  [[nodiscard]] static std::optional<std::size_t> playAt(const std::vector<FlowPlay>& plays, int at);

 private:
  const MarginFlow& m_flow;
  Plot m_plot;
  int m_step = 1; // between two lines of the grid
  int m_top = 1;
  int m_bottom = -1;
};

} // namespace hooptab
