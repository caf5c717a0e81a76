// The colours of the program's two looks, by what they are for: cool paper, ink, one dark plate, one accent;
// all other colour is the teams'. Every pair that meets is measured by a test.
#pragma once

#include "appearance/ColourScheme.h"

#include <QColor>

namespace hooptab {

struct Look {
  QColor desk;    // behind the cards
  QColor surface; // panels, tables, fields, buttons
  QColor raised;  // bars, heads of tables, totals; what is pointed at
  QColor line;    // hairlines, decoration only
  QColor edge;    // border of all that can be pressed or typed in; text of what cannot
  QColor ink;     // text, figures, icons
  QColor muted;   // labels
  QColor faint;   // zeros, deleted rows
  QColor accent, onAccent;
  QColor soft; // ground of what is selected or switched on
  QColor made; // and up; beside a filled circle
  QColor start, onStart;
  QColor missed; // and down, and wrong; beside a cross
  QColor warningGround, warningText, warningBar;
  QColor doubtfulGround, doubtfulText;
  QColor seasonHigh;
  QColor plate, plateText, plateMuted; // of clock and score, of tool tips and messages
  QColor clockStands, clockRuns;       // on the plate
  QColor courtLine;
  // Shares of a court's and a stat button's own colour, calm and as set.
  double calmCourt, setCourt;
  double buttonFace, buttonBorder, buttonHover, buttonPressed;
};

[[nodiscard]] const Look& lookOf(ColourScheme scheme);

// The same in both looks: marks of shots on a court with what parts them from it, and the rim.
inline constexpr QColor kMadeMark(0x00, 0xFF, 0x00);
inline constexpr QColor kMadeRing(0x04, 0x37, 0x1D);
inline constexpr QColor kMissedMark(0xFF, 0x00, 0x00);
inline constexpr QColor kRim(0xE0, 0x57, 0x0B);

} // namespace hooptab
