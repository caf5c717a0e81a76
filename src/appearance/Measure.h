// Lengths and sizes of type of the look: each is given for a window 1366 wide and for one of 1920, and grows
// with the zoom. Whole pixels, so that nothing is blurred.
#pragma once

#include <algorithm>

namespace hooptab {

class Measure {
 public:
  static constexpr int kLeastZoom = 90; // percent
  static constexpr int kMostZoom = 150;
  // From which size of the window on the larger lengths hold.
  static constexpr int kWideWidth = 1800;
  static constexpr int kWideHeight = 1000;

  constexpr Measure() = default;
  constexpr Measure(bool isWide, int zoom)
      : m_isWide(isWide), m_zoom(std::clamp(zoom, kLeastZoom, kMostZoom)) {}

  [[nodiscard]] constexpr int operator()(int narrow, int wide) const {
    return ((m_isWide ? wide : narrow) * m_zoom + 50) / 100;
  }
  [[nodiscard]] constexpr int operator()(int both) const { return (*this)(both, both); }
  [[nodiscard]] constexpr int zoom() const { return m_zoom; }
  [[nodiscard]] constexpr bool isWide() const { return m_isWide; }
  friend constexpr bool operator==(const Measure&, const Measure&) = default;

 private:
  bool m_isWide = false;
  int m_zoom = 100;
};

} // namespace hooptab
