#include "forms/FormMarks.h"

#include "forms/PictureSums.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <numeric>
#include <optional>

namespace hooptab {

namespace {

using Place = std::complex<double>;

// How a mark looks, in millimetres from its middle; leaves room for a page turned by seven degrees.
constexpr double kCore = 2.7;
constexpr double kWallFrom = 2.0;
constexpr double kWallTo = 3.0;
constexpr double kHole = 1.1;
constexpr double kPaperFrom = 4.1;
constexpr double kPaperTo = 4.9;
constexpr double kSide = 3;

constexpr double kDarkestPaper = 25;  // shade
constexpr double kClearly = 0.3;      // score of a mark that needs no other to be believed
constexpr double kBarely = 0.25;      // and of one that is searched where the others say
constexpr double kMarkReach = 4;      // two marks are never nearer, in millimetres
constexpr double kNotHollow = 0.4;    // what it costs to take a solid mark for the hollow one
constexpr double kCoarsePixels = 2.5; // of the reduced picture on a millimetre
constexpr double kMostPixels = 1.5e6; // of the reduced picture
constexpr double kLeastScale = 0.8;   // with less than this on a millimetre no hole can be seen
constexpr std::size_t kMostMarks = 400;
constexpr std::size_t kMostSets = 8;
constexpr int kMostTries = 20000; // bounds the time for a picture full of squares

struct Mark {
  Place place;
  double scale = 0; // pixels of a millimetre, roughly
  double score = 0; // 0 none, 1 black on white
};

// A flat scan shows black as grey: what is darkest on the page becomes dark, white stays white.
void darkenInk(GrayPicture& picture) {
  constexpr double kLeastInk = 0.002; // part of a form that is black at least
  constexpr int kDark = 40;
  constexpr int kPalest = 140; // what is darkest is no ink if it is lighter
  constexpr int kWhite = 255;
  std::array<std::size_t, kWhite + 1> count = {};
  for (const std::uint8_t shade : picture.pixels)
    ++count[shade];
  auto left = static_cast<std::size_t>(kLeastInk * static_cast<double>(picture.pixels.size()));
  int ink = 0;
  while (ink < kPalest && count[static_cast<std::size_t>(ink)] <= left)
    left -= count[static_cast<std::size_t>(ink++)];
  if (ink <= kDark)
    return;
  const int less = ink - kDark;
  for (std::uint8_t& shade : picture.pixels)
    shade = static_cast<std::uint8_t>(std::max(0, shade - less) * kWhite / (kWhite - less));
}

// Looks at one place of the reduced picture as if a mark of a certain size stood there.
class MarkLook {
 public:
  explicit MarkLook(const PictureSums& sums) : m_sums(sums) {}

  [[nodiscard]] double solid(Place place, double scale) const {
    const auto [paper, light] = surround(place, scale);
    if (paper < kDarkestPaper)
      return 0;
    // The two brighter quarters decide: dirt of one kind or the other may have eaten a corner.
    std::array<double, 4> quarters = {
        box(place, scale, -kCore, -kCore, 0, 0), box(place, scale, 0, -kCore, kCore, 0),
        box(place, scale, -kCore, 0, 0, kCore), box(place, scale, 0, 0, kCore, kCore)};
    std::sort(quarters.begin(), quarters.end());
    return std::max(0.0, 1 - (quarters[2] + quarters[3]) / 2 / paper) * light;
  }
  [[nodiscard]] double hollow(Place place, double scale) const {
    const auto [paper, light] = surround(place, scale);
    if (paper < kDarkestPaper)
      return 0;
    std::array<double, 4> walls = {box(place, scale, kWallFrom, -kCore, kWallTo, kCore),
                                   box(place, scale, -kWallTo, -kCore, -kWallFrom, kCore),
                                   box(place, scale, -kCore, kWallFrom, kCore, kWallTo),
                                   box(place, scale, -kCore, -kWallTo, kCore, -kWallFrom)};
    std::sort(walls.begin(), walls.end());
    const double wall = (walls[2] + walls[3]) / 2;
    if (wall >= paper)
      return 0;
    const double hole = (box(place, scale, -kHole, -kHole, kHole, kHole) - wall) / (paper - wall);
    constexpr double kOpen = 0.7; // of the paper's brightness, what blur leaves of the hole
    return (1 - wall / paper) * light * std::clamp(hole / kOpen, 0.0, 1.0);
  }

