// A scanner and how a sheet is laid on it: from paper to the picture that a program gets.
#pragma once

#include "simulator/Random.h"
#include "tools/forms/Damage.h"
#include "tools/forms/PaperSheet.h"

#include <vector>

namespace hooptab {

struct Scanner {
  struct GlassLine {
    double place = 0; // part of the picture's width
    double width = 1; // pixels
    double darkness = 0;
  };

  // Where the sheet lies and how its picture is drawn out.
  double degrees = 0;
  double dotsPerInch = 300;
  double scaleX = 1, scaleY = 1;
  double shear = 0;
  double keystoneX = 0, keystoneY = 0; // change of scale from the middle to an edge
  double feed = 0, feedLength = 100;   // millimetres by which the transport is ahead or behind, and how often
  Place shift;                         // millimetres
  // Light, as shares of it.
  double lid = 0.97; // what stands around the sheet
  double slopeX = 0, slopeY = 0, bulge = 0;
  double edgeShadow = 0, edgeReach = 10; // along the left edge of the picture; millimetres
  std::vector<GlassLine> glassLines;
  // The sensor and what it makes of the light.
  double blur = 0.5;  // pixels
  double sharpen = 0; // share of the difference to the blurred picture
  double noise = 2;   // shades
  double black = 20, white = 245, gain = 1, gamma = 1;
  int jpegQuality = 80;

  [[nodiscard]] static Scanner some(Random& random, Damages& damages);
  // All of the form is always on the picture.
  [[nodiscard]] GrayPicture scan(const PaperSheet& paper, Random& random) const;
};

} // namespace hooptab
