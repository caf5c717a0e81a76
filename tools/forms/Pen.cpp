#include "tools/forms/Pen.h"

#include "tools/forms/Drawn.h"

#include <numbers>

namespace hooptab {

namespace {

// How much of a disc covers the dot at that place: its edge is as soft as a dot.
double coverage(Place centre, double radius, Place at) {
  const double inside = radius - std::hypot(at.x - centre.x, at.y - centre.y);
  return std::clamp(inside * PaperSheet::kDotsPerMillimetre + 0.5, 0.0, 1.0);
}

FormRect around(Place centre, double radius) {
  const double reach = radius + 1 / PaperSheet::kDotsPerMillimetre;
  return {centre.x - reach, centre.y - reach, 2 * reach, 2 * reach};
}

// The tooth of the paper: 0..1, the same at the same place.
double tooth(Place at) {
  const auto cell = [](double millimetres) {
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(millimetres * 12) + 100000);
  };
  return Random(cell(at.x) << 32 | cell(at.y)).below(1000) / 1000.0;
}

double lengthOf(const PenLine& line) {
  double length = 0;
  for (std::size_t corner = 1; corner < line.size(); ++corner)
    length += std::hypot(line[corner].x - line[corner - 1].x, line[corner].y - line[corner - 1].y);
  return length;
}

// Calls for places close beside each other along the line, each with its part of the whole, 0 to 1.
template <class Call>
void follow(const PenLine& line, double step, Call call) {
  const double length = std::max(lengthOf(line), 1e-9);
  double before = 0;
  for (std::size_t corner = 1; corner < line.size(); ++corner) {
    const Place from = line[corner - 1];
    const Place to = line[corner];
    const double part = std::hypot(to.x - from.x, to.y - from.y);
    const int steps = std::max(1, static_cast<int>(part / step));
    for (int index = 0; index <= steps; ++index) {
      const double along = static_cast<double>(index) / steps;
      call(Place{from.x + along * (to.x - from.x), from.y + along * (to.y - from.y)},
           (before + along * part) / length);
    }
    before += part;
  }
}

} // namespace

Pen Pen::some(Kind kind, Random& random) {
  const auto pen = [&](double thinnest, double thickest, double lightest, double darkest, double grain) {
    const double radius = real(random, thinnest, thickest);
    const double darkness = real(random, lightest, darkest);
    return Pen{kind, radius, darkness, grain, real(random, 0.02, 0.09)};
  };
  switch (kind) {
  case Kind::BlackBallpoint: return pen(0.17, 0.27, 0.75, 0.95, 0.1);
  case Kind::BlueBallpoint: return pen(0.17, 0.27, 0.6, 0.8, 0.15);
  case Kind::Pencil: return pen(0.2, 0.36, 0.5, 0.7, 0.4);
  case Kind::FeltPen: return pen(0.35, 0.6, 0.85, 0.97, 0);
  }
  return {};
}

const char* Pen::name(Kind kind) {
  constexpr const char* kNames[kKinds] = {"black ballpoint", "blue ballpoint", "pencil", "felt pen"};
  return kNames[static_cast<std::size_t>(kind)];
}

void Pen::draw(PaperSheet& paper, const PenLine& line, Random& random, double pressure) const {
  const double whole = 2 * std::numbers::pi;
  const double phaseX = real(random, 0, whole);
  const double phaseY = real(random, 0, whole);
  const double waves = real(random, 4, 9);  // per centimetre of line
  const double lift = real(random, 0, 0.4); // the end of a stroke is lighter
  const double millimetres = lengthOf(line);
  follow(line, radius * 0.5, [&](Place at, double part) {
    const double turn = part * millimetres / 10 * waves * whole;
    const Place centre = {at.x + tremor * std::sin(turn + phaseX),
                          at.y + tremor * std::sin(turn * 0.8 + phaseY)};
    const double strength = pressure * (1 - lift * part * part * part);
    const double thick = radius * (0.75 + 0.25 * strength);
    paper.change(around(centre, thick), [&](Place dot, double old) {
      const double taken = darkness * strength * coverage(centre, thick, dot) * (1 - grain * tooth(dot));
      return std::min(old, 255 * (1 - taken));
    });
  });
}

void cover(PaperSheet& paper, const PenLine& line, double radius, Random& random) {
  const double white = real(random, 238, 252);
  follow(line, radius * 0.3, [&](Place centre, double) {
    paper.change(around(centre, radius), [&](Place dot, double old) {
      return old + std::max(white - old, 0.0) * coverage(centre, radius, dot);
    });
  });
}

} // namespace hooptab