 private:
  [[nodiscard]] double box(Place place, double scale, double left, double top, double right,
                           double bottom) const {
    return m_sums.mean(place.real() + left * scale, place.imag() + top * scale, place.real() + right * scale,
                       place.imag() + bottom * scale);
  }
  [[nodiscard]] bool isInside(Place place) const {
    return place.real() >= 0 && place.imag() >= 0 && place.real() < m_sums.width() &&
           place.imag() < m_sums.height();
  }
  // The shade of the paper around, and how light its sides are next to the lightest. One side may be
  // written on; what lies outside of the picture is not asked.
  [[nodiscard]] std::pair<double, double> surround(Place place, double scale) const {
    std::array<double, 4> sides;
    sides.fill(PictureSums::kNothing);
    std::size_t side = 0;
    constexpr double kMiddle = (kPaperFrom + kPaperTo) / 2;
    for (const auto& [x, y] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}}) {
      const Place middle = place + scale * kMiddle * Place(x, y);
      const double across = x != 0 ? (kPaperTo - kPaperFrom) / 2 : kSide;
      const double down = y != 0 ? (kPaperTo - kPaperFrom) / 2 : kSide;
      if (isInside(middle))
        sides[side++] = box(middle, scale, -across, -down, across, down);
    }
    if (side < 2)
      return {0, 0};
    std::sort(sides.begin(), sides.end());
    const double paper = sides[3];
    const std::size_t first = side > 2 ? 5 - side : 2; // the darkest of three or four is not asked
    constexpr double kShaded = 0.6; // darker than this beside the lightest side is no paper
    if (sides[first] < kShaded * paper)
      return {0, 0};
    double light = 0;
    for (std::size_t each = first; each < sides.size(); ++each)
      light += sides[each];
    return {paper, light / static_cast<double>(sides.size() - first) / std::max(1.0, paper)};
  }

  const PictureSums& m_sums;
};

// Everything in the picture that looks like a mark, the best of each few millimetres.
struct MarksSeen {
  std::vector<Mark> solid;
  std::vector<Mark> hollow;
};

std::vector<Mark> bestApart(std::vector<Mark> marks) {
  std::erase_if(marks, [](const Mark& mark) { return mark.score < kClearly; });
  std::sort(marks.begin(), marks.end(), [](const Mark& a, const Mark& b) { return a.score > b.score; });
  std::vector<Mark> result;
  for (const Mark& mark : marks) {
    const bool isNew = std::none_of(result.begin(), result.end(), [&](const Mark& other) {
      return std::abs(other.place - mark.place) < kMarkReach * other.scale;
    });
    if (isNew)
      result.push_back(mark);
    if (result.size() == kMostMarks)
      break;
  }
  return result;
}

