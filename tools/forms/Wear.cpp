#include "tools/forms/Wear.h"

#include "tools/forms/Drawn.h"
#include "tools/forms/Pen.h"

#include <numbers>

namespace hooptab {

namespace {

constexpr double kWhole = 2 * std::numbers::pi;

FormRect around(Place centre, double reach) {
  return {centre.x - reach, centre.y - reach, 2 * reach, 2 * reach};
}

Place somewhere(const PaperSheet& paper, Random& random) {
  const double x = paper.left() + real(random, 0, paper.width());
  return {x, paper.top() + real(random, 0, paper.height())};
}

// At most half as large as the smallest dot that a person makes.
void speck(PaperSheet& paper, Random& random) {
  Pen dirt;
  dirt.radius = real(random, 0.04, 0.2);
  dirt.darkness = real(random, 0.3, 0.9);
  const Place at = somewhere(paper, random);
  dirt.draw(paper, {at, {at.x + real(random, -0.1, 0.1), at.y + real(random, -0.1, 0.1)}}, random);
}

void hair(PaperSheet& paper, Random& random) {
  Pen strand;
  strand.radius = real(random, 0.04, 0.08);
  strand.darkness = real(random, 0.3, 0.7);
  PenLine line = {somewhere(paper, random)};
  double direction = real(random, 0, kWhole);
  const double bend = real(random, -0.12, 0.12);
  for (int step = random.between(8, 30); step > 0; --step) {
    direction += bend + 0.06 * normal(random);
    line.push_back({line.back().x + std::cos(direction), line.back().y + std::sin(direction)});
  }
  strand.draw(paper, line, random);
}

// A thumb with its ridges.
void smudge(PaperSheet& paper, Random& random) {
  const Place centre = somewhere(paper, random);
  const double darkness = real(random, 0.05, 0.2);
  const double wide = real(random, 6, 9);
  const double high = wide * real(random, 1.2, 1.6);
  const double ridge = kWhole / real(random, 0.4, 0.6);
  paper.shadow(around(centre, high), [&](Place at) {
    const double x = (at.x - centre.x) / wide;
    const double y = (at.y - centre.y) / high;
    const double inside = 1 - x * x - y * y;
    if (inside <= 0)
      return 0.0;
    const double turn = ridge * std::hypot(at.x - centre.x, at.y - centre.y - 0.4 * high);
    return darkness * std::min(1.0, 3 * inside) * (0.65 + 0.35 * std::sin(turn));
  });
}

void coffeeRing(PaperSheet& paper, Random& random) {
  const Place centre = somewhere(paper, random);
  const double radius = real(random, 32, 42);
  const double thick = real(random, 0.8, 2.2);
  const double darkness = real(random, 0.1, 0.3);
  const double gap = real(random, 0, kWhole); // a ring is never whole
  paper.shadow(around(centre, radius + 3 * thick), [&](Place at) {
    const double x = at.x - centre.x;
    const double y = at.y - centre.y;
    const double away = (std::hypot(x, y) - radius) / thick;
    if (std::abs(away) > 3)
      return 0.0;
    return darkness * std::exp(-away * away) * (0.65 + 0.35 * std::sin(std::atan2(y, x) + gap));
  });
}

// Right across: a bright or dark crease between a slope in the light and one that lies in its own shadow.
void fold(PaperSheet& paper, bool isAcross, Random& random) {
  const Place at = {paper.left() + paper.width() * real(random, 0.3, 0.7),
                    paper.top() + paper.height() * real(random, 0.3, 0.7)};
  const double tilt = real(random, -0.01, 0.01);
  const double slope = real(random, 0.05, 0.25);
  const double crease = real(random, -0.1, 0.3);
  constexpr double kReach = 12;
  const FormRect all = {paper.left(), paper.top(), paper.width(), paper.height()};
  const FormRect band = isAcross ? FormRect{all.x, at.y - kReach, all.width, 2 * kReach}
                                 : FormRect{at.x - kReach, all.y, 2 * kReach, all.height};
  paper.shadow(band, [&](Place place) {
    const double away =
        isAcross ? place.y - at.y - tilt * (place.x - at.x) : place.x - at.x - tilt * (place.y - at.y);
    const double lost = (away < 0 ? 0.15 : 1) * slope * std::exp(-std::abs(away) / 2.5);
    return lost + crease * std::exp(-away * away / (2 * 0.12 * 0.12));
  });
}

// A corner of the sheet that is bent back: only white paper is missing.
void dogEar(PaperSheet& paper, Random& random) {
  const double size = real(random, 4, 9);
  const bool isRight = random.chance(500);
  const bool isLow = random.chance(500);
  const FormRect corner = {isRight ? paper.left() + paper.width() - 2 * size : paper.left(),
                           isLow ? paper.top() + paper.height() - 2 * size : paper.top(), 2 * size, 2 * size};
  paper.shadow(corner, [&](Place at) {
    const double x = isRight ? corner.right() - at.x : at.x - corner.x;
    const double y = isLow ? corner.bottom() - at.y : at.y - corner.y;
    const double inside = (x + y - size) / std::numbers::sqrt2;
    return inside < 0 ? 0.35 : 0.4 * std::exp(-inside);
  });
}

} // namespace

void wear(PaperSheet& paper, Random& random, Damages& damages) {
  const auto some = [&](Damage damage, int perMille, int most, auto happen) {
    if (!random.chance(perMille))
      return;
    damages.add(damage);
    for (int count = random.between(1, most); count > 0; --count)
      happen(paper, random);
  };
  for (int count = random.between(5, 40); count > 0; --count)
    speck(paper, random);
  if (random.chance(300)) {
    damages.add(Damage::Specks);
    for (int count = random.between(150, 500); count > 0; --count)
      speck(paper, random);
  }
  some(Damage::Hairs, 350, 6, hair);
  some(Damage::Smudges, 350, 4, smudge);
  some(Damage::CoffeeRing, 100, 1, coffeeRing);
  some(Damage::DogEar, 150, 1, dogEar);
  if (random.chance(300)) {
    damages.add(Damage::Fold);
    const bool isAcross = random.chance(600);
    fold(paper, isAcross, random);
    if (random.chance(300))
      fold(paper, !isAcross, random);
  }
}

} // namespace hooptab
