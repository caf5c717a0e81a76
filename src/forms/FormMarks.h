// Finds the four black squares in the corners of a form, the upper left one hollow, wherever they stand in a
// picture. What else is black and square (filled cells, dirt) is told apart by where the others must be; what
// the sheet says about itself is for the reader.
#pragma once

#include "forms/FormReader.h"
#include "forms/ReadingSteps.h"

#include <array>
#include <vector>

namespace hooptab {

struct MarkSet {
  std::array<PicturePoint, 4> centres; // in the order of FormLayout::marks(), to about a millimetre
  double score = 0;
  bool isHollow = false; // the upper left one was clearly seen to be
};

struct MarkSearch {
  std::vector<MarkSet> sets;               // that can be, the best first
  ScanProblem problem = ScanProblem::None; // when there are none
  bool showsSquares = false;               // enough of them for a form, however it lies
};

[[nodiscard]] MarkSearch findMarks(const FormLayout& layout, const GrayPicture& picture, ReadingSteps& steps);

} // namespace hooptab