std::optional<MarksSeen> seenMarks(const GrayPicture& coarse, const MarkLook& look, double largestScale,
                                   double smallestScale, ReadingSteps& steps) {
  constexpr int kTile = 8; // pixels
  const int across = (coarse.width + kTile - 1) / kTile;
  const int down = (coarse.height + kTile - 1) / kTile;
  const std::size_t tiles = static_cast<std::size_t>(across) * static_cast<std::size_t>(down);
  MarksSeen result{std::vector<Mark>(tiles), std::vector<Mark>(tiles)};
  constexpr double kStep = 1.15;
  const auto pixel = [&](int x, int y) {
    return static_cast<int>(
        coarse.at(std::clamp(x, 0, coarse.width - 1), std::clamp(y, 0, coarse.height - 1)));
  };
  const double scales = std::log(largestScale / smallestScale) / std::log(kStep) + 1;
  double part = 0;
  for (double scale = largestScale; scale >= smallestScale; scale /= kStep, part += 1 / scales) {
    const int outside = static_cast<int>(std::lround((kPaperFrom + kPaperTo) / 2 * scale));
    const int wall = static_cast<int>(std::lround((kWallFrom + kWallTo) / 2 * scale));
    for (int y = 0; y < coarse.height; ++y) {
      if (y % 64 == 0 && !steps.reach(ReadingSteps::kMarks * (part + y / scales / coarse.height)))
        return std::nullopt;
      for (int x = 0; x < coarse.width; ++x) {
        // Four pixels tell most places from marks in no time.
        const int middle = pixel(x, y);
        const int walls = std::min(pixel(x - wall, y), pixel(x, y - wall));
        const int paper = std::max({pixel(x - outside, y), pixel(x + outside, y), pixel(x, y - outside)});
        if (walls * 5 >= paper * 4)
          continue;
        const Place place(x + 0.5, y + 0.5);
        const std::size_t tile = static_cast<std::size_t>(y / kTile) * static_cast<std::size_t>(across) +
                                 static_cast<std::size_t>(x / kTile);
        const auto keep = [&](std::vector<Mark>& marks, double score) {
          if (score > marks[tile].score)
            marks[tile] = {place, scale, score};
        };
        if (middle * 5 <= paper * 4)
          keep(result.solid, look.solid(place, scale));
        if (middle > walls)
          keep(result.hollow, look.hollow(place, scale));
      }
    }
  }
  result.solid = bestApart(std::move(result.solid));
  result.hollow = bestApart(std::move(result.hollow));
  return result;
}

// Puts marks together to sets that can be the corners of one form.
class MarkSets {
 public:
  MarkSets(const FormLayout& layout, const MarksSeen& seen, const MarkLook& look)
      : m_seen(seen), m_look(look) {
    for (std::size_t corner = 0; corner < 4; ++corner) {
      const FormRect& mark = layout.marks()[corner];
      m_corners[corner] = Place(mark.x + mark.width / 2, mark.y + mark.height / 2);
    }
  }

  // The best sets of as many marks as there are; of three or fewer, the best one alone.
  struct Set {
    std::array<std::optional<Mark>, 4> marks;
    bool isHollow = false;
    double score = 0;
    [[nodiscard]] auto count() const {
      return std::count_if(marks.begin(), marks.end(), [](const auto& mark) { return mark.has_value(); });
    }
  };
  [[nodiscard]] std::vector<Set> find() {
    for (const Mark& first : m_seen.hollow)
      addWith(first, true);
    const auto complete = [](const Set& set) { return set.count() == 4; };
    if (std::none_of(m_sets.begin(), m_sets.end(), complete)) {
      for (const Mark& first : m_seen.solid)
        addWith(first, false);
    }
    std::sort(m_sets.begin(), m_sets.end(), [](const Set& a, const Set& b) { return a.score > b.score; });
    std::vector<Set> result;
    for (const Set& set : m_sets) {
      const bool isNew = std::none_of(result.begin(), result.end(), [&](const Set& other) {
        for (std::size_t corner = 0; corner < 4; ++corner) {
          if (set.marks[corner].has_value() != other.marks[corner].has_value() ||
              (set.marks[corner] && std::abs(set.marks[corner]->place - other.marks[corner]->place) >
                                        kMarkReach * set.marks[corner]->scale))
            return false;
        }
        return true;
      });
      if (isNew)
        result.push_back(set);
      if (result.size() == kMostSets)
        break;
    }
    return result;
  }

 private:
  // Millimetres to pixels, by two of the marks.
  struct Similarity {
    Place turn;
    Place shift;
    [[nodiscard]] Place at(Place place) const { return turn * place + shift; }
    [[nodiscard]] double scale() const { return std::abs(turn); }
  };

