// How one person fills in a form: which mark he makes in a cell, how large and how straight, with what; how
// he takes a mark back, and how he writes a name.
#pragma once

#include "tools/forms/Pen.h"

namespace hooptab {

class Hand {
 public:
  enum class Mark { Cross, Dot, Stroke, Check, HalfFilled, Scribble };
  static constexpr int kMarks = 6;
  [[nodiscard]] static const char* name(Mark mark);

  Hand(Mark mark, const Pen& pen, Random& random);

  void tick(PaperSheet& paper, const FormRect& cell, Random& random) const;
  // A mark that was rubbed out, or painted over where it cannot be: what is left of it.
  void takeBack(PaperSheet& paper, const FormRect& cell, Random& random) const;
  // Some words in an unreadable hand, from the left, the small letters so many millimetres high.
  void write(PaperSheet& paper, Place start, double width, double height, Random& random) const;

 private:
  void tickWith(const Pen& pen, PaperSheet& paper, const FormRect& cell, Random& random) const;

  Mark m_mark;
  Pen m_pen;
  double m_size;   // of a mark, millimetres
  Place m_bias;    // where his marks stand beside the middle of the cell
  double m_unrest; // how much one mark differs from the next, millimetres
  double m_slant;  // radians
  int m_way;       // of a stroke or of the half that is filled
};

} // namespace hooptab
