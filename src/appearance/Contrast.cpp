#include "appearance/Contrast.h"

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr double kStep = 0.05;

double linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

// Relative luminance, 0 to 1, as WCAG 2 defines it.
double luminance(const QColor& colour) {
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

} // namespace

double contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor textOn(const QColor& background) {
  const QColor black(Qt::black);
  const QColor white(Qt::white);
  return contrast(black, background) >= contrast(white, background) ? black : white;
}

QColor mix(const QColor& colour, const QColor& ground, double share) {
  const auto channel = [share](int one, int other) {
    return static_cast<int>(std::lround(one * share + other * (1 - share)));
  };
  return {channel(colour.red(), ground.red()), channel(colour.green(), ground.green()),
          channel(colour.blue(), ground.blue())};
}

QColor lineOn(const QColor& colour, const QColor& ground, double need) {
  const QColor end = textOn(ground);
  QColor shifted = colour;
  for (double share = kStep; contrast(shifted, ground) < need && share <= 1; share += kStep)
    shifted = mix(end, colour, share);
  return contrast(shifted, ground) < need ? end : shifted;
}

QColor outlineOf(const QColor& fill, const QColor& ground) {
  return contrast(fill, ground) >= kRecognisable ? fill : lineOn(fill, ground, kRecognisable);
}

} // namespace hooptab