  static bool agrees(const Mark& mark, double scale) {
    constexpr double kRoughly = 1.45;
    return mark.scale < kRoughly * scale && scale < kRoughly * mark.scale;
  }

  void addWith(const Mark& upperLeft, bool isHollow) {
    addAlone(upperLeft, isHollow);
    for (std::size_t corner = 1; corner < 4; ++corner) {
      for (const Mark& other : m_seen.solid) {
        const Place form = m_corners[corner] - m_corners[0];
        const Similarity similarity{(other.place - upperLeft.place) / form, {}};
        constexpr double kMostTurned = 9 * std::numbers::pi / 180; // with a stretched diagonal's part
        if (std::abs(std::arg(similarity.turn)) > kMostTurned || !agrees(upperLeft, similarity.scale()) ||
            !agrees(other, similarity.scale()) || m_tries >= kMostTries)
          continue;
        ++m_tries;
        Set set;
        set.isHollow = isHollow;
        set.marks[0] = upperLeft;
        set.marks[corner] = other;
        complete(set, {similarity.turn, upperLeft.place - similarity.turn * m_corners[0]});
      }
    }
  }
  // Nothing but the hollow mark is a find too: it tells what is missing.
  void addAlone(const Mark& upperLeft, bool isHollow) {
    if (!isHollow)
      return;
    Set set;
    set.isHollow = true;
    set.marks[0] = upperLeft;
    set.score = upperLeft.score;
    m_sets.push_back(set);
  }

  void complete(Set set, const Similarity& similarity) {
    // With two marks the page's stretch is not known, with three it is.
    constexpr double kStretch = 0.06;
    constexpr double kBent = 0.025;
    while (set.count() < 4) {
      const bool isThird = set.count() == 2;
      std::size_t bestCorner = 0;
      std::optional<Mark> best;
      for (std::size_t corner = 1; corner < 4; ++corner) {
        if (set.marks[corner])
          continue;
        const Place expected = isThird ? similarity.at(m_corners[corner]) : fourth(set, corner);
        const double far = (isThird ? kStretch : kBent) * similarity.scale() * std::abs(m_corners[3]);
        const std::optional<Mark> mark = nearest(expected, far, similarity.scale());
        if (mark && (!best || mark->score > best->score)) {
          best = mark;
          bestCorner = corner;
        }
        if (!isThird && !mark)
          set.marks[corner] = faint(expected, similarity.scale());
      }
      if (!best)
        break;
      set.marks[bestCorner] = best;
    }
    set.score = set.isHollow ? 0 : -kNotHollow;
    for (const auto& mark : set.marks)
      set.score += mark ? mark->score : 0;
    if (set.count() == 4)
      set.score -= skew(set);
    m_sets.push_back(set);
  }

  // The corner that completes a parallelogram.
  [[nodiscard]] Place fourth(const Set& set, std::size_t corner) const {
    const auto place = [&](std::size_t of) { return set.marks[of]->place; };
    return corner == 3 ? place(1) + place(2) - place(0) : place(0) + place(3) - place(3 - corner);
  }
  // How much the sides differ from those of a page that is turned and a little stretched.
  [[nodiscard]] double skew(const Set& set) const {
    const Place right = set.marks[1]->place - set.marks[0]->place;
    const Place down = set.marks[2]->place - set.marks[0]->place;
    const Place bent = set.marks[3]->place - set.marks[2]->place - right;
    const Place square = (down / right) / ((m_corners[2] - m_corners[0]) / (m_corners[1] - m_corners[0]));
    return 5 * std::abs(square - 1.0) + 20 * std::abs(bent / right);
  }

