// Tells ticked cells from others by what ticks look like on the same page: people write with pencils and felt
// pens, and scans are pale or dark, but on one page the ticks are alike. What is noise, the page's untouched
// cells tell. Where it is not sure, it says so.
#pragma once

#include "forms/FormReader.h"
#include "forms/InkMeasure.h"

#include <array>
#include <vector>

namespace hooptab {

class TickRule {
 public:
  // The ink of every cell of the layout, which must outlive it, and how dark the page shows the borders of
  // cells. The digits of a prepared form are printed: they say nothing about the hand.
  TickRule(const FormLayout& layout, std::vector<CellInk> inks, bool isPrepared, double border);

  // There are marks, but hardly darker than the paper: nobody could tell which cells are meant.
  [[nodiscard]] bool isTooFaint() const { return m_isTooFaint; }
  // No stroke on this page is darker: more is dirt or print.
  [[nodiscard]] double darkest() const;
  // Whether it may be a tick, and should be measured with `darkest`.
  [[nodiscard]] bool mayBeTicked(std::size_t cell) const;
  // One for each cell.
  [[nodiscard]] std::vector<ReadCell> read() const;

 private:
  [[nodiscard]] bool isBlack(std::size_t cell) const; // wholly
  [[nodiscard]] bool isOfPrintedNumber(std::size_t cell) const;
  [[nodiscard]] ReadCell read(std::size_t cell) const;
  void doubtWhatIsOutOfOrder(std::vector<ReadCell>& cells) const;

  const FormLayout& m_layout;
  std::vector<CellInk> m_inks;
  std::array<bool, FormLayout::kPlayers> m_hasPrintedNumber = {};
  double m_noise = 0;      // the most that an untouched cell has
  double m_clear = 0;      // a stroke of any pen, as this scan shows it
  double m_typical = 0;    // strength of a tick
  double m_threshold = 0;  // between what is none and what is one
  bool m_isFaint = false;  // the ticks are weaker than strokes of a pen: dirt may be as dark
  bool m_isUnsure = false; // and so few that dirt may be all that there is
  bool m_isTooFaint = false;
};

} // namespace hooptab
