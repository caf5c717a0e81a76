// Where every point of a form lies in its picture, exactly: from the rough places of its marks to their
// edges, and from there to the printed lines of each player, since no scanner feeds its paper
// evenly.
#pragma once

#include "forms/FormLayout.h"
#include "forms/GrayPicture.h"
#include "forms/PageMapping.h"

#include <array>
#include <optional>

namespace hooptab {

class FormGrid {
 public:
  // Follows the edges of the marks; nothing when they are none.
  [[nodiscard]] static std::optional<FormGrid> ofMarks(const FormLayout& layout, const GrayPicture& picture,
                                                       const std::array<PicturePoint, 4>& centres);
  // Follows the players' frames and the borders of their cells; false when too few are where they must be.
  bool followLines(const FormLayout& layout, const GrayPicture& picture);

  // The best that one mapping can say of the whole page.
  [[nodiscard]] const PageMapping& whole() const { return m_whole; }
  // Black ink on white paper: the part of the paper's light that it gives back.
  [[nodiscard]] double black() const { return m_black; }
  // How dark the borders of cells came out, in parts of black: they are printed in a grey lighter than any
  // pen, so they tell how much the scan keeps of a faint stroke.
  [[nodiscard]] double border() const { return m_border; }
  [[nodiscard]] PicturePoint at(const FormPoint& point) const { return m_page.at(point.x, point.y); }
  [[nodiscard]] PicturePoint at(int player, const FormPoint& point) const;

 private:
  // By how many millimetres a player's cells lie beside where the page's mapping has them.
  struct Shift {
    FormPoint middle;                     // of the player's block
    std::array<double, 3> x = {}, y = {}; // for 1, and for each block's half beside the middle
  };
  [[nodiscard]] FormPoint shifted(const Shift& shift, const FormPoint& point) const;

  PageMapping m_page; // by the marks; shifts are measured in it
  PageMapping m_whole;
  double m_black = 0;
  double m_border = 0;
  std::array<Shift, FormLayout::kPlayers> m_shifts;
};

} // namespace hooptab