  [[nodiscard]] std::optional<Mark> nearest(Place expected, double far, double scale) const {
    std::optional<Mark> best;
    double bestValue = 0;
    for (const Mark& mark : m_seen.solid) {
      const double distance = std::abs(mark.place - expected) / far;
      if (distance > 1 || !agrees(mark, scale))
        continue;
      const double value = mark.score - 0.3 * distance;
      if (!best || value > bestValue) {
        best = mark;
        bestValue = value;
      }
    }
    return best;
  }
  // A mark that is hard to see is searched where it must be.
  [[nodiscard]] std::optional<Mark> faint(Place expected, double scale) const {
    Mark best;
    constexpr int kAround = 6; // half millimetres
    for (int y = -kAround; y <= kAround; ++y) {
      for (int x = -kAround; x <= kAround; ++x) {
        const Place place = expected + scale * Place(x, y) / 2.0;
        const double score = m_look.solid(place, scale);
        if (score > best.score)
          best = {place, scale, score};
      }
    }
    return best.score >= kBarely ? std::optional(best) : std::nullopt;
  }

  const MarksSeen& m_seen;
  const MarkLook& m_look;
  std::array<Place, 4> m_corners;
  std::vector<Set> m_sets;
  int m_tries = 0;
};

// Which edge cannot be found when marks are missing.
ScanProblem missingEdge(const MarkSets::Set& set) {
  const bool hasRight = set.marks[1].has_value();
  const bool hasLower = set.marks[2].has_value();
  const bool hasLast = set.marks[3].has_value();
  if (!hasLower && !hasLast)
    return ScanProblem::NoBottom;
  if (!hasRight && !hasLast)
    return ScanProblem::NoRight;
  if (!hasRight)
    return ScanProblem::NoTop;
  return hasLower ? ScanProblem::NoRight : ScanProblem::NoLeft;
}

} // namespace

MarkSearch findMarks(const FormLayout& layout, const GrayPicture& picture, ReadingSteps& steps) {
  MarkSearch result;
  // The whole form is hardly larger than the picture; where half of it is missing, it may be so in one
  // direction.
  const double fits = std::min(picture.width / FormLayout::kWidth, picture.height / FormLayout::kHeight);
  // A long strip is no page, but must not take the time of many.
  const double pixels = static_cast<double>(picture.width) * picture.height;
  const int factor =
      static_cast<int>(std::lround(std::max({1.0, fits / kCoarsePixels, std::sqrt(pixels / kMostPixels)})));
  GrayPicture coarse = reduced(picture, factor);
  darkenInk(coarse);
  const PictureSums sums(coarse);
  const MarkLook look(sums);
  const double largest = fits / factor * 2.2;
  const double smallest = std::max(kLeastScale, fits / factor * 0.5);
  const auto seen = seenMarks(coarse, look, largest, smallest, steps);
  if (!seen) {
    result.problem = ScanProblem::Cancelled;
    return result;
  }
  constexpr std::size_t kSolid = 3;
  result.showsSquares = seen->solid.size() >= kSolid;
  const auto sets = MarkSets(layout, *seen, look).find();
  for (const auto& set : sets) {
    if (set.count() < 4)
      continue;
    MarkSet& found = result.sets.emplace_back();
    found.score = set.score;
    found.isHollow = set.isHollow;
    for (std::size_t corner = 0; corner < 4; ++corner) {
      const Place place = set.marks[corner]->place * static_cast<double>(factor);
      found.centres[corner] = {place.real(), place.imag()};
    }
  }
  if (!result.sets.empty())
    return result;
  // A hollow mark in the upper left part, and not cut off by the edge, tells which of the others are missing.
  result.problem = ScanProblem::NoUpperLeftMark;
  for (const auto& set : sets) {
    const Mark& mark = *set.marks[0];
    const double half = FormLayout::kMark / 2 * mark.scale;
    if (set.isHollow && mark.place.real() > half && mark.place.imag() > half &&
        mark.place.real() < coarse.width / 2.0 && mark.place.imag() < coarse.height / 2.0) {
      result.problem = missingEdge(set);
      break;
    }
  }
  return result;
}

} // namespace hooptab
