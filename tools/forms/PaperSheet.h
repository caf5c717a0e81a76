// A sheet of paper as it lies on the table: the printed form and what people put on it, far finer than a
// scanner will see it. Places are millimetres from the upper left corner of the form's layout.
#pragma once

#include "forms/FormLayout.h"
#include "forms/GrayPicture.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace hooptab {

struct Place {
  double x = 0, y = 0;
};

class PaperSheet {
 public:
  static constexpr double kDotsPerMillimetre = 600 / 25.4;

  explicit PaperSheet(GrayPicture print) : m_picture(std::move(print)) {}

  [[nodiscard]] double width() const { return m_picture.width / kDotsPerMillimetre; }
  [[nodiscard]] double height() const { return m_picture.height / kDotsPerMillimetre; }
  // The upper left corner of the sheet; the form stands in its middle.
  [[nodiscard]] double left() const { return (FormLayout::kWidth - width()) / 2; }
  [[nodiscard]] double top() const { return (FormLayout::kHeight - height()) / 2; }

  // Where a place lies among the dots; outside of the sheet, it is no dot of the picture.
  [[nodiscard]] Place dot(Place place) const {
    return {(place.x - left()) * kDotsPerMillimetre, (place.y - top()) * kDotsPerMillimetre};
  }
  [[nodiscard]] const GrayPicture& picture() const { return m_picture; }

  // Gives every dot of an area the shade that `shade(place, old)` says.
  template <class Shade>
  void change(const FormRect& area, Shade shade) {
    const Place from = dot({area.x, area.y});
    const Place to = dot({area.right(), area.bottom()});
    const int right = static_cast<int>(std::min(to.x, m_picture.width - 1.0));
    const int bottom = static_cast<int>(std::min(to.y, m_picture.height - 1.0));
    for (int y = static_cast<int>(std::max(from.y, 0.0)); y <= bottom; ++y) {
      for (int x = static_cast<int>(std::max(from.x, 0.0)); x <= right; ++x) {
        const std::size_t index = static_cast<std::size_t>(y) * static_cast<std::size_t>(m_picture.width) +
                                  static_cast<std::size_t>(x);
        const Place place = {left() + (x + 0.5) / kDotsPerMillimetre, top() + (y + 0.5) / kDotsPerMillimetre};
        const double shaded = shade(place, static_cast<double>(m_picture.pixels[index]));
        m_picture.pixels[index] = static_cast<std::uint8_t>(std::clamp(shaded, 0.0, 255.0) + 0.5);
      }
    }
  }
  // So many parts of the light that an area gave are lost where `loss(place)` says.
  template <class Loss>
  void shadow(const FormRect& area, Loss loss) {
    change(area, [&](Place place, double old) { return old * (1 - loss(place)); });
  }

 private:
  GrayPicture m_picture;
};

} // namespace hooptab
