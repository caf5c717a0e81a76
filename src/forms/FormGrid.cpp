#include "forms/FormGrid.h"

#include "forms/LinearEquations.h"
#include "forms/PictureSums.h"

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

double shadeAt(const GrayPicture& picture, const PicturePoint& point) {
  return shadeAt(picture, point.x, point.y);
}
bool isInside(const GrayPicture& picture, const PicturePoint& point) {
  return point.x >= 0 && point.y >= 0 && point.x < picture.width && point.y < picture.height;
}

double median(std::vector<double>& values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

FormPoint middleOf(const FormRect& rect) {
  return {rect.x + rect.width / 2, rect.y + rect.height / 2};
}

// --- the edges of a mark ---

struct MarkEdges {
  FormPoint beside; // how far the middle is from where it was expected
  double black = 0; // as FormGrid::black
};

// Looks outwards from the inside of the mark along many lines: dirt spoils some, the middle one is right.
std::optional<MarkEdges> edgesOf(const GrayPicture& picture, const PageMapping& page, const FormRect& mark) {
  constexpr double kStep = 0.05;
  constexpr double kFrom = 1.9; // from the middle: within the hollow mark's wall
  constexpr double kTo = 5.3;
  constexpr double kAlong = 2.4;
  constexpr double kBetween = 0.3;
  constexpr double kLeastContrast = 20;
  constexpr std::size_t kLeastLines = 4;
  const FormPoint middle = middleOf(mark);
  std::vector<double> blacks;
  const auto edge = [&](double x, double y) -> std::optional<double> {
    std::vector<double> distances;
    for (double along = -kAlong; along <= kAlong; along += kBetween) {
      std::vector<double> shades;
      for (double out = kFrom; out <= kTo; out += kStep) {
        const PicturePoint point = page.at(middle.x + x * out + y * along, middle.y + y * out + x * along);
        if (!isInside(picture, point))
          break;
        shades.push_back(shadeAt(picture, point));
      }
      if (static_cast<double>(shades.size()) * kStep < (kTo - kFrom) / 2)
        continue;
      const auto darkest = std::min_element(shades.begin(), shades.begin() + 20);
      const double lightest = *std::max_element(darkest, shades.end());
      if (lightest - *darkest < kLeastContrast)
        continue;
      const double edgeShade = (lightest + *darkest) / 2;
      const auto crossing =
          std::find_if(darkest, shades.end(), [&](double shade) { return shade > edgeShade; });
      distances.push_back(kFrom + kStep * static_cast<double>(crossing - shades.begin()));
      blacks.push_back(*darkest / lightest);
    }
    if (distances.size() < kLeastLines)
      return std::nullopt;
    return median(distances) - mark.width / 2;
  };
  const auto beside = [](std::optional<double> before, std::optional<double> after) -> std::optional<double> {
    if (before && after)
      return (*after - *before) / 2;
    return before ? std::optional(-*before) : after;
  };
  const auto x = beside(edge(-1, 0), edge(1, 0));
  const auto y = beside(edge(0, -1), edge(0, 1));
  if (!x || !y)
    return std::nullopt;
  return MarkEdges{{*x, *y}, median(blacks)};
}

// --- printed lines ---

// A few parallel printed lines that can only move together: the borders of some neighbouring cells, or a
// piece of a player's frame.
struct LineGroup {
  enum class Measures { Across, Down };
  Measures measures = Measures::Across; // upright lines tell how far they moved across, level ones down
  int player = 0;
  bool isFrame = false;
  FormPoint middle;
  struct Line {
    FormPoint from;
    double length = 0;
  };
  std::vector<Line> lines;
};

void addFrame(std::vector<LineGroup>& groups, const FormLayout& layout, int player) {
  const FormRect block = layout.block(player);
  constexpr double kCorner = 1.5; // away from what crosses the line
  const auto add = [&](LineGroup::Measures measures, int pieces) {
    const bool isUpright = measures == LineGroup::Measures::Across;
    const double length = (isUpright ? block.height : block.width) / pieces;
    for (int piece = 0; piece < pieces; ++piece) {
      for (const double far : {0.0, isUpright ? block.width : block.height}) {
        const double start = piece * length + kCorner;
        const FormPoint from =
            isUpright ? FormPoint{block.x + far, block.y + start} : FormPoint{block.x + start, block.y + far};
        const FormPoint middle =
            isUpright ? FormPoint{from.x, from.y + length / 2} : FormPoint{from.x + length / 2, from.y};
        groups.push_back({measures, player, true, middle, {{from, length - 2 * kCorner}}});
      }
    }
  };
  add(LineGroup::Measures::Across, 3);
  add(LineGroup::Measures::Down, 6);
}

std::vector<LineGroup> lineGroups(const FormLayout& layout) {
  std::vector<const FormCell*> cells;
  for (const FormCell& cell : layout.cells())
    cells.push_back(&cell);
  std::sort(cells.begin(), cells.end(), [](const FormCell* a, const FormCell* b) {
    return std::pair(a->rect.y, a->rect.x) < std::pair(b->rect.y, b->rect.x);
  });
  constexpr int kMost = 7; // cells in a group
  constexpr double kCorner = 0.3;
  std::vector<LineGroup> result;
  const FormCell* before = nullptr;
  FormRect first;
  int count = 0;
  for (const FormCell* cell : cells) {
    const FormRect& rect = cell->rect;
    const bool continues = before != nullptr && count < kMost && before->rect.y == rect.y &&
                           rect.x - before->rect.right() < rect.width;
    if (!continues) {
      result.push_back({LineGroup::Measures::Across, cell->player, false, {}, {}});
      result.push_back({LineGroup::Measures::Down, cell->player, false, {}, {}});
      first = rect;
      count = 0;
    }
    LineGroup& across = result[result.size() - 2];
    LineGroup& down = result.back();
    for (const double x : {rect.x, rect.right()})
      across.lines.push_back({{x, rect.y + kCorner}, rect.height - 2 * kCorner});
    for (const double y : {rect.y, rect.bottom()})
      down.lines.push_back({{rect.x + kCorner, y}, rect.width - 2 * kCorner});
    across.middle = down.middle = {(first.x + rect.right()) / 2, rect.y + rect.height / 2};
    before = cell;
    ++count;
  }
  for (int player = 0; player < FormLayout::kPlayers; ++player)
    addFrame(result, layout, player);
  return result;
}

constexpr double kFarthest = 1.2; // millimetres that a line is searched beside its place
constexpr double kOffsetStep = 0.05;
constexpr int kOffsets = 2 * static_cast<int>(kFarthest / kOffsetStep) + 1;

// How dark a picture is along a group's lines when they are moved by each offset. Several groups' profiles
// may be added up.
struct LineProfile {
  std::array<double, kOffsets> dark = {};

  struct Peak {
    double offset = 0;  // millimetres
    double clarity = 0; // how much darker the lines are there than elsewhere
  };
  [[nodiscard]] Peak best(double around, double far) const {
    constexpr int kHalf = 2; // as wide as the line that is searched
    std::vector<double> wide(dark.size());
    for (int i = kHalf; i < kOffsets - kHalf; ++i) {
      for (int k = i - kHalf; k <= i + kHalf; ++k)
        wide[static_cast<std::size_t>(i)] += dark[static_cast<std::size_t>(k)] / (2 * kHalf + 1);
    }
    const auto offsetOf = [](double index) { return index * kOffsetStep - kFarthest; };
    std::size_t peak = 0;
    for (std::size_t i = kHalf + 1; i + kHalf + 1 < wide.size(); ++i) {
      if (std::abs(offsetOf(static_cast<double>(i)) - around) <= far && (peak == 0 || wide[i] > wide[peak]))
        peak = i;
    }
    if (peak == 0)
      return {};
    const double before = wide[peak - 1] - wide[peak];
    const double after = wide[peak + 1] - wide[peak];
    if (before > 0 || after > 0) // still rising at the end of the search
      return {};
    const double between = before + after < 0 ? (before - after) / (2 * (before + after)) : 0;
    const double top = wide[peak];
    return {offsetOf(static_cast<double>(peak) + between), top - median(wide)};
  }
};

double paperAlong(const GrayPicture& picture, const FormGrid& grid, const LineGroup& group) {
  std::vector<double> shades;
  const bool isAcross = group.measures == LineGroup::Measures::Across;
  for (const LineGroup::Line& line : group.lines) {
    for (const double part : {0.1, 0.3, 0.5, 0.7, 0.9}) {
      for (const double beside : {-0.6, 0.6}) {
        const double x = line.from.x + (isAcross ? beside : part * line.length);
        const double y = line.from.y + (isAcross ? part * line.length : beside);
        shades.push_back(shadeAt(picture, grid.at(group.player, {x, y})));
      }
    }
  }
  const auto light = shades.begin() + static_cast<std::ptrdiff_t>(shades.size() * 3 / 4);
  std::nth_element(shades.begin(), light, shades.end());
  return std::max(1.0, *light);
}

LineProfile profileOf(const GrayPicture& picture, const FormGrid& grid, const LineGroup& group) {
  // Ink is no darker than a border here, so that ticks count no more than what is printed.
  constexpr double kBorderDark = 0.5;
  const double paper = paperAlong(picture, grid, group);
  const double range = paper * (1 - grid.black());
  const bool isAcross = group.measures == LineGroup::Measures::Across;
  const int samples = group.isFrame ? 60 : 10;
  const double each = 1.0 / samples / static_cast<double>(group.lines.size());
  LineProfile result;
  for (const LineGroup::Line& line : group.lines) {
    const FormPoint& from = line.from;
    const FormPoint to =
        isAcross ? FormPoint{from.x, from.y + line.length} : FormPoint{from.x + line.length, from.y};
    const PicturePoint first = grid.at(group.player, from);
    const PicturePoint last = grid.at(group.player, to);
    const PicturePoint next =
        grid.at(group.player, isAcross ? FormPoint{from.x + 1, from.y} : FormPoint{from.x, from.y + 1});
    for (int sample = 0; sample < samples; ++sample) {
      const double part = (sample + 0.5) / samples;
      const double x = first.x + part * (last.x - first.x);
      const double y = first.y + part * (last.y - first.y);
      for (int i = 0; i < kOffsets; ++i) {
        const double offset = i * kOffsetStep - kFarthest;
        const double shade =
            shadeAt(picture, x + offset * (next.x - first.x), y + offset * (next.y - first.y));
        result.dark[static_cast<std::size_t>(i)] +=
            each * std::clamp((paper - shade) / range, 0.0, group.isFrame ? 1.0 : kBorderDark);
      }
    }
  }
  return result;
}

} // namespace

