// Reads a scanned sheet of the paper input form: finds the mark points in the corners, from them every cell
// of the layout, and says which cells are ticked and of which it is not sure. What the cells mean is for
// others.
#pragma once

#include "forms/FormLayout.h"
#include "forms/GrayPicture.h"
#include "forms/PageMapping.h"
#include "storage/TaskWatch.h"

#include <vector>

namespace hooptab {

class ReadingSteps;

enum class ScanProblem {
  None,
  Cancelled,
  NotAPicture,     // no picture of a kind that is read
  TooCoarse,       // far below 300 dots per inch
  NoUpperLeftMark, // the hollow mark
  NoTop,           // the marks of the upper edge do not belong together
  NoLeft,          // nor those of the left edge
  NoRight,
  NoBottom,
  NotReadable, // marks, but no cells where they must be
  NotThisForm, // the identifier is that of no form, or of a version that is not known
  TooFaint,    // marks, but hardly darker than the paper
};
// What the user is told is wrong, and what to do where that does not say it (else none).
[[nodiscard]] Text textOf(ScanProblem problem);
[[nodiscard]] Text adviceFor(ScanProblem problem);

struct ReadCell {
  double ink = 0; // 0 untouched paper, 1 filled in wholly
  bool isTicked = false;
  bool isDoubtful = false;
};

struct FormReading {
  ScanProblem problem = ScanProblem::None; // else nothing below is set
  FormIdentifier identifier;
  std::vector<ReadCell> cells; // one for each of FormLayout::cells(), in their order

  // By how many quarters the picture is to be turned clockwise so that it stands upright; all places are in
  // the upright one.
  int quarters = 0;
  bool showsSquares = false; // as a form has them; without, turning it is of no use
  // Where a point of the layout (millimetres) lies in it. Projective, so straight lines stay so.
  double toPicture[9] = {};
  [[nodiscard]] PicturePoint inPicture(double x, double y) const;
};

class FormReader {
 public:
  explicit FormReader(const FormLayout& layout) : m_layout(layout) {} // must outlive it

  // A page that lies on its side or upside down is read too. Tells its progress in percent. Needs no thread
  // of its own and may run in any.
  [[nodiscard]] FormReading read(const GrayPicture& picture, const TaskWatch& watch = {}) const;

 private:
  [[nodiscard]] FormReading readUpright(const GrayPicture& picture, ReadingSteps& steps) const;

  const FormLayout& m_layout;
};

} // namespace hooptab
