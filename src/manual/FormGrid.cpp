#include "manual/FormGrid.h"

#include "manual/LinearEquations.h"
#include "manual/PictureSums.h"

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

// --- the borders of cells ---

// A few neighbouring cells of one row.
struct CellGroup {
  int player = 0;
  std::vector<FormRect> cells;
  [[nodiscard]] FormPoint middle() const {
    return {(cells.front().x + cells.back().right()) / 2, cells.front().y + cells.front().height / 2};
  }
};

std::vector<CellGroup> groupsOf(const FormLayout& layout) {
  std::vector<const FormCell*> cells;
  for (const FormCell& cell : layout.cells())
    cells.push_back(&cell);
  std::sort(cells.begin(), cells.end(), [](const FormCell* a, const FormCell* b) {
    return std::pair(a->rect.y, a->rect.x) < std::pair(b->rect.y, b->rect.x);
  });
  constexpr std::size_t kMost = 7;
  std::vector<CellGroup> result;
  for (const FormCell* cell : cells) {
    const bool continues = !result.empty() && result.back().cells.size() < kMost &&
                           result.back().cells.back().y == cell->rect.y &&
                           cell->rect.x - result.back().cells.back().right() < cell->rect.width;
    if (!continues)
      result.push_back({cell->player, {}});
    result.back().cells.push_back(cell->rect);
  }
  return result;
}

struct Offset {
  double distance = 0; // millimetres
  double clarity = 0;  // how much darker the borders are there than beside
};

constexpr double kFarthest = 1;
constexpr double kOffsetStep = 0.05;
constexpr int kOffsets = 2 * static_cast<int>(kFarthest / kOffsetStep) + 1;

// How dark the borders' lines are, moved across by each offset. Ink is no darker than a border here, so that
// ticks count no more than what is printed.
class BorderProfile {
 public:
  BorderProfile(const GrayPicture& picture, const FormGrid& grid, int player, double paper)
      : m_picture(picture), m_grid(grid), m_player(player), m_paper(paper) {}

  // One line from a point, of a length along one axis, shifted along the other.
  void add(const FormPoint& from, double length, bool isVertical) {
    constexpr int kSamples = 10;
    const FormPoint to = isVertical ? FormPoint{from.x, from.y + length} : FormPoint{from.x + length, from.y};
    const PicturePoint first = m_grid.at(m_player, from);
    const PicturePoint last = m_grid.at(m_player, to);
    const PicturePoint next =
        m_grid.at(m_player, isVertical ? FormPoint{from.x + 1, from.y} : FormPoint{from.x, from.y + 1});
    for (int sample = 0; sample < kSamples; ++sample) {
      const double part = (sample + 0.5) / kSamples;
      const double x = first.x + part * (last.x - first.x);
      const double y = first.y + part * (last.y - first.y);
      for (int offset = 0; offset < kOffsets; ++offset) {
        const double distance = offset * kOffsetStep - kFarthest;
        const double shade =
            shadeAt(m_picture, x + distance * (next.x - first.x), y + distance * (next.y - first.y));
        m_dark[static_cast<std::size_t>(offset)] += std::clamp(1 - shade / m_paper, 0.0, kBorderDark);
      }
    }
    m_samples += kSamples;
  }

  [[nodiscard]] Offset best() const {
    // As wide as the line that is searched.
    constexpr std::size_t kHalf = 2;
    std::array<double, kOffsets> wide = {};
    std::size_t best = kHalf;
    for (std::size_t i = kHalf; i + kHalf < wide.size(); ++i) {
      for (std::size_t k = i - kHalf; k <= i + kHalf; ++k)
        wide[i] += m_dark[k];
      if (wide[i] > wide[best])
        best = i;
    }
    if (best <= kHalf || best + kHalf + 1 >= wide.size())
      return {};
    const double before = wide[best - 1] - wide[best];
    const double after = wide[best + 1] - wide[best];
    const double peak = before + after < 0 ? (before - after) / (2 * (before + after)) : 0;
    std::vector<double> all(wide.begin() + kHalf, wide.end() - kHalf);
    const double usual = median(all);
    return {(static_cast<double>(best) + peak) * kOffsetStep - kFarthest,
            (wide[best] - usual) / (2 * kHalf + 1) / m_samples};
  }

 private:
  static constexpr double kBorderDark = 0.5;
  const GrayPicture& m_picture;
  const FormGrid& m_grid;
  int m_player;
  double m_paper;
  std::array<double, kOffsets> m_dark = {};
  int m_samples = 0;
};

double paperAround(const GrayPicture& picture, const FormGrid& grid, const CellGroup& group) {
  std::vector<double> shades;
  const FormRect& last = group.cells.back();
  for (double x = group.cells.front().x - 0.4; x <= last.right() + 0.4; x += 0.4) {
    for (double y = last.y - 0.4; y <= last.bottom() + 0.4; y += 0.4)
      shades.push_back(shadeAt(picture, grid.at(group.player, {x, y})));
  }
  const auto light = shades.begin() + static_cast<std::ptrdiff_t>(shades.size() * 3 / 4);
  std::nth_element(shades.begin(), light, shades.end());
  return std::max(1.0, *light);
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

bool FormGrid::followCells(const FormLayout& layout, const GrayPicture& picture) {
  struct Measured {
    const CellGroup* group;
    Offset x, y;
  };
  const std::vector<CellGroup> groups = groupsOf(layout);
  constexpr double kClear = 0.06; // of the darkness of a border after blur
  std::vector<Measured> measured;
  std::size_t clear = 0;
  for (const CellGroup& group : groups) {
    const double paper = paperAround(picture, *this, group);
    BorderProfile x(picture, *this, group.player, paper);
    BorderProfile y(picture, *this, group.player, paper);
    for (const FormRect& cell : group.cells) {
      constexpr double kCorner = 0.3;
      for (const double left : {cell.x, cell.right()})
        x.add({left, cell.y + kCorner}, cell.height - 2 * kCorner, true);
      for (const double top : {cell.y, cell.bottom()})
        y.add({cell.x + kCorner, top}, cell.width - 2 * kCorner, false);
    }
    measured.push_back({&group, x.best(), y.best()});
    if (measured.back().x.clarity > kClear && measured.back().y.clarity > kClear)
      ++clear;
  }
  if (clear * 2 < groups.size())
    return false;

  for (int player = 0; player < FormLayout::kPlayers; ++player) {
    Shift& shift = m_shifts[static_cast<std::size_t>(player)];
    const auto fit = [&](Offset Measured::*offset, std::array<double, 3> Shift::*factors) {
      // Each time with less weight for what lies far from the others.
      constexpr double kFar = 0.1;
      for (int pass = 0; pass < 5; ++pass) {
        LeastSquares<3> squares;
        for (const Measured& each : measured) {
          const Offset& found = each.*offset;
          if (each.group->player != player || found.clarity < kClear)
            continue;
          const FormPoint middle = each.group->middle();
          const std::array<double, 3> terms = {1, (middle.x - shift.middle.x) / 100,
                                               (middle.y - shift.middle.y) / 100};
          const auto& now = shift.*factors;
          const double rest =
              pass == 0 ? 0 : found.distance - now[0] * terms[0] - now[1] * terms[1] - now[2] * terms[2];
          squares.add(terms, found.distance, found.clarity / (1 + rest * rest / (kFar * kFar)));
        }
        if (const auto solved = squares.solution())
          shift.*factors = *solved;
      }
    };
    fit(&Measured::x, &Shift::x);
    fit(&Measured::y, &Shift::y);
  }

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