std::optional<FormGrid> FormGrid::ofMarks(const FormLayout& layout, const GrayPicture& picture,
                                          const std::array<PicturePoint, 4>& centres) {
  std::array<PageMapping::Pair, 4> pairs;
  for (std::size_t corner = 0; corner < 4; ++corner)
    pairs[corner] = {middleOf(layout.marks()[corner]), centres[corner]};
  auto page = PageMapping::through(pairs);
  FormGrid result;
  for (int pass = 0; pass < 3 && page; ++pass) {
    result.m_page = *page;
    result.m_black = 0;
    for (std::size_t corner = 0; corner < 4; ++corner) {
      const auto edges = edgesOf(picture, result.m_page, layout.marks()[corner]);
      if (!edges)
        return std::nullopt;
      const FormPoint& middle = pairs[corner].form;
      pairs[corner].picture = result.m_page.at(middle.x + edges->beside.x, middle.y + edges->beside.y);
      result.m_black += edges->black / 4;
    }
    page = PageMapping::through(pairs);
  }
  if (!page)
    return std::nullopt;
  result.m_page = *page;
  for (int player = 0; player < FormLayout::kPlayers; ++player)
    result.m_shifts[static_cast<std::size_t>(player)].middle = middleOf(layout.block(player));
  return result;
}

