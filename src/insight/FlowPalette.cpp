#include "insight/FlowPalette.h"

#include "appearance/Contrast.h"
#include "appearance/Theme.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace hooptab {

namespace {

constexpr double kAlike = 20; // as far as two colours may differ and still be taken for one
constexpr QColor kMore(0x1B, 0x56, 0xC0);
constexpr QColor kLess(0xB4, 0x56, 0x0A);
constexpr double kWeakest = 0.22;
constexpr double kStrongest = 0.84;

// CIE 1976 L*a*b*, white D65.
std::array<double, 3> labOf(const QColor& colour) {
  const auto linear = [](double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
  };
  const double red = linear(colour.redF());
  const double green = linear(colour.greenF());
  const double blue = linear(colour.blueF());
  const auto bent = [](double share) {
    constexpr double kLinear = 0.008856;
    return share > kLinear ? std::cbrt(share) : 7.787 * share + 16.0 / 116;
  };
  const double x = bent((0.4124 * red + 0.3576 * green + 0.1805 * blue) / 0.9505);
  const double y = bent(0.2126 * red + 0.7152 * green + 0.0722 * blue);
  const double z = bent((0.0193 * red + 0.1192 * green + 0.9505 * blue) / 1.089);
  return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double difference(const QColor& one, const QColor& other) {
  const auto left = labOf(one);
  const auto right = labOf(other);
  return std::hypot(left[0] - right[0], left[1] - right[1], left[2] - right[2]);
}

} // namespace

FlowPalette::FlowPalette(const Look& worn, const PerSide<std::uint32_t>& stored)
    : look(worn), teams{{colourOf(stored[Side::Visitor]), colourOf(stored[Side::Home])}},
      areAlike(difference(teams[Side::Visitor], teams[Side::Home]) < kAlike) {}

// A colour that is close to the ground takes more of itself.
QColor FlowPalette::area(Side team) const {
  constexpr double kShare = 0.42;
  constexpr double kPaleShare = 0.55;
  const bool isPale = contrast(teams[team], look.surface) < kRecognisable;
  return mix(stroke(team), look.surface, isPale ? kPaleShare : kShare);
}

QColor FlowPalette::words(Side team) const {
  return lineOn(teams[team], look.surface, kReadable);
}

QColor FlowPalette::stroke(Side team) const {
  return lineOn(teams[team], look.surface, kRecognisable);
}

QColor FlowPalette::stay(int plusMinus) const {
  if (plusMinus == 0)
    return look.raised;
  const double share = std::min(std::abs(plusMinus), kFullPlusMinus) / static_cast<double>(kFullPlusMinus);
  return mix(plusMinus > 0 ? kMore : kLess, look.surface, kWeakest + (kStrongest - kWeakest) * share);
}

} // namespace hooptab
