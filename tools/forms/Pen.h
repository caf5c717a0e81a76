// What people write with, and its strokes on paper: never quite straight, never of one strength.
#pragma once

#include "simulator/Random.h"
#include "tools/forms/PaperSheet.h"

#include <vector>

namespace hooptab {

using PenLine = std::vector<Place>; // from corner to corner

struct Pen {
  enum class Kind { BlackBallpoint, BlueBallpoint, Pencil, FeltPen };
  static constexpr int kKinds = 4;

  Kind kind = Kind::BlackBallpoint;
  double radius = 0.2;   // millimetres
  double darkness = 0.9; // share of the light that its line takes
  double grain = 0;      // share of that which the paper's grain keeps away
  double tremor = 0.05;  // millimetres

  [[nodiscard]] static Pen some(Kind kind, Random& random);
  [[nodiscard]] static const char* name(Kind kind);

  // `pressure` 1 is how this pen is usually held.
  void draw(PaperSheet& paper, const PenLine& line, Random& random, double pressure = 1) const;
};

// Correction fluid along a line.
void cover(PaperSheet& paper, const PenLine& line, double radius, Random& random);

} // namespace hooptab