FormPoint FormGrid::shifted(const Shift& shift, const FormPoint& point) const {
  const double right = (point.x - shift.middle.x) / 100;
  const double down = (point.y - shift.middle.y) / 100;
  return {point.x + shift.x[0] + shift.x[1] * right + shift.x[2] * down,
          point.y + shift.y[0] + shift.y[1] * right + shift.y[2] * down};
}

PicturePoint FormGrid::at(int player, const FormPoint& point) const {
  return at(shifted(m_shifts[static_cast<std::size_t>(player)], point));
}

bool FormGrid::followLines(const FormLayout& layout, const GrayPicture& picture) {
  constexpr double kFrameClear = 0.15;   // of black
  constexpr double kBorderClear = 0.012; // what a border has on a very light page
  constexpr double kFarFromOthers = 0.35;
  struct Measured {
    const LineGroup* group;
    LineProfile profile;
    LineProfile::Peak peak;
  };
  const std::vector<LineGroup> groups = lineGroups(layout);
  std::vector<Measured> measured;
  for (const LineGroup& group : groups)
    measured.push_back({&group, profileOf(picture, *this, group), {}});

  std::vector<double> borders;
  int frames = 0;
  int clearFrames = 0;
  for (int player = 0; player < FormLayout::kPlayers; ++player) {
    for (const auto measures : {LineGroup::Measures::Across, LineGroup::Measures::Down}) {
      std::vector<Measured*> own;
      for (Measured& each : measured) {
        if (each.group->player == player && each.group->measures == measures)
          own.push_back(&each);
      }
      // All lines of a player together cannot be taken for their neighbours, each for itself could.
      LineProfile together;
      for (const Measured* each : own) {
        for (std::size_t i = 0; i < together.dark.size(); ++i)
          together.dark[i] += each->profile.dark[i];
      }
      const double usual = together.best(0, kFarthest).offset;
      for (Measured* each : own) {
        each->peak = each->profile.best(usual, kFarFromOthers);
        if (each->group->isFrame) {
          ++frames;
          clearFrames += each->peak.clarity > kFrameClear ? 1 : 0;
        } else {
          borders.push_back(each->peak.clarity);
        }
      }

      Shift& shift = m_shifts[static_cast<std::size_t>(player)];
      auto& factors = measures == LineGroup::Measures::Across ? shift.x : shift.y;
      factors = {usual, 0, 0};
      // Each time with less weight for what lies far from the others.
      constexpr double kFar = 0.08;
      for (int pass = 0; pass < 6; ++pass) {
        LeastSquares<3> squares;
        for (const Measured* each : own) {
          const LineGroup& group = *each->group;
          if (each->peak.clarity < kBorderClear)
            continue;
          const std::array<double, 3> terms = {1, (group.middle.x - shift.middle.x) / 100,
                                               (group.middle.y - shift.middle.y) / 100};
          const double rest = each->peak.offset - factors[0] - factors[1] * terms[1] - factors[2] * terms[2];
          constexpr double kEnough = 0.08; // clarity
          const double weight = std::min(1.0, each->peak.clarity / kEnough);
          squares.add(terms, each->peak.offset,
                      pass == 0 ? weight : weight / (1 + rest * rest / (kFar * kFar)));
        }
        if (const auto solved = squares.solution())
          factors = *solved;
      }
    }
  }
  if (clearFrames * 2 < frames)
    return false;
  m_border = median(borders);

  // The page as a whole follows its players.
  std::vector<PageMapping::Pair> pairs;
  for (int player = 0; player < FormLayout::kPlayers; ++player) {
    const FormRect block = layout.block(player);
    for (const double x : {block.x, block.right()}) {
      for (const double y : {block.y, block.bottom()})
        pairs.push_back({{x, y}, at(player, {x, y})});
    }
  }
  m_whole = PageMapping::through(pairs).value_or(m_page);
  return true;
}

} // namespace hooptab
