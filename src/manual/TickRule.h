// Tells ticked cells from others by what ticks look like on the same page: people write with pencils and felt
// pens, and scans are pale or dark, but on one page the ticks are alike. Where it is not sure, it says so.
#pragma once

#include "manual/FormReader.h"
#include "manual/InkMeasure.h"

#include <span>

namespace hooptab {

class TickRule {
 public:
  // All cells that a person may have ticked, and how dark the page shows the borders of cells.
  TickRule(std::span<const CellInk> cells, double border);

  // No stroke on this page is darker: more is dirt or print.
  [[nodiscard]] double darkest() const;
  // Less than this cannot become a tick, however it is measured.
  [[nodiscard]] double slightest() const { return m_typical / 4; }
  [[nodiscard]] ReadCell read(const CellInk& ink) const;

  [[nodiscard]] static double strength(const CellInk& ink);

 private:
  double m_faintest;  // a stroke that this scan still shows
  double m_typical;   // strength of a tick
  double m_threshold; // between what is none and what is one
  bool m_isSure;
};

} // namespace hooptab
